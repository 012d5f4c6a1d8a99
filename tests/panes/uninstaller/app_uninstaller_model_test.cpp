#include "panes/uninstaller/app_uninstaller_model.h"

#include <QSignalSpy>
#include <chrono>

#include "state/last_removal.h"
#include "support/disk_snapshot.h"
#include "uninstaller_fixture.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class UninstallerList : public UninstallerFixture {};
class UninstallerTurn : public UninstallerFixture {
 protected:
  /// Another tool has the turn.
  void keepTheTurn() { shared.scanCoordinator().waitForTurn("storage"); }
};

TEST_F(UninstallerList, IsEmptyUntilItIsRead) {
  EXPECT_EQ(view->title(), "Uninstaller");
  EXPECT_FALSE(view->hasLoaded());
  EXPECT_FALSE(view->isDetail());
  EXPECT_FALSE(view->placeholder().isShown);
  EXPECT_FALSE(view->canUninstall());
}

TEST_F(UninstallerList, SaysThatItIsReading) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  holdAt("/Applications");
  navigateTo(Section::uninstaller);
  ASSERT_TRUE(isHeld());
  EXPECT_TRUE(view->isLoading());
  EXPECT_EQ(view->subtitle(), "Reading /Applications…");
  EXPECT_EQ(view->placeholder(),
            Placeholder::busy("Reading applications",
                              "Measuring every app in /Applications and ~/Applications."));
  EXPECT_EQ(shared.toolActivity().state("uninstaller"),
            ToolActivity::State(ToolActivity::Running{}));
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !view->isLoading(); }));
  EXPECT_TRUE(view->hasLoaded());
  EXPECT_FALSE(view->placeholder().isShown);
}

TEST_F(UninstallerList, HoldsWhatBothFoldersHoldTheLargestFirst) {
  addApp("Small", "com.acme.small", 10 * kilobyte);
  addApp("Large", "com.acme.large", 90 * kilobyte);
  addApp("Own", "com.acme.own", 50 * kilobyte, "/Users/ann/Applications");
  ASSERT_TRUE(readByNavigating());
  EXPECT_EQ(names(), (QStringList{"Large", "Own", "Small"}));
  EXPECT_EQ(view->subtitle(), "3 apps · dragging one to the Trash leaves its support files behind");
}

TEST_F(UninstallerList, TellsTheSidebarWhatItRead) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  addApp("Note", "com.note.app", 20 * kilobyte);
  ASSERT_TRUE(readByNavigating());
  EXPECT_EQ(shared.toolActivity().state("uninstaller"),
            ToolActivity::State(ToolActivity::Finished{"2 apps"}));
  const auto& total = shared.scanCoordinator().totals().at("uninstaller");
  EXPECT_EQ(total.items, 2);
  EXPECT_EQ(total.bytes, view->apps()[0].appSize + view->apps()[1].appSize);
  EXPECT_EQ(total.measuredAt, view->loadedAt());
}

TEST_F(UninstallerList, SaysThatThereIsNothing) {
  ASSERT_TRUE(readByNavigating());
  EXPECT_EQ(view->subtitle(), "0 apps · dragging one to the Trash leaves its support files behind");
  EXPECT_TRUE(view->placeholder().isShown);
  EXPECT_FALSE(view->placeholder().isBusy);
  EXPECT_EQ(view->placeholder().detail, "Nothing found in /Applications.");
}

TEST_F(UninstallerList, ASearchThatMatchesNothingShowsItsOwnPlaceholderAndClearingItBringsItBack) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  ASSERT_TRUE(readByNavigating());
  QSignalSpy changed(&*view, &AppUninstallerModel::searchTextChanged);
  view->setSearchText("xyz");
  EXPECT_EQ(view->placeholder(),
            Placeholder::idle("magnifyingglass", "No apps match", "Nothing matches “xyz”"));
  EXPECT_EQ(view->subtitle(), "1 apps · dragging one to the Trash leaves its support files behind");
  view->setSearchText("");
  EXPECT_FALSE(view->placeholder().isShown);
  EXPECT_EQ(names(), QStringList("Writer"));
  view->setSearchText("");
  EXPECT_EQ(changed.count(), 2);
}

