#include "panes/smart_scan/smart_scan_model.h"

#include <QSignalSpy>

#include "panes/kit/row_text.h"
#include "smart_scan_fixture.h"

namespace klarvik {
namespace {

using Body = SmartScanModel::Body;

class SmartScanPaneModel : public SmartScanFixture {
 protected:
  [[nodiscard]] QString size(std::int64_t bytes) const { return byteText(bytes, desk.formatting); }
  [[nodiscard]] bool startScanAndHoldIt() {
    desk.commands.holdAt("docker", gate);
    gate.close();
    pane.performAction();
    return turnUntil(
        [this] { return gate.waiting() == 1 && appState.scanActivity().categoryName == "Docker"; });
  }
};

TEST_F(SmartScanPaneModel, PreviewsAScanWhenIdle) {
  EXPECT_EQ(pane.body(), Body::Preview);
  EXPECT_EQ(pane.title(), "Smart Scan");
  EXPECT_EQ(pane.subtitle(), "Nothing scanned yet");
  EXPECT_EQ(pane.actionTitle(), "Scan");
  EXPECT_FALSE(pane.offersSafeOnly());
}

TEST_F(SmartScanPaneModel, PreviewsEveryCategoryInOrderWithItsVerdict) {
  const std::vector<ScanPreviewModel::Row>& rows = pane.preview()->rows();
  ASSERT_EQ(rows.size(), allCategoryTypes().size());
  for (std::size_t at = 0; at < rows.size(); ++at) {
    EXPECT_EQ(rows[at].name, rawValue(allCategoryTypes()[at]));
    EXPECT_EQ(rows[at].level, safety(allCategoryTypes()[at]));
  }
}

TEST_F(SmartScanPaneModel, ShowsARunningScanAndStopsIt) {
  addCache("a");
  ASSERT_TRUE(startScanAndHoldIt());
  EXPECT_EQ(pane.body(), Body::Scanning);
  EXPECT_EQ(pane.title(), "Scanning");
  EXPECT_TRUE(pane.subtitle().startsWith("Docker"));
  EXPECT_EQ(pane.scanningHeadline(), "Scanning 9 of 11 categories");
  EXPECT_GT(pane.progress(), 0);
  EXPECT_TRUE(pane.isMeasuring());
  EXPECT_EQ(pane.actionTitle(), "Stop");

  const std::vector<FoundRow>& rows = pane.scanningTable()->rows();
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].name, "App Caches");
  EXPECT_EQ(std::get<SafetyLevel>(rows[0].safety), SafetyLevel::safe);
  EXPECT_EQ(rows[0].items, 1);
  EXPECT_EQ(rows[1].name, "Docker");
  EXPECT_TRUE(std::holds_alternative<FoundRow::InProgress>(rows[1].safety));

  pane.performAction();
  EXPECT_EQ(pane.body(), Body::Review);
  EXPECT_EQ(pane.actionTitle(), "Rescan");
  EXPECT_TRUE(pane.scanningTable()->rows().empty());
  gate.open();
}

TEST(ScanPreviewOfALinuxDisk, ListsTheRowsOfItsScanInTheirOrder) {
  const ScanPreviewModel preview(layoutFor("/home/ann"));
  std::vector<std::string> names;
  for (const ScanPreviewModel::Row& row : preview.rows()) names.push_back(row.name);
  EXPECT_EQ(names, (std::vector<std::string>{
                       "Build Artifacts", "Package Caches", "Toolchains & Stores", "App Caches",
                       "Logs & Crash Reports", "Installed Packages", "Trash", "Browser Caches",
                       "Containers", "Snapshots", "Leftovers"}));
}

TEST_F(SmartScanPaneModel, GrowsTheScanningTableRowByRow) {
  addCache("a");
  QSignalSpy inserted(pane.scanningTable(), &ScanningTableModel::rowsInserted);
  QSignalSpy reset(pane.scanningTable(), &ScanningTableModel::modelReset);
  ASSERT_TRUE(startScanAndHoldIt());
  EXPECT_GE(inserted.count(), 2);
  EXPECT_EQ(reset.count(), 0);
  gate.open();
}

TEST_F(SmartScanPaneModel, SaysWhatAScanFound) {
  addCache("a");
  addCache("b");
  addArchive("Old");
  ASSERT_TRUE(scan());
  EXPECT_EQ(pane.body(), Body::Review);
  EXPECT_EQ(pane.title(), size(appState.totalSpaceFreeable()) + " found");
  EXPECT_EQ(pane.subtitle(), "2 categories · 3 items");
  EXPECT_EQ(pane.actionTitle(), "Rescan");
  EXPECT_TRUE(pane.offersSafeOnly());
}

