#include "panes/duplicates/duplicate_finder_model.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <algorithm>
#include <filesystem>
#include <thread>

#include "duplicates_fixture.h"
#include "panes/kit/kit_enums.h"
#include "state/section.h"
#include "support/desktop_fakes.h"

namespace klarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

class DuplicateFinderViewTest : public DuplicatesFixture {
 protected:
  /// Of 31 copies all but one are to go, as many at once as ever do.
  [[nodiscard]] bool deleteManyAndHold() {
    for (int number = 0; number < 31; ++number) {
      many.push_back(add("Downloads/" + std::to_string(number), 2));
    }
    if (!scan()) return false;
    desk.trashGate.close();
    pane->deleteSelected();
    return turnUntil([this] { return desk.trashGate.waiting() == ScannerEngine::deletionWidth; });
  }

  std::vector<Path> many;
};

TEST_F(DuplicateFinderViewTest, StartsWithThreeFoldersOfTheHomeAndNothingFound) {
  EXPECT_THAT(pane->groups(), IsEmpty());
  EXPECT_THAT(pane->expanded(), IsEmpty());
  EXPECT_FALSE(pane->isScanning());
  EXPECT_FALSE(pane->hasScanned());
  EXPECT_EQ(pane->progress(), 0);
  EXPECT_EQ(pane->foundCount(), 0);
  EXPECT_FALSE(pane->isDeleting());
  EXPECT_EQ(pane->keepRule(), DuplicateSelection::KeepRule::newest);
  EXPECT_THAT(pane->scanDirs(),
              ElementsAre("/Users/ann/Documents", "/Users/ann/Downloads", "/Users/ann/Desktop"));
  EXPECT_EQ(pane->title(), "Duplicates");
  EXPECT_EQ(pane->subtitle(),
            "Compares file contents with SHA-256, not names. One copy of each is always kept.");
  EXPECT_FALSE(pane->placeholder().isBusy);
  EXPECT_EQ(pane->placeholder().icon, "doc.on.doc");
  EXPECT_EQ(pane->placeholder().title, "Choose where to look");
  EXPECT_EQ(pane->placeholder().detail,
            "Klarvik compares contents, not names, so it only reads the folders you name: "
            "Documents, Downloads and Desktop. Nothing outside them is touched.");
  EXPECT_EQ(pane->placeholder().actionTitle, "Add a folder…");
  EXPECT_EQ(pane->keepRules(), (QStringList{"Newest copy", "Oldest copy", "Shallowest path"}));
  EXPECT_EQ(pane->keepRuleIndex(), 0);
  EXPECT_EQ(pane->minSizeText(), "Min size 1 MB");
  EXPECT_FALSE(pane->canDelete());
}

TEST_F(DuplicateFinderViewTest, ListsGroupsWithTheLargestOpenAndAllButTheNewestSelected) {
  const Path big = add("Documents/big.zip", 5);
  const Path bigCopy = add("Downloads/big copy.zip", 5);
  add("Documents/small.pdf", 2);
  add("Desktop/small.pdf", 2);
  add("Documents/alone.pdf", 3);
  ASSERT_TRUE(scan());
  EXPECT_FALSE(pane->placeholder().isShown);
  EXPECT_EQ(shown(), (QStringList{"big.zip", "  big.zip", "  big copy.zip", "small.pdf"}));
  EXPECT_THAT(pane->expanded(), UnorderedElementsAre(pane->groups()[0]->group.id));
  EXPECT_EQ(fateOf(big), "keep");
  EXPECT_EQ(fateOf(bigCopy), "delete");
  EXPECT_EQ(pane->title(), "Duplicates · 7.3 MB reclaimable");
  EXPECT_EQ(pane->subtitle(), "2 groups · 2 extra copies · one copy of each is always kept");
  EXPECT_EQ(pane->selectionSummary(), "7.3 MB selected · 2 copies");
  EXPECT_EQ(pane->deleteButtonTitle(), "Delete 7.3 MB");
  EXPECT_TRUE(pane->hasScanned());
  EXPECT_EQ(pane->progress(), 1);
}

