#include <gtest/gtest.h>

#include <QTimer>
#include <atomic>
#include <semaphore>
#include <thread>

#include "app_state_fixture.h"
#include "platform/linux/json_user_defaults.h"
#include "platform/notification_center.h"
#include "signal_count.h"
#include "state/section.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

/// Items that are really on the disk, in the user's caches.
class CleanFixture : public AppStateFixture {
 protected:
  [[nodiscard]] JunkItem onDisk(const std::string& name, std::int64_t size) const {
    const Path path = "/Users/ann/Library/Caches/" + name;
    around.disk.makeFile(path, size);
    return junk(path, size);
  }
  [[nodiscard]] bool isThere(const JunkItem& item) const { return around.disk.holds(item.path); }
  [[nodiscard]] bool cleaned() {
    return turnMainLoopUntil([this] { return isCleanDone(); });
  }
  QCoro::Task<> restore() {
    restored = std::nullopt;
    restored = co_await state->restoreLastClean();
  }
  [[nodiscard]] std::int64_t restoreAll() {
    restore();
    EXPECT_TRUE(turnMainLoopUntil([this] { return restored.has_value(); }));
    return restored.value_or(-1);
  }

  std::optional<std::int64_t> restored;
  int diskChanges = 0;
  NotificationCenter::Subscription subscription =
      around.notifications.observe(diskChangedNotification, [this] { ++diskChanges; });
};

