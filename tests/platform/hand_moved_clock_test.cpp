#include "support/hand_moved_clock.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class HandMovedClockTest : public testing::Test {
 protected:
  auto wakeToNote(std::chrono::nanoseconds delay, char letter) {
    return clock.wakeAfter(delay, [this, letter] {
      woken += letter;
      moments.push_back(clock.now() - start);
    });
  }

  HandMovedClock clock;
  const Date start = clock.now();
  std::string woken;
  std::vector<std::chrono::nanoseconds> moments;
};

TEST_F(HandMovedClockTest, StandsStillUntilItIsMoved) {
  const auto alarm = wakeToNote(0s, 'a');
  EXPECT_EQ(clock.now(), start);
  EXPECT_EQ(woken, "");
  clock.advance(0s);
  EXPECT_EQ(woken, "a");
}

TEST_F(HandMovedClockTest, WakesInOrderAndEachAtItsOwnMoment) {
  const auto late = wakeToNote(900s, 'c');
  const auto early = wakeToNote(1s, 'a');
  const auto together = wakeToNote(1s, 'b');
  clock.advance(899s);
  EXPECT_EQ(woken, "ab");
  EXPECT_EQ(clock.pendingAlarms(), 1U);
  clock.advance(2s);
  EXPECT_EQ(woken, "abc");
  EXPECT_EQ(moments, (std::vector<std::chrono::nanoseconds>{1s, 1s, 900s}));
  EXPECT_EQ(clock.now(), start + 901s);
}

TEST_F(HandMovedClockTest, WakesForAnAlarmThatAnAlarmHasSet) {
  std::unique_ptr<Clock::Alarm> second;
  const auto first = clock.wakeAfter(2s, [&] { second = wakeToNote(3s, 'b'); });
  clock.advance(10s);
  EXPECT_EQ(woken, "b");
  EXPECT_EQ(moments, std::vector<std::chrono::nanoseconds>{5s});
}

TEST_F(HandMovedClockTest, NeverWakesForAnAlarmThatIsGone) {
  auto second = wakeToNote(2s, 'b');
  const auto first = clock.wakeAfter(1s, [&] { second.reset(); });
  clock.advance(5s);
  EXPECT_EQ(woken, "");
  EXPECT_EQ(clock.pendingAlarms(), 0U);
}

}  // namespace
}  // namespace klarvik
