#include "panes/system_data/system_data_model.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <atomic>

#include "../pane_fixture.h"
#include "found_items.h"
#include "panes/kit/kit_enums.h"
#include "state/section.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using Sub = SystemDataSubCategory;
using Body = SystemDataModel::Body;
using enum ItemSafety;

constexpr std::int64_t megabyte = 1'000'000;
constexpr auto width = ScannerEngine::deletionWidth;

/// The pane in a program of its own with a main loop, over a real disk and a real Trash, and over
/// analyses that a test lays down and can hold half-way.
class SystemDataPane : public PaneFixture {
 protected:
  /// A row, and a file on the disk that it stands for.
  void add(Sub kind, const std::string& name, std::int64_t size,
           std::optional<ItemSafety> safetyOverride = std::nullopt) {
    laidDown.push_back(found(kind, name, size, safetyOverride));
    desk.disk.makeFile(laidDown.back().path, 4'096);
  }
  void addTen() {
    for (int number = 0; number < 10; ++number) add(Sub::logs, std::to_string(number), megabyte);
  }
  SystemDataResult analyseAsLaidDown(const SystemDataEngine::ProgressSink& progress) {
    ++analyses;
    std::vector<SystemDataItem> items = laidDown;
    for (SystemDataItem& item : items) {
      item.id = Uuid::random();
      item.identity = entryIdentity(desk.files, item.path);
    }
    progress("Scanning Logs...", 0.6);
    waitAtGate();
    progress("Analysis complete", 1.0);
    return SystemDataResult(std::move(items), 123);
  }

  [[nodiscard]] bool analyse() {
    pane.performAction();
    return turnUntil([this] { return !pane.isScanning(); });
  }
  [[nodiscard]] bool analyseAndHold() {
    gate.close();
    pane.performAction();
    return turnUntil([this] { return pane.scanProgress() == 0.6; });
  }
  void select(int row) { pane.table()->toggleSelection(row); }
  [[nodiscard]] bool removeSelected() {
    pane.requestRemoval();
    pane.confirmRemoval();
    return turnUntil([this] { return !pane.isDeleting(); });
  }
  [[nodiscard]] bool removeSelectedAndHold(std::size_t moves) {
    desk.trashGate.close();
    pane.requestRemoval();
    pane.confirmRemoval();
    return turnUntil([this, moves] { return desk.trashGate.waiting() == moves; });
  }
  /// As another program does it, one tick of the disk's clock after the last change.
  void emptyTrashFromOutside() const {
    namespace fs = std::filesystem;
    const Path trash = desk.disk.onDisk("/Users/ann/.local/share/Trash");
    for (const Path& folder : {trash / "files", trash / "info"}) {
      const auto lastChange = fs::last_write_time(folder);
      for (const auto& entry : fs::directory_iterator(folder)) fs::remove_all(entry);
      fs::last_write_time(folder, lastChange + 1s);
    }
  }
  [[nodiscard]] bool isOnDisk(const std::string& name) const {
    return desk.disk.holds(Path("/Users/ann/Library/Caches") / name);
  }
  [[nodiscard]] const std::vector<SystemDataItem>& rows() const {
    return pane.findings().result()->items();
  }
  [[nodiscard]] ToolActivity::State activity() { return activityOf("systemData"); }
  [[nodiscard]] ScanCoordinator::Total total() { return totalOf("systemData").value(); }

 protected:
  std::vector<SystemDataItem> laidDown;
  std::atomic<int> analyses = 0;
  SystemDataModel pane{shared, desktop, nullptr,
                       [this](const SystemDataEngine::ProgressSink& progress,
                              const std::stop_token&) { return analyseAsLaidDown(progress); }};
};

TEST_F(SystemDataPane, IsEmptyUntilTheUserAsksForAnAnalysis) {
  desk.clock.advance(30min);
  turnMainLoop();
  EXPECT_FALSE(pane.isScanning());
  EXPECT_EQ(analyses, 0);
  EXPECT_EQ(pane.body(), Body::Empty);
  EXPECT_EQ(pane.title(), "System Data");
  EXPECT_TRUE(pane.subtitle().startsWith("Not analysed yet."));
  EXPECT_EQ(pane.actionTitle(), "Analyse");
  EXPECT_FALSE(pane.canRemove());
  EXPECT_FALSE(pane.isBannerShown());
  EXPECT_FALSE(shared.scanCoordinator().totals().contains("systemData"));
}

TEST_F(SystemDataPane, SaysWhetherThePermissionIsThere) {
  EXPECT_TRUE(pane.hasFullDiskAccess());
  QSignalSpy changed(&pane, &SystemDataModel::hasFullDiskAccessChanged);
  denyFullDiskAccess();
  EXPECT_FALSE(pane.hasFullDiskAccess());
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(SystemDataPane, ShowsARunningAnalysis) {
  add(Sub::logs, "a", 2 * megabyte);
  ASSERT_TRUE(analyseAndHold());
  EXPECT_EQ(pane.body(), Body::Analysing);
  EXPECT_EQ(pane.scanLabel(), "Scanning Logs...");
  EXPECT_EQ(pane.actionTitle(), "Stop");
  EXPECT_EQ(std::get<ToolActivity::Progress>(activity()).fraction, 0.6);
}

TEST_F(SystemDataPane, ShowsWhatAnAnalysisFound) {
  add(Sub::logs, "a", 2 * megabyte);
  add(Sub::vmSwap, "swap", 6 * megabyte);
  ASSERT_TRUE(analyse());
  EXPECT_EQ(pane.body(), Body::Result);
  EXPECT_EQ(pane.title(), "System Data · 8 MB");
  EXPECT_TRUE(pane.subtitle().endsWith(" 2 MB of it can go."));
  EXPECT_EQ(pane.actionTitle(), "Re-analyse");
  EXPECT_EQ(pane.removableSummary(), "2 MB Klarvik can remove");
  EXPECT_EQ(pane.protectedSummary(), "6 MB shown, never offered");
  EXPECT_EQ(pane.findings().result()->freeBytesAtMeasurement, 123);
  EXPECT_EQ(std::get<ToolActivity::Finished>(activity()).summary, "2 MB");
  EXPECT_EQ(total().bytes, 2 * megabyte);
  EXPECT_EQ(total().items, 1);
}

TEST_F(SystemDataPane, DrawsOneSliceForEachKindInTheOrderOfTheRows) {
  add(Sub::logs, "a", 2 * megabyte);
  add(Sub::vmSwap, "swap", 6 * megabyte);
  ASSERT_TRUE(analyse());
  const QList<DonutSlice> slices = pane.slices();
  ASSERT_EQ(slices.size(), 2);
  EXPECT_EQ(slices[0].id, "VM & Swap");
  EXPECT_EQ(slices[1].id, "Logs");
  EXPECT_EQ(slices[1].value, 2 * megabyte);
  EXPECT_EQ(slices[1].color, QColor::fromRgbF(0.443F, 0.443F, 0.463F));
}

TEST_F(SystemDataPane, KeepsTheOldResultWhenAnAnalysisIsStopped) {
  add(Sub::logs, "a", 2 * megabyte);
  ASSERT_TRUE(analyse());
  add(Sub::caches, "b", 9 * megabyte);
  ASSERT_TRUE(analyseAndHold());
  EXPECT_EQ(pane.body(), Body::Result);
  EXPECT_EQ(pane.actionTitle(), "Stop");
  pane.performAction();
  EXPECT_FALSE(pane.isScanning());
  EXPECT_EQ(pane.actionTitle(), "Re-analyse");
  ASSERT_TRUE(letGo());
  EXPECT_EQ(rows().size(), 1U);
  EXPECT_TRUE(std::holds_alternative<ToolActivity::Idle>(activity()));
}

TEST_F(SystemDataPane, IsEmptyAgainWhenTheFirstAnalysisIsStopped) {
  ASSERT_TRUE(analyseAndHold());
  pane.performAction();
  EXPECT_EQ(pane.body(), Body::Empty);
  ASSERT_TRUE(letGo());
  EXPECT_EQ(pane.body(), Body::Empty);
}

TEST_F(SystemDataPane, WithOnlyProtectedRowsOffersNothing) {
  add(Sub::vmSwap, "swap", 6 * megabyte);
  add(Sub::developerTools, "tools", megabyte, protected_);
  ASSERT_TRUE(analyse());
  select(0);
  select(1);
  EXPECT_FALSE(pane.canRemove());
  EXPECT_EQ(pane.removableSummary(), "Zero KB Klarvik can remove");
  EXPECT_EQ(pane.selectionSummary(), "Nothing selected");
  pane.requestRemoval();
  EXPECT_FALSE(pane.confirmDelete());
  pane.confirmRemoval();
  EXPECT_FALSE(pane.isDeleting());
}

TEST_F(SystemDataPane, SelectsTheNineSafeRowsOfAKindAndItsBoxShowsAll) {
  add(Sub::developerTools, "kept", megabyte, protected_);
  for (int number = 0; number < 9; ++number) {
    add(Sub::developerTools, std::to_string(number), megabyte);
  }
  ASSERT_TRUE(analyse());
  select(0);
  EXPECT_EQ(pane.selectionSummary(), "9 items");
  EXPECT_EQ(pane.removalTitle(), "9 MB to Trash");
  EXPECT_EQ(pane.table()->index(0).data(SystemDataTableModel::SelectionRole).toInt(),
            SelectionState::All);
}

TEST_F(SystemDataPane, AsksEveryTimeBeforeItRemovesAndCancelChangesNothing) {
  desk.defaults.set("confirmDelete", false);
  add(Sub::logs, "a", 2 * megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  pane.confirmRemoval();
  EXPECT_FALSE(pane.isDeleting());
  pane.requestRemoval();
  EXPECT_TRUE(pane.confirmDelete());
  EXPECT_FALSE(pane.isDeleting());
  EXPECT_EQ(pane.confirmationTitle(), "Move 1 item to Trash?");
  EXPECT_EQ(pane.confirmationMessage(),
            "This frees 2 MB once the Trash is emptied. Nothing is removed permanently.");
  pane.cancelConfirmation();
  EXPECT_FALSE(pane.confirmDelete());
  turnMainLoop();
  EXPECT_FALSE(pane.isDeleting());
  EXPECT_TRUE(isOnDisk("a"));
  EXPECT_EQ(pane.findings().selected().count, 1);
}

TEST_F(SystemDataPane, MovesWhatIsSelectedToTheTrashAndTellsOfItLast) {
  add(Sub::logs, "a", 2 * megabyte);
  add(Sub::logs, "b", 3 * megabyte);
  add(Sub::caches, "stays", megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  int notified = 0;
  const auto subscription = desk.notifications.observe(diskChangedNotification, [&] {
    ++notified;
    EXPECT_EQ(pane.lastRemoval(), (SystemDataModel::Removal{2, 5 * megabyte}));
    EXPECT_FALSE(pane.isDeleting());
    EXPECT_EQ(total().bytes, megabyte);
  });
  ASSERT_TRUE(removeSelected());
  EXPECT_EQ(notified, 1);
  EXPECT_FALSE(isOnDisk("a"));
  EXPECT_FALSE(isOnDisk("b"));
  EXPECT_TRUE(isOnDisk("stays"));
  EXPECT_EQ(desk.desktop.trash.list()->size(), 2U);
  EXPECT_EQ(rows().size(), 1U);
  EXPECT_EQ(pane.findings().result()->freeBytesAtMeasurement, 200'000'000'000);
  EXPECT_TRUE(pane.findings().selectedItems().empty());
  EXPECT_EQ(pane.removedItems().size(), 2U);
  EXPECT_EQ(pane.bannerHeadline(), "2 items moved to Trash · 5 MB");
  EXPECT_EQ(total().items, 1);
}

TEST_F(SystemDataPane, TellsOfTheLastRemovalAndRemembersTheEarlierOnes) {
  add(Sub::logs, "a", 2 * megabyte);
  add(Sub::caches, "b", megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(removeSelected());
  EXPECT_EQ(pane.bannerHelp(), "a");
  select(0);
  ASSERT_TRUE(removeSelected());
  EXPECT_EQ(pane.removedItems().size(), 2U);
  EXPECT_EQ(pane.bannerHeadline(), "1 item moved to Trash · 1 MB");
  EXPECT_EQ(pane.bannerHelp(), "b");
}

TEST_F(SystemDataPane, StopsARemovalHalfWayWithTheRestStillSelected) {
  addTen();
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(removeSelectedAndHold(width));
  EXPECT_TRUE(pane.isDeleting());
  EXPECT_TRUE(pane.deleteProgress().present());
  pane.requestRemoval();
  EXPECT_FALSE(pane.confirmDelete());
  pane.stopRemoval();
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane.isDeleting(); }));
  const auto moved = static_cast<std::size_t>(pane.lastRemoval()->itemCount);
  EXPECT_GE(moved, width);
  EXPECT_LT(moved, 10U);
  EXPECT_EQ(rows().size(), 10U - moved);
  EXPECT_EQ(pane.findings().selectable().size(), 10U - moved);
  for (const SystemDataItem& item : rows()) EXPECT_TRUE(isOnDisk(item.name));
}

TEST_F(SystemDataPane, KeepsSelectedWhatTheGuardRefused) {
  add(Sub::logs, "a", 2 * megabyte);
  laidDown.push_back(found(Sub::systemTemp, "refused", 5 * megabyte));
  laidDown.back().path = "/usr/share";
  desk.disk.makeFolder("/usr/share");
  ASSERT_TRUE(analyse());
  select(0);
  select(1);
  ASSERT_TRUE(removeSelected());
  EXPECT_EQ(pane.lastRemoval()->itemCount, 1);
  EXPECT_EQ(rows().size(), 1U);
  EXPECT_EQ(pane.selectionSummary(), "1 items");
  EXPECT_TRUE(desk.disk.holds("/usr/share"));
}

TEST_F(SystemDataPane, CountsAFileTrashedElsewhereWhileItIsListedAsNotRemoved) {
  add(Sub::logs, "a", 2 * megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  std::filesystem::remove(desk.disk.onDisk("/Users/ann/Library/Caches/a"));
  ASSERT_TRUE(removeSelected());
  EXPECT_EQ(pane.bannerHeadline(), "0 items moved to Trash · Zero KB");
  EXPECT_EQ(rows().size(), 1U);
  EXPECT_EQ(pane.findings().selected().count, 1);
}

TEST_F(SystemDataPane, SaysThatTheSpaceIsBackOnceTheTrashIsEmptiedElsewhere) {
  add(Sub::logs, "a", 2 * megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(removeSelected());
  ASSERT_TRUE(turnUntil([this] { return !shared.trashMonitor().isMeasuring(); }));
  EXPECT_EQ(pane.bannerDetail(), "The Trash still holds this space until you empty it.");
  QSignalSpy changed(&pane, &SystemDataModel::bannerChanged);
  emptyTrashFromOutside();
  EXPECT_EQ(changed.count(), 0);
  desk.clock.advance(10s);
  EXPECT_EQ(pane.bannerDetail(), "The space is back.");
  EXPECT_GE(changed.count(), 1);
}

TEST_F(SystemDataPane, SaysThatTheSpaceIsBackOnceTheTrashIsEmptiedFromTheSidebar) {
  add(Sub::logs, "a", 2 * megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(removeSelected());
  EXPECT_EQ(pane.bannerDetail(), "The Trash still holds this space until you empty it.");
  ASSERT_TRUE(turnUntil([this] { return !shared.trashMonitor().isMeasuring(); }));
  EXPECT_EQ(pane.bannerDetail(), "The Trash still holds this space until you empty it.");
  QSignalSpy changed(&pane, &SystemDataModel::bannerChanged);
  shared.trashMonitor().emptyTrash();
  EXPECT_FALSE(pane.canEmptyTrash());
  ASSERT_TRUE(turnUntil([this] { return !pane.trashHoldsIt(); }));
  EXPECT_EQ(pane.bannerDetail(), "The space is back.");
  EXPECT_GE(changed.count(), 1);
}

TEST_F(SystemDataPane, EmptiesTheTrashFromTheBanner) {
  add(Sub::logs, "a", 2 * megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(removeSelected());
  pane.emptyTrash();
  ASSERT_TRUE(turnUntil([this] { return !pane.trashHoldsIt(); }));
  EXPECT_TRUE(desk.desktop.trash.list()->empty());
}

TEST_F(SystemDataPane, ForgetsAnEarlierRemovalWithANewAnalysis) {
  add(Sub::logs, "a", 2 * megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(removeSelected());
  laidDown.clear();
  ASSERT_TRUE(analyse());
  EXPECT_FALSE(pane.isBannerShown());
  EXPECT_TRUE(pane.removedItems().empty());
  EXPECT_EQ(pane.title(), "System Data · Zero KB");
}

TEST_F(SystemDataPane, TakesTheQuestionBackWhenANewAnalysisLeavesNothingSelected) {
  add(Sub::logs, "a", 2 * megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(analyseAndHold());
  pane.requestRemoval();
  ASSERT_TRUE(pane.confirmDelete());
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane.isScanning(); }));
  EXPECT_FALSE(pane.confirmDelete());
  pane.confirmRemoval();
  EXPECT_FALSE(pane.isDeleting());
  EXPECT_TRUE(isOnDisk("a"));
}

TEST_F(SystemDataPane, DoesNotListWhatWentToTheTrashWhileTheAnalysisRan) {
  add(Sub::logs, "a", 2 * megabyte);
  add(Sub::caches, "b", megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(analyseAndHold());
  ASSERT_TRUE(removeSelected());
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane.isScanning(); }));
  ASSERT_EQ(rows().size(), 1U);
  EXPECT_EQ(rows().front().name, "b");
}

TEST_F(SystemDataPane, RescannedDuringARemovalDeletesNothingStale) {
  add(Sub::logs, "a", 2 * megabyte);
  add(Sub::caches, "b", megabyte);
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(removeSelectedAndHold(1));
  ASSERT_TRUE(analyse());
  EXPECT_EQ(rows().size(), 2U);
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane.isDeleting(); }));
  ASSERT_EQ(rows().size(), 1U);
  EXPECT_EQ(rows().front().name, "b");
  EXPECT_FALSE(isOnDisk("a"));
  EXPECT_TRUE(isOnDisk("b"));
  EXPECT_EQ(pane.bannerHelp(), "a");
}

TEST_F(SystemDataPane, LinksTheChartAndTheRowsByHoverAlsoThroughARescan) {
  add(Sub::logs, "a", 2 * megabyte);
  add(Sub::caches, "b", megabyte);
  ASSERT_TRUE(analyse());
  pane.hover("Logs", true);
  pane.hover("App Caches", true);
  pane.hover("Logs", false);
  EXPECT_EQ(pane.highlighted(), "App Caches");
  ASSERT_TRUE(analyse());
  EXPECT_EQ(pane.highlighted(), "App Caches");
  laidDown.pop_back();
  ASSERT_TRUE(analyse());
  EXPECT_EQ(pane.highlighted(), "");
}

TEST_F(SystemDataPane, FinishesTheFilesInHandWhenTheProgramEnds) {
  addTen();
  ASSERT_TRUE(analyse());
  select(0);
  ASSERT_TRUE(removeSelectedAndHold(width));
  pane.stopRemoval();
  desk.trashGate.open();
  pane.finishRemovals();
  EXPECT_FALSE(pane.isDeleting());
  const std::size_t trashed = desk.desktop.trash.list()->size();
  EXPECT_GE(trashed, width);
  EXPECT_EQ(rows().size() + trashed, 10U);
}

TEST_F(SystemDataPane, AnalysesTheDiskItself) {
  desk.disk.makeFile("/Users/ann/Library/Caches/com.acme.writer/data", 6 * megabyte);
  SystemDataModel real(shared, desktop);
  real.performAction();
  ASSERT_TRUE(turnUntil([&] { return !real.isScanning(); }));
  ASSERT_EQ(real.findings().result()->items().size(), 1U);
  EXPECT_EQ(real.slices().front().id, "App Caches");
  EXPECT_EQ(real.findings().result()->freeBytesAtMeasurement, 200'000'000'000);
}

}  // namespace
}  // namespace klarvik
