#include "platform/desktop/observed_user_defaults.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <thread>

#include "platform/linux/json_user_defaults.h"
#include "platform/notification_center.h"
#include "support/application/main_loop.h"
#include "support/fake_user_defaults.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class ObservedUserDefaultsTest : public testing::Test {
 protected:
  /// What an observer reads for "showMenuBar" when it is told, each time that this differs.
  void observe(UserDefaults& defaults, const Path& file) {
    observed.emplace(defaults, file, notifications);
    subscription = notifications.observe(defaultsChangedNotification, [this] {
      const bool value = observed->boolean("showMenuBar", true);
      if (seen.empty() || seen.back() != value) seen.push_back(value);
    });
  }
  [[nodiscard]] bool sees(const std::vector<bool>& expected) {
    return turnMainLoopUntil([&] { return seen == expected; });
  }
  void writeByHand(const std::string& text) const {
    std::filesystem::create_directories(stored.file().parent_path());
    std::ofstream(stored.file(), std::ios::trunc) << text;
  }

  const TemporaryFolder home;
  NotificationCenter notifications;
  JsonUserDefaults stored{home.path() / ".config/klarvik"};
  std::optional<ObservedUserDefaults> observed;
  NotificationCenter::Subscription subscription;
  std::vector<bool> seen;
};

TEST_F(ObservedUserDefaultsTest, TellsOfAChangeThatThisProgramMakesOnceTheMainLoopTurns) {
  FakeUserDefaults memory;
  observe(memory, home.path() / "nowhere/preferences.json");
  EXPECT_TRUE(observed->set("showMenuBar", false));
  EXPECT_TRUE(seen.empty());
  EXPECT_TRUE(sees({false}));
  EXPECT_TRUE(observed->remove("showMenuBar"));
  EXPECT_TRUE(sees({false, true}));
  EXPECT_FALSE(observed->object("showMenuBar"));
}

TEST_F(ObservedUserDefaultsTest, WhatCannotBeStoredHoldsForThisRunAndIsToldOnce) {
  int told = 0;
  const auto notSaved = notifications.observe(defaultsNotSavedNotification, [&told] { ++told; });
  FakeUserDefaults memory;
  observe(memory, home.path() / "nowhere/preferences.json");
  ASSERT_TRUE(observed->set("showMenuBar", true));
  ASSERT_TRUE(observed->set("removed", true));
  memory.refuseWrites(true);
  EXPECT_FALSE(observed->set("showMenuBar", false));
  EXPECT_FALSE(observed->remove("removed"));
  EXPECT_TRUE(sees({false}));
  EXPECT_FALSE(observed->boolean("showMenuBar", true));
  EXPECT_FALSE(observed->object("removed"));
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(memory.boolean("showMenuBar", false));

  memory.refuseWrites(false);
  EXPECT_TRUE(observed->set("another", true));
  EXPECT_FALSE(memory.boolean("showMenuBar", true));
  EXPECT_FALSE(memory.object("removed"));
}

TEST_F(ObservedUserDefaultsTest, TellsOfAChangeFromAnotherThreadOnTheMainOne) {
  FakeUserDefaults memory;
  observe(memory, home.path() / "nowhere/preferences.json");
  std::thread([this] { observed->set("showMenuBar", false); }).join();
  EXPECT_TRUE(seen.empty());
  EXPECT_TRUE(sees({false}));
}

TEST_F(ObservedUserDefaultsTest, SaysThatAChangeCouldNotBeStored) {
  FakeUserDefaults memory;
  memory.refuseWrites(true);
  observe(memory, home.path() / "nowhere/preferences.json");
  EXPECT_FALSE(observed->set("showMenuBar", false));
  EXPECT_FALSE(observed->remove("showMenuBar"));
}

TEST_F(ObservedUserDefaultsTest, TellsOfWhatAnotherProcessStores) {
  observe(stored, stored.file());
  JsonUserDefaults other(home.path() / ".config/klarvik");
  ASSERT_TRUE(other.set("showMenuBar", false));
  EXPECT_TRUE(sees({false}));
  ASSERT_TRUE(other.set("showMenuBar", true));
  EXPECT_TRUE(sees({false, true}));
}

TEST_F(ObservedUserDefaultsTest, FollowsADocumentThatIsEditedByHandWhateverIsWrittenThere) {
  writeByHand(R"({"showMenuBar": false})");
  observe(stored, stored.file());
  writeByHand(R"({"showMenuBar": "no", "other": 1})");
  EXPECT_TRUE(sees({true}));
  writeByHand(R"({"showMenuBar": false})");
  EXPECT_TRUE(sees({true, false}));
  writeByHand("{ garbage");
  EXPECT_TRUE(sees({true, false, true}));
  writeByHand(R"({"showMenuBar": false})");
  EXPECT_TRUE(sees({true, false, true, false}));
  std::filesystem::remove_all(home.path() / ".config");
  EXPECT_TRUE(sees({true, false, true, false, true}));
}

}  // namespace
}  // namespace klarvik
