#include "platform/main_loop/background_tasks.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QCoro/QCoroTask>
#include <QTimer>
#include <latch>
#include <optional>
#include <semaphore>

#include "support/application/main_loop.h"
#include "support/child_process.h"

namespace klarvik {
namespace {

class BackgroundTasksTest : public ::testing::Test {
 protected:
  /// Waits off the main thread until it is let go.
  QCoro::Task<> wait(std::binary_semaphore& letGo) {
    auto call = [&letGo] {
      letGo.acquire();
      return std::this_thread::get_id();
    };
    ranOn = co_await runInBackground(*work, std::move(call));
    resumedOn = std::this_thread::get_id();
  }
  QCoro::Task<> add(int left, int right) {
    auto call = [left, right] { return left + right; };
    sum = co_await runInBackground(*work, std::move(call));
  }

  std::optional<std::thread::id> ranOn;
  std::optional<std::thread::id> resumedOn;
  int sum = 0;
  std::optional<BackgroundTasks> work{std::in_place};
};

TEST_F(BackgroundTasksTest, RunsOffTheMainThreadAndGoesOnUponIt) {
  std::binary_semaphore letGo(1);
  wait(letGo);
  ASSERT_TRUE(turnMainLoopUntil([&] { return resumedOn.has_value(); }));
  EXPECT_NE(ranOn, std::this_thread::get_id());
  EXPECT_EQ(resumedOn, std::this_thread::get_id());
}

TEST_F(BackgroundTasksTest, TheMainLoopTicksWhileACallIsUnderWay) {
  std::binary_semaphore letGo(0);
  wait(letGo);
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  timer.start(0);
  ASSERT_TRUE(turnMainLoopUntil([&] { return ticks >= 100; }));
  EXPECT_FALSE(resumedOn.has_value());
  letGo.release();
  EXPECT_TRUE(turnMainLoopUntil([&] { return resumedOn.has_value(); }));
}

TEST_F(BackgroundTasksTest, ManyLongCallsKeepNoOtherWaiting) {
  std::counting_semaphore<> letGo(0);
  int finished = 0;
  const auto longCall = [&]() -> QCoro::Task<> {
    auto call = [&letGo] {
      letGo.acquire();
      return true;
    };
    if (co_await runInBackground(*work, std::move(call))) ++finished;
  };
  for (int call = 0; call < 50; ++call) longCall();
  add(1, 2);
  ASSERT_TRUE(turnMainLoopUntil([&] { return sum == 3; }));
  EXPECT_EQ(finished, 0);
  letGo.release(50);
  EXPECT_TRUE(turnMainLoopUntil([&] { return finished == 50; }));
}

TEST_F(BackgroundTasksTest, AThreadThatTakesLongToEndKeepsNobodyWaiting) {
  struct SlowEnd {
    ~SlowEnd() {
      if (letGo != nullptr) letGo->acquire();
    }
    std::binary_semaphore* letGo = nullptr;
  };
  std::binary_semaphore letGo(0);
  bool isBack = false;
  const auto call = [&]() -> QCoro::Task<> {
    auto body = [&letGo] {
      thread_local SlowEnd end;
      end.letGo = &letGo;
      return true;
    };
    isBack = co_await runInBackground(*work, std::move(body));
  };
  call();
  ASSERT_TRUE(turnMainLoopUntil([&] { return isBack; }));
  add(1, 2);
  ASSERT_TRUE(turnMainLoopUntil([&] { return sum == 3; }));
  letGo.release();
  work->finish();
  EXPECT_TRUE(!letGo.try_acquire());
}

TEST_F(BackgroundTasksTest, ItsEndWaitsForWhatIsUnderWayAndResumesWhoeverWaits) {
  std::binary_semaphore letGo(0);
  wait(letGo);
  std::thread later([&] { letGo.release(); });
  work.reset();
  EXPECT_TRUE(resumedOn.has_value());
  later.join();
  turnMainLoop();
}

TEST_F(BackgroundTasksTest, ACallThatCameBackIsResumedOnceOnly) {
  int resumed = 0;
  const auto once = [&]() -> QCoro::Task<> {
    auto call = [] { return 0; };
    co_await runInBackground(*work, std::move(call));
    ++resumed;
  };
  once();
  work->finish();
  turnMainLoop();
  EXPECT_EQ(resumed, 1);
}

TEST_F(BackgroundTasksTest, ItsEndAlsoWaitsForCallsThatAreStartedFromThoseItResumes) {
  const auto twice = [&]() -> QCoro::Task<> {
    auto call = [] { return 1; };
    const int first = co_await runInBackground(*work, call);
    const int second = co_await runInBackground(*work, call);
    sum = first + second;
  };
  twice();
  work->finish();
  EXPECT_EQ(sum, 2);
}

TEST_F(BackgroundTasksTest, AResultThatCannotBeCopiedComesThrough) {
  std::unique_ptr<int> result;
  const auto make = [&]() -> QCoro::Task<> {
    auto call = [] { return std::make_unique<int>(7); };
    result =
        co_await runInBackground(*work, std::move(call), BackgroundTasks::Priority::background);
  };
  make();
  ASSERT_TRUE(turnMainLoopUntil([&] { return result != nullptr; }));
  EXPECT_EQ(*result, 7);
}

TEST_F(BackgroundTasksTest, WhereNoThreadCanBeHadTheCallersDoesTheWork) {
  EXPECT_TRUE(inChildWithoutPrivileges([this] {
    const struct rlimit none = {.rlim_cur = 0, .rlim_max = 0};
    if (::setrlimit(RLIMIT_NPROC, &none) != 0) return false;
    add(2, 3);
    work->finish();
    return sum == 5;
  }));
}

}  // namespace
}  // namespace klarvik
