#include "base/parallel_for.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <atomic>
#include <barrier>
#include <latch>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "support/child_process.h"

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
      {.count = 0, .width = width}, [&](std::size_t number, std::size_t) { started.add(number); },
      [](std::size_t) { FAIL() << "nothing can finish"; });
  EXPECT_THAT(started.numbers(), IsEmpty());
}

TEST(ParallelFor, PerformsEachOnceAndTellsEachOnTheCallingThread) {
  std::vector<std::atomic<int>> performed(1'000);
  std::set<std::size_t> told;
  const auto caller = std::this_thread::get_id();
  parallelFor(
      {.count = performed.size(), .width = width},
      [&](std::size_t number, std::size_t) { ++performed[number]; },
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
      {.count = 4 * width, .width = width},
      [&](std::size_t, std::size_t) {
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
      {.count = 4, .width = 1},
      [&](std::size_t number, std::size_t) {
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
      {.count = 7, .width = width, .stop = source.get_token()},
      [&](std::size_t number, std::size_t) {
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
      {.count = 100, .width = width, .stop = source.get_token()},
      [&](std::size_t number, std::size_t) { started.add(number); },
      [](std::size_t) { FAIL() << "nothing can finish"; });
  EXPECT_THAT(started.numbers(), IsEmpty());
}

TEST(ParallelFor, EachThreadPerformsOneAtATimeUnderANumberOfItsOwn) {
  std::vector<std::atomic<int>> underWay(width);
  for (const ParallelOrder order : {ParallelOrder::asTheyEnd, ParallelOrder::byNumber}) {
    std::atomic<bool> shared = false;
    parallelFor(
        {.count = 500, .width = width, .order = order},
        [&](std::size_t, std::size_t thread) {
          ASSERT_LT(thread, width);
          if (++underWay[thread] > 1) shared = true;
          --underWay[thread];
        },
        [](std::size_t) {});
    EXPECT_FALSE(shared);
  }
}

TEST(ParallelForByNumber, FinishesInOrderWhateverEndsFirst) {
  for (const std::size_t threads : {1, 2, 5}) {
    std::vector<std::size_t> told;
    std::latch laterOnes(static_cast<std::ptrdiff_t>(threads > 1 ? 3 : 0));
    parallelFor(
        {.count = 200, .width = threads, .order = ParallelOrder::byNumber},
        [&](std::size_t number, std::size_t) {
          if (number == 0) laterOnes.wait();
          if (number > 0 && number < 4 && threads > 1) laterOnes.count_down();
        },
        [&](std::size_t number) { told.push_back(number); });
    ASSERT_THAT(told, SizeIs(200));
    EXPECT_TRUE(std::ranges::is_sorted(told));
  }
}

TEST(ParallelForByNumber, DoesNotWaitForTheCaller) {
  std::latch allPerformed(20);
  std::size_t told = 0;
  parallelFor(
      {.count = 20, .width = 2, .order = ParallelOrder::byNumber},
      [&](std::size_t, std::size_t) { allPerformed.count_down(); },
      [&](std::size_t) {
        allPerformed.wait();
        ++told;
      });
  EXPECT_EQ(told, 20U);
}

TEST(ParallelForByNumber, AStopEndsItWithEachThatWasBegunFinished) {
  std::stop_source source;
  Started started;
  std::set<std::size_t> told;
  parallelFor(
      {.count = 100'000, .width = 3, .order = ParallelOrder::byNumber, .stop = source.get_token()},
      [&](std::size_t number, std::size_t) { started.add(number); },
      [&](std::size_t number) {
        told.insert(number);
        if (number == 10) source.request_stop();
      });
  EXPECT_EQ(told, started.numbers());
}

TEST(ParallelFor, WithoutAThreadTheCallersDoesTheWork) {
  EXPECT_TRUE(inChildWithoutPrivileges([] {
    const struct rlimit none = {.rlim_cur = 0, .rlim_max = 0};
    if (::setrlimit(RLIMIT_NPROC, &none) != 0) return false;
    std::vector<std::size_t> told;
    bool isOnCaller = true;
    const auto caller = std::this_thread::get_id();
    parallelFor(
        {.count = 3, .width = width},
        [&](std::size_t, std::size_t thread) {
          isOnCaller = isOnCaller && thread == 0 && std::this_thread::get_id() == caller;
        },
        [&](std::size_t number) { told.push_back(number); });
    return isOnCaller && told == std::vector<std::size_t>{0, 1, 2};
  }));
}

}  // namespace
}  // namespace klarvik