TEST_F(UninstallerList, ASearchOutlivesTheReadingThatItWaitedFor) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  addApp("Note", "com.note.app", 20 * kilobyte);
  view->setSearchText("note");
  ASSERT_TRUE(readByNavigating());
  EXPECT_EQ(names(), QStringList("Note"));
}

TEST_F(UninstallerList, IsReadAgainWhenTheUserComesBackAfterMoreThanFiveMinutes) {
  ASSERT_TRUE(readByNavigating());
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  desk.clock.advance(299s);
  comeBack();
  EXPECT_FALSE(view->isLoading());
  desk.clock.advance(*view->loadedAt() + 300s - desk.clock.now());
  comeBack();
  EXPECT_FALSE(view->isLoading());
  desk.clock.advance(1s);
  comeBack();
  EXPECT_TRUE(view->isLoading());
  ASSERT_TRUE(turnUntil([this] { return !view->isLoading(); }));
  EXPECT_EQ(names(), QStringList("Writer"));
}

TEST_F(UninstallerList, IsReadOnlyOnceAtATime) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  ASSERT_TRUE(readByNavigating());
  desk.clock.advance(301s);
  holdAt("/Applications");
  comeBack();
  ASSERT_TRUE(isHeld());
  QSignalSpy changed(&*view, &AppUninstallerModel::stateChanged);
  comeBack();
  EXPECT_EQ(changed.count(), 0);
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !view->isLoading(); }));
}

TEST_F(UninstallerList, OfAFolderThatCannotBeReadHoldsTheRest) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  addApp("Own", "com.acme.own", 50 * kilobyte, "/Users/ann/Applications");
  files.fail(Operation::list, "/Applications");
  ASSERT_TRUE(readByNavigating());
  EXPECT_EQ(names(), QStringList("Own"));
}

TEST_F(UninstallerList, OfWhichAFolderIsRemovedWhileItIsReadHoldsTheRest) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  addApp("Note", "com.note.app", 20 * kilobyte);
  files.vanishBefore(Operation::walk, "/Applications/Writer.app");
  ASSERT_TRUE(readByNavigating());
  EXPECT_EQ(names(), (QStringList{"Note", "Writer"})) << "its size is all that could not be read";
}

TEST_F(UninstallerTurn, ComesAtOnceWhenNobodyElseMeasures) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  view->appear();
  EXPECT_FALSE(view->isWaitingForTurn());
  EXPECT_TRUE(view->isLoading());
  EXPECT_TRUE(shared.scanCoordinator().busy());
  ASSERT_TRUE(turnUntil([this] { return view->hasLoaded(); }));
  EXPECT_EQ(names(), QStringList("Writer"));
  ASSERT_TRUE(turnUntil([this] { return !shared.scanCoordinator().busy(); }));
}

TEST_F(UninstallerTurn, IsWaitedForBehindAnotherTool) {
  keepTheTurn();
  view->appear();
  EXPECT_TRUE(view->isWaitingForTurn());
  EXPECT_FALSE(view->isLoading());
  EXPECT_EQ(view->subtitle(), "Waiting for another tool to finish measuring");
  EXPECT_EQ(view->placeholder(),
            Placeholder::busy("Waiting for the disk",
                              "Another tool is measuring. Open this pane and Klarvik reads your "
                              "applications straight away."));
  shared.scanCoordinator().finishTurn();
  EXPECT_FALSE(view->isWaitingForTurn());
  EXPECT_TRUE(view->isLoading());
  ASSERT_TRUE(turnUntil([this] { return !shared.scanCoordinator().busy(); }));
  EXPECT_TRUE(view->hasLoaded());
}

