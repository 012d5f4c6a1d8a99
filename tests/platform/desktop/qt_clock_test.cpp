#include "platform/desktop/qt_clock.h"

#include <gtest/gtest.h>

#include <string>

#include "support/application/main_loop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class QtClockTest : public testing::Test {
 protected:
  QtClock clock;
};

TEST_F(QtClockTest, WakesOnceAndNotBeforeTheDelayIsOver) {
  const auto start = std::chrono::steady_clock::now();
  int calls = 0;
  auto end = start;
  const auto alarm = clock.wakeAfter(20ms, [&] {
    ++calls;
    end = std::chrono::steady_clock::now();
  });
  EXPECT_EQ(calls, 0);
  ASSERT_TRUE(turnMainLoopUntil([&] { return calls > 0; }));
  EXPECT_GE(end - start, 20ms);
  bool later = false;
  const auto second = clock.wakeAfter(60ms, [&] { later = true; });
  ASSERT_TRUE(turnMainLoopUntil([&] { return later; }));
  EXPECT_EQ(calls, 1);
}

TEST_F(QtClockTest, WakesInTheOrderOfTheDelays) {
  std::string order;
  const auto late = clock.wakeAfter(40ms, [&] { order += 'c'; });
  const auto early = clock.wakeAfter(1ns, [&] { order += 'b'; });
  const auto now = clock.wakeAfter(-5s, [&] { order += 'a'; });
  ASSERT_TRUE(turnMainLoopUntil([&] { return order.size() == 3; }));
  EXPECT_EQ(order, "abc");
}

TEST_F(QtClockTest, NeverWakesForAnAlarmThatIsGone) {
  bool woken = false;
  auto alarm = clock.wakeAfter(1ms, [&] { woken = true; });
  alarm.reset();
  bool later = false;
  const auto other = clock.wakeAfter(30ms, [&] { later = true; });
  ASSERT_TRUE(turnMainLoopUntil([&] { return later; }));
  EXPECT_FALSE(woken);
}

TEST_F(QtClockTest, LetsAnAlarmGoWhileItIsCalling) {
  const auto kept = std::make_shared<std::string>("still here");
  std::unique_ptr<Clock::Alarm> alarm;
  std::string seen;
  alarm = clock.wakeAfter(0s, [&alarm, &seen, kept] {
    alarm.reset();
    seen = *kept;
  });
  ASSERT_TRUE(turnMainLoopUntil([&] { return !seen.empty(); }));
  EXPECT_EQ(seen, "still here");
}

TEST_F(QtClockTest, TakesADelayOfAnyLength) {
  bool woken = false;
  const auto never = clock.wakeAfter(std::chrono::nanoseconds::max(), [&] { woken = true; });
  bool later = false;
  const auto other = clock.wakeAfter(10ms, [&] { later = true; });
  ASSERT_TRUE(turnMainLoopUntil([&] { return later; }));
  EXPECT_FALSE(woken);
}

TEST_F(QtClockTest, TellsTheTimeOfTheMachine) {
  const Date before = std::chrono::system_clock::now();
  const Date now = clock.now();
  EXPECT_GE(now, before);
  EXPECT_LE(now, std::chrono::system_clock::now());
}

}  // namespace
}  // namespace klarvik
