#include "panes/privacy/privacy_cleaner_model.h"

#include <QSignalSpy>
#include <chrono>

#include "privacy_fixture.h"
#include "support/desktop_fakes.h"
#include "support/disk_snapshot.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

const QString explanation =
    "Clearing a trail is not the same as freeing "
    "space. Each row says what it costs you.";

class PrivacyScan : public PrivacyFixture {};
class PrivacyTurn : public PrivacyFixture {};
class PrivacyClearing : public PrivacyFixture {};

/// Of two browsers, and a history of commands that needs no question.
class PrivacySigningOut : public PrivacyFixture {
 protected:
  PrivacySigningOut() : PrivacyFixture(linuxHome) {
    for (const char* place : {".config/chromium/Default/Cookies", ".bash_history",
                              ".mozilla/firefox/ab.default/cookies.sqlite"}) {
      desk.disk.makeFile(linuxHome / place, 9 * kilobyte);
    }
  }
  [[nodiscard]] bool holdsCookies() const {
    return desk.disk.holds(linuxHome / ".config/chromium/Default/Cookies") &&
           desk.disk.holds(linuxHome / ".mozilla/firefox/ab.default/cookies.sqlite");
  }
};

TEST_F(PrivacyScan, IsOfferedWhereThereWasNone) {
  EXPECT_EQ(view->subtitle(), explanation);
  EXPECT_EQ(view->placeholder(), Placeholder::idle("shield", "No scan yet",
                                                   "Rescan to see what your Mac has recorded."));
  EXPECT_FALSE(view->canClear());
  EXPECT_FALSE(view->hasScanned());
}

TEST_F(PrivacyScan, TellsWhatItLooksAt) {
  addHistory();
  holdScan();
  view->performAction();
  EXPECT_TRUE(view->isScanning());
  EXPECT_EQ(shared.toolActivity().state("privacy"), ToolActivity::State(ToolActivity::Running{}));
  ASSERT_TRUE(isHeld());
  ASSERT_TRUE(turnUntil([this] { return view->progress() > 0; }));
  EXPECT_EQ(view->progress(), 0.1);
  EXPECT_EQ(view->subtitle(), "Scanning browser history...");
  EXPECT_EQ(shared.toolActivity().state("privacy"),
            ToolActivity::State(ToolActivity::Progress{0.1}));
  EXPECT_EQ(view->placeholder(),
            Placeholder::busy("Reading trails", "Nothing is cleared by a scan."));
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !view->isScanning(); }));
  EXPECT_EQ(view->progress(), 1.0);
  EXPECT_EQ(view->currentTask(), "Done");
  EXPECT_EQ(view->subtitle(), explanation);
}

TEST_F(PrivacyScan, ShowsWhatItFoundBySectionTheLargestFirst) {
  addEverything();
  ASSERT_TRUE(scan());
  EXPECT_TRUE(view->hasScanned());
  EXPECT_FALSE(view->placeholder().isShown);
  EXPECT_EQ(names(), (QStringList{"[SAFARI, CHROME, FIREFOX]", "Browser Cache", "Browser History",
                                  "Browser Cookies", "[MACOS RECENTS]", "Downloads List",
                                  "Recent Files", "Recent Apps", "[SYSTEM TRAILS]", "Quarantine DB",
                                  "Location Cache", "Clipboard"}));
}

TEST_F(PrivacyScan, SelectsEverythingButCookiesAndTheClipboard) {
  addEverything();
  ASSERT_TRUE(scan());
  EXPECT_EQ(view->selected().size(), view->items().size() - 2);
  EXPECT_FALSE(isSelected("Browser Cookies"));
  EXPECT_FALSE(isSelected("Clipboard"));
  EXPECT_TRUE(isSelected("Browser History"));
  EXPECT_TRUE(isSelected("Quarantine DB"));
}

TEST_F(PrivacyScan, TellsTheSidebarWhatItFound) {
  addHistory();
  addRecentApps();
  ASSERT_TRUE(scan());
  EXPECT_EQ(shared.toolActivity().state("privacy"),
            ToolActivity::State(ToolActivity::Finished{"2 trails"}));
  const auto& total = shared.scanCoordinator().totals().at("privacy");
  EXPECT_EQ(total.items, 2);
  EXPECT_EQ(total.bytes, 508 * kilobyte);
}

