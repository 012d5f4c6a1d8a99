#include "panes/large_files/large_file_finder_model.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <filesystem>
#include <thread>

#include "large_files_fixture.h"
#include "state/section.h"

namespace klarvik {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

class LargeFileFinderViewTest : public LargeFilesFixture {};

TEST_F(LargeFileFinderViewTest, StartsEmptyWithNothingSelected) {
  EXPECT_THAT(pane->files(), IsEmpty());
  EXPECT_THAT(pane->selected(), IsEmpty());
  EXPECT_FALSE(pane->isScanning());
  EXPECT_FALSE(pane->hasScanned());
  EXPECT_EQ(pane->progress(), 0);
  EXPECT_FALSE(pane->isDeleting());
  EXPECT_EQ(pane->thresholdMB(), 100);
  EXPECT_EQ(pane->sort(), LargeFileSort::size);
  EXPECT_FALSE(pane->kindFilter());
  EXPECT_EQ(pane->title(), "Large Files");
  EXPECT_EQ(pane->actionTitle(), "Rescan");
  EXPECT_EQ(pane->subtitle(),
            "Finds the biggest files in your home folder. Nothing is pre-selected.");
}

TEST_F(LargeFileFinderViewTest, OffersFiveThresholdsAndThreeOrders) {
  EXPECT_EQ(pane->thresholds(), (QStringList{"50 MB", "100 MB", "250 MB", "500 MB", "1000 MB"}));
  EXPECT_EQ(pane->thresholdIndex(), 1);
  EXPECT_EQ(pane->sorts(), (QStringList{"Size", "Last opened", "Name"}));
  EXPECT_EQ(pane->sortIndex(), 0);
}

TEST_F(LargeFileFinderViewTest, BeforeAScanThePlaceholderDependsOnThePermission) {
  EXPECT_FALSE(pane->placeholder().isBusy);
  EXPECT_EQ(pane->placeholder().icon, "doc.text.magnifyingglass");
  EXPECT_EQ(pane->placeholder().title, "No scan yet");
  EXPECT_EQ(pane->placeholder().detail, "Rescan to list the biggest files in your home folder.");

  QSignalSpy changed(pane.get(), &LargeFileFinderModel::placeholderChanged);
  denyFullDiskAccess();
  EXPECT_EQ(changed.count(), 1);
  EXPECT_TRUE(pane->placeholder().detail.startsWith("Reading Documents, Desktop and Downloads"));
  grantFullDiskAccess();
  EXPECT_EQ(changed.count(), 2);
  EXPECT_EQ(pane->placeholder().detail, "Rescan to list the biggest files in your home folder.");
}

TEST_F(LargeFileFinderViewTest, ListsWhatAScanFoundLargestFirstAndSelectsNothing) {
  add("Movies/film.mov", 700);
  add("Documents/old.zip", 100);
  add("Documents/small.zip", 99);
  ASSERT_TRUE(scan());
  EXPECT_FALSE(pane->placeholder().isShown);
  EXPECT_EQ(shownNames(), (QStringList{"film.mov", "old.zip"}));
  EXPECT_THAT(pane->selected(), IsEmpty());
  EXPECT_EQ(pane->subtitle(), "2 files over 100 MB in your home folder");
  EXPECT_EQ(pane->progress(), 1);
  EXPECT_TRUE(pane->hasScanned());
  EXPECT_EQ(pane->kinds(), (QStringList{"Archive", "Video"}));
}

TEST_F(LargeFileFinderViewTest, AFinishedScanTellsTheSidebarAndTheTotals) {
  add("Movies/film.mov", 700);
  add("Documents/old.zip", 100);
  pane->performAction();
  ASSERT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  EXPECT_EQ(activity(), ToolActivity::State(ToolActivity::Finished{"2 files"}));
  ASSERT_TRUE(total());
  EXPECT_EQ(total()->bytes, 800 * mebibyte);
  EXPECT_EQ(total()->items, 2);
}

TEST_F(LargeFileFinderViewTest, AScanThatFindsNothingSaysSo) {
  ASSERT_TRUE(scan());
  EXPECT_FALSE(pane->placeholder().isBusy);
  EXPECT_EQ(pane->placeholder().icon, "checkmark.circle");
  EXPECT_EQ(pane->placeholder().title, "Nothing that big");
  EXPECT_EQ(pane->placeholder().detail, "No files over 100 MB matched.");
  EXPECT_EQ(pane->subtitle(), "0 files over 100 MB in your home folder");
}

TEST_F(LargeFileFinderViewTest, AScanWithoutFindingsYetIsMeasuring) {
  ASSERT_TRUE(startScanAndHoldIt());
  EXPECT_TRUE(pane->isScanning());
  EXPECT_TRUE(pane->placeholder().isBusy);
  EXPECT_EQ(pane->placeholder().title, "Measuring");
  EXPECT_EQ(pane->placeholder().detail,
            "Walking Documents, Downloads, Desktop, Movies and Music. Photo and music libraries "
            "are skipped.");
}

TEST_F(LargeFileFinderViewTest, TheListGrowsDuringTheScanAndTheSidebarShowsHowFarItIs) {
  add("Movies/film.mov", 700);
  add("Pictures/z.psd", 200);
  ASSERT_TRUE(startScanAndHoldIt());
  EXPECT_FALSE(pane->placeholder().isShown);
  EXPECT_TRUE(shows({"film.mov"}));
  EXPECT_TRUE(pane->subtitle().startsWith("Scanning your home folder · "));
  EXPECT_NE(pane->subtitle(), "Scanning your home folder · ");
  EXPECT_EQ(pane->progress(), 500 / 80'000.0);
  EXPECT_EQ(activity(), ToolActivity::State(ToolActivity::Progress{500 / 80'000.0}));

  gate.open();
  EXPECT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  EXPECT_TRUE(shows({"film.mov", "z.psd"}));
}

TEST_F(LargeFileFinderViewTest, ARowSelectedDuringTheScanStaysSelected) {
  add("Movies/film.mov", 300);
  add("Pictures/z.psd", 400);
  ASSERT_TRUE(startScanAndHoldIt());
  ASSERT_TRUE(shows({"film.mov"}));
  select("film.mov");
  const Uuid id = pane->files().front()->id;
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  ASSERT_TRUE(shows({"z.psd", "film.mov"}));
  EXPECT_THAT(pane->selected(), UnorderedElementsAre(id));
  EXPECT_EQ(pane->rows()->index(1).data(LargeFileRowsModel::IsSelectedRole), true);
  EXPECT_EQ(pane->selectionSummary(), "314.6 MB selected · 1 file");
}

TEST_F(LargeFileFinderViewTest, StopEndsTheScanAtOnceAndTheListFoundSoFarStillComesIn) {
  add("Movies/film.mov", 700);
  ASSERT_TRUE(startScanAndHoldIt());
  pane->performAction();
  EXPECT_FALSE(pane->isScanning());
  EXPECT_TRUE(pane->hasScanned());
  EXPECT_EQ(activity(), ToolActivity::State(ToolActivity::Idle{}));
  EXPECT_FALSE(total());

  gate.open();
  ASSERT_TRUE(turnUntil([this] { return total().has_value(); }));
  EXPECT_EQ(activity(), ToolActivity::State(ToolActivity::Finished{"1 files"}));
  EXPECT_EQ(total()->items, 1);
  EXPECT_TRUE(shows({"film.mov"}));
  EXPECT_EQ(pane->progress(), 1);
}

TEST_F(LargeFileFinderViewTest, WhatAStoppedScanBringsLateDoesNotMixWithTheNextOne) {
  add("Movies/film.mov", 700);
  ASSERT_TRUE(startScanAndHoldIt());
  ASSERT_TRUE(shows({"film.mov"}));
  const Uuid former = pane->files().front()->id;
  pane->performAction();
  pane->performAction();
  EXPECT_TRUE(pane->isScanning());
  ASSERT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  ASSERT_THAT(pane->files(), SizeIs(1));
  const Uuid latter = pane->files().front()->id;
  EXPECT_NE(latter, former);
  const auto measured = total();

  ASSERT_TRUE(letGo());
  ASSERT_THAT(pane->files(), SizeIs(1));
  EXPECT_EQ(pane->files().front()->id, latter);
  EXPECT_EQ(total(), measured);
}

TEST_F(LargeFileFinderViewTest, ARescanForgetsTheSelectionAndKeepsFilterOrderAndThreshold) {
  add("Movies/film.mov", 700);
  add("Documents/old.zip", 600);
  ASSERT_TRUE(scan());
  select("film.mov");
  pane->toggleKind("Video");
  pane->chooseSort(2);
  pane->chooseThreshold(3);
  pane->performAction();
  EXPECT_THAT(pane->files(), IsEmpty());
  EXPECT_THAT(pane->selected(), IsEmpty());
  EXPECT_EQ(pane->selectionSummary(), "Zero KB selected · 0 files");
  ASSERT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  EXPECT_TRUE(shows({"film.mov"}));
  EXPECT_EQ(pane->kindFilter(), "Video");
  EXPECT_EQ(pane->sort(), LargeFileSort::name);
  EXPECT_EQ(pane->thresholdMB(), 500);
}

TEST_F(LargeFileFinderViewTest, RaisingTheThresholdKeepsTheFilesListedUntilTheNextScan) {
  add("Movies/film.mov", 700);
  add("Documents/old.zip", 100);
  ASSERT_TRUE(scan());
  pane->chooseThreshold(3);
  EXPECT_EQ(pane->thresholdMB(), 500);
  EXPECT_FALSE(pane->isScanning());
  EXPECT_THAT(pane->files(), SizeIs(2));
  EXPECT_EQ(pane->subtitle(), "2 files over 500 MB in your home folder");
  ASSERT_TRUE(scan());
  EXPECT_EQ(shownNames(), (QStringList{"film.mov"}));
}

TEST_F(LargeFileFinderViewTest, TheEmptyPlaceholderShowsTheNewThresholdAtOnce) {
  ASSERT_TRUE(scan());
  pane->chooseThreshold(0);
  EXPECT_EQ(pane->placeholder().detail, "No files over 50 MB matched.");
}

TEST_F(LargeFileFinderViewTest, AChipFiltersByItsKindAndClearsItWhenPressedAgain) {
  add("Movies/film.mov", 700);
  add("Documents/old.zip", 600);
  ASSERT_TRUE(scan());
  EXPECT_EQ(pane->activeKind(), "");
  pane->toggleKind("Archive");
  EXPECT_EQ(pane->activeKind(), "Archive");
  EXPECT_TRUE(shows({"old.zip"}));
  pane->toggleKind("Video");
  EXPECT_TRUE(shows({"film.mov"}));
  pane->toggleKind("Video");
  EXPECT_FALSE(pane->kindFilter());
  EXPECT_TRUE(shows({"film.mov", "old.zip"}));
  pane->toggleKind("Video");
  pane->showAllKinds();
  EXPECT_FALSE(pane->kindFilter());
  EXPECT_TRUE(shows({"film.mov", "old.zip"}));
}

TEST_F(LargeFileFinderViewTest, AFilterThatNoLongerMatchesShowsAnEmptyListAndNoPlaceholder) {
  const Path film = add("Movies/film.mov", 700);
  add("Documents/old.zip", 600);
  ASSERT_TRUE(scan());
  pane->toggleKind("Video");
  std::filesystem::remove(desk.disk.onDisk(film));
  pane->performAction();
  ASSERT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  EXPECT_TRUE(shows({}));
  EXPECT_THAT(pane->files(), SizeIs(1));
  EXPECT_FALSE(pane->placeholder().isShown);
}

TEST_F(LargeFileFinderViewTest, FilesOutsideTheFilterStaySelected) {
  add("Movies/film.mov", 700);
  add("Documents/old.zip", 600);
  ASSERT_TRUE(scan());
  select("film.mov");
  pane->toggleKind("Archive");
  ASSERT_TRUE(shows({"old.zip"}));
  EXPECT_EQ(pane->selectionSummary(), "734 MB selected · 1 file");
  ASSERT_THAT(pane->selectedFiles(), SizeIs(1));
}

TEST_F(LargeFileFinderViewTest, OrdersByNameAndBySize) {
  add("Documents/b.zip", 700);
  add("Documents/A.zip", 600);
  add("Documents/c.zip", 500);
  ASSERT_TRUE(scan());
  QSignalSpy reset(pane->rows(), &LargeFileRowsModel::modelReset);
  pane->chooseSort(2);
  EXPECT_EQ(pane->sortIndex(), 2);
  EXPECT_TRUE(shows({"A.zip", "b.zip", "c.zip"}));
  pane->chooseSort(0);
  EXPECT_TRUE(shows({"b.zip", "A.zip", "c.zip"}));
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(LargeFileFinderViewTest, OrdersByTheDateTheLongestUnopenedFirst) {
  setLastOpened(add("Documents/lately.zip", 700), std::chrono::hours(1));
  setLastOpened(add("Documents/once.zip", 500), std::chrono::hours(300));
  setLastOpened(add("Documents/long ago.zip", 600), std::chrono::hours(9'000));
  ASSERT_TRUE(scan());
  EXPECT_TRUE(shows({"lately.zip", "long ago.zip", "once.zip"}));
  pane->chooseSort(1);
  EXPECT_EQ(pane->sort(), LargeFileSort::date);
  EXPECT_TRUE(shows({"long ago.zip", "once.zip", "lately.zip"}));
}

TEST_F(LargeFileFinderViewTest, SelectedFilesAreSummedUpInTheFooterInTheOrderOfTheList) {
  add("Movies/film.mov", 700);
  add("Documents/old.zip", 600);
  ASSERT_TRUE(scan());
  EXPECT_FALSE(pane->canTrash());
  EXPECT_EQ(pane->trashButtonTitle(), "Move Zero KB to Trash");
  select("old.zip");
  EXPECT_TRUE(pane->canTrash());
  EXPECT_EQ(pane->selectionSummary(), "629.1 MB selected · 1 file");
  select("film.mov");
  EXPECT_EQ(pane->selectionSummary(), "1.36 GB selected · 2 files");
  EXPECT_EQ(pane->trashButtonTitle(), "Move 1.36 GB to Trash");
  ASSERT_THAT(pane->selectedFiles(), SizeIs(2));
  EXPECT_EQ(pane->selectedFiles().front()->url.filename(), "film.mov");
  select("old.zip");
  select("film.mov");
  EXPECT_EQ(pane->selectionSummary(), "Zero KB selected · 0 files");
}

TEST_F(LargeFileFinderViewTest, ARowThatIsNotThereCannotBeSelected) {
  pane->toggleSelection(0);
  pane->toggleSelection(-1);
  EXPECT_THAT(pane->selected(), IsEmpty());
}

TEST_F(LargeFileFinderViewTest, MovesTheSelectedFilesToTheTrashAndNothingElse) {
  const Path film = add("Movies/film.mov", 700);
  const Path zip = add("Documents/old.zip", 600);
  ASSERT_TRUE(scan());
  select("film.mov");
  int told = 0;
  const auto listener = desk.notifications.observe(diskChangedNotification, [&] {
    ++told;
    EXPECT_THAT(pane->files(), SizeIs(1)) << "told before the list was right";
    EXPECT_EQ(total()->items, 1);
  });
  ASSERT_TRUE(trash());
  EXPECT_FALSE(desk.disk.holds(film));
  EXPECT_TRUE(desk.disk.holds(zip));
  EXPECT_EQ(desk.desktop.trash.list()->size(), 1U);
  EXPECT_TRUE(shows({"old.zip"}));
  EXPECT_THAT(pane->selected(), IsEmpty());
  EXPECT_EQ(total()->bytes, 600 * mebibyte);
  EXPECT_EQ(told, 1);
}

TEST_F(LargeFileFinderViewTest, NothingIsMovedWithoutASelectionOrTwiceAtOnce) {
  add("Movies/film.mov", 700);
  ASSERT_TRUE(scan());
  pane->trashSelected();
  EXPECT_FALSE(pane->isDeleting());
  select("film.mov");
  desk.trashGate.close();
  pane->trashSelected();
  pane->trashSelected();
  EXPECT_TRUE(pane->isDeleting());
  EXPECT_TRUE(pane->deleteProgress().present());
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane->isDeleting(); }));
  EXPECT_FALSE(pane->deleteProgress().present());
  EXPECT_EQ(desk.desktop.trash.list()->size(), 1U);
}

TEST_F(LargeFileFinderViewTest, AFileTrashedElsewhereWhileItIsListedStaysListedAndSelected) {
  const Path film = add("Movies/film.mov", 700);
  add("Documents/old.zip", 600);
  ASSERT_TRUE(scan());
  select("film.mov");
  select("old.zip");
  std::filesystem::remove(desk.disk.onDisk(film));
  ASSERT_TRUE(trash());
  EXPECT_TRUE(shows({"film.mov"}));
  EXPECT_THAT(pane->selected(), SizeIs(1));
  EXPECT_EQ(pane->selectionSummary(), "734 MB selected · 1 file");
}

TEST_F(LargeFileFinderViewTest, AFolderThatHasComeUnderTheNameOfAFileStays) {
  const Path film = add("Movies/film.mov", 700);
  ASSERT_TRUE(scan());
  select("film.mov");
  std::filesystem::remove(desk.disk.onDisk(film));
  desk.disk.makeFile(film / "letter.txt", "dear");
  ASSERT_TRUE(trash());
  EXPECT_TRUE(desk.disk.holds(film / "letter.txt"));
  EXPECT_THAT(pane->selected(), SizeIs(1));
}

TEST_F(LargeFileFinderViewTest, ARemovalStoppedHalfWayTakesWhatWentOffTheListAndKeepsTheRest) {
  for (int number = 0; number < 20; ++number) {
    add("Documents/" + std::to_string(number) + ".zip", 200 + number);
  }
  ASSERT_TRUE(scan());
  for (int row = 0; row < 20; ++row) pane->toggleSelection(row);
  desk.trashGate.close();
  pane->trashSelected();
  ASSERT_TRUE(turnUntil([this] { return desk.trashGate.waiting() > 0; }));
  pane->stopTrashing();
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane->isDeleting(); }));
  EXPECT_GT(pane->files().size(), 0U);
  EXPECT_LT(pane->files().size(), 20U);
  EXPECT_EQ(pane->selected().size(), pane->files().size());
  for (const auto& file : pane->files()) EXPECT_TRUE(desk.disk.holds(file->url)) << file->url;
  EXPECT_EQ(desk.desktop.trash.list()->size(), 20 - pane->files().size());
}

TEST_F(LargeFileFinderViewTest, AFileTrashedDuringTheScanDoesNotComeBackWithItsNextReport) {
  const Path film = add("Movies/film.mov", 700);
  add("Pictures/z.psd", 200);
  ASSERT_TRUE(startScanAndHoldIt());
  ASSERT_TRUE(shows({"film.mov"}));
  select("film.mov");
  ASSERT_TRUE(trash());
  EXPECT_FALSE(desk.disk.holds(film));
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  EXPECT_TRUE(shows({"z.psd"}));
  EXPECT_EQ(total()->items, 1);
}

TEST_F(LargeFileFinderViewTest, ARescanDuringARemovalLeavesNothingStaleAndRemovesNothingElse) {
  const Path film = add("Movies/film.mov", 700);
  const Path zip = add("Documents/old.zip", 600);
  ASSERT_TRUE(scan());
  select("film.mov");
  desk.trashGate.close();
  pane->trashSelected();
  ASSERT_TRUE(turnUntil([this] { return desk.trashGate.waiting() == 1; }));
  ASSERT_TRUE(scan());
  EXPECT_THAT(listed(), UnorderedElementsAre(film, zip));
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane->isDeleting(); }));
  EXPECT_THAT(listed(), UnorderedElementsAre(zip));
  EXPECT_TRUE(shows({"old.zip"}));
  EXPECT_FALSE(desk.disk.holds(film));
  EXPECT_TRUE(desk.disk.holds(zip));
}