TEST_F(SmartScanPaneModel, SaysThatNothingWasFound) {
  ASSERT_TRUE(scan());
  EXPECT_EQ(pane.body(), Body::NothingFound);
  EXPECT_EQ(pane.title(), "Smart Scan");
  EXPECT_EQ(pane.subtitle(), "0 categories · 0 items");
  EXPECT_EQ(pane.actionTitle(), "Scan");
  EXPECT_FALSE(pane.offersSafeOnly());
}

TEST_F(SmartScanPaneModel, SelectsOnlySafeItemsWhenAskedTo) {
  addCache("a");
  addArchive("Old");
  ASSERT_TRUE(scan());
  selectEverything();
  ASSERT_EQ(appState.selectedCount(), 2);
  pane.selectSafeOnly();
  EXPECT_EQ(appState.selectedCount(), 1);
  EXPECT_TRUE(appState.selectionIsAllSafe());
}

TEST_F(SmartScanPaneModel, OffersNothingToCleanWithoutASelection) {
  addArchive("Old");
  ASSERT_TRUE(scan());
  EXPECT_FALSE(pane.footer()->isEnabled());
  EXPECT_EQ(pane.footer()->hint(), "Select something to clean.");
  EXPECT_EQ(pane.footer()->selectionSummary(), "Zero KB selected · 0 items");
  EXPECT_EQ(pane.footer()->shown().buttonLabel, "Clean Zero KB");
  pane.footer()->clean();
  EXPECT_TRUE(is<AppState::Done>());
}

TEST_F(SmartScanPaneModel, CleansNothingWhileAScanRuns) {
  addCache("a");
  ASSERT_TRUE(scan());
  ASSERT_TRUE(pane.footer()->isEnabled());
  ASSERT_TRUE(startScanAndHoldIt());
  EXPECT_FALSE(pane.footer()->isEnabled());
  pane.footer()->clean();
  EXPECT_TRUE(is<AppState::Scanning>());
  gate.open();
}

TEST_F(SmartScanPaneModel, TellsWhatIsSelectedAndWhatItIsMarkedAs) {
  addCache("a");
  addArchive("Old");
  ASSERT_TRUE(scan());
  const QString selected = size(appState.selectedSize());
  EXPECT_TRUE(pane.footer()->isEnabled());
  EXPECT_EQ(pane.footer()->selectionSummary(), selected + " selected · 1 items");
  EXPECT_EQ(pane.footer()->hint(), "Everything selected is marked Safe. Items move to the Trash.");
  EXPECT_EQ(pane.footer()->shown().buttonLabel, "Clean " + selected);
  selectEverything();
  EXPECT_EQ(pane.footer()->hint(),
            "Your selection includes Review items. Items move to the Trash.");
}

TEST_F(SmartScanPaneModel, AsksBeforeRemovingReviewItemsAndCancelLeavesTheSelectionAsItWas) {
  addArchive("Old");
  ASSERT_TRUE(scan());
  pane.reviewTable()->toggleSelection(0);
  pane.footer()->clean();
  EXPECT_TRUE(pane.isConfirming());
  EXPECT_TRUE(is<AppState::Done>());
  pane.cancelConfirmation();
  EXPECT_FALSE(pane.isConfirming());
  EXPECT_EQ(appState.selectedCount(), 1);
  EXPECT_TRUE(is<AppState::Done>());
  EXPECT_TRUE(desk.disk.holds("/Users/ann/Library/Developer/Xcode/Archives/Old"));

  pane.footer()->clean();
  pane.confirmClean();
  EXPECT_FALSE(pane.isConfirming());
  ASSERT_TRUE(turnUntil([this] { return is<AppState::CleanDone>(); }));
  EXPECT_EQ(pane.body(), Body::NothingFound);
  EXPECT_FALSE(desk.disk.holds("/Users/ann/Library/Developer/Xcode/Archives/Old"));
}

TEST_F(SmartScanPaneModel, AScanThatBeginsElsewhereWithdrawsTheQuestion) {
  addArchive("Old");
  addCache("com.example");
  ASSERT_TRUE(scan());
  selectEverything();
  pane.footer()->clean();
  EXPECT_TRUE(pane.isConfirming());
  ASSERT_TRUE(scan());
  EXPECT_FALSE(pane.isConfirming());
  EXPECT_TRUE(is<AppState::Done>());
  EXPECT_TRUE(desk.disk.holds("/Users/ann/Library/Caches/com.example"));
}