TEST_F(PrivacyScan, ThatFindsNothingSaysSo) {
  ASSERT_TRUE(scan());
  EXPECT_EQ(view->placeholder(), Placeholder::idle("checkmark.circle", "Nothing to clear",
                                                   "No browsing or system trails were found."));
  EXPECT_FALSE(view->canClear());
}

TEST_F(PrivacyScan, ThatFindsOnlyCookiesSelectsNothingAndTheActionIsDisabled) {
  addCookies();
  ASSERT_TRUE(scan());
  EXPECT_EQ(names(), (QStringList{"[SAFARI, CHROME, FIREFOX]", "Browser Cookies"}));
  EXPECT_TRUE(view->selected().empty());
  EXPECT_FALSE(view->canClear());
  EXPECT_EQ(view->clearTitle(), "Clear 0 trails");
  view->clear();
  EXPECT_FALSE(view->isCleaning());
  EXPECT_FALSE(view->lastResult());
}

TEST_F(PrivacyScan, IsStoppedByTheActionAndItsResultDropped) {
  addHistory();
  holdScan();
  view->performAction();
  ASSERT_TRUE(isHeld());
  ASSERT_TRUE(turnUntil([this] { return view->progress() > 0; }));
  view->performAction();
  EXPECT_FALSE(view->isScanning());
  EXPECT_TRUE(view->hasScanned());
  EXPECT_EQ(view->placeholder().title, "Nothing to clear");
  EXPECT_EQ(shared.toolActivity().state("privacy"), ToolActivity::State(ToolActivity::Idle{}));
  ASSERT_TRUE(letGo());
  EXPECT_TRUE(view->items().empty());
  EXPECT_EQ(view->trailList()->rowCount(), 0);
  EXPECT_EQ(view->progress(), 0.1);
  EXPECT_FALSE(shared.scanCoordinator().totals().contains("privacy"));
  EXPECT_EQ(shared.toolActivity().state("privacy"), ToolActivity::State(ToolActivity::Idle{}));
}

TEST_F(PrivacyScan, ThatWasStoppedReportsNothingMoreToTheSidebar) {
  addHistory();
  holdScan();
  view->performAction();
  ASSERT_TRUE(isHeld());
  view->performAction();
  QSignalSpy changed(&shared.toolActivity(), &ToolActivity::statesChanged);
  gate.open();
  view.reset();
  desk.clock.advance(1s);
  QCoreApplication::processEvents();
  EXPECT_EQ(changed.count(), 0);
  EXPECT_FALSE(shared.scanCoordinator().totals().contains("privacy"));
}

TEST_F(PrivacyScan, EmptiesTheListAndForgetsTheLastResultAtItsStart) {
  addHistory();
  addCookies();
  ASSERT_TRUE(scan());
  ASSERT_TRUE(clear());
  ASSERT_TRUE(view->lastResult());
  EXPECT_EQ(view->items().size(), 1U);
  holdScan();
  view->performAction();
  EXPECT_FALSE(view->lastResult());
  EXPECT_EQ(view->progress(), 0);
  EXPECT_EQ(view->trailList()->rowCount(), 0);
  EXPECT_TRUE(view->selected().empty());
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !view->isScanning(); }));
  EXPECT_EQ(view->items().size(), 2U);
}

TEST_F(PrivacyScan, OfAFolderThatVanishesMeanwhileFindsTheRest) {
  addEverything();
  files.vanishBefore(Operation::walk, inLibrary("Caches/Firefox"));
  ASSERT_TRUE(scan());
  EXPECT_FALSE(names().contains("Browser Cache"));
  EXPECT_TRUE(names().contains("Browser History"));
}

TEST_F(PrivacyTurn, ComesWhenThePaneIsShown) {
  addHistory();
  view->appear();
  EXPECT_TRUE(view->isScanning());
  EXPECT_TRUE(shared.scanCoordinator().busy());
  ASSERT_TRUE(turnUntil([this] { return !view->isScanning(); }));
  EXPECT_EQ(view->items().size(), 1U);
  ASSERT_TRUE(turnUntil([this] { return !shared.scanCoordinator().busy(); }));
}