TEST_F(LargeFileFinderViewTest, AFolderRemovedWhileItIsScannedEndsInFewerRows) {
  const Path zip = add("Documents/old.zip", 600);
  files.before(Operation::attributes, add("Pictures/Deep/z.psd", 200),
               [this] { std::filesystem::remove_all(desk.disk.onDisk("/Users/ann/Pictures")); });
  ASSERT_TRUE(scan());
  EXPECT_THAT(listed(), UnorderedElementsAre(zip));
  EXPECT_TRUE(shows({"old.zip"}));
}

TEST_F(LargeFileFinderViewTest, NamesThatAreOddOnTheDiskAreTrashedAsTheyAre) {
  const Path odd = add("Documents/-rf $(x)\n\xff.zip", 300);
  ASSERT_TRUE(scan());
  pane->toggleSelection(0);
  ASSERT_TRUE(trash());
  EXPECT_FALSE(desk.disk.holds(odd));
  EXPECT_EQ(desk.desktop.trash.list()->size(), 1U);
}

TEST_F(LargeFileFinderViewTest, WithoutThePermissionTheFirstScanWaitsForThePrompt) {
  add("Movies/film.mov", 700);
  denyFullDiskAccess();
  pane->performAction();
  EXPECT_FALSE(pane->isScanning());
  EXPECT_TRUE(shared.permissionsManager().isRequestingAccess());
  shared.permissionsManager().finishAccessRequest();
  EXPECT_TRUE(pane->isScanning());
  EXPECT_TRUE(shows({"film.mov"}));
}

