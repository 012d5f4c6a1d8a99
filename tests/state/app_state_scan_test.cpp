#include <gtest/gtest.h>

#include <QTimer>
#include <memory>

#include "app_state_fixture.h"
#include "signal_count.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class AppStateScan : public AppStateFixture {
 protected:
  /// Delivers everything that the scan was told to report.
  [[nodiscard]] bool deliver(const std::function<bool()>& arrived) {
    return turnMainLoopUntil([&] {
      around.clock.advance(16ms);
      return arrived();
    });
  }
  [[nodiscard]] bool arrived(std::size_t categories) {
    return deliver([&] { return state->scanResults().size() == categories; });
  }
  QCoro::Task<> autoScan(std::stop_token stop = {}) {
    autoScanEnded = false;
    co_await state->autoScanIfNeeded(stop);
    autoScanEnded = true;
  }
  [[nodiscard]] bool turnIsHeld() const { return coordinator.busy(); }

  const CleanCategory caches =
      categoryOf(CategoryType::appCaches, {junk("/a", 10), junk("/b", 20)});
  const CleanCategory archives = categoryOf(CategoryType::xcodeArchives, {junk("/c", 300)});
  const CleanCategory logs = categoryOf(CategoryType::systemLogs, {junk("/d", 4000)});
  bool autoScanEnded = false;
};

TEST_F(AppStateScan, BeginsIdleAndEmpty) {
  EXPECT_TRUE(is(AppState::Idle{}));
  EXPECT_TRUE(state->scanResults().empty());
  EXPECT_EQ(state->scanActivity(), AppState::ScanActivity{});
  EXPECT_EQ(state->lastCleanDate(), std::nullopt);
  EXPECT_EQ(state->lastClean(), std::nullopt);
}

TEST_F(AppStateScan, AStartedScanShowsItsStartAtOnce) {
  state->startScan();
  EXPECT_TRUE(is(AppState::Scanning{0, "Starting scan"}));
  EXPECT_EQ(shownActivity(), ToolActivity::State(ToolActivity::Running{}));
}

TEST_F(AppStateScan, AnUpdateSetsTheStateTheActivityAndTheDetail) {
  state->startScan();
  scans.update(0, {0.5, "App Caches", "/Users/ann/x", 3, 500, 4, 11});
  ASSERT_TRUE(deliver([&] { return is(AppState::Scanning{0.5, "App Caches"}); }));
  EXPECT_EQ(state->scanActivity(),
            (AppState::ScanActivity{"App Caches", "/Users/ann/x", 3, 500, 4, 11}));
  EXPECT_EQ(shownActivity(), ToolActivity::State(ToolActivity::Progress{0.5}));
}

TEST_F(AppStateScan, AFractionAboveOneShowsAsOneInTheActivityAndStaysInTheState) {
  state->startScan();
  scans.update(0, {.fraction = 1.2, .categoryName = "Odd", .currentPath = {}});
  ASSERT_TRUE(deliver([&] { return is(AppState::Scanning{1.2, "Odd"}); }));
  EXPECT_EQ(shownActivity(), ToolActivity::State(ToolActivity::Progress{1}));
}

TEST_F(AppStateScan, CategoriesAppearInTheOrderOfTheirArrivalAndTheSafeOnesAreSelected) {
  state->startScan();
  for (const auto& category : {caches, archives, logs}) scans.category(0, category);
  ASSERT_TRUE(arrived(3));
  EXPECT_EQ(state->scanResults()[0].id, caches.id);
  EXPECT_EQ(state->scanResults()[1].id, archives.id);
  EXPECT_EQ(state->scanResults()[2].id, logs.id);
  EXPECT_EQ(state->totalSpaceFreeable(), 4330);
  EXPECT_EQ(state->selectedSize(), 4030);
  EXPECT_EQ(state->selectedCount(), 3);
  EXPECT_FALSE(state->selectedItems().contains(archives.items[0].id));
}