TEST_F(PrivacyTurn, IsNotAskedForByAPaneThatScansAlready) {
  holdScan();
  view->performAction();
  view->appear();
  EXPECT_FALSE(shared.scanCoordinator().busy());
  EXPECT_FALSE(shared.scanCoordinator().completedAutoScans().contains("privacy"));
}

TEST_F(PrivacyTurn, IsGivenUpAfterNineHundredSeconds) {
  holdScan();
  const Date start = desk.clock.now();
  view->appear();
  ASSERT_TRUE(isHeld());
  desk.clock.advance(start + 899s - desk.clock.now());
  EXPECT_TRUE(shared.scanCoordinator().busy());
  desk.clock.advance(2s);
  EXPECT_FALSE(shared.scanCoordinator().busy());
  EXPECT_TRUE(view->isScanning());
}

TEST_F(PrivacyTurn, IsNotTakenWhenAutomaticScansAreOff) {
  desk.defaults.set("backgroundScanOnLaunch", false);
  view->appear();
  EXPECT_FALSE(view->isScanning());
  EXPECT_EQ(view->placeholder().title, "No scan yet");
}

TEST_F(PrivacyTurn, MayComeWhenThePaneIsGone) {
  shared.scanCoordinator().waitForTurn("storage");
  view->appear();
  view.reset();
  shared.scanCoordinator().finishTurn();
  EXPECT_FALSE(shared.scanCoordinator().totals().contains("privacy"));
}

TEST_F(PrivacyClearing, OfCookiesChangesTheHintAndDeselectingThemChangesItBack) {
  addHistory();
  addCookies();
  ASSERT_TRUE(scan());
  const QString harmless = "Clearing a trail is permanent, but nothing you rely on is removed.";
  EXPECT_EQ(view->selectionHint(), harmless);
  QSignalSpy changed(&*view, &PrivacyCleanerModel::selectionChanged);
  toggle("Browser Cookies");
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(view->selectionHint(), "Your selection signs you out of sites. This cannot be undone.");
  EXPECT_EQ(view->selectionSummary(), "2 trails selected · 560 KB");
  EXPECT_EQ(view->clearTitle(), "Clear 2 trails");
  toggle("Browser Cookies");
  EXPECT_EQ(view->selectionHint(), harmless);
  EXPECT_EQ(view->selectionSummary(), "1 trail selected · 500 KB");
  EXPECT_EQ(view->clearTitle(), "Clear 1 trail");
}

TEST_F(PrivacyClearing, OfTheClipboardChangesTheHintToo) {
  desk.pasteboard.isFilled = true;
  ASSERT_TRUE(scan());
  toggle("Clipboard");
  EXPECT_EQ(view->selectionHint(), "Your selection signs you out of sites. This cannot be undone.");
  ASSERT_TRUE(clear());
  EXPECT_FALSE(desk.pasteboard.isFilled);
  EXPECT_EQ(view->subtitle(), "Cleared 1 trails · Zero KB freed");
}

TEST_F(PrivacyClearing, EmptiesTheRecentDocumentsAndTouchesNoFile) {
  addEverything();
  ASSERT_TRUE(scan());
  const DiskSnapshot before = snapshotOf(desk.disk.path());
  ASSERT_TRUE(clear());
  EXPECT_EQ(differences(before, snapshotOf(desk.disk.path())), "");
  EXPECT_EQ(desk.recentDocuments.clearings, 1);
  EXPECT_EQ(desk.pasteboard.clearings, 0);
}

TEST_F(PrivacyClearing, TakesTheSelectedOffTheListAndTellsWhatItDid) {
  addEverything();
  ASSERT_TRUE(scan());
  ASSERT_TRUE(clear());
  EXPECT_EQ(names(), (QStringList{"[SAFARI, CHROME, FIREFOX]", "Browser Cookies", "[SYSTEM TRAILS]",
                                  "Clipboard"}));
  EXPECT_TRUE(view->selected().empty());
  EXPECT_FALSE(view->canClear());
  ASSERT_TRUE(view->lastResult());
  // The two that lie among the preferences are refused.
  EXPECT_EQ(view->lastResult()->cleaned, 5);
  EXPECT_EQ(view->subtitle(),
            "Cleared 5 trails · " +
                QString::fromStdString(desk.formatting.byteText(view->lastResult()->freed)) +
                " freed");
}

