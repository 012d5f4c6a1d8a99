#include "window_fixture.h"

namespace klarvik {
namespace {

/// A home that the program has never run in.
class OnboardingWindow : public WindowFixture {
 protected:
  /// 1080 by 720 as far as the screen has room for it, and never less than the shell needs.
  void expectTheShellsSize() {
    const QSize room = window().screen()->availableGeometry().size();
    EXPECT_EQ(window().size(), QSize(1080, 720).boundedTo(room).expandedTo(QSize(920, 640)));
    EXPECT_GT(window().geometry().top(), window().screen()->availableGeometry().top())
        << "no room for the title bar";
  }
  void SetUp() override {
    WindowFixture::SetUp();
    for (const char* key : {"onboarding_complete", "fda_prompt_shown", "backgroundScanOnLaunch"}) {
      desk->defaults.remove(key);
    }
  }
  /// No file of the sample disk may stand in for the permission.
  void deny() {
    desk->denyFullDiskAccess();
    shared->permissionsManager().refreshAccess();
  }
  void goToTheLastPage() {
    desk->grantFullDiskAccess();
    shared->permissionsManager().refreshAccess();
    openWindow();
    click("Continue");
    settle();
    click("Continue");
    settle();
    ASSERT_TRUE(shows("Ready when you are"));
  }
  [[nodiscard]] bool isStored(const char* key) const { return desk->defaults.boolean(key, false); }
  void expectNothingScanned() {
    EXPECT_TRUE(is<AppState::Idle>());
    EXPECT_TRUE(shared->toolActivity().states().empty());
    EXPECT_TRUE(shared->scanCoordinator().totals().empty());
    EXPECT_TRUE(shared->scanCoordinator().completedAutoScans().empty());
    EXPECT_FALSE(desk->defaults.object("scan_history"));
  }
};

TEST_F(OnboardingWindow, AFirstRunShowsItAt520By560WithNoSheetAndNoScan) {
  deny();
  openWindow();
  EXPECT_EQ(window().size(), QSize(520, 560));
  EXPECT_EQ(window().minimumSize(), QSize(520, 560));
  EXPECT_EQ(window().maximumSize(), QSize(520, 560));
  EXPECT_TRUE(shows("Klarvik finds what the Finder hides"));
  EXPECT_TRUE(
      shows("App caches, old iPhone backups, browser leftovers, logs and the residue apps "
            "leave behind when you drag them to the Trash."));
  EXPECT_TRUE(shows("Nothing leaves your Mac. No account, no telemetry."));
  EXPECT_TRUE(shows("Every item is labelled Safe or Review before anything moves."));
  EXPECT_TRUE(shows("Removals go to the Trash, so anything can be put back."));
  EXPECT_FALSE(shows("Later"));
  EXPECT_FALSE(shows("One permission to set up"));
  EXPECT_FALSE(shows("Smart Scan"));
  expectNothingScanned();
  EXPECT_FALSE(isStored("fda_prompt_shown"));
  picture("onboarding_welcome");
}

TEST_F(OnboardingWindow, FollowsThePermissionWithoutAnyAction) {
  deny();
  openWindow();
  click("Continue");
  settle();
  EXPECT_TRUE(shows("Give it Full Disk Access"));
  EXPECT_TRUE(
      shows("Without this permission macOS hides the caches and backups that take up the "
            "most room, and Klarvik reports far less than is really there."));
  EXPECT_TRUE(shows("Open Privacy & Security → Full Disk Access"));
  EXPECT_TRUE(shows("Find Klarvik in the list and switch it on"));
  EXPECT_TRUE(shows("Come back here, then reopen Klarvik to apply it"));
  EXPECT_TRUE(shows("Waiting for permission — status updates automatically."));
  EXPECT_TRUE(shows("Already switched it on?"));
  picture("onboarding_permission_missing");

  click("Open for me");
  EXPECT_EQ(desk->workspace.openedUrls.size(), 1U);
  click("Open System Settings");
  EXPECT_EQ(desk->workspace.openedUrls.size(), 2U);
  click("Reopen Klarvik");
  EXPECT_EQ(desk->workspace.relaunches, 1);
  EXPECT_TRUE(shows("Give it Full Disk Access"));

  desk->grantFullDiskAccess();
  ASSERT_NE(waitFor("Full Disk Access granted. Klarvik can see everything it measures."), nullptr);
  settle();
  EXPECT_FALSE(shows("Open Privacy"));
  EXPECT_FALSE(shows("Waiting for permission"));
  picture("onboarding_permission_granted");
  click("Continue");
  settle();
  EXPECT_TRUE(shows("Ready when you are"));
  expectNothingScanned();
}

TEST_F(OnboardingWindow, RunFirstScanTurnsItIntoTheShellAndScansAtOnceWhateverTheSettingSays) {
  desk->defaults.set("backgroundScanOnLaunch", false);
  goToTheLastPage();
  EXPECT_TRUE(
      shows("The first scan takes about a minute and deletes nothing. You will see "
            "everything it found, grouped and labelled, before any button becomes "
            "destructive."));
  EXPECT_TRUE(shows("Removals go to"));
  picture("onboarding_ready");
  QQuickWindow* const before = &window();

  click("Run first scan");
  EXPECT_FALSE(is<AppState::Idle>());
  EXPECT_EQ(&window(), before);
  settle();
  EXPECT_EQ(window().minimumSize(), QSize(920, 640));
  expectTheShellsSize();
  EXPECT_TRUE(isStored("onboarding_complete"));
  EXPECT_TRUE(isStored("fda_prompt_shown"));
  EXPECT_FALSE(shows("Ready when you are"));
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
  picture("onboarding_first_scan");
}

TEST_F(OnboardingWindow, LaterOpensTheShellWithNothingScanned) {
  goToTheLastPage();
  click("Later");
  settle();
  EXPECT_TRUE(isStored("onboarding_complete"));
  EXPECT_TRUE(isStored("fda_prompt_shown"));
  EXPECT_TRUE(shows("Smart Scan"));
  expectTheShellsSize();
  for (int minute = 0; minute < 20; ++minute) desk->clock.advance(std::chrono::minutes(1));
  settle();
  expectNothingScanned();
  EXPECT_FALSE(shows("One permission to set up"));
}

TEST_F(OnboardingWindow, TheMenuBarBoxIsWrittenAndTakesTheItemAwayBeforeTheEnd) {
  goToTheLastPage();
  ASSERT_TRUE(desk->statusItem.shown);
  click("Keep Klarvik in the menu bar");
  settle();
  EXPECT_FALSE(desk->defaults.boolean("showMenuBar", true));
  EXPECT_FALSE(desk->statusItem.shown);
  EXPECT_FALSE(isStored("onboarding_complete"));
  picture("onboarding_without_menu_bar");
}

TEST_F(OnboardingWindow, GoesByKeyboardAloneAndNeverBack) {
  desk->grantFullDiskAccess();
  shared->permissionsManager().refreshAccess();
  openWindow();
  press(Qt::Key_Return);
  settle();
  EXPECT_TRUE(shows("Give it Full Disk Access"));
  press(Qt::Key_Left);
  press(Qt::Key_Escape);
  press(Qt::Key_Backspace);
  settle();
  EXPECT_TRUE(shows("Give it Full Disk Access"));
  ASSERT_TRUE(tabTo("Continue"));
  press(Qt::Key_Space);
  settle();
  ASSERT_TRUE(tabTo("Keep Klarvik in the menu bar"));
  press(Qt::Key_Space);
  EXPECT_FALSE(desk->defaults.boolean("showMenuBar", true));
  ASSERT_TRUE(tabTo("Later"));
  picture("onboarding_by_keyboard");
  press(Qt::Key_Return);
  settle();
  EXPECT_TRUE(shows("Smart Scan"));
  EXPECT_TRUE(is<AppState::Idle>());
}

TEST_F(OnboardingWindow, AHeldReturnGoesOnePageOn) {
  desk->grantFullDiskAccess();
  shared->permissionsManager().refreshAccess();
  openWindow();
  for (const bool isRepeated : {false, true, true}) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", isRepeated);
    QCoreApplication::sendEvent(&window(), &press);
    settle();
  }
  EXPECT_TRUE(shows("Give it Full Disk Access"));
  EXPECT_FALSE(isStored("onboarding_complete"));
}

TEST_F(OnboardingWindow, TheNextStartShowsTheShellAndAsksForNothing) {
  goToTheLastPage();
  click("Later");
  settle();
  deny();
  closeWindow();
  desk->defaults.set("backgroundScanOnLaunch", false);
  openWindow();
  EXPECT_GE(window().width(), 920);
  EXPECT_GE(window().height(), 640);
  EXPECT_TRUE(shows("Smart Scan"));
  EXPECT_FALSE(shows("One permission to set up"));
  EXPECT_TRUE(is<AppState::Idle>());
}

TEST_F(OnboardingWindow, ClosedHalfWayItBeginsAnewAtTheNextStart) {
  desk->grantFullDiskAccess();
  openWindow();
  click("Continue");
  settle();
  closeWindow();
  EXPECT_FALSE(isStored("onboarding_complete"));
  openWindow();
  EXPECT_TRUE(shows("Klarvik finds what the Finder hides"));
}

TEST_F(OnboardingWindow, TwoLeftoverKeysGoAtEveryLaunch) {
  for (const char* key : {"clean_schedule", "last_auto_clean"}) {
    desk->defaults.set(key, std::string("weekly"));
  }
  openWindow();
  EXPECT_FALSE(desk->defaults.object("clean_schedule"));
  EXPECT_FALSE(desk->defaults.object("last_auto_clean"));
}

TEST_F(OnboardingWindow, AValueThatIsNoBooleanDoesNotCountAsFinished) {
  desk->defaults.set("onboarding_complete", std::string("true"));
  openWindow();
  EXPECT_TRUE(shows("Klarvik finds what the Finder hides"));
}

}  // namespace
}  // namespace klarvik
