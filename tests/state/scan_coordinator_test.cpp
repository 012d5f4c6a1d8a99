#include "state/scan_coordinator.h"

#include <gtest/gtest.h>

#include <optional>

#include "signal_count.h"
#include "support/application/main_loop.h"
#include "support/fake_clock.h"
#include "support/fake_user_defaults.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class ScanCoordinatorTest : public ::testing::Test {
 protected:
  QCoro::Task<> queue(std::string key) {
    co_await coordinator->waitForTurn(key);
    turns.push_back(key);
  }
  QCoro::Task<> begin(std::string key, std::stop_token stop = {}) {
    answers[key] = std::nullopt;
    answers[key] = co_await coordinator->beginAutoScan(key, stop);
  }

  FakeUserDefaults defaults;
  std::vector<std::string> turns;
  std::map<std::string, std::optional<bool>> answers;
  std::optional<ScanCoordinator> coordinator{std::in_place, defaults};
};

TEST_F(ScanCoordinatorTest, TheFirstCallerHasTheTurnAtOnce) {
  queue("storage");
  EXPECT_EQ(turns, std::vector<std::string>{"storage"});
  EXPECT_TRUE(coordinator->busy());
}

TEST_F(ScanCoordinatorTest, TurnsPassByUrgencyAndNotByArrival) {
  queue("storage");
  for (const char* key : {"duplicates", "privacy", "systemData"}) queue(key);
  for (int turn = 0; turn < 3; ++turn) coordinator->finishTurn();
  EXPECT_EQ(turns, (std::vector<std::string>{"storage", "systemData", "privacy", "duplicates"}));
}

TEST_F(ScanCoordinatorTest, TheWholeOrderOfTurns) {
  queue("someone");
  for (const char* key : {"duplicates", "storage", "largeFiles", "privacy", "uninstaller",
                          "systemData", "smartScan"}) {
    queue(key);
  }
  for (int turn = 0; turn < 7; ++turn) coordinator->finishTurn();
  EXPECT_EQ(turns, (std::vector<std::string>{"someone", "smartScan", "systemData", "uninstaller",
                                             "privacy", "largeFiles", "storage", "duplicates"}));
}

TEST_F(ScanCoordinatorTest, SmartScanQueuedLastGoesFirst) {
  queue("storage");
  for (const char* key : {"systemData", "uninstaller", "smartScan"}) queue(key);
  coordinator->finishTurn();
  EXPECT_EQ(turns.back(), "smartScan");
}

TEST_F(ScanCoordinatorTest, OfTwoUnknownKeysTheOlderGoesFirstAndBothGoLast) {
  queue("storage");
  for (const char* key : {"older", "younger", "duplicates"}) queue(key);
  for (int turn = 0; turn < 3; ++turn) coordinator->finishTurn();
  EXPECT_EQ(turns, (std::vector<std::string>{"storage", "duplicates", "older", "younger"}));
}

TEST_F(ScanCoordinatorTest, StaysBusyWhileTheTurnPassesAndIsFreeAtTheEnd) {
  queue("storage");
  queue("privacy");
  coordinator->finishTurn();
  EXPECT_TRUE(coordinator->busy());
  coordinator->finishTurn();
  EXPECT_FALSE(coordinator->busy());
}

TEST_F(ScanCoordinatorTest, ASecondFinishTurnIsHarmless) {
  queue("storage");
  coordinator->finishTurn();
  coordinator->finishTurn();
  queue("privacy");
  EXPECT_EQ(turns, (std::vector<std::string>{"storage", "privacy"}));
}

TEST_F(ScanCoordinatorTest, AToolHasOneAutomaticScanInAProcess) {
  begin("privacy");
  EXPECT_EQ(answers["privacy"], true);
  coordinator->finishTurn();
  begin("privacy");
  EXPECT_EQ(answers["privacy"], false);
  EXPECT_FALSE(coordinator->busy());
}

TEST_F(ScanCoordinatorTest, TheAutomaticScanCountsAsHadBeforeItsTurnComes) {
  begin("storage");
  begin("privacy");
  EXPECT_EQ(answers["privacy"], std::nullopt);
  EXPECT_TRUE(coordinator->completedAutoScans().contains("privacy"));
}

TEST_F(ScanCoordinatorTest, WithAutomaticScansOffNothingIsHadSoThatTurningThemOnTakesEffect) {
  defaults.set("backgroundScanOnLaunch", false);
  begin("privacy");
  begin("smartScan");
  EXPECT_EQ(answers["privacy"], false);
  EXPECT_EQ(answers["smartScan"], false);
  EXPECT_TRUE(coordinator->completedAutoScans().empty());
  EXPECT_FALSE(coordinator->busy());

  defaults.set("backgroundScanOnLaunch", true);
  begin("privacy");
  EXPECT_EQ(answers["privacy"], true);
}

TEST_F(ScanCoordinatorTest, APreferenceOfAnotherTypeCountsAsOn) {
  defaults.set("backgroundScanOnLaunch", std::string("no"));
  begin("privacy");
  EXPECT_EQ(answers["privacy"], true);
}