TEST_F(AppStateScan, AtTheEndTheSortedListReplacesWhatArrivedAndIsPutOnRecord) {
  state->startScan();
  scans.category(0, caches);
  scans.category(0, logs);
  ASSERT_TRUE(arrived(2));
  scans.finish(0, {logs, caches});
  ASSERT_TRUE(turnMainLoopUntil([&] { return isDone(); }));
  EXPECT_EQ(state->scanResults()[0].id, logs.id);
  EXPECT_EQ(state->totalSpaceFreeable(), 4030);
  EXPECT_EQ(shownActivity(), ToolActivity::State(ToolActivity::Finished{"4 KB"}));
  EXPECT_EQ(coordinator.totals().at("smartScan"),
            (ScanCoordinator::Total{4030, 3, around.clock.now()}));
  ASSERT_EQ(history.scans().size(), 1U);
  EXPECT_EQ(history.scans()[0].totalJunk, 4030);
}

TEST_F(AppStateScan, TheEndReplacesASelectionMadeDuringTheScan) {
  state->startScan();
  scans.category(0, caches);
  scans.category(0, archives);
  ASSERT_TRUE(arrived(2));
  state->toggleItem(caches.items[0].id);
  state->toggleItem(archives.items[0].id);
  EXPECT_EQ(state->selectedSize(), 320);
  scans.finish(0, {archives, caches});
  ASSERT_TRUE(deliver([&] { return isDone(); }));
  EXPECT_EQ(state->selectedSize(), 30);
  EXPECT_EQ(state->selectedCount(), 2);
}

TEST_F(AppStateScan, AScanThatFindsNothingEndsDoneWithTheTextOfZeroBytes) {
  scanAndFind({});
  EXPECT_TRUE(state->scanResults().empty());
  EXPECT_EQ(shownActivity(), ToolActivity::State(ToolActivity::Finished{"Zero KB"}));
  EXPECT_TRUE(history.scans().empty());
}

TEST_F(AppStateScan, CancelledBeforeAnyCategoryArrivesItEndsIdle) {
  state->startScan();
  state->cancelScan();
  EXPECT_TRUE(is(AppState::Idle{}));
  EXPECT_EQ(state->totalSpaceFreeable(), 0);
  EXPECT_EQ(shownActivity(), ToolActivity::State(ToolActivity::Idle{}));
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsEnded() == 1; }));
  turnMainLoop();
  EXPECT_TRUE(is(AppState::Idle{}));
  EXPECT_TRUE(history.scans().empty());
}

TEST_F(AppStateScan, CancelledAfterTwoCategoriesItEndsDoneWithThemAndTheirSafeItemsSelected) {
  state->startScan();
  scans.category(0, caches);
  scans.category(0, archives);
  ASSERT_TRUE(arrived(2));
  state->cancelScan();
  EXPECT_TRUE(isDone());
  EXPECT_EQ(state->scanResults().size(), 2U);
  EXPECT_EQ(state->totalSpaceFreeable(), 330);
  EXPECT_EQ(state->selectedCount(), 2);
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsEnded() == 1; }));
  turnMainLoop();
  EXPECT_TRUE(isDone());
  EXPECT_TRUE(history.scans().empty());
  EXPECT_TRUE(coordinator.totals().empty());
}

TEST_F(AppStateScan, WhatACancelledScanSaysOfItsLastRowChangesNothing) {
  scans.endsWhenAskedToStop = false;
  state->startScan();
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsBegun() == 1; }));
  state->cancelScan();
  scans.category(0, caches);
  ScanUpdate last;
  last.categoryName = "Scan stopped";
  scans.update(0, last);
  scans.finish(0, {caches});
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsEnded() == 1; }));
  turnMainLoop();
  EXPECT_TRUE(is(AppState::Idle{}));
  EXPECT_EQ(shownActivity(), ToolActivity::State(ToolActivity::Idle{}));
  EXPECT_TRUE(state->scanResults().empty());
  EXPECT_EQ(state->selectedCount(), 0);
  EXPECT_TRUE(history.scans().empty());
}

