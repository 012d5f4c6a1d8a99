#include "panes/kit/stored_switch.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "support/fake_user_defaults.h"

namespace klarvik {
namespace {

class StoredSwitchTest : public ::testing::Test {
 protected:
  void changeFromOutside(const DefaultsValue& value) {
    defaults.set("key", value);
    notifications.post(defaultsChangedNotification);
  }

  FakeUserDefaults defaults;
  NotificationCenter notifications;
};

TEST_F(StoredSwitchTest, CountsAbsentAndForeignValuesAsItsFallback) {
  EXPECT_TRUE(StoredSwitch(defaults, notifications, "key", true).isOn());
  EXPECT_FALSE(StoredSwitch(defaults, notifications, "key", false).isOn());
  defaults.set("key", std::string("true"));
  EXPECT_FALSE(StoredSwitch(defaults, notifications, "key", false).isOn());
}

TEST_F(StoredSwitchTest, WritesAtOnceAndTellsOnce) {
  StoredSwitch box(defaults, notifications, "key");
  const QSignalSpy changes(&box, &StoredSwitch::isOnChanged);
  box.toggle();
  EXPECT_FALSE(defaults.boolean("key", true));
  EXPECT_FALSE(box.isOn());
  notifications.post(defaultsChangedNotification);
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(StoredSwitchTest, FollowsOthersAndTellsOnlyOfRealChanges) {
  StoredSwitch box(defaults, notifications, "key");
  const QSignalSpy changes(&box, &StoredSwitch::isOnChanged);
  changeFromOutside(true);
  EXPECT_EQ(changes.count(), 0);
  changeFromOutside(false);
  EXPECT_FALSE(box.isOn());
  changeFromOutside(std::string("garbage"));
  EXPECT_TRUE(box.isOn());
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(StoredSwitchTest, StaysAsItWasWhereNothingCanBeStored) {
  StoredSwitch box(defaults, notifications, "key");
  defaults.refuseWrites(true);
  const QSignalSpy changes(&box, &StoredSwitch::isOnChanged);
  box.toggle();
  EXPECT_TRUE(box.isOn());
  EXPECT_EQ(changes.count(), 0);
}

}  // namespace
}  // namespace klarvik