TEST_F(UninstallerTurn, IsNotWaitedForByAUserWhoOpensThePane) {
  keepTheTurn();
  view->appear();
  holdAt("/Applications");
  navigateTo(Section::uninstaller);
  EXPECT_FALSE(view->isWaitingForTurn());
  EXPECT_TRUE(view->isLoading());
  ASSERT_TRUE(isHeld());
  // The turn that comes meanwhile is kept for as long as the reading lasts.
  shared.scanCoordinator().finishTurn();
  desk.clock.advance(10s);
  EXPECT_TRUE(shared.scanCoordinator().busy());
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return view->hasLoaded(); }));
  ASSERT_TRUE(turnUntil([this] { return !shared.scanCoordinator().busy(); }));
}

TEST_F(UninstallerTurn, ThatComesAfterTheListWasReadIsPassedOn) {
  keepTheTurn();
  view->appear();
  ASSERT_TRUE(readByNavigating());
  const auto loadedAt = view->loadedAt();
  shared.scanCoordinator().finishTurn();
  EXPECT_FALSE(view->isLoading());
  EXPECT_FALSE(shared.scanCoordinator().busy());
  EXPECT_EQ(view->loadedAt(), loadedAt);
}

TEST_F(UninstallerTurn, IsGivenUpAfterNineHundredSecondsOfReading) {
  holdAt("/Applications");
  const Date start = desk.clock.now();
  view->appear();
  ASSERT_TRUE(isHeld());
  desk.clock.advance(start + 899s - desk.clock.now());
  EXPECT_TRUE(shared.scanCoordinator().busy());
  desk.clock.advance(2s);
  EXPECT_FALSE(shared.scanCoordinator().busy());
  EXPECT_TRUE(view->isLoading());
}

TEST_F(UninstallerTurn, IsNotTakenWhenAutomaticScansAreOff) {
  desk.defaults.set("backgroundScanOnLaunch", false);
  view->appear();
  EXPECT_FALSE(view->isWaitingForTurn());
  EXPECT_FALSE(view->isLoading());
  EXPECT_FALSE(shared.scanCoordinator().busy());
  ASSERT_TRUE(readByNavigating());
}

TEST_F(UninstallerTurn, MayComeWhenThePaneIsGone) {
  keepTheTurn();
  view->appear();
  view.reset();
  shared.scanCoordinator().finishTurn();
  EXPECT_TRUE(shared.scanCoordinator().completedAutoScans().contains("uninstaller"));
}

TEST_F(UninstallerTurn, IsOfAPaneThatMayGoWhileItReads) {
  holdAt("/Applications");
  view->appear();
  ASSERT_TRUE(isHeld());
  gate.open();
  view.reset();
  desk.clock.advance(2s);
  EXPECT_FALSE(shared.scanCoordinator().totals().contains("uninstaller"));
}

class UninstallerDetail : public UninstallerFixture {
 protected:
  /// Two leftovers that are kept back, and four that are not.
  [[nodiscard]] bool openWriter() {
    addApp("Writer", "com.acme.writer", 40 * kilobyte);
    addApp("Note", "com.note.app", 20 * kilobyte);
    addLeftover("Preferences/com.acme.writer.plist", 3 * kilobyte);
    addLeftover("Application Support/Writer/data", 50 * kilobyte);
    addLeftover("Caches/com.acme.writer/data", 70 * kilobyte);
    addLeftover("Caches/writer-small/data", 10 * kilobyte);
    addLeftover("Containers/com.acme.writer/data", 5 * kilobyte);
    addLeftover("Logs/Writer/log", 2 * kilobyte);
    addLeftover("Preferences/com.note.app.plist", 1 * kilobyte);
    return readByNavigating() && open("Writer");
  }
};