TEST_F(PrivacyClearing, KeepsItsResultUntilTheNextScan) {
  addHistory();
  addCookies();
  ASSERT_TRUE(scan());
  ASSERT_TRUE(clear());
  toggle("Browser Cookies");
  EXPECT_EQ(view->subtitle(), "Cleared 1 trails · 500 KB freed");
  ASSERT_TRUE(scan());
  EXPECT_EQ(view->subtitle(), explanation);
}

TEST_F(PrivacyClearing, TakesWhatCouldNotBeClearedOffTheListAndTheNextScanShowsItAgain) {
  addRecentApps();
  ASSERT_TRUE(scan());
  ASSERT_TRUE(clear());
  EXPECT_TRUE(view->items().empty());
  EXPECT_EQ(view->subtitle(), "Cleared 0 trails · Zero KB freed");
  EXPECT_EQ(view->placeholder().title, "Nothing to clear");
  EXPECT_TRUE(desk.disk.holds(inLibrary("Preferences/com.apple.dock.plist")));
  ASSERT_TRUE(scan());
  EXPECT_EQ(names(), (QStringList{"[MACOS RECENTS]", "Recent Apps"}));
}

TEST_F(PrivacyClearing, OfATrailThatWasRemovedElsewhereCountsAsNotDone) {
  addRecentApps();
  addHistory();
  ASSERT_TRUE(scan());
  std::filesystem::remove(desk.disk.onDisk(inLibrary("Preferences/com.apple.dock.plist")));
  ASSERT_TRUE(clear());
  EXPECT_EQ(view->lastResult(), (PrivacyClearance{.cleaned = 1, .freed = 500 * kilobyte}));
}

TEST_F(PrivacyClearing, TellsTheMonitorsOnceAndLastOfAll) {
  addRecentApps();
  ASSERT_TRUE(scan());
  int posted = 0;
  const auto subscription = desk.notifications.observe(diskChangedNotification, [&] {
    ++posted;
    EXPECT_FALSE(view->isCleaning());
    EXPECT_TRUE(view->lastResult());
    EXPECT_TRUE(view->items().empty());
  });
  ASSERT_TRUE(clear());
  EXPECT_EQ(posted, 1);
}

TEST_F(PrivacyClearing, WhileItRunsHoldsTheSelectionAndCannotBeStartedAgain) {
  addRecentFiles();
  addCookies();
  ASSERT_TRUE(scan());
  holdClearing();
  view->clear();
  ASSERT_TRUE(isHeld());
  EXPECT_TRUE(view->isCleaning());
  EXPECT_FALSE(view->canClear());
  toggle("Browser Cookies");
  EXPECT_EQ(view->selected().size(), 1U);
  view->clear();
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !view->isCleaning(); }));
  EXPECT_EQ(view->lastResult()->cleaned, 1);
}

TEST_F(PrivacyClearing, WithARescanMeanwhileTakesNothingNewAlong) {
  addRecentFiles();
  addHistory();
  ASSERT_TRUE(scan());
  holdClearing();
  view->clear();
  ASSERT_TRUE(isHeld());
  ASSERT_TRUE(scan());
  EXPECT_EQ(view->items().size(), 2U);
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !view->isCleaning(); }));
  EXPECT_EQ(view->items().size(), 2U);
  EXPECT_EQ(view->selected().size(), 2U);
  EXPECT_TRUE(desk.disk.holds(inLibrary("Safari/History.db")));
}

