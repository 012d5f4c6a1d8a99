#include "engine/parallel_for.h"

#include <gmock/gmock.h>

#include <atomic>
#include <barrier>
#include <latch>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::size_t width = 6;

/// Remembers what was started, on any thread.
class Started {
 public:
  void add(std::size_t number) {
    const std::scoped_lock lock(_mutex);
    _numbers.insert(number);
  }
  [[nodiscard]] std::set<std::size_t> numbers() const {
    const std::scoped_lock lock(_mutex);
    return _numbers;
  }

 private:
  mutable std::mutex _mutex;
  std::set<std::size_t> _numbers;
};

TEST(ParallelFor, OfNothingEndsAtOnce) {
  Started started;
  parallelFor(
      0, width, {}, [&](std::size_t number) { started.add(number); },
      [](std::size_t) { FAIL() << "nothing can finish"; });
  EXPECT_THAT(started.numbers(), IsEmpty());
}

TEST(ParallelFor, PerformsEachOnceAndTellsEachOnTheCallingThread) {
  std::vector<std::atomic<int>> performed(1'000);
  std::set<std::size_t> told;
  const auto caller = std::this_thread::get_id();
  parallelFor(
      performed.size(), width, {}, [&](std::size_t number) { ++performed[number]; },
      [&](std::size_t number) {
        EXPECT_EQ(std::this_thread::get_id(), caller);
        EXPECT_TRUE(told.insert(number).second);
      });
  EXPECT_THAT(told, SizeIs(performed.size()));
  for (const auto& times : performed) EXPECT_EQ(times, 1);
}

TEST(ParallelFor, HasAsManyUnderWayAsItIsWideAndNoMore) {
  std::atomic<std::size_t> underWay = 0;
  std::atomic<std::size_t> most = 0;
  // Only if six are under way at the same time does anyone get past it.
  std::barrier together(static_cast<std::ptrdiff_t>(width));
  parallelFor(
      4 * width, width, {},
      [&](std::size_t) {
        const auto now = ++underWay;
        for (auto seen = most.load(); seen < now && !most.compare_exchange_weak(seen, now);) {
        }
        together.arrive_and_wait();
        --underWay;
      },
      [](std::size_t) {});
  EXPECT_EQ(most, width);
}

TEST(ParallelFor, StartsInOrderOnlyAsOthersAreTold) {
  Started started;
  std::vector<std::size_t> told;
  parallelFor(
      4, 1, {},
      [&](std::size_t number) {
        // With a width of one, everything before this has been told.
        EXPECT_EQ(told.size(), number);
        started.add(number);
      },
      [&](std::size_t number) { told.push_back(number); });
  EXPECT_THAT(told, ElementsAre(0, 1, 2, 3));
}

TEST(ParallelFor, AStopAfterTheFirstOfSevenNeverStartsTheSeventh) {
  std::stop_source source;
  Started started;
  std::latch othersMayFinish(1);
  std::set<std::size_t> told;
  parallelFor(
      7, width, source.get_token(),
      [&](std::size_t number) {
        started.add(number);
        if (number != 0) othersMayFinish.wait();
      },
      [&](std::size_t number) {
        if (told.empty()) {
          EXPECT_EQ(number, 0U);
          source.request_stop();
          othersMayFinish.count_down();
        }
        told.insert(number);
      });
  EXPECT_FALSE(told.contains(6));
  EXPECT_EQ(told, started.numbers());
}

TEST(ParallelFor, AStopBeforehandStartsNothing) {
  std::stop_source source;
  source.request_stop();
  Started started;
  parallelFor(
      100, width, source.get_token(), [&](std::size_t number) { started.add(number); },
      [](std::size_t) { FAIL() << "nothing can finish"; });
  EXPECT_THAT(started.numbers(), IsEmpty());
}

}  // namespace
}  // namespace klarvik