TEST_F(UninstallerDetail, ShowsTheLeftoversByCategoryTheLargestFirst) {
  ASSERT_TRUE(openWriter());
  EXPECT_TRUE(view->isDetail());
  EXPECT_EQ(view->title(), "Uninstall Writer");
  EXPECT_EQ(leftoverNames(),
            (QStringList{"[Preferences]", "com.acme.writer.plist", "[Caches]", "com.acme.writer",
                         "writer-small", "[App Support]", "Writer", "[Logs]", "Writer",
                         "[Containers]", "com.acme.writer"}));
  EXPECT_EQ(leftover(2, LeftoverListModel::SizeRole), "80 KB");
  EXPECT_EQ(leftover(2, LeftoverListModel::NoteRole), "Rebuilt on next launch");
  EXPECT_EQ(leftover(2, LeftoverListModel::DescriptionRole),
            "Caches, 80 KB, Rebuilt on next launch");
  EXPECT_EQ(leftover(4, LeftoverListModel::SizeRole), "10 KB");
  EXPECT_EQ(leftover(4, LeftoverListModel::PathRole), "/Users/ann/Library/Caches/writer-small");
  EXPECT_EQ(leftover(4, LeftoverListModel::DescriptionRole),
            "writer-small, 10 KB, Rebuilt on next launch");
  const std::int64_t all = view->selectedApp()->appSize + 140 * kilobyte;
  EXPECT_EQ(view->subtitle(), "6 leftovers found · " +
                                  QString::fromStdString(desk.formatting.byteText(all)) + " total");
}

TEST_F(UninstallerDetail, KeepsSettingsAndDataBackAtFirst) {
  ASSERT_TRUE(openWriter());
  EXPECT_EQ(view->selectedResiduals().size(), 4U);
  EXPECT_FALSE(
      leftover(leftoverRow("com.acme.writer.plist"), LeftoverListModel::IsSelectedRole).toBool());
  EXPECT_TRUE(leftover(leftoverRow("writer-small"), LeftoverListModel::IsSelectedRole).toBool());
  EXPECT_EQ(view->selectionSummary(), "87 KB selected · 4 of 6 leftovers");
  EXPECT_EQ(view->selectionHint(),
            "Preferences and app data left behind on purpose. Everything goes to Trash.");
}

TEST_F(UninstallerDetail, ChangesTheHintWhenOneLeftoverIsDeselected) {
  addApp("Tool", "com.acme.tool", 40 * kilobyte);
  addLeftover("Caches/com.acme.tool/data", 7 * kilobyte);
  addLeftover("Logs/com.acme.tool/data", 3 * kilobyte);
  ASSERT_TRUE(readByNavigating() && open("Tool"));
  EXPECT_EQ(view->selectionHint(), "Everything goes to Trash, so it can be put back.");
  QSignalSpy changed(&*view, &AppUninstallerModel::selectionChanged);
  view->toggleLeftover(1);
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(view->selectionSummary(), "3 KB selected · 1 of 2 leftovers");
  EXPECT_EQ(view->selectionHint(),
            "Preferences and app data left behind on purpose. Everything goes to Trash.");
  view->toggleLeftover(1);
  EXPECT_EQ(view->selectionHint(), "Everything goes to Trash, so it can be put back.");
}