TEST_F(LargeFileFinderViewTest, APromptThatEndsDuringAScanStartsNoSecondOne) {
  denyFullDiskAccess();
  pane->performAction();
  ASSERT_TRUE(startScanAndHoldIt());
  shared.permissionsManager().finishAccessRequest();
  EXPECT_TRUE(pane->isScanning());
  EXPECT_GT(pane->progress(), 0) << "the scan began anew";
}

TEST_F(LargeFileFinderViewTest, APromptThatEndsAfterThePaneIsHarmless) {
  denyFullDiskAccess();
  pane->performAction();
  pane.reset();
  shared.permissionsManager().finishAccessRequest();
  EXPECT_FALSE(shared.permissionsManager().isRequestingAccess());
}

TEST_F(LargeFileFinderViewTest, ScansByItselfInItsTurnAndGivesTheTurnUp) {
  add("Movies/film.mov", 700);
  pane->appear();
  EXPECT_TRUE(pane->isScanning());
  EXPECT_TRUE(shared.scanCoordinator().busy());
  EXPECT_TRUE(turnUntil([this] { return !shared.scanCoordinator().busy(); }));
  EXPECT_FALSE(pane->isScanning());
  EXPECT_TRUE(shows({"film.mov"}));
}

TEST_F(LargeFileFinderViewTest, WaitsForItsTurn) {
  shared.scanCoordinator().waitForTurn("smartScan");
  pane->appear();
  EXPECT_FALSE(pane->isScanning());
  shared.scanCoordinator().finishTurn();
  EXPECT_TRUE(pane->isScanning());
}