TEST_F(DuplicateFinderViewTest, FilesBelowAMegabyteAreNotLookedAt) {
  desk.disk.makeSparseFile(inHome("Documents/a"), mebibyte - 1);
  desk.disk.makeSparseFile(inHome("Documents/b"), mebibyte - 1);
  const Path c = add("Documents/c", 1);
  const Path d = add("Documents/d", 1);
  ASSERT_TRUE(scan());
  EXPECT_THAT(listed(), UnorderedElementsAre(c, d));
}

TEST_F(DuplicateFinderViewTest, AFinishedScanTellsTheSidebarAndTheTotals) {
  add("Documents/a", 2);
  add("Documents/b", 2);
  add("Documents/c", 2);
  ASSERT_TRUE(scan());
  EXPECT_EQ(activity(), ToolActivity::State(ToolActivity::Finished{"1 groups"}));
  ASSERT_TRUE(total());
  EXPECT_EQ(total()->bytes, 4 * mebibyte);
  EXPECT_EQ(total()->items, 2);
}

TEST_F(DuplicateFinderViewTest, AScanThatFindsNothingSaysSo) {
  add("Documents/a", 2);
  ASSERT_TRUE(scan());
  EXPECT_FALSE(pane->placeholder().isBusy);
  EXPECT_EQ(pane->placeholder().icon, "checkmark.circle");
  EXPECT_EQ(pane->placeholder().title, "No duplicates");
  EXPECT_EQ(pane->placeholder().detail, "Nothing in those folders is byte-for-byte identical.");
  EXPECT_EQ(pane->placeholder().actionTitle, "");
  EXPECT_EQ(pane->subtitle(), "0 groups · 0 extra copies · one copy of each is always kept");
}

TEST_F(DuplicateFinderViewTest, AScanShowsWhatItIsAt) {
  add("Documents/a", 2);
  holdTheNextScanAt(add("Documents/b", 2));
  pane->performAction();
  ASSERT_TRUE(turnUntil([this] { return isHeld() && pane->progress() > 0.1; }));
  EXPECT_TRUE(pane->isScanning());
  EXPECT_TRUE(pane->placeholder().isBusy);
  EXPECT_EQ(pane->placeholder().title, "Hashing files");
  EXPECT_TRUE(pane->subtitle().startsWith("0 groups so far · ")) << pane->subtitle().toStdString();
  EXPECT_EQ(activity(), ToolActivity::State(ToolActivity::Progress{pane->progress()}));
}

TEST_F(DuplicateFinderViewTest, ACancelledScanRunsOnUnseenAndItsResultIsDropped) {
  add("Documents/a", 2);
  holdTheNextScanAt(add("Documents/b", 2));
  pane->performAction();
  ASSERT_TRUE(turnUntil([this] { return isHeld(); }));
  pane->performAction();
  EXPECT_FALSE(pane->isScanning());
  EXPECT_TRUE(pane->hasScanned());
  EXPECT_EQ(activity(), ToolActivity::State(ToolActivity::Idle{}));
  EXPECT_EQ(pane->placeholder().title, "Search stopped");
  const int percent = static_cast<int>(pane->progress() * 100);
  EXPECT_EQ(pane->subtitle(), QString("Stopped at %1%").arg(percent));
  EXPECT_TRUE(pane->placeholder().detail.startsWith(
      QString("%1% was done, so nobody knows yet").arg(percent)));

  ASSERT_TRUE(letGo());
  EXPECT_EQ(pane->placeholder().title, "Search stopped");
  EXPECT_THAT(pane->groups(), IsEmpty());
  EXPECT_FALSE(total());
  EXPECT_EQ(activity(), ToolActivity::State(ToolActivity::Idle{}));
}

TEST_F(DuplicateFinderViewTest, ANewScanMayStartWhileACancelledOneRunsOn) {
  add("Documents/a", 2);
  holdTheNextScanAt(add("Documents/b", 2));
  pane->performAction();
  ASSERT_TRUE(turnUntil([this] { return isHeld(); }));
  pane->performAction();
  ASSERT_TRUE(scan());
  EXPECT_EQ(pane->subtitle(), "1 groups · 1 extra copies · one copy of each is always kept");
  ASSERT_THAT(pane->groups(), SizeIs(1));
  const Uuid id = pane->groups()[0]->group.id;
  const auto measured = total();

  ASSERT_TRUE(letGo());
  ASSERT_THAT(pane->groups(), SizeIs(1));
  EXPECT_EQ(pane->groups()[0]->group.id, id);
  EXPECT_EQ(total(), measured);
}