TEST_F(UninstallerDetail, DoesNothingWhenAHeadingOrNoRowAtAllIsPressed) {
  ASSERT_TRUE(openWriter());
  const auto before = view->selectedResiduals();
  view->toggleLeftover(0);
  view->toggleLeftover(-1);
  view->toggleLeftover(1'000);
  EXPECT_EQ(view->selectedResiduals(), before);
  view->showAllApps();
  view->open(1'000);
  EXPECT_FALSE(view->isDetail());
}

TEST_F(UninstallerDetail, SaysThatItLooksForLeftovers) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  ASSERT_TRUE(readByNavigating());
  holdAt("/Users/ann/Library/Preferences");
  view->open(0);
  ASSERT_TRUE(isHeld());
  EXPECT_TRUE(view->isFindingResiduals());
  EXPECT_EQ(
      view->placeholder(),
      Placeholder::busy("Looking for leftovers",
                        "Checking Preferences, Caches, Application Support, Containers and Logs."));
  EXPECT_FALSE(view->canUninstall());
  view->uninstall();
  EXPECT_FALSE(view->isUninstalling());
  EXPECT_TRUE(desk.disk.holds("/Applications/Writer.app"));
}

TEST_F(UninstallerDetail, SaysThatAnAppHasLeftNothingBehind) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  ASSERT_TRUE(readByNavigating() && open("Writer"));
  EXPECT_EQ(view->placeholder(),
            Placeholder::idle("checkmark.circle", "No leftovers",
                              "Writer has not left anything behind that Klarvik can attribute "
                              "to it."));
  EXPECT_TRUE(view->canUninstall());
  EXPECT_EQ(view->selectionSummary(), "Zero KB selected · 0 of 0 leftovers");
}

TEST_F(UninstallerDetail, LeftWithTheBackChipWhileItSearchesDropsTheResult) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  addLeftover("Caches/com.acme.writer/data", 70 * kilobyte);
  ASSERT_TRUE(readByNavigating());
  holdAt("/Users/ann/Library/Preferences");
  view->open(0);
  ASSERT_TRUE(isHeld());
  view->showAllApps();
  EXPECT_FALSE(view->isDetail());
  EXPECT_FALSE(view->isFindingResiduals());
  EXPECT_EQ(view->title(), "Uninstaller");
  QSignalSpy changed(&*view, &AppUninstallerModel::stateChanged);
  ASSERT_TRUE(letGo());
  EXPECT_FALSE(view->isDetail());
  EXPECT_TRUE(view->residuals().empty());
  EXPECT_EQ(changed.count(), 0);
  ASSERT_TRUE(open("Writer"));
  EXPECT_EQ(view->residuals().size(), 1U);
  view->showAllApps();
  EXPECT_TRUE(view->residuals().empty());
  EXPECT_TRUE(view->selectedResiduals().empty());
}

TEST_F(UninstallerDetail, OfOneAppNeverShowsWhatWasFoundOfAnother) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  addApp("Note", "com.note.app", 20 * kilobyte);
  addLeftover("Caches/com.acme.writer/data", 70 * kilobyte);
  addLeftover("Caches/note-cache/data", 7 * kilobyte);
  ASSERT_TRUE(readByNavigating());
  holdAt("/Users/ann/Library/Preferences");
  view->open(0);
  ASSERT_TRUE(isHeld());
  view->showAllApps();
  ASSERT_TRUE(open("Note"));
  ASSERT_TRUE(letGo());
  EXPECT_EQ(leftoverNames(), (QStringList{"[Caches]", "note-cache"}));
}

TEST_F(UninstallerDetail, StaysWhileTheListIsReadAgainBehindIt) {
  ASSERT_TRUE(openWriter());
  desk.clock.advance(301s);
  comeBack();
  ASSERT_TRUE(turnUntil([this] { return !view->isLoading(); }));
  EXPECT_TRUE(view->isDetail());
  EXPECT_EQ(view->residuals().size(), 6U);
  ASSERT_TRUE(uninstall());
  EXPECT_EQ(names(), QStringList("Note"));
}

class UninstallerRemoval : public UninstallerDetail {
 protected:
  void countNotifications() {
    _subscription =
        desk.notifications.observe(diskChangedNotification, [this] { ++notifications; });
  }
  int notifications = 0;

 private:
  NotificationCenter::Subscription _subscription;
};