TEST_F(AppStateScan, AScanStartedDuringAnotherLeavesOneResultAndOneRecord) {
  state->startScan();
  scans.category(0, caches);
  ASSERT_TRUE(arrived(1));
  state->toggleCategoryExpansion(CategoryType::appCaches);
  state->startScan();
  EXPECT_TRUE(is(AppState::Scanning{0, "Starting scan"}));
  EXPECT_TRUE(state->scanResults().empty());
  EXPECT_TRUE(state->selectedItems().empty());
  EXPECT_TRUE(state->expandedCategories().empty());
  EXPECT_EQ(state->totalSpaceFreeable(), 0);
  EXPECT_EQ(state->selectedSize(), 0);

  // Of two runs that begin at about the same time, either may be the first.
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsEnded() == 1; }));
  scans.finish(1, {logs});
  ASSERT_TRUE(turnMainLoopUntil([&] { return isDone(); }));
  EXPECT_EQ(state->scanResults().size(), 1U);
  EXPECT_EQ(state->totalSpaceFreeable(), 4000);
  EXPECT_EQ(history.scans().size(), 1U);
}

TEST_F(AppStateScan, WhatACancelledScanSaysNeverReachesTheNextOne) {
  scans.endsWhenAskedToStop = false;
  state->startScan();
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsBegun() == 1; }));
  state->startScan();
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsBegun() == 2; }));
  scans.category(0, caches);
  ScanUpdate last;
  last.categoryName = "Scan stopped";
  last.fraction = 1;
  scans.update(0, last);
  scans.finish(0, {caches});
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsEnded() == 1; }));
  turnMainLoop();
  around.clock.advance(16ms);
  EXPECT_TRUE(is(AppState::Scanning{0, "Starting scan"}));
  EXPECT_TRUE(state->scanResults().empty());

  scans.category(1, caches);
  ASSERT_TRUE(arrived(1));
  state->cancelScan();
  EXPECT_EQ(state->scanResults().size(), 1U);
  EXPECT_EQ(state->totalSpaceFreeable(), 30);
  state->setSelection(caches.items, false);
  EXPECT_EQ(state->selectedCount(), 0);
  scans.finish(1, {});
}

TEST_F(AppStateScan, SelectSafeItemsDropsEverythingElse) {
  scanAndFind({caches, archives});
  state->setSelection(archives.items, true);
  EXPECT_FALSE(state->selectionIsAllSafe());
  state->selectSafeItems();
  EXPECT_TRUE(state->selectionIsAllSafe());
  EXPECT_EQ(state->selectedSize(), 30);
}

TEST_F(AppStateScan, SelectionsAreCountedOnlyWhereTheyAreInTheResults) {
  scanAndFind({caches, archives});
  state->setSelection({junk("/elsewhere", 1'000'000)}, true);
  EXPECT_EQ(state->selectedSize(), 30);
  EXPECT_EQ(state->selectedCount(), 2);
  state->setSelection(caches.items, false);
  EXPECT_EQ(state->selectedSize(), 0);
  EXPECT_EQ(state->selectedCount(), 0);
}

TEST_F(AppStateScan, TellsOnlyOfChanges) {
  scanAndFind({caches, archives});
  const SignalCount selections(*state, &AppState::selectedItemsChanged);
  const SignalCount results(*state, &AppState::scanResultsChanged);
  const SignalCount states(*state, &AppState::scanStateChanged);
  state->selectSafeItems();
  state->setSelection(caches.items, true);
  state->setSelection({}, false);
  EXPECT_EQ(selections.get(), 0);
  state->cancelScan();
  state->removeItems({});
  EXPECT_EQ(results.get(), 0);
  EXPECT_EQ(states.get(), 0);
  state->setSelection(caches.items, false);
  EXPECT_EQ(selections.get(), 1);
}

TEST_F(AppStateScan, TheMainLoopTicksDuringAScan) {
  state->startScan();
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  timer.start(0);
  ASSERT_TRUE(turnMainLoopUntil([&] { return ticks >= 100; }));
  EXPECT_TRUE(std::holds_alternative<AppState::Scanning>(state->scanState()));
}