TEST_F(DuplicateFinderViewTest, ANewScanForgetsTheSelectionAndTheOverridesAndKeepsTheRule) {
  const Path a = add("Documents/a", 2);
  const Path b = add("Documents/b", 2);
  const Path c = add("Documents/c", 2);
  ASSERT_TRUE(scan());
  pane->toggleSelection(rowOf(b));
  pane->keepInstead(rowOf(c));
  pane->chooseKeepRule(1);
  EXPECT_THAT(pane->deselected(), SizeIs(1));
  EXPECT_THAT(pane->keepOverrides(), SizeIs(1));
  pane->performAction();
  EXPECT_THAT(pane->groups(), IsEmpty());
  EXPECT_THAT(pane->expanded(), IsEmpty());
  EXPECT_THAT(pane->deselected(), IsEmpty());
  EXPECT_THAT(pane->keepOverrides(), IsEmpty());
  EXPECT_EQ(pane->progress(), 0);
  ASSERT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  EXPECT_EQ(fateOf(c), "keep");
  EXPECT_THAT(selected(), UnorderedElementsAre(a, b));
}

TEST_F(DuplicateFinderViewTest, KeepThisCopyInsteadSwapsTheTwoFates) {
  const Path newer = add("Documents/newer", 2);
  const Path older = add("Documents/older", 2);
  ASSERT_TRUE(scan());
  ASSERT_EQ(fateOf(newer), "keep");
  pane->keepInstead(rowOf(older));
  EXPECT_EQ(fateOf(older), "keep");
  EXPECT_EQ(fateOf(newer), "delete");
  EXPECT_THAT(selected(), ElementsAre(newer));
  pane->keepInstead(rowOf(older));
  pane->keepInstead(0);
  pane->keepInstead(-1);
  EXPECT_EQ(fateOf(older), "keep");
}

TEST_F(DuplicateFinderViewTest, TheTitleDoesNotFallWhenCopiesAreDeselectedAndTheFooterDoes) {
  add("Documents/a", 2);
  const Path b = add("Documents/b", 2);
  add("Documents/c", 2);
  ASSERT_TRUE(scan());
  QSignalSpy changed(pane.get(), &DuplicateFinderModel::totalsChanged);
  pane->activate(rowOf(b));
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(pane->title(), "Duplicates · 4.2 MB reclaimable");
  EXPECT_EQ(pane->selectionSummary(), "2.1 MB selected · 1 copies");
  EXPECT_EQ(at(0, DuplicateRowsModel::SelectionRole), static_cast<int>(SelectionState::Partial));
  pane->toggleSelection(0);
  EXPECT_EQ(pane->selectionSummary(), "4.2 MB selected · 2 copies");
  pane->toggleSelection(0);
  EXPECT_FALSE(pane->canDelete());
  pane->deleteSelected();
  EXPECT_FALSE(pane->isDeleting());
}

TEST_F(DuplicateFinderViewTest, PressingAGroupOpensAndClosesIt) {
  add("Documents/a", 2);
  add("Documents/b", 2);
  ASSERT_TRUE(scan());
  pane->activate(0);
  EXPECT_EQ(shown(), (QStringList{"a"}));
  EXPECT_THAT(pane->expanded(), IsEmpty());
  pane->activate(0);
  EXPECT_EQ(shown(), (QStringList{"a", "  a", "  b"}));
  pane->activate(7);
  pane->toggleSelection(-1);
  EXPECT_EQ(pane->selectedFiles().size(), 1U);
}