TEST_F(UninstallerRemoval, AnAppThatGoesWhileTheListIsReadDoesNotComeBack) {
  ASSERT_TRUE(openWriter());
  gate.close();
  for (const char* app : {"/Applications/Writer.app", "/Applications/Note.app"}) {
    files.before(Operation::walk, app, [this] { gate.pass(); });
  }
  desk.clock.advance(301s);
  comeBack();
  ASSERT_TRUE(isHeld());
  view->uninstall();
  ASSERT_TRUE(turnUntil([this] { return !view->isUninstalling(); }));
  EXPECT_TRUE(view->isLoading());
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !view->isLoading(); }));
  EXPECT_EQ(names(), QStringList("Note"));
}

TEST_F(UninstallerRemoval, TakesTheAppAndTheSelectedLeftoversAndNothingElse) {
  ASSERT_TRUE(openWriter());
  const DiskSnapshot before = snapshotOf(desk.disk.path());
  ASSERT_TRUE(uninstall());
  EXPECT_FALSE(desk.disk.holds("/Applications/Writer.app"));
  EXPECT_EQ(trashCount(), 1U);
  EXPECT_FALSE(libraryHolds("Caches/com.acme.writer"));
  EXPECT_FALSE(libraryHolds("Caches/writer-small"));
  EXPECT_FALSE(libraryHolds("Containers/com.acme.writer"));
  EXPECT_FALSE(libraryHolds("Logs/Writer"));
  EXPECT_TRUE(libraryHolds("Preferences/com.acme.writer.plist"));
  EXPECT_TRUE(libraryHolds("Application Support/Writer/data"));
  EXPECT_TRUE(libraryHolds("Preferences/com.note.app.plist"));
  EXPECT_TRUE(desk.disk.holds("/Applications/Note.app"));
  const DiskSnapshot after = snapshotOf(desk.disk.path());
  for (const auto& [place, what] : before) {
    const bool isSelected =
        place.find("Writer") != std::string::npos || place.find("writer") != std::string::npos;
    EXPECT_TRUE(isSelected || (after.contains(place) && after.at(place) == what)) << place;
  }
}

TEST_F(UninstallerRemoval, GoesBackToTheListWithoutTheApp) {
  ASSERT_TRUE(openWriter());
  countNotifications();
  ASSERT_TRUE(uninstall());
  EXPECT_FALSE(view->isDetail());
  EXPECT_TRUE(view->residuals().empty());
  EXPECT_TRUE(view->selectedResiduals().empty());
  EXPECT_EQ(names(), QStringList("Note"));
  EXPECT_EQ(notifications, 1);
}

TEST_F(UninstallerRemoval, PostsTheNotificationLastOfAll) {
  ASSERT_TRUE(openWriter());
  bool wasOver = false;
  const auto subscription = desk.notifications.observe(diskChangedNotification, [&] {
    wasOver = !view->isUninstalling() && !view->isDetail() && view->apps().size() == 1;
  });
  ASSERT_TRUE(uninstall());
  EXPECT_TRUE(wasOver);
}

TEST_F(UninstallerRemoval, LeavesADeselectedLeftoverWhereItIs) {
  ASSERT_TRUE(openWriter());
  view->toggleLeftover(leftoverRow("writer-small"));
  view->toggleLeftover(leftoverRow("com.acme.writer.plist"));
  ASSERT_TRUE(uninstall());
  EXPECT_TRUE(libraryHolds("Caches/writer-small/data"));
  EXPECT_FALSE(libraryHolds("Preferences/com.acme.writer.plist"));
}

TEST_F(UninstallerRemoval, OfAnAppWithNoLeftoversMovesItToTheTrash) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  ASSERT_TRUE(readByNavigating() && open("Writer"));
  ASSERT_TRUE(uninstall());
  EXPECT_FALSE(desk.disk.holds("/Applications/Writer.app"));
  EXPECT_EQ(trashCount(), 1U);
}