TEST_F(SmartScanPaneModel, ShowsARunningCleanAndStopsIt) {
  for (int number = 0; number < 20; ++number) {
    addCache("cache-" + std::to_string(number));
  }
  ASSERT_TRUE(scan());
  desk.trashGate.close();
  pane.footer()->clean();
  ASSERT_TRUE(
      turnUntil([this] { return desk.trashGate.waiting() == ScannerEngine::deletionWidth; }));
  ToolFooterState footer = pane.footer()->shown();
  EXPECT_TRUE(footer.showsProgress);
  EXPECT_TRUE(footer.showsStop);
  EXPECT_FALSE(footer.buttonEnabled);
  EXPECT_EQ(footer.buttonLabel, "Cleaning…");
  EXPECT_EQ(footer.firstLine, "Removing 0 of 20 · Zero KB so far");
  EXPECT_EQ(footer.lastLine, "Starting…");
  EXPECT_EQ(footer.fraction, 0);
  EXPECT_FALSE(pane.offersSafeOnly());

  pane.footer()->stop();
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return is<AppState::CleanDone>(); }));
  footer = pane.footer()->shown();
  EXPECT_FALSE(footer.showsProgress);
  EXPECT_FALSE(footer.showsStop);
  EXPECT_TRUE(pane.banner()->isShown());
  const std::int64_t removed = appState.lastClean()->itemCount;
  EXPECT_GE(removed, static_cast<std::int64_t>(ScannerEngine::deletionWidth));
  EXPECT_LT(removed, 20);
  EXPECT_EQ(pane.subtitle(), QString("1 categories · %1 items").arg(20 - removed));
}

TEST_F(SmartScanPaneModel, TellsOfACleanAndTakesItBack) {
  addCache("a");
  ASSERT_TRUE(scan());
  const QString freed = size(appState.totalSpaceFreeable());
  ASSERT_TRUE(clean());
  ASSERT_TRUE(pane.banner()->isShown());
  EXPECT_TRUE(pane.banner()->isRestorable());
  EXPECT_EQ(pane.banner()->headline(), freed + " · 1 items moved to Trash");
  EXPECT_EQ(pane.banner()->detail(),
            "200 GB free on disk — the Trash still holds this space until you empty it");

  EXPECT_FALSE(desk.disk.holds("/Users/ann/Library/Caches/a"));
  pane.banner()->restore();
  EXPECT_TRUE(pane.banner()->isRestoring());
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
  EXPECT_FALSE(pane.banner()->isRestoring());
  EXPECT_FALSE(pane.banner()->isShown());
  EXPECT_TRUE(desk.disk.holds("/Users/ann/Library/Caches/a"));
}

TEST_F(SmartScanPaneModel, OffersNoWayBackFromACleanThatDidNotUseTheTrash) {
  desk.defaults.set("useTrash", false);
  addCache("a");
  ASSERT_TRUE(scan());
  const QString freed = size(appState.totalSpaceFreeable());
  ASSERT_TRUE(clean());
  EXPECT_EQ(pane.banner()->headline(), freed + " · 1 items removed");
  EXPECT_EQ(pane.banner()->detail(), "200 GB free on disk");
  EXPECT_FALSE(pane.banner()->isRestorable());
}

TEST_F(SmartScanPaneModel, DismissesTheBannerByHandAndWithARescan) {
  addCache("a");
  ASSERT_TRUE(scan());
  ASSERT_TRUE(clean());
  pane.banner()->dismiss();
  EXPECT_FALSE(pane.banner()->isShown());

  addCache("b");
  ASSERT_TRUE(scan());
  ASSERT_TRUE(clean());
  ASSERT_TRUE(pane.banner()->isShown());
  pane.performAction();
  EXPECT_FALSE(pane.banner()->isShown());
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
}

TEST_F(SmartScanPaneModel, EmptiesTheTrashFromTheBanner) {
  addCache("a");
  ASSERT_TRUE(scan());
  ASSERT_TRUE(clean());
  ASSERT_TRUE(turnUntil([this] { return shared.trashMonitor().itemCount() == 1; }));
  pane.banner()->emptyTrash();
  ASSERT_TRUE(turnUntil([this] {
    return shared.trashMonitor().itemCount() == 0 && !shared.trashMonitor().isEmptying();
  }));
}