TEST_F(AppStateScan, TwoHundredThousandReportsDoNotHoldUpTheMainLoop) {
  constexpr int reports = 200'000;
  const auto flood = [](const auto& onUpdate, const auto&) {
    for (int report = 1; report <= reports; ++report) {
      onUpdate({.fraction = 0.5,
                .categoryName = "App Caches",
                .currentPath = "/item",
                .partialItems = report,
                .partialBytes = report,
                .completedCategories = 4,
                .totalCategories = 11});
    }
  };
  const SignalCount applied(*state, &AppState::scanActivityChanged);
  state->startScan();
  scans.tell(0, flood);
  scans.category(0, caches);
  scans.tell(0, flood);

  // The clock stands: however many reports come, no more than one batch is applied.
  int turns = 0;
  scans.tell(0, [](const auto&, const auto& onCategory) {
    onCategory(categoryOf(CategoryType::systemLogs, {junk("/d", 4000)}));
  });
  std::atomic<bool> reported = false;
  scans.tell(0, [&](const auto&, const auto&) { reported = true; });
  ASSERT_TRUE(turnMainLoopUntil([&] {
    ++turns;
    return reported.load();
  }));
  // One batch holds an update before each category at the most.
  EXPECT_LE(applied.get(), 3);
  around.clock.advance(16ms);
  turnMainLoop();
  EXPECT_LE(applied.get(), 5);
  EXPECT_GE(turns, 1);
  EXPECT_EQ(state->scanActivity().partialItems, reports);
  EXPECT_EQ(state->scanResults().size(), 2U);
  EXPECT_EQ(state->scanResults()[0].id, caches.id);
}

TEST_F(AppStateScan, UpdatesAndCategoriesKeepTheirOrder) {
  std::vector<std::string> seen;
  QObject::connect(&*state, &AppState::scanActivityChanged, [&] {
    if (state->scanActivity().totalCategories > 0)
      seen.push_back(state->scanActivity().categoryName);
  });
  QObject::connect(&*state, &AppState::scanResultsChanged,
                   [&] { seen.push_back(std::to_string(state->scanResults().size()) + " found"); });
  state->startScan();
  std::atomic<bool> reported = false;
  scans.tell(0, [&](const auto& onUpdate, const auto& onCategory) {
    const auto update = [&](const char* name) {
      onUpdate({.categoryName = name, .currentPath = {}, .totalCategories = 11});
    };
    update("first");
    update("before the caches");
    onCategory(caches);
    update("after the caches");
    update("before the logs");
    onCategory(logs);
    update("end");
    reported = true;
  });
  ASSERT_TRUE(deliver([&] { return reported && !seen.empty() && seen.back() == "end"; }));
  std::erase(seen, "first");
  std::erase(seen, "after the caches");
  EXPECT_EQ(seen, (std::vector<std::string>{"before the caches", "1 found", "before the logs",
                                            "2 found", "end"}));
}

TEST_F(AppStateScan, GoesInTheMiddleOfAScan) {
  state->startScan();
  scans.category(0, caches);
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsBegun() == 1; }));
  state.reset();
  EXPECT_EQ(scans.runsEnded(), 1);
  turnMainLoop();
  around.clock.advance(1min);
  EXPECT_TRUE(history.scans().empty());
}

TEST_F(AppStateScan, TheAutomaticScanHoldsTheTurnFor900SecondsWhenItFindsSomething) {
  autoScan();
  EXPECT_TRUE(is(AppState::Scanning{0, "Starting scan"}));
  scans.finish(0, {caches});
  ASSERT_TRUE(turnMainLoopUntil([&] { return isDone(); }));
  around.clock.advance(900s - 1ns);
  EXPECT_TRUE(turnIsHeld());
  EXPECT_FALSE(autoScanEnded);
  around.clock.advance(1ns);
  EXPECT_FALSE(turnIsHeld());
  EXPECT_TRUE(autoScanEnded);
}