TEST_F(UninstallerRemoval, IsToldAndTheAppComesBackIntoTheList) {
  ASSERT_TRUE(openWriter());
  const std::int64_t size = view->selectedApp()->appSize;
  ASSERT_TRUE(uninstall());
  LastRemoval& removal = shared.lastRemoval();
  EXPECT_EQ(removal.summary(), (LastRemoval::Summary{"Writer", 1, size}));
  removal.restore();
  ASSERT_TRUE(turnUntil([this] { return names() == QStringList({"Writer", "Note"}); }));
  EXPECT_TRUE(desk.disk.holds("/Applications/Writer.app"));
  EXPECT_EQ(removal.summary()->restoredCount, 1);
}

class UninstallerOfALinuxHome : public UninstallerFixture {
 protected:
  UninstallerOfALinuxHome() : UninstallerFixture(linuxHome) {}
};

TEST_F(UninstallerOfALinuxHome, TotalsWhatIsLeftAfterARemoval) {
  for (const char* const name : {"Inkpot", "Other"}) {
    desk.disk.makeFile(inHome(std::string("Applications/") + name + ".AppImage"),
                       std::string("\x7f"
                                   "ELF\x02\x01\x01\0AI\x02",
                                   11) +
                           std::string(100'000, 'x'));
  }
  ASSERT_TRUE(readByNavigating() && open("Inkpot"));
  const auto total = [this] { return shared.scanCoordinator().totals().at("uninstaller"); };
  const std::int64_t before = total().bytes;
  const std::int64_t size = view->selectedApp()->appSize;
  ASSERT_TRUE(uninstall());
  EXPECT_EQ(total().items, 1);
  EXPECT_EQ(total().bytes, before - size);
  EXPECT_EQ(shared.lastRemoval().summary()->itemCount, 1);
}

TEST_F(UninstallerRemoval, ThatIsPutBackWhileTheListIsReadIsInTheList) {
  ASSERT_TRUE(openWriter());
  gate.close();
  for (const char* app : {"/Applications/Writer.app", "/Applications/Note.app"}) {
    files.before(Operation::walk, app, [this] { gate.pass(); });
  }
  desk.clock.advance(301s);
  comeBack();
  ASSERT_TRUE(isHeld());
  ASSERT_TRUE(uninstall());
  ASSERT_TRUE(view->isLoading());
  shared.lastRemoval().restore();
  ASSERT_TRUE(turnUntil([this] { return shared.lastRemoval().summary()->restoredCount == 1; }));
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !view->isLoading(); }));
  EXPECT_EQ(names(), (QStringList{"Writer", "Note"}));
}

TEST_F(UninstallerRemoval, WhileItRunsHoldsTheDetailAsItIs) {
  ASSERT_TRUE(openWriter());
  desk.trashGate.close();
  view->uninstall();
  ASSERT_TRUE(turnUntil([this] { return desk.trashGate.waiting() == 1; }));
  EXPECT_TRUE(view->isUninstalling());
  EXPECT_FALSE(view->canUninstall());
  const auto selected = view->selectedResiduals();
  view->toggleLeftover(leftoverRow("writer-small"));
  view->showAllApps();
  view->open(0);
  view->uninstall();
  EXPECT_EQ(view->selectedResiduals(), selected);
  EXPECT_EQ(view->title(), "Uninstall Writer");
  desk.trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return !view->isUninstalling(); }));
  EXPECT_EQ(trashCount(), 1U);
}

TEST_F(UninstallerRemoval, TakesAnAppOffTheListThoughItsMoveFailedAndTheNextReadingShowsItAgain) {
  ASSERT_TRUE(openWriter());
  const Path parked = desk.disk.path() / "parked";
  std::filesystem::rename(desk.disk.onDisk("/Applications/Writer.app"), parked);
  ASSERT_TRUE(uninstall());
  EXPECT_EQ(names(), QStringList("Note"));
  EXPECT_EQ(trashCount(), 0U);
  std::filesystem::rename(parked, desk.disk.onDisk("/Applications/Writer.app"));
  desk.clock.advance(301s);
  comeBack();
  ASSERT_TRUE(turnUntil([this] { return !view->isLoading(); }));
  EXPECT_EQ(names(), (QStringList{"Writer", "Note"}));
}