TEST_F(DuplicateFinderViewTest, TheLastFolderCannotBeRemoved) {
  pane->removeFolder(0);
  pane->removeFolder(9);
  pane->removeFolder(-1);
  EXPECT_EQ(pane->folderNames(), (QStringList{"Downloads", "Desktop"}));
  EXPECT_EQ(pane->folderHelps().first(), "~/Downloads — click to remove");
  pane->removeFolder(1);
  EXPECT_EQ(pane->folderHelps(), (QStringList{"~/Downloads — the last folder cannot be removed"}));
  QSignalSpy changed(pane.get(), &DuplicateFinderModel::scanDirsChanged);
  pane->removeFolder(0);
  EXPECT_THAT(pane->scanDirs(), ElementsAre("/Users/ann/Downloads"));
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(DuplicateFinderViewTest, AFolderPickedTwiceIsListedOnceAndTheScanStarts) {
  add("Music/a", 2);
  add("Music/b", 2);
  pane->chooseFolders();
  ASSERT_THAT(desk.openPanel.requests, SizeIs(1));
  EXPECT_EQ(desk.openPanel.requests[0].prompt, "Scan This Folder");
  EXPECT_EQ(desk.openPanel.requests[0].message, "Klarvik reads only the folders listed here.");
  EXPECT_EQ(desk.openPanel.requests[0].start, "/Users/ann");
  desk.openPanel.choose({"/Users/ann/Music", "/Users/ann/Documents", "/Users/ann/Music/"});
  EXPECT_EQ(pane->folderNames(), (QStringList{"Documents", "Downloads", "Desktop", "Music"}));
  EXPECT_TRUE(pane->isScanning());
  ASSERT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  EXPECT_THAT(pane->groups(), SizeIs(1));
}

TEST_F(DuplicateFinderViewTest, LeavingThePanelChangesNothing) {
  pane->chooseFolders();
  desk.openPanel.choose({});
  EXPECT_FALSE(pane->isScanning());
  EXPECT_THAT(pane->scanDirs(), SizeIs(3));
}

TEST_F(DuplicateFinderViewTest, APanelThatAnswersAfterThePaneIsGoneStartsNothing) {
  pane->chooseFolders();
  pane.reset();
  desk.openPanel.choose({"/Users/ann/Music"});
  EXPECT_EQ(activity(), ToolActivity::State(ToolActivity::Idle{}));
}

TEST_F(DuplicateFinderViewTest, OverlappingFoldersDoNotMakeAFileACopyOfItself) {
  const Path only = add("Documents/x/only", 2);
  pane->chooseFolders();
  desk.openPanel.choose({"/Users/ann/Documents/x"});
  ASSERT_TRUE(turnUntil([this] { return !pane->isScanning(); }));
  EXPECT_THAT(pane->groups(), IsEmpty());
  EXPECT_TRUE(desk.disk.holds(only));
}

TEST_F(DuplicateFinderViewTest, DeletesAllButOneCopyOfEachGroup) {
  const Path a = add("Documents/a", 2);
  const Path b = add("Downloads/b", 2);
  const Path c = add("Desktop/c", 2);
  const Path canary = add("Documents/canary", 3);
  ASSERT_TRUE(scan());
  int told = 0;
  const auto listener = desk.notifications.observe(diskChangedNotification, [&] {
    ++told;
    EXPECT_EQ(total()->items, 0) << "told before the total was right";
  });
  const DiskSnapshot before = outsideTheTrash();
  ASSERT_TRUE(deleteSelected());
  EXPECT_EQ(unexpectedDifferences(before, outsideTheTrash(), {b, c}), "");
  EXPECT_TRUE(desk.disk.holds(a));
  EXPECT_FALSE(desk.disk.holds(b));
  EXPECT_FALSE(desk.disk.holds(c));
  EXPECT_TRUE(desk.disk.holds(canary));
  EXPECT_EQ(trashCount(), 2U);
  EXPECT_THAT(pane->groups(), IsEmpty());
  EXPECT_EQ(pane->rows()->rowCount(), 0);
  EXPECT_EQ(pane->placeholder().title, "No duplicates");
  EXPECT_EQ(told, 1);
}

TEST_F(DuplicateFinderViewTest, AGroupWithCopiesLeftKeepsItsIdAndStaysOpen) {
  const Path a = add("Documents/a", 2);
  const Path b = add("Documents/b", 2);
  const Path c = add("Documents/c", 2);
  ASSERT_TRUE(scan());
  const Uuid id = pane->groups()[0]->group.id;
  pane->toggleSelection(rowOf(c));
  ASSERT_TRUE(deleteSelected());
  EXPECT_FALSE(desk.disk.holds(b));
  ASSERT_THAT(pane->groups(), SizeIs(1));
  EXPECT_EQ(pane->groups()[0]->group.id, id);
  EXPECT_EQ(shown(), (QStringList{"a", "  a", "  c"}));
  EXPECT_THAT(listed(), UnorderedElementsAre(a, c));
  EXPECT_THAT(pane->deselected(), IsEmpty());
}

TEST_F(DuplicateFinderViewTest, TheKeptCopyIsGoneOrChangedAtTheMomentOfDeletionTheOthersStay) {
  const Path goneKeeper = add("Documents/a", 2);
  const Path copyOfGone = add("Documents/b", 2);
  const Path changedKeeper = add("Documents/c", 3);
  const Path copyOfChanged = add("Documents/d", 3);
  const Path soundKeeper = add("Documents/e", 4);
  const Path copyOfSound = add("Documents/f", 4);
  ASSERT_TRUE(scan());
  ASSERT_THAT(selected(), ElementsAre(copyOfSound, copyOfChanged, copyOfGone));
  std::filesystem::remove(desk.disk.onDisk(goneKeeper));
  desk.disk.makeFile(changedKeeper, "changed");
  const DiskSnapshot before = outsideTheTrash();
  ASSERT_TRUE(deleteSelected());
  EXPECT_EQ(unexpectedDifferences(before, outsideTheTrash(), {copyOfSound}), "");
  EXPECT_TRUE(desk.disk.holds(copyOfGone));
  EXPECT_TRUE(desk.disk.holds(copyOfChanged));
  EXPECT_FALSE(desk.disk.holds(copyOfSound));
  EXPECT_TRUE(desk.disk.holds(soundKeeper));
  EXPECT_THAT(selected(), ElementsAre(copyOfChanged, copyOfGone));
  EXPECT_EQ(trashCount(), 1U);
}

TEST_F(DuplicateFinderViewTest, FilesWhoseReadsFailHalfWayAreNeverRemovedWithoutAWholeReading) {
  const Path a = add("Documents/a", 2);
  const Path b = add("Documents/b", 2);
  files.failReadingAfter(1'000'000, a);
  files.failReadingAfter(1'000'000, b);
  ASSERT_TRUE(scan());
  ASSERT_THAT(pane->groups(), SizeIs(1));
  ASSERT_TRUE(deleteSelected());
  EXPECT_THAT(listed(), UnorderedElementsAre(a, b));
  EXPECT_TRUE(desk.disk.holds(a));
  EXPECT_TRUE(desk.disk.holds(b));
}

TEST_F(DuplicateFinderViewTest, EveryCopyOfAGroupCanNeverGo) {
  std::vector<Path> copies;
  for (int number = 0; number < 24; ++number) {
    copies.push_back(add("Documents/" + std::to_string(number), 2));
  }
  ASSERT_TRUE(scan());
  const Path chosen = copies[7];
  pane->keepInstead(rowOf(chosen));
  pane->toggleSelection(0);
  pane->toggleSelection(0);
  pane->toggleSelection(rowOf(chosen));
  ASSERT_THAT(selected(), SizeIs(23));
  const std::vector<Path> chosenToGo = selected();
  const DiskSnapshot before = outsideTheTrash();
  ASSERT_TRUE(deleteSelected());
  EXPECT_EQ(unexpectedDifferences(before, outsideTheTrash(), chosenToGo), "");
  for (const Path& copy : copies) EXPECT_EQ(desk.disk.holds(copy), copy == chosen) << copy;
  EXPECT_EQ(trashCount(), 23U);
}

TEST_F(DuplicateFinderViewTest, ASecondNameOfTheKeptFileStaysSinceItFreesNothingAndTheUserIsTold) {
  const Path a = add("Documents/a", 2);
  const Path b = inHome("Documents/b");
  std::filesystem::create_hard_link(desk.disk.onDisk(a), desk.disk.onDisk(b));
  ASSERT_TRUE(scan());
  ASSERT_THAT(pane->groups(), SizeIs(1));
  ASSERT_TRUE(deleteSelected());
  EXPECT_TRUE(desk.disk.holds(a) && desk.disk.holds(b));
  EXPECT_EQ(shared.removalNotice().text(),
            "1 copy was left alone: it is the same file as the one that stays, under another name, "
            "so deleting it would free nothing.");
}

TEST_F(DuplicateFinderViewTest, AFolderSwappedForALinkSinceTheScanTakesNoFileAlong) {
  const Path keeper = add("Documents/one/f", 2);
  const Path copy = add("Documents/two/f", 2);
  ASSERT_TRUE(scan());
  std::filesystem::remove_all(desk.disk.onDisk(inHome("Documents/one")));
  desk.disk.makeLink(inHome("Documents/one"), "two");
  ASSERT_TRUE(deleteSelected());
  EXPECT_TRUE(desk.disk.holds(copy));
  EXPECT_THAT(listed(), UnorderedElementsAre(keeper, copy));
}

TEST_F(DuplicateFinderViewTest, ACopyTrashedElsewhereWhileItIsListedStaysListed) {
  add("Documents/a", 2);
  const Path b = add("Documents/b", 2);
  ASSERT_TRUE(scan());
  std::filesystem::remove(desk.disk.onDisk(b));
  ASSERT_TRUE(deleteSelected());
  EXPECT_EQ(shown(), (QStringList{"a", "  a", "  b"}));
  EXPECT_THAT(selected(), ElementsAre(b));
  EXPECT_EQ(trashCount(), 0U);
}

TEST_F(DuplicateFinderViewTest, ADeletionStoppedHalfWayTakesWhatWentOffTheListAndKeepsTheRest) {
  for (int number = 0; number < 20; ++number) {
    add("Documents/" + std::to_string(number), 2);
  }
  ASSERT_TRUE(scan());
  desk.trashGate.close();
  pane->deleteSelected();
  ASSERT_TRUE(turnUntil([this] { return desk.trashGate.waiting() > 0; }));
  EXPECT_TRUE(pane->deleteProgress().present());
  pane->stopDeleting();
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane->isDeleting(); }));
  EXPECT_FALSE(pane->deleteProgress().present());
  ASSERT_THAT(pane->groups(), SizeIs(1));
  const std::set<Path> left = listed();
  EXPECT_GT(left.size(), 1U);
  EXPECT_LT(left.size(), 20U);
  for (const Path& file : left) EXPECT_TRUE(desk.disk.holds(file)) << file;
  EXPECT_EQ(selected().size() + 1, left.size());
  EXPECT_EQ(trashCount(), 20 - left.size());
}