class AppStateClean : public CleanFixture {
 protected:
  const JunkItem a = onDisk("a", 1000);
  const JunkItem b = onDisk("b", 2000);
  const JunkItem c = onDisk("c", 3000);
  const JunkItem review = onDisk("review", 40'000);
  const CleanCategory caches = categoryOf(CategoryType::appCaches, {a, b, c});
  const CleanCategory archives = categoryOf(CategoryType::xcodeArchives, {review});
};

TEST_F(AppStateClean, ASelectionOfSafeItemsNeverAsks) {
  scanAndFind({caches, archives});
  around.defaults.set("confirmDelete", true);
  state->requestClean();
  EXPECT_FALSE(state->pendingCleanConfirmation());
  EXPECT_TRUE(is(AppState::Cleaning{}));
  EXPECT_TRUE(cleaned());
}

TEST_F(AppStateClean, ASelectionThatAsksForAReviewRaisesTheWarningAndRemovesNothing) {
  scanAndFind({caches, archives});
  state->setSelection(archives.items, true);
  state->requestClean();
  EXPECT_TRUE(state->pendingCleanConfirmation());
  EXPECT_TRUE(isDone());
  EXPECT_TRUE(isThere(review));
}

TEST_F(AppStateClean, WithConfirmationOffReviewItemsAreCleanedWithoutAsking) {
  scanAndFind({caches, archives});
  around.defaults.set("confirmDelete", false);
  state->setSelection(archives.items, true);
  state->requestClean();
  EXPECT_FALSE(state->pendingCleanConfirmation());
  ASSERT_TRUE(cleaned());
  EXPECT_FALSE(isThere(review));
}

TEST_F(AppStateClean, AConfirmationSettingOfAnotherTypeCountsAsOn) {
  scanAndFind({archives});
  around.defaults.set("confirmDelete", std::string("false"));
  state->setSelection(archives.items, true);
  state->requestClean();
  EXPECT_TRUE(state->pendingCleanConfirmation());
}

TEST_F(AppStateClean, AnEmptySelectionCleansNothingAndEndsDone) {
  scanAndFind({caches});
  state->setSelection(caches.items, false);
  state->requestClean();
  ASSERT_TRUE(state->cleanProgress().has_value());
  EXPECT_EQ(state->cleanProgress()->total, 0);
  ASSERT_TRUE(cleaned());
  EXPECT_TRUE(is(AppState::CleanDone{0}));
  EXPECT_TRUE(isThere(a));
  EXPECT_TRUE(history.cleans().empty());
}

TEST_F(AppStateClean, ACleanOfEverythingLeavesNothingListed) {
  scanAndFind({caches});
  state->performClean();
  EXPECT_EQ(state->cleanProgress(), (DeletionProgress{0, 3, "", 0}));
  ASSERT_TRUE(cleaned());
  EXPECT_TRUE(is(AppState::CleanDone{6000}));
  EXPECT_TRUE(state->scanResults().empty());
  EXPECT_TRUE(state->selectedItems().empty());
  EXPECT_EQ(state->totalSpaceFreeable(), 0);
  EXPECT_EQ(state->selectedSize(), 0);
  EXPECT_EQ(coordinator.totals().at("smartScan"),
            (ScanCoordinator::Total{0, 0, around.clock.now()}));
  EXPECT_EQ(state->cleanProgress(), std::nullopt);
  EXPECT_EQ(state->lastCleanDate(), around.clock.now());
  EXPECT_EQ(diskChanges, 1);
  ASSERT_EQ(history.cleans().size(), 1U);
  EXPECT_EQ(history.cleans()[0].totalJunk, 6000);
}

TEST_F(AppStateClean, TheSummaryTellsTheBytesTheItemsTheCategoriesAndTheWayBack) {
  scanAndFind({caches, archives});
  state->setSelection(archives.items, true);
  state->performClean();
  ASSERT_TRUE(cleaned());
  ASSERT_TRUE(state->lastClean().has_value());
  const AppState::CleanSummary& summary = *state->lastClean();
  EXPECT_EQ(summary.freed, 46'000);
  EXPECT_EQ(summary.itemCount, 4);
  EXPECT_EQ(summary.cleanedCategories,
            (std::map<CategoryType, std::int64_t>{{CategoryType::appCaches, 6000},
                                                  {CategoryType::xcodeArchives, 40'000}}));
  ASSERT_EQ(summary.restorable.size(), 4U);
  for (const TrashedItem& item : summary.restorable) {
    EXPECT_FALSE(around.disk.holds(item.original));
    EXPECT_TRUE(around.disk.holds(item.trashed));
  }
}

TEST_F(AppStateClean, ACategoryThatKeepsAnItemStaysUnderANewIdentity) {
  scanAndFind({caches, archives});
  state->setSelection({c}, false);
  state->performClean();
  ASSERT_TRUE(cleaned());
  ASSERT_EQ(state->scanResults().size(), 2U);
  const CleanCategory& kept = state->scanResults()[0];
  EXPECT_NE(kept.id, caches.id);
  EXPECT_EQ(kept.type, CategoryType::appCaches);
  EXPECT_EQ(kept.items, std::vector<JunkItem>{c});
  EXPECT_NE(state->scanResults()[1].id, archives.id);
  EXPECT_EQ(state->totalSpaceFreeable(), 43'000);
  EXPECT_TRUE(isThere(c));
}

TEST_F(AppStateClean, OnlyWhatIsSelectedGoes) {
  scanAndFind({caches, archives});
  state->setSelection({a, c}, false);
  state->performClean();
  ASSERT_TRUE(cleaned());
  EXPECT_TRUE(isThere(a));
  EXPECT_FALSE(isThere(b));
  EXPECT_TRUE(isThere(c));
  EXPECT_TRUE(isThere(review));
}

TEST_F(AppStateClean, AnItemThatCouldNotBeRemovedStaysListedAndSelectedAndCountsForNothing) {
  const JunkItem gone = junk("/Users/ann/Library/Caches/gone", 500);
  const JunkItem refused = junk("/Users/ann", 7000);
  scanAndFind({categoryOf(CategoryType::appCaches, {a, gone, refused})});
  state->performClean();
  ASSERT_TRUE(cleaned());
  EXPECT_TRUE(is(AppState::CleanDone{1000}));
  EXPECT_EQ(state->lastClean()->itemCount, 1);
  EXPECT_EQ(state->scanResults().at(0).items, (std::vector<JunkItem>{gone, refused}));
  EXPECT_EQ(state->selectedCount(), 2);
  EXPECT_TRUE(around.disk.holds("/Users/ann"));
}

TEST_F(AppStateClean, WithoutTheTrashNothingCanComeBack) {
  around.defaults.set("useTrash", false);
  scanAndFind({caches});
  state->performClean();
  ASSERT_TRUE(cleaned());
  EXPECT_EQ(state->lastClean()->freed, 6000);
  EXPECT_TRUE(state->lastClean()->restorable.empty());
  EXPECT_TRUE(around.trash.list()->empty());
}

TEST_F(AppStateClean, ShowsTheProgressAndTheMainLoopTicksMeanwhile) {
  scanAndFind({caches});
  std::counting_semaphore<> letGo(0);
  around.trash.beforeEach(TrashOperation::moveToTrash, [&](const Path&) { letGo.acquire(); });
  state->performClean();
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  timer.start(0);
  ASSERT_TRUE(turnMainLoopUntil([&] { return ticks >= 100; }));
  EXPECT_TRUE(is(AppState::Cleaning{}));
  letGo.release();
  ASSERT_TRUE(turnMainLoopUntil([&] { return state->cleanProgress()->completed == 1; }));
  EXPECT_EQ(state->cleanProgress()->total, 3);
  letGo.release(2);
  EXPECT_TRUE(cleaned());
}

/// More items than are ever under way at once, each of which waits before it goes.
class LongClean : public AppStateClean {
 protected:
  void SetUp() override {
    for (int item = 0; item < 30; ++item) {
      many.push_back(onDisk("many " + std::to_string(item), 10));
    }
    around.trash.beforeEach(TrashOperation::moveToTrash, [this](const Path&) {
      ++underWay;
      letGo.acquire();
    });
    scanAndFind({categoryOf(CategoryType::appCaches, many)});
    state->performClean();
    ASSERT_TRUE(turnMainLoopUntil([this] { return underWay == 6; }));
  }
  void TearDown() override { letGo.release(100); }
  [[nodiscard]] std::int64_t itemsLeft() const {
    return std::ranges::count_if(many, [this](const JunkItem& item) { return isThere(item); });
  }

  std::vector<JunkItem> many;
  std::atomic<int> underWay = 0;
  std::counting_semaphore<> letGo{0};
};

TEST_F(LongClean, CancelledHalfWayItTellsAndRecordsWhatWent) {
  state->cancelClean();
  letGo.release(100);
  ASSERT_TRUE(cleaned());
  EXPECT_EQ(itemsLeft(), 24);
  EXPECT_TRUE(is(AppState::CleanDone{60}));
  EXPECT_EQ(state->lastClean()->itemCount, 6);
  EXPECT_EQ(state->lastClean()->restorable.size(), 6U);
  EXPECT_EQ(history.cleans().at(0).totalJunk, 60);
  EXPECT_EQ(state->selectedCount(), 24);
  EXPECT_EQ(diskChanges, 1);
  EXPECT_EQ(restoreAll(), 6);
  EXPECT_EQ(itemsLeft(), 30);
}

TEST_F(LongClean, QuittingDuringARemovalFinishesTheItemsInHandAndPutsThemOnRecord) {
  std::thread later([this] { letGo.release(100); });
  state.reset();
  later.join();
  const std::int64_t gone = 30 - itemsLeft();
  EXPECT_GE(gone, 6);
  for (const JunkItem& item : many) {
    EXPECT_NE(isThere(item), around.disk.holds("/Users/ann/.local/share/Trash/files/" + item.name))
        << item.name;
  }
  ASSERT_EQ(history.cleans().size(), 1U);
  EXPECT_EQ(history.cleans()[0].totalJunk, 10 * gone);
  EXPECT_EQ(ScanHistory(around.defaults, around.clock).cleans(), history.cleans());
  turnMainLoop();
}

TEST_F(LongClean, StoppedForTheEndOfTheProgramItRemovesTheItemsInHandAndNoOther) {
  state->stopRemovals();
  letGo.release(100);
  state.reset();
  EXPECT_EQ(itemsLeft(), 24);
  ASSERT_EQ(history.cleans().size(), 1U);
  EXPECT_EQ(history.cleans()[0].totalJunk, 60);
  turnMainLoop();
}

TEST_F(LongClean, TheEndOfTheProgramWaitsForARemovalButNotForAScan) {
  scans.endsWhenAskedToStop = false;
  state->startScan();
  ASSERT_TRUE(turnMainLoopUntil([&] { return scans.runsBegun() == 2; }));
  std::thread later([this] { letGo.release(100); });
  state->finishRemovals();
  later.join();
  EXPECT_EQ(history.cleans().size(), 1U);
  EXPECT_EQ(scans.runsEnded(), 1);
  scans.finish(1, {});
}

TEST_F(LongClean, ARescanDuringARemovalDeletesNothingStaleAndNothingNew) {
  const JunkItem foundMeanwhile = onDisk("found meanwhile", 5);
  state->startScan();
  scans.finish(1, {categoryOf(CategoryType::systemLogs, {foundMeanwhile})});
  ASSERT_TRUE(turnMainLoopUntil([&] { return isDone(); }));
  letGo.release(100);
  ASSERT_TRUE(cleaned());
  EXPECT_EQ(itemsLeft(), 0);
  EXPECT_TRUE(isThere(foundMeanwhile));
  ASSERT_EQ(state->scanResults().size(), 1U);
  EXPECT_EQ(state->scanResults()[0].items, std::vector<JunkItem>{foundMeanwhile});
  EXPECT_EQ(state->selectedCount(), 1);
  EXPECT_EQ(state->lastClean()->itemCount, 30);
}

TEST_F(LongClean, ACategoryThatIsFoundDuringASecondCleanStaysListed) {
  const JunkItem early = onDisk("early", 7);
  const JunkItem late = onDisk("late", 5);
  state->startScan();
  scans.category(1, categoryOf(CategoryType::systemLogs, {early}));
  ASSERT_TRUE(turnMainLoopUntil([&] { return state->scanResults().size() == 1; }));
  letGo.release(30);
  ASSERT_TRUE(cleaned());

  ASSERT_EQ(state->selectedCount(), 1);
  state->performClean();
  ASSERT_TRUE(turnMainLoopUntil([this] { return underWay == 31; }));
  scans.category(1, categoryOf(CategoryType::appCaches, {late}));
  ASSERT_TRUE(turnMainLoopUntil([&] {
    around.clock.advance(16ms);
    return state->scanResults().size() == 2;
  }));
  letGo.release();
  ASSERT_TRUE(cleaned());
  EXPECT_FALSE(isThere(early));
  EXPECT_TRUE(isThere(late));
  ASSERT_EQ(state->scanResults().size(), 1U);
  EXPECT_EQ(state->scanResults()[0].items, std::vector<JunkItem>{late});
}

TEST_F(AppStateClean, AFolderComesBackBeforeWhatLayInItThoughItWentLast) {
  const JunkItem inner = onDisk("folder/inner/file", 1);
  const JunkItem innerFolder = junk("/Users/ann/Library/Caches/folder/inner", 1);
  const JunkItem beside = onDisk("folder/beside", 2);
  const JunkItem folder = junk("/Users/ann/Library/Caches/folder", 3);
  std::counting_semaphore<> letGo(0);
  around.trash.before(TrashOperation::moveToTrash, folder.path, [&] { letGo.acquire(); });
  scanAndFind({categoryOf(CategoryType::appCaches, {innerFolder, folder})});
  state->performClean();
  ASSERT_TRUE(turnMainLoopUntil([&] { return state->cleanProgress()->completed == 1; }));
  letGo.release();
  ASSERT_TRUE(cleaned());
  ASSERT_EQ(state->lastClean()->restorable.size(), 2U);
  ASSERT_EQ(state->lastClean()->restorable[0].original, innerFolder.path);
  EXPECT_EQ(restoreAll(), 2);
  EXPECT_TRUE(isThere(inner));
  EXPECT_TRUE(isThere(beside));
}

TEST_F(AppStateClean, WhatIsAnotherThingSinceTheScanStaysAndTheUserIsTold) {
  scanAndFind({caches});
  around.disk.makeFile("/Users/ann/other", std::string_view("new"));
  std::filesystem::rename(around.disk.onDisk("/Users/ann/other"), around.disk.onDisk(b.path));
  state->performClean();
  ASSERT_TRUE(cleaned());
  EXPECT_TRUE(is(AppState::CleanDone{4000}));
  EXPECT_EQ(around.disk.contentOf(b.path), "new");
  EXPECT_EQ(state->scanResults().at(0).items, std::vector<JunkItem>{b});
  EXPECT_TRUE(QString::fromStdString(notice.text()).startsWith("1 item was left alone"));
}

TEST_F(AppStateClean, WhatIsAnotherThingInTheTrashByNowDoesNotComeBackAndTheUserIsTold) {
  scanAndFind({caches});
  state->performClean();
  ASSERT_TRUE(cleaned());
  const Path trashed = around.disk.onDisk("/Users/ann/.local/share/Trash/files/b");
  std::filesystem::rename(trashed, around.disk.onDisk("/Users/ann/taken out"));
  around.disk.makeFile("/Users/ann/.local/share/Trash/files/b", std::string_view("new"));
  EXPECT_EQ(restoreAll(), 2);
  EXPECT_FALSE(isThere(b));
  EXPECT_TRUE(QString::fromStdString(notice.text()).startsWith("1 item was not put back"));
}

TEST_F(AppStateClean, RemoveItemsOfNothingChangesNothing) {
  scanAndFind({caches});
  const SignalCount changes(*state, &AppState::scanResultsChanged);
  state->removeItems({});
  EXPECT_EQ(changes.get(), 0);
  EXPECT_EQ(state->scanResults()[0].id, caches.id);
}

TEST_F(AppStateClean, ARestoreWithNothingToRestoreFromAnswersZero) {
  EXPECT_EQ(restoreAll(), 0);
  EXPECT_EQ(diskChanges, 0);
}

TEST_F(AppStateClean, ASummaryWithNothingRestorableClearsAndAnswersZeroWithoutAScan) {
  around.defaults.set("useTrash", false);
  scanAndFind({caches});
  state->performClean();
  ASSERT_TRUE(cleaned());
  EXPECT_EQ(restoreAll(), 0);
  EXPECT_EQ(state->lastClean(), std::nullopt);
  EXPECT_TRUE(is(AppState::CleanDone{6000}));
  EXPECT_EQ(diskChanges, 2);
}

TEST_F(AppStateClean, ARestoreOfWhichEveryItemFailsAnswersZeroAndScansNotButForgetsTheClean) {
  scanAndFind({caches});
  state->performClean();
  ASSERT_TRUE(cleaned());
  for (const JunkItem& item : caches.items) around.disk.makeFile(item.path, std::int64_t{1});
  EXPECT_EQ(restoreAll(), 0);
  EXPECT_EQ(state->lastClean(), std::nullopt);
  EXPECT_TRUE(isCleanDone());
  EXPECT_EQ(scans.runsBegun(), 1);
}

TEST_F(AppStateClean, DismissingTheLastCleanForgetsIt) {
  scanAndFind({caches});
  state->performClean();
  ASSERT_TRUE(cleaned());
  const SignalCount changes(*state, &AppState::lastCleanChanged);
  state->dismissLastClean();
  state->dismissLastClean();
  EXPECT_EQ(state->lastClean(), std::nullopt);
  EXPECT_EQ(changes.get(), 1);
}

TEST_F(AppStateClean, ANewScanForgetsTheLastClean) {
  scanAndFind({caches});
  state->performClean();
  ASSERT_TRUE(cleaned());
  state->startScan();
  EXPECT_EQ(state->lastClean(), std::nullopt);
}

using CleanWithTheRealTrash = CleanFixture;

TEST_F(CleanWithTheRealTrash, WhatACleanTrashedComesBackWholeAndAScanFollows) {
  const JunkItem plain = onDisk("plain", 5000);
  const JunkItem odd = onDisk("odd \n\xff name", 70);
  around.disk.makeFile("/Users/ann/Library/Caches/folder/deep/file", std::string_view("content"));
  const JunkItem folder = junk("/Users/ann/Library/Caches/folder", 7);
  scanAndFind({categoryOf(CategoryType::appCaches, {plain, odd, folder})});
  state->performClean();
  ASSERT_TRUE(cleaned());
  EXPECT_TRUE(is(AppState::CleanDone{5077}));
  for (const JunkItem& item : {plain, odd, folder}) EXPECT_FALSE(isThere(item));
  EXPECT_EQ(around.trash.list()->size(), 3U);

  EXPECT_EQ(restoreAll(), 3);
  for (const JunkItem& item : {plain, odd, folder}) EXPECT_TRUE(isThere(item));
  EXPECT_EQ(around.disk.contentOf("/Users/ann/Library/Caches/folder/deep/file"), "content");
  EXPECT_TRUE(around.trash.list()->empty());
  EXPECT_EQ(state->lastClean(), std::nullopt);
  EXPECT_TRUE(is(AppState::Scanning{0, "Starting scan"}));
  EXPECT_EQ(diskChanges, 2);
}

TEST_F(CleanWithTheRealTrash, ARestoreNeverReplacesWhatStandsThereNow) {
  const JunkItem kept = onDisk("kept", 50);
  const JunkItem taken = onDisk("taken", 60);
  scanAndFind({categoryOf(CategoryType::appCaches, {kept, taken})});
  state->performClean();
  ASSERT_TRUE(cleaned());
  around.disk.makeFile(taken.path, std::string_view("new"));
  EXPECT_EQ(restoreAll(), 1);
  EXPECT_TRUE(isThere(kept));
  EXPECT_EQ(around.disk.contentOf(taken.path), "new");
  EXPECT_EQ(around.trash.list()->size(), 1U);
}

}  // namespace
}  // namespace klarvik
