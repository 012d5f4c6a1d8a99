#include "platform/notification_center.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

class NotificationCenterTest : public testing::Test {
 protected:
  NotificationCenter::Observer note(const std::string& text) {
    return [this, text] { heard += text; };
  }

  NotificationCenter center;
  std::string heard;
};

TEST_F(NotificationCenterTest, CallsTheObserversOfANameInTheOrderInWhichTheyCame) {
  const auto first = center.observe("klarvik.diskChanged", note("1"));
  const auto second = center.observe("klarvik.diskChanged", note("2"));
  const auto other = center.observe("other", note("x"));
  center.post("klarvik.diskChanged");
  EXPECT_EQ(heard, "12");
}

TEST_F(NotificationCenterTest, PostsANameThatNobodyObserves) {
  center.post("klarvik.diskChanged");
  EXPECT_EQ(heard, "");
}

TEST_F(NotificationCenterTest, StopsCallingAnObserverWhoseSubscriptionIsGone) {
  const auto first = center.observe("name", note("1"));
  auto second = center.observe("name", note("2"));
  second.reset();
  center.post("name");
  EXPECT_EQ(heard, "1");
}

TEST_F(NotificationCenterTest, LetsAnObserverEndItsOwnAndALaterSubscriptionWhileItIsCalled) {
  NotificationCenter::Subscription first;
  NotificationCenter::Subscription second;
  first = center.observe("name", [&] {
    heard += "1";
    first.reset();
    second.reset();
  });
  second = center.observe("name", note("2"));
  const auto third = center.observe("name", note("3"));
  center.post("name");
  center.post("name");
  EXPECT_EQ(heard, "133");
}

TEST_F(NotificationCenterTest, CallsAnObserverThatCameDuringAPostFromTheNextPostOn) {
  NotificationCenter::Subscription late;
  const auto first = center.observe("name", [&] {
    heard += "1";
    if (!late) late = center.observe("name", note("2"));
  });
  center.post("name");
  EXPECT_EQ(heard, "1");
  center.post("name");
  EXPECT_EQ(heard, "112");
}

TEST(NotificationCenter, MayGoBeforeItsSubscriptions) {
  NotificationCenter::Subscription subscription;
  {
    NotificationCenter center;
    subscription = center.observe("name", [] {});
  }
  EXPECT_NE(subscription, nullptr);
}

}  // namespace
}  // namespace klarvik