TEST_F(PrivacySigningOut, IsAskedOfExactlyTheTrailsThatDoIt) {
  ASSERT_TRUE(scan());
  EXPECT_TRUE(view->selected().empty());
  toggle("Browser Cookies — Firefox");
  toggle("Browser Cookies — Chromium");
  toggle("Shell History");
  view->clear();
  EXPECT_TRUE(view->asksToSignOut());
  EXPECT_FALSE(view->isCleaning());
  EXPECT_EQ(view->signOutQuestion(),
            "Every site forgets that you are signed in once these are cleared. This cannot be "
            "undone.\n\nBrowser Cookies — Chromium\nBrowser Cookies — Firefox");
  view->staySignedIn();
  EXPECT_FALSE(view->asksToSignOut());
  EXPECT_FALSE(view->isCleaning());
  EXPECT_TRUE(holdsCookies());
  EXPECT_EQ(view->selected().size(), 3U);
}

TEST_F(PrivacySigningOut, ClearsWhenItIsConfirmedAndOnlyThen) {
  ASSERT_TRUE(scan());
  toggle("Browser Cookies — Firefox");
  toggle("Browser Cookies — Chromium");
  view->clearAndSignOut();
  EXPECT_FALSE(view->isCleaning());
  view->clear();
  view->clearAndSignOut();
  EXPECT_FALSE(view->asksToSignOut());
  ASSERT_TRUE(turnUntil([this] { return !view->isCleaning(); }));
  EXPECT_FALSE(holdsCookies());
  EXPECT_EQ(view->lastResult()->cleaned, 2);
}

TEST_F(PrivacySigningOut, OfABrowserThatWasStartedMeanwhileSaysWhatStayedAndWhy) {
  ASSERT_TRUE(scan());
  toggle("Browser Cookies — Firefox");
  toggle("Shell History");
  desk.programs.running = {"firefox-esr"};
  view->clear();
  view->clearAndSignOut();
  ASSERT_TRUE(turnUntil([this] { return !view->isCleaning(); }));
  EXPECT_TRUE(view->subtitle().endsWith("1 stayed: in use, or changed since the scan"))
      << view->subtitle().toStdString();
  EXPECT_FALSE(names().contains("Shell History"));
  const int cookies = static_cast<int>(names().indexOf("Browser Cookies — Firefox"));
  ASSERT_GE(cookies, 0);
  EXPECT_EQ(row(cookies, TrailListModel::NoteRole), "Close Firefox first.");
  EXPECT_FALSE(isSelected("Browser Cookies — Firefox"));
}

TEST_F(PrivacySigningOut, IsNoQuestionForOtherTrails) {
  ASSERT_TRUE(scan());
  toggle("Shell History");
  ASSERT_TRUE(clear());
  EXPECT_FALSE(view->asksToSignOut());
  EXPECT_EQ(view->lastResult()->cleaned, 1);
  EXPECT_TRUE(holdsCookies());
}

TEST_F(PrivacySigningOut, IsNoQuestionAnyMoreOnceTheTrailsAreGone) {
  ASSERT_TRUE(scan());
  toggle("Browser Cookies — Firefox");
  view->clear();
  ASSERT_TRUE(view->asksToSignOut());
  view->performAction();
  EXPECT_FALSE(view->asksToSignOut());
  view->clearAndSignOut();
  EXPECT_FALSE(view->isCleaning());
}

TEST_F(PrivacyClearing, OfAMacsCookiesAsksNothingForTheyStay) {
  addCookies();
  ASSERT_TRUE(scan());
  toggle("Browser Cookies");
  ASSERT_TRUE(clear());
  EXPECT_FALSE(view->asksToSignOut());
  EXPECT_EQ(view->lastResult()->cleaned, 1);
}

TEST_F(PrivacyClearing, IsFinishedBeforeTheProgramEnds) {
  addRecentFiles();
  ASSERT_TRUE(scan());
  view->clear();
  view->finishRemovals();
  EXPECT_FALSE(view->isCleaning());
  EXPECT_EQ(desk.recentDocuments.clearings, 1);
  EXPECT_EQ(view->lastResult(), (PrivacyClearance{.cleaned = 1, .freed = 0}));
}

TEST_F(PrivacyClearing, IsFinishedBeforeThePaneGoes) {
  addRecentFiles();
  ASSERT_TRUE(scan());
  view->clear();
  view.reset();
  EXPECT_EQ(desk.recentDocuments.clearings, 1);
}

}  // namespace
}  // namespace klarvik