TEST_F(AppStateScan, TheAutomaticScanPassesTheTurnOnWhenItFindsNothing) {
  autoScan();
  scans.finish(0, {});
  ASSERT_TRUE(turnMainLoopUntil([&] { return isDone(); }));
  EXPECT_TRUE(turnIsHeld());
  around.clock.advance(250ms);
  EXPECT_FALSE(turnIsHeld());
}

TEST_F(AppStateScan, AfterTheAutomaticScanFoundSomethingAFurtherCallEndsAtOnce) {
  scanAndFind({caches});
  autoScan();
  EXPECT_TRUE(autoScanEnded);
  EXPECT_FALSE(turnIsHeld());
  EXPECT_TRUE(coordinator.completedAutoScans().empty());
}

TEST_F(AppStateScan, WithAutomaticScansOffNoneRuns) {
  around.defaults.set("backgroundScanOnLaunch", false);
  autoScan();
  EXPECT_TRUE(autoScanEnded);
  EXPECT_TRUE(is(AppState::Idle{}));
  EXPECT_EQ(scans.runsBegun(), 0);
}

TEST_F(AppStateScan, AScanOfTheUsersWhileTheAutomaticOneWaitsTakesItsPlace) {
  coordinator.waitForTurn("storage");
  autoScan();
  EXPECT_FALSE(autoScanEnded);
  scanAndFind({caches});
  coordinator.finishTurn();
  EXPECT_TRUE(autoScanEnded);
  EXPECT_FALSE(turnIsHeld());
  EXPECT_EQ(scans.runsEnded(), 1);
}

TEST_F(AppStateScan, AnAutomaticScanThatIsAskedToStopPassesTheTurnOnAtOnce) {
  std::stop_source stop;
  autoScan(stop.get_token());
  ASSERT_TRUE(turnIsHeld());
  stop.request_stop();
  EXPECT_TRUE(autoScanEnded);
  EXPECT_FALSE(turnIsHeld());
}

TEST_F(AppStateScan, GoesWhileItHoldsTheTurn) {
  autoScan();
  state.reset();
  EXPECT_FALSE(turnIsHeld());
  EXPECT_TRUE(autoScanEnded);
  EXPECT_EQ(around.clock.pendingAlarms(), 0U);
}

TEST_F(AppStateScan, GoesWhileItWaitsForItsTurn) {
  coordinator.waitForTurn("storage");
  autoScan();
  state.reset();
  coordinator.finishTurn();
  EXPECT_TRUE(autoScanEnded);
}

TEST_F(AppStateScan, AToggledItemIsTakenOutOfTheCountAndPutBack) {
  scanAndFind({caches, logs});
  state->toggleItem(caches.items[1].id);
  EXPECT_EQ(state->selectedCount(), 2);
  EXPECT_EQ(state->selectedSize(), 4010);
  state->toggleItem(caches.items[1].id);
  EXPECT_EQ(state->selectedCount(), 3);
  EXPECT_EQ(state->selectedSize(), 4030);
}

/// The real engine on a real disk.
TEST(AppStateOnARealDisk, ScansWhatIsThere) {
  FakeDesktopOnDisk around;
  around.disk.makeFile("/Users/ann/Library/Caches/com.example.app/data", std::int64_t{2'000'000});
  ToolActivity activity(around.clock);
  ScanCoordinator coordinator(around.defaults);
  ScanHistory history(around.defaults, around.clock);
  RemovalNotice notice;
  AppState state(around.desktop, activity, coordinator, history, notice);
  state.startScan();
  ASSERT_TRUE(
      turnMainLoopUntil([&] { return std::holds_alternative<AppState::Done>(state.scanState()); }));
  ASSERT_EQ(state.scanResults().size(), 1U);
  EXPECT_EQ(state.scanResults()[0].type, CategoryType::appCaches);
  EXPECT_GE(state.selectedSize(), 2'000'000);
  EXPECT_EQ(history.scans().size(), 1U);
}

}  // namespace
}  // namespace klarvik