TEST_F(SmartScanPaneModel, EmptiesNothingFromABannerThatIsGone) {
  addCache("a");
  ASSERT_TRUE(scan());
  ASSERT_TRUE(clean());
  ASSERT_TRUE(turnUntil([this] { return shared.trashMonitor().itemCount() == 1; }));
  pane.banner()->dismiss();
  pane.banner()->emptyTrash();
  EXPECT_FALSE(shared.trashMonitor().isEmptying());
  EXPECT_EQ(desktop.trash.list()->size(), 1U);
}

TEST_F(SmartScanPaneModel, SaysHowLongTheLastCleanIsAgoAndKeepsThatFresh) {
  addCache("a");
  ASSERT_TRUE(scan());
  ASSERT_TRUE(clean());
  desk.commands.holdAt("xcrun", gate);
  gate.close();
  pane.performAction();
  pane.performAction();
  ASSERT_EQ(pane.body(), Body::Preview);
  desk.clock.advance(std::chrono::minutes(5));
  EXPECT_EQ(pane.subtitle(), "Last clean 5 minutes ago");
  QSignalSpy changed(&pane, &SmartScanModel::progressChanged);
  desk.clock.advance(std::chrono::minutes(1));
  EXPECT_GE(changed.count(), 1);
  EXPECT_EQ(pane.subtitle(), "Last clean 6 minutes ago");
  gate.open();
}

class OtherToolsBarEntries : public SmartScanFixture {
 protected:
  void setTotal(const std::string& key, std::int64_t bytes) {
    shared.scanCoordinator().setTotal(key, {bytes, 1, Date{}});
  }
  QString entry(int row, OtherToolsBarModel::Role role) {
    return pane.elsewhere()->index(row).data(role).toString();
  }
};

TEST_F(OtherToolsBarEntries, AreNoneUntilAnotherToolHasATotal) {
  EXPECT_FALSE(pane.elsewhere()->isShown());
  setTotal("smartScan", 5'000);
  setTotal("storage", 5'000);
  setTotal("uninstaller", 5'000);
  setTotal("privacy", 0);
  EXPECT_FALSE(pane.elsewhere()->isShown());
  EXPECT_EQ(pane.elsewhere()->rowCount(), 0);
}

TEST_F(OtherToolsBarEntries, StandInTheirOrderWhateverTheOrderTheyCameIn) {
  for (const char* key : {"privacy", "largeFiles", "systemData", "duplicates"}) {
    setTotal(key, 12'000);
  }
  ASSERT_EQ(pane.elsewhere()->rowCount(), 4);
  EXPECT_EQ(entry(0, OtherToolsBarModel::NoteRole), "removable");
  EXPECT_EQ(entry(1, OtherToolsBarModel::NoteRole), "in extra copies");
  EXPECT_EQ(entry(2, OtherToolsBarModel::NoteRole), "in big files");
  EXPECT_EQ(entry(3, OtherToolsBarModel::NoteRole), "of browsing trails");
  EXPECT_EQ(entry(0, OtherToolsBarModel::SizeRole), "12 KB");
  EXPECT_EQ(entry(0, OtherToolsBarModel::HelpRole), "Open System Data");
  setTotal("largeFiles", 0);
  EXPECT_EQ(pane.elsewhere()->rowCount(), 3);
  EXPECT_EQ(entry(2, OtherToolsBarModel::HelpRole), "Open Privacy");
}

TEST_F(OtherToolsBarEntries, LeadToTheirSection) {
  setTotal("duplicates", 12'000);
  pane.elsewhere()->open(0);
  EXPECT_EQ(shared.navigator().section(), Section::duplicates);
}

TEST_F(OtherToolsBarEntries, CountTheToolsThatAreStillMeasuring) {
  shared.toolActivity().start("privacy");
  shared.toolActivity().start("uninstaller");
  EXPECT_EQ(pane.elsewhere()->pendingText(), "1 still measuring");
  shared.toolActivity().setProgress("duplicates", 0.5);
  EXPECT_EQ(pane.elsewhere()->pendingText(), "2 still measuring");
  shared.toolActivity().clear("duplicates");
  shared.toolActivity().finish("privacy", "5 KB");
  EXPECT_EQ(pane.elsewhere()->pendingText(), "");
}

}  // namespace
}  // namespace klarvik