TEST_F(DuplicateFinderViewTest, NeitherAScanNorADeletionStartsDuringADeletion) {
  add("Documents/a", 2);
  add("Documents/b", 2);
  ASSERT_TRUE(scan());
  desk.trashGate.close();
  pane->deleteSelected();
  ASSERT_TRUE(turnUntil([this] { return desk.trashGate.waiting() > 0; }));
  EXPECT_FALSE(pane->canScan());
  pane->performAction();
  pane->chooseFolders();
  desk.openPanel.choose({"/Users/ann/Music"});
  pane->deleteSelected();
  EXPECT_FALSE(pane->isScanning());
  EXPECT_THAT(pane->scanDirs(), SizeIs(4));
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane->isDeleting(); }));
  EXPECT_TRUE(pane->canScan());
  EXPECT_EQ(trashCount(), 1U);
}

TEST_F(DuplicateFinderViewTest, TheSelectionMayChangeDuringADeletionAndNothingElseGoes) {
  const Path a = add("Documents/a", 2);
  const Path b = add("Documents/b", 2);
  const Path c = add("Documents/c", 2);
  ASSERT_TRUE(scan());
  pane->toggleSelection(rowOf(c));
  desk.trashGate.close();
  pane->deleteSelected();
  ASSERT_TRUE(turnUntil([this] { return desk.trashGate.waiting() > 0; }));
  pane->toggleSelection(rowOf(c));
  pane->keepInstead(rowOf(b));
  pane->chooseKeepRule(2);
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane->isDeleting(); }));
  EXPECT_TRUE(desk.disk.holds(a));
  EXPECT_FALSE(desk.disk.holds(b));
  EXPECT_TRUE(desk.disk.holds(c));
  EXPECT_THAT(listed(), UnorderedElementsAre(a, c));
}