TEST_F(LargeFileFinderViewTest, WithoutThePermissionNothingRunsByItself) {
  denyFullDiskAccess();
  pane->appear();
  EXPECT_FALSE(pane->isScanning());
  EXPECT_FALSE(shared.permissionsManager().isRequestingAccess());
  EXPECT_THAT(shared.scanCoordinator().completedAutoScans(), IsEmpty());
}

TEST_F(LargeFileFinderViewTest, NothingRunsByItselfAfterAScanOfTheUsers) {
  ASSERT_TRUE(scan());
  pane->appear();
  EXPECT_FALSE(pane->isScanning());
  EXPECT_THAT(shared.scanCoordinator().completedAutoScans(), IsEmpty());
}

TEST_F(LargeFileFinderViewTest, ClosedDuringAScanItEndsTheWalk) {
  ASSERT_TRUE(startScanAndHoldIt());
  std::thread opener([this] { gate.open(); });
  pane.reset();
  opener.join();
  EXPECT_FALSE(total());
}

TEST_F(LargeFileFinderViewTest, ClosedDuringARemovalItFinishesTheFilesInHandAndPutsThemOnRecord) {
  const Path film = add("Movies/film.mov", 700);
  ASSERT_TRUE(scan());
  select("film.mov");
  desk.trashGate.close();
  pane->trashSelected();
  ASSERT_TRUE(turnUntil([this] { return desk.trashGate.waiting() == 1; }));
  std::thread opener([this] { desk.trashGate.open(); });
  pane->finishRemovals();
  opener.join();
  EXPECT_FALSE(desk.disk.holds(film));
  EXPECT_THAT(pane->files(), IsEmpty());
  EXPECT_EQ(total()->items, 0);
}

TEST_F(LargeFileFinderViewTest, ManyFilesComeInWithoutAReset) {
  for (int number = 0; number < 1'200; ++number) {
    add("Documents/" + std::to_string(number) + ".zip", 100 + (number * 7) % 50);
  }
  QSignalSpy reset(pane->rows(), &LargeFileRowsModel::modelReset);
  ASSERT_TRUE(scan());
  ASSERT_EQ(pane->rows()->rowCount(), 1'200);
  EXPECT_EQ(pane->rows()->files(), pane->files());
  EXPECT_EQ(reset.count(), 0);
}

}  // namespace
}  // namespace klarvik
