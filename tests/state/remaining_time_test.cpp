#include "state/remaining_time.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class RemainingTimeTest : public testing::Test {
 protected:
  /// From now on, for so many seconds, by `aSecond` of the whole in each of them.
  void work(int duration, double aSecond) {
    for (int second = 0; second < duration; ++second) {
      now += 1s;
      share += aSecond;
      remaining.report(now, share);
    }
  }

  Date now{1'000'000s};
  double share = 0;
  RemainingTime remaining;
};

TEST_F(RemainingTimeTest, IsNotKnownBeforeTheWorkHasGoneOnForAWhile) {
  EXPECT_FALSE(remaining.estimate());
  remaining.report(now, 0);
  EXPECT_FALSE(remaining.estimate());
  work(4, 0.01);
  EXPECT_FALSE(remaining.estimate());
  work(2, 0.01);
  EXPECT_EQ(remaining.estimate(), 94s);
}

TEST_F(RemainingTimeTest, CountsDownWhileTheSpeedStays) {
  remaining.report(now, 0);
  work(50, 0.01);
  EXPECT_EQ(remaining.estimate(), 50s);
  work(40, 0.01);
  EXPECT_EQ(remaining.estimate(), 10s);
}

TEST_F(RemainingTimeTest, IsNotKnownWhileTheWorkStandsStillOrRunsAhead) {
  remaining.report(now, 0);
  work(20, 0.005);
  ASSERT_TRUE(remaining.estimate());
  work(20, 0);
  EXPECT_FALSE(remaining.estimate());
  work(20, 0.02);
  EXPECT_FALSE(remaining.estimate());
}

TEST_F(RemainingTimeTest, IsNotKnownOfWorkThatHasHardlyBegun) {
  remaining.report(now, 0);
  work(60, 0.0001);
  EXPECT_FALSE(remaining.estimate());
}

TEST_F(RemainingTimeTest, StartsAnewWithAnotherWorkAndAfterTheClockWasSetBack) {
  remaining.report(now, 0);
  work(20, 0.01);
  share = 0;
  remaining.report(now, share);
  EXPECT_FALSE(remaining.estimate());
  work(20, 0.01);
  ASSERT_TRUE(remaining.estimate());
  remaining.report(now - 3600s, share);
  EXPECT_FALSE(remaining.estimate());
}

TEST_F(RemainingTimeTest, IsShortNowhereLongerThanTheWorkIs) {
  remaining.report(now, 0);
  work(100, 0.01);
  ASSERT_TRUE(remaining.estimate());
  EXPECT_LE(*remaining.estimate(), 1s);
}

TEST_F(RemainingTimeTest, OfReportsThatComeAllTheTimeIsTheSame) {
  for (int report = 0; report <= 200'000; ++report) {
    remaining.report(now + std::chrono::milliseconds(report), report / 400'000.0);
  }
  ASSERT_TRUE(remaining.estimate());
  EXPECT_NEAR(static_cast<double>(remaining.estimate()->count()), 200, 2);
}

}  // namespace
}  // namespace klarvik