TEST_F(DuplicateFinderViewTest, StoppedWhenItClosesADeletionFinishesTheFilesInHandAndNoOther) {
  ASSERT_TRUE(deleteManyAndHold());
  pane->stopDeleting();
  desk.trashGate.open();
  pane->finishRemovals();
  EXPECT_EQ(trashCount(), ScannerEngine::deletionWidth);
  EXPECT_EQ(listed().size(), 31 - ScannerEngine::deletionWidth);
}

TEST_F(DuplicateFinderViewTest, ClosedDuringADeletionItFinishesTheFilesInHandAndLosesNone) {
  ASSERT_TRUE(deleteManyAndHold());
  std::thread opener([this] { desk.trashGate.open(); });
  pane->finishRemovals();
  opener.join();
  EXPECT_GE(trashCount(), ScannerEngine::deletionWidth);
  for (const Path& copy : many) EXPECT_EQ(desk.disk.holds(copy), listed().contains(copy)) << copy;
  EXPECT_EQ(listed().size(), 31 - trashCount());
}

TEST_F(DuplicateFinderViewTest, AFolderRemovedWhileItIsScannedEndsInFewerGroups) {
  const Path a = add("Documents/a", 2);
  const Path b = add("Documents/b", 2);
  const Path c = add("Documents/Deep/c", 3);
  add("Documents/Deep/d", 3);
  files.before(Operation::openForReading, c,
               [this] { std::filesystem::remove_all(desk.disk.onDisk(inHome("Documents/Deep"))); });
  ASSERT_TRUE(scan());
  EXPECT_THAT(listed(), UnorderedElementsAre(a, b));
}