TEST_F(UninstallerRemoval, OfALeftoverThatWasRemovedElsewhereGoesOn) {
  ASSERT_TRUE(openWriter());
  std::filesystem::remove_all(desk.disk.onDisk("/Users/ann/Library/Caches/com.acme.writer"));
  ASSERT_TRUE(uninstall());
  EXPECT_FALSE(libraryHolds("Caches/writer-small"));
  EXPECT_FALSE(desk.disk.holds("/Applications/Writer.app"));
}

TEST_F(UninstallerRemoval, OfALeftoverThatBecameALinkLeavesWhatTheLinkLeadsTo) {
  ASSERT_TRUE(openWriter());
  desk.disk.makeFile("/Users/ann/Documents/novel.txt", "It was a dark night.");
  std::filesystem::remove_all(desk.disk.onDisk("/Users/ann/Library/Caches/com.acme.writer"));
  desk.disk.makeLink("/Users/ann/Library/Caches/com.acme.writer", "../../Documents");
  ASSERT_TRUE(uninstall());
  EXPECT_EQ(desk.disk.contentOf("/Users/ann/Documents/novel.txt"), "It was a dark night.");
}

TEST_F(UninstallerRemoval, IsFinishedBeforeTheProgramEnds) {
  ASSERT_TRUE(openWriter());
  countNotifications();
  view->uninstall();
  view->finishRemovals();
  EXPECT_FALSE(view->isUninstalling());
  EXPECT_FALSE(desk.disk.holds("/Applications/Writer.app"));
  EXPECT_FALSE(libraryHolds("Logs/Writer"));
  EXPECT_EQ(trashCount(), 1U);
  EXPECT_EQ(notifications, 1);
}

TEST_F(UninstallerRemoval, IsFinishedBeforeThePaneGoes) {
  ASSERT_TRUE(openWriter());
  view->uninstall();
  view.reset();
  EXPECT_FALSE(desk.disk.holds("/Applications/Writer.app"));
  EXPECT_FALSE(libraryHolds("Logs/Writer"));
}

TEST_F(UninstallerRemoval, IsNotKeptWaitingByASearchThatStillRuns) {
  addApp("Writer", "com.acme.writer", 40 * kilobyte);
  addApp("Note", "com.note.app", 20 * kilobyte);
  ASSERT_TRUE(readByNavigating());
  holdAt("/Users/ann/Library/Preferences");
  view->open(0);
  ASSERT_TRUE(isHeld());
  view->showAllApps();
  ASSERT_TRUE(open("Note"));
  view->uninstall();
  view->finishRemovals();
  EXPECT_EQ(names(), QStringList("Writer"));
}

TEST_F(UninstallerRemoval, OfNamesThatAreLongOddOrFromRightToLeftTakesThem) {
  const std::string name = "שלום 📱 odd\xff";
  addApp(name, "com.acme.odd", 40 * kilobyte);
  addLeftover("Caches/com.acme.odd " + std::string(200, 'x') + "/data", 7 * kilobyte);
  addLeftover("Logs/com.acme.odd\xfe/data", 7 * kilobyte);
  ASSERT_TRUE(readByNavigating() && open(name));
  EXPECT_EQ(view->title(), QStringLiteral("Uninstall שלום 📱 odd\uFFFD"));
  EXPECT_EQ(view->residuals().size(), 2U);
  ASSERT_TRUE(uninstall());
  EXPECT_TRUE(std::filesystem::is_empty(desk.disk.onDisk("/Users/ann/Library/Caches")));
  EXPECT_TRUE(std::filesystem::is_empty(desk.disk.onDisk("/Users/ann/Library/Logs")));
  EXPECT_TRUE(std::filesystem::is_empty(desk.disk.onDisk("/Applications")));
}

}  // namespace
}  // namespace klarvik