TEST_F(ScanCoordinatorTest, ACallerCancelledWhenItsTurnComesIsRefusedAndTheOthersStayQueued) {
  begin("storage");
  std::stop_source stop;
  begin("smartScan", stop.get_token());
  begin("privacy");
  stop.request_stop();
  EXPECT_EQ(answers["smartScan"], std::nullopt);

  coordinator->finishTurn();
  EXPECT_EQ(answers["smartScan"], false);
  EXPECT_EQ(answers["privacy"], std::nullopt);
  EXPECT_TRUE(coordinator->busy());
}

TEST_F(ScanCoordinatorTest, AtItsEndWhoeverWaitsIsRefused) {
  begin("storage");
  begin("privacy");
  begin("duplicates");
  coordinator.reset();
  EXPECT_EQ(answers["privacy"], false);
  EXPECT_EQ(answers["duplicates"], false);
}

TEST_F(ScanCoordinatorTest, TellsOnlyOfANewTotal) {
  const SignalCount changes(*coordinator, &ScanCoordinator::totalsChanged);
  const ScanCoordinator::Total total{5, 1, Date(1s)};
  coordinator->setTotal("privacy", total);
  coordinator->setTotal("privacy", total);
  EXPECT_EQ(changes.get(), 1);
  EXPECT_EQ(coordinator->totals().at("privacy"), total);
  coordinator->setTotal("privacy", {6, 1, Date(1s)});
  EXPECT_EQ(changes.get(), 2);
}

class HoldTurn : public ScanCoordinatorTest {
 protected:
  void SetUp() override {
    begin("storage");
    begin("privacy");
  }
  [[nodiscard]] bool turnPassed() const { return answers.at("privacy").has_value(); }

  FakeClock clock;
  bool over = false;
  std::stop_source stop;
};

TEST_F(HoldTurn, LooksEvery250MillisecondsWhetherItIsOver) {
  holdTurn(
      *coordinator, clock, [this] { return over; }, stop.get_token());
  clock.advance(600ms);
  over = true;
  clock.advance(149ms);
  EXPECT_FALSE(turnPassed());
  clock.advance(1ms);
  EXPECT_TRUE(turnPassed());
}

TEST_F(HoldTurn, PassesTheTurnAfter900SecondsWhateverIsStillRunning) {
  holdTurn(
      *coordinator, clock, [this] { return over; }, stop.get_token());
  clock.advance(900s - 1ns);
  EXPECT_FALSE(turnPassed());
  clock.advance(1ns);
  EXPECT_TRUE(turnPassed());
}

TEST_F(HoldTurn, PassesTheTurnAtOnceWhenAskedToStop) {
  holdTurn(
      *coordinator, clock, [this] { return over; }, stop.get_token());
  clock.advance(1s);
  stop.request_stop();
  EXPECT_TRUE(turnPassed());
  EXPECT_EQ(clock.pendingAlarms(), 0U);
}

TEST_F(HoldTurn, PassesTheTurnAtOnceWhenThereIsNothingToWaitFor) {
  over = true;
  holdTurn(
      *coordinator, clock, [this] { return over; }, stop.get_token());
  EXPECT_TRUE(turnPassed());
}

class RunAutoScan : public HoldTurn {
 protected:
  void run(const std::string& key) {
    runAutoScan(*coordinator, clock,
                {.key = key,
                 .isNeeded = [this] { return !scanned && !running; },
                 .start = [this] { running = true, ++starts; },
                 .isRunning = [this] { return running; }},
                stop.get_token());
  }

  bool scanned = false;
  bool running = false;
  int starts = 0;
};

TEST_F(RunAutoScan, ScansWhenItsTurnComesAndPassesTheTurnOn) {
  run("systemData");
  EXPECT_EQ(starts, 0);
  coordinator->finishTurn();
  EXPECT_EQ(starts, 1);
  running = false;
  clock.advance(250ms);
  EXPECT_TRUE(turnPassed());
}

TEST_F(RunAutoScan, StartsNothingWhenTheUserWasQuickerAndHoldsTheTurnUntilThatScanEnds) {
  run("systemData");
  running = true;
  coordinator->finishTurn();
  clock.advance(1s);
  EXPECT_EQ(starts, 0);
  EXPECT_FALSE(turnPassed());
  running = false;
  clock.advance(250ms);
  EXPECT_TRUE(turnPassed());
}

TEST_F(RunAutoScan, TakesNoTurnWhenThereIsNothingToScan) {
  scanned = true;
  run("systemData");
  EXPECT_FALSE(coordinator->completedAutoScans().contains("systemData"));
}

TEST_F(RunAutoScan, AsksNothingMoreOnceStoppedInTheQueue) {
  run("systemData");
  stop.request_stop();
  coordinator->finishTurn();
  EXPECT_EQ(starts, 0);
}

}  // namespace
}  // namespace klarvik
