#include "state/engine_run.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <array>
#include <atomic>
#include <optional>
#include <vector>

#include "support/application/main_loop.h"
#include "support/fake_clock.h"
#include "support/gate.h"

namespace klarvik {
namespace {

using Numbers = std::vector<int>;

/// Each run reports 10 times its number, waits at its gate, reports that again and one more, and
/// comes back with its number.
class EngineRunTest : public ::testing::Test {
 protected:
  void TearDown() override {
    for (Gate& gate : gates) gate.open();
  }

  void start(std::size_t number, bool keepsCancelled = false) {
    EngineRun::Job<int, int> job{
        .work =
            [this, number](std::stop_token stop, const auto& post) {
              const int own = static_cast<int>(number);
              post(10 * own);
              gates[number].pass();
              wasAskedToStop[number] = stop.stop_requested();
              post(10 * own + 1);
              ++ended;
              return own;
            },
        .report = [this](int report) { reports.push_back(report); },
        .finish =
            [this](int result) {
              EXPECT_FALSE(run->isRunning());
              results.push_back(result);
            },
    };
    if (keepsCancelled) {
      job.finishCancelled = [this](int result) { lateResults.push_back(result); };
    }
    run->start(std::move(job));
  }
  [[nodiscard]] bool startAndHold(std::size_t number, bool keepsCancelled = false) {
    gates[number].close();
    start(number, keepsCancelled);
    return turnUntil([&] { return !reports.empty() && reports.back() == 10 * int(number); });
  }
  [[nodiscard]] bool turnUntil(const std::function<bool()>& reached) {
    return turnMainLoopUntil(reached, [this] { clock.advance(std::chrono::milliseconds(20)); });
  }
  /// Opens the gates, and turns the main loop until all that the runs bring has arrived.
  [[nodiscard]] bool letGo(int runs) {
    for (Gate& gate : gates) gate.open();
    if (!turnUntil([&] { return ended == runs; })) return false;
    run->deleteInBackground(0);
    for (int turn = 0; turn < 10; ++turn) turnMainLoop();
    return true;
  }

  std::array<Gate, 3> gates;
  std::array<std::atomic<bool>, 3> wasAskedToStop{};
  std::atomic<int> ended = 0;
  Numbers reports;
  Numbers results;
  Numbers lateResults;
  FakeClock clock;
  std::optional<EngineRun> run{std::in_place, clock};
};

TEST_F(EngineRunTest, HandsOverItsResultAfterItsLastReport) {
  EXPECT_FALSE(run->isRunning());
  EXPECT_FALSE(run->hasRun());
  start(1);
  EXPECT_TRUE(run->isRunning());
  ASSERT_TRUE(turnUntil([this] { return !results.empty(); }));
  EXPECT_EQ(reports.back(), 11);
  EXPECT_EQ(results, Numbers{1});
  EXPECT_TRUE(run->hasRun());
  EXPECT_FALSE(wasAskedToStop[1]);
}

TEST_F(EngineRunTest, OnceCancelledNothingOfItArrives) {
  ASSERT_TRUE(startAndHold(1));
  run->cancel();
  EXPECT_FALSE(run->isRunning());
  EXPECT_TRUE(run->hasRun());
  ASSERT_TRUE(letGo(1));
  EXPECT_TRUE(wasAskedToStop[1]);
  EXPECT_EQ(reports, Numbers{10});
  EXPECT_EQ(results, Numbers{});
}

TEST_F(EngineRunTest, NothingArrivesOfOneThatAnotherHasTakenThePlaceOf) {
  ASSERT_TRUE(startAndHold(1, true));
  ASSERT_TRUE(startAndHold(2));
  EXPECT_TRUE(run->isRunning());
  ASSERT_TRUE(letGo(2));
  ASSERT_TRUE(turnUntil([this] { return !run->isRunning(); }));
  EXPECT_TRUE(wasAskedToStop[1]);
  EXPECT_FALSE(wasAskedToStop[2]);
  EXPECT_EQ(reports, (Numbers{10, 20, 21}));
  EXPECT_EQ(results, Numbers{2});
  EXPECT_EQ(lateResults, Numbers{});
}

TEST_F(EngineRunTest, AResultIsKeptAfterACancellationWhereTheJobKeepsIt) {
  ASSERT_TRUE(startAndHold(1, true));
  run->cancel();
  gates[1].open();
  ASSERT_TRUE(turnUntil([this] { return !lateResults.empty(); }));
  EXPECT_EQ(lateResults, Numbers{1});
  EXPECT_EQ(reports, Numbers{10});
  EXPECT_EQ(results, Numbers{});
}

TEST_F(EngineRunTest, AKeptResultDoesNotMixWithTheNextRun) {
  ASSERT_TRUE(startAndHold(1, true));
  run->cancel();
  ASSERT_TRUE(startAndHold(2));
  gates[1].open();
  ASSERT_TRUE(turnUntil([this] { return ended == 1; }));
  ASSERT_TRUE(letGo(2));
  ASSERT_TRUE(turnUntil([this] { return !run->isRunning(); }));
  EXPECT_EQ(lateResults, Numbers{});
  EXPECT_EQ(results, Numbers{2});
}

TEST_F(EngineRunTest, AtItsEndItWaitsForTheEngineAndHandsNothingOver) {
  ASSERT_TRUE(startAndHold(1, true));
  run->drop();
  EXPECT_FALSE(run->isRunning());
  gates[1].open();
  run.reset();
  EXPECT_EQ(ended, 1);
  turnMainLoop();
  EXPECT_EQ(reports, Numbers{10});
  EXPECT_EQ(results, Numbers{});
  EXPECT_EQ(lateResults, Numbers{});
}

}  // namespace
}  // namespace klarvik
