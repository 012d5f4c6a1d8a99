#include "state/timers.h"

#include <gtest/gtest.h>

#include <QCoro/QCoroTask>

#include "support/fake_clock.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class SleepFor : public ::testing::Test {
 protected:
  QCoro::Task<> sleep() {
    co_await sleepFor(clock, 10s, stop.get_token());
    awake = true;
  }

  FakeClock clock;
  std::stop_source stop;
  bool awake = false;
};

TEST_F(SleepFor, GoesOnAfterItsTime) {
  sleep();
  clock.advance(10s - 1ns);
  EXPECT_FALSE(awake);
  clock.advance(1ns);
  EXPECT_TRUE(awake);
}

TEST_F(SleepFor, GoesOnAtOnceWhenAStopIsRequested) {
  sleep();
  stop.request_stop();
  EXPECT_TRUE(awake);
  EXPECT_EQ(clock.pendingAlarms(), 0U);
}

TEST_F(SleepFor, DoesNotSleepOnceAStopHasBeenRequested) {
  stop.request_stop();
  sleep();
  EXPECT_TRUE(awake);
}

}  // namespace
}  // namespace klarvik