TEST_F(DuplicateFinderViewTest, NamesThatAreOddOnTheDiskAreTrashedAsTheyAre) {
  add("Documents/plain", 2);
  const std::vector<Path> odd{
      add("Documents/-rf $(x)\n\xff", 2), add("Documents/\u202E\u05E9\U0001F3AC", 2),
      add("Documents/" + std::string(200, 'd') + "/" + std::string(200, 'x'), 2)};
  ASSERT_TRUE(scan());
  ASSERT_THAT(selected(), SizeIs(3));
  ASSERT_TRUE(deleteSelected());
  for (const Path& path : odd) EXPECT_FALSE(desk.disk.holds(path)) << path;
  EXPECT_EQ(trashCount(), 3U);
}

TEST_F(DuplicateFinderViewTest, WithoutThePermissionTheFirstScanWaitsForThePrompt) {
  denyFullDiskAccess();
  pane->performAction();
  EXPECT_FALSE(pane->isScanning());
  ASSERT_TRUE(shared.permissionsManager().isRequestingAccess());
  shared.permissionsManager().finishAccessRequest();
  EXPECT_TRUE(turnUntil([this] { return pane->hasScanned() && !pane->isScanning(); }));
  pane->performAction();
  EXPECT_TRUE(pane->isScanning());
}

TEST_F(DuplicateFinderViewTest, ScansByItselfWhenItsTurnComes) {
  add("Documents/a", 2);
  add("Documents/b", 2);
  pane->appear();
  ASSERT_TRUE(turnUntil([this] { return pane->hasScanned() && !pane->isScanning(); }));
  EXPECT_THAT(pane->groups(), SizeIs(1));
  EXPECT_TRUE(turnUntil([this] { return !shared.scanCoordinator().busy(); }));
  pane->appear();
  EXPECT_FALSE(pane->isScanning());
}

TEST_F(DuplicateFinderViewTest, ScansNotByItselfWithoutThePermissionOrWhenThatIsOff) {
  desk.defaults.set("backgroundScanOnLaunch", false);
  pane->appear();
  QCoreApplication::processEvents();
  EXPECT_FALSE(pane->isScanning());
  desk.defaults.remove("backgroundScanOnLaunch");
  denyFullDiskAccess();
  pane->appear();
  EXPECT_FALSE(pane->isScanning());
  EXPECT_FALSE(shared.permissionsManager().isRequestingAccess());
}

}  // namespace
}  // namespace klarvik
