#include <QAccessible>
#include <QSysInfo>

#include "window_fixture.h"

namespace klarvik {
namespace {

class SettingsWindow : public EmptyHomeWindowFixture {
 protected:
  void openSettings() {
    openWindow();
    press(Qt::Key_Comma, Qt::ControlModifier);
    lookAtSettings();
  }
  void lookAtSettings() {
    lookAt(app->window(settingsWindowId));
    ASSERT_NE(app->window(settingsWindowId), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window()));
    settle();
  }
  [[nodiscard]] bool isOn(const QString& box) const {
    const QQuickItem* item = find(box);
    return item != nullptr && item->property("isOn").toBool();
  }
  void changeByHand(const std::string& key, const DefaultsValue& value) {
    desk->defaults.set(key, value);
    desk->notifications.post(defaultsChangedNotification);
    settle();
  }
};

TEST_F(SettingsWindow, OpensFromTheSidebarAndHoldsEveryRow) {
  openWindow();
  click("Settings");
  lookAtSettings();
  EXPECT_EQ(window().title(), "Settings");
  EXPECT_EQ(window().size(), QSize(600, 420));
  EXPECT_EQ(window().minimumSize(), QSize(600, 420));
  EXPECT_EQ(window().maximumSize(), QSize(600, 420));
  for (const char* text :
       {"General", "Startup", "Launch at login", "Show in the menu bar", "Deleting",
        "Move to Trash instead of deleting", "Ask before removing Review items",
        "System folders, other user accounts and your document folders are always refused, "
        "regardless of these settings.",
        "Full Disk Access", "Granted", "Open System Settings", "Scanning",
        "Measure every tool when Klarvik opens", "Include developer caches (Xcode, npm, Docker)",
        "Turn this off if you do not write software — those categories will stop appearing.",
        "About"}) {
    EXPECT_TRUE(shows(text)) << text;
  }
  EXPECT_FALSE(shows("Unavailable until"));
  EXPECT_FALSE(shows("Reopen Klarvik"));
  picture("settings_general");
}

TEST_F(SettingsWindow, TheMainOneSaysOnceThatSettingsCannotBeSaved) {
  openWindow();
  desk->notifications.post(defaultsNotSavedNotification);
  settle();
  EXPECT_TRUE(shows("Your settings cannot be saved"));
  EXPECT_TRUE(shows("They hold until Klarvik quits."));
  picture("settings_not_saved");
  click("Dismiss");
  settle();
  EXPECT_FALSE(shows("Your settings cannot be saved"));
}

TEST_F(SettingsWindow, OpensOverTheMiddleOfTheMainWindow) {
  openWindow();
  window().setGeometry(40, 60, 920, 640);
  const QPoint middle = window().geometry().center();
  press(Qt::Key_Comma, Qt::ControlModifier);
  lookAtSettings();
  EXPECT_LE((window().geometry().center() - middle).manhattanLength(), 2);
}

TEST_F(SettingsWindow, IsReadOutWhole) {
  openSettings();
  for (const char* text :
       {"Launch at login", "System folders, other user accounts", "Granted", "Open System Settings",
        "Turn this off", "Klarvik 1.2.3 (45)", "macOS ", "Show onboarding again"}) {
    QQuickItem* item = find(text);
    ASSERT_NE(item, nullptr) << text;
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(item);
    ASSERT_NE(spoken, nullptr) << text;
    EXPECT_TRUE(spoken->text(QAccessible::Name).startsWith(text)) << text;
  }
}

TEST_F(SettingsWindow, OpensFromTheApplicationMenuByKeyboardAlone) {
  openWindow();
  ASSERT_TRUE(tabTo("Klarvik menu"));
  press(Qt::Key_Space);
  settle();
  EXPECT_TRUE(shows("Check for Updates…"));
  EXPECT_TRUE(shows("Settings…"));
  EXPECT_TRUE(shows("Ctrl+,"));
  EXPECT_TRUE(shows("Quit"));
  picture("application_menu");
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  ASSERT_TRUE(turnUntil([this] { return app->window(settingsWindowId) != nullptr; }));
}

TEST_F(SettingsWindow, EveryBoxWritesItsKeyAtOnce) {
  openSettings();
  const std::map<std::string, QString> boxes{
      {"showMenuBar", "Show in the menu bar"},
      {"useTrash", "Move to Trash instead of deleting"},
      {"confirmDelete", "Ask before removing Review items"},
      {"backgroundScanOnLaunch", "Measure every tool when Klarvik opens"},
      {"includeDeveloperJunk", "Include developer caches (Xcode, npm, Docker)"}};
  for (const auto& [key, title] : boxes) {
    const bool before = desk->defaults.boolean(key, true);
    EXPECT_EQ(isOn(title), before) << key;
    click(title);
    settle();
    EXPECT_EQ(desk->defaults.boolean(key, true), !before) << key;
    EXPECT_EQ(isOn(title), !before) << key;
  }
  picture("settings_boxes_changed");
}

TEST_F(SettingsWindow, BoxesFollowChangesFromOutsideWhateverIsWritten) {
  openSettings();
  changeByHand("useTrash", false);
  EXPECT_FALSE(isOn("Move to Trash"));
  changeByHand("useTrash", std::string("garbage"));
  EXPECT_TRUE(isOn("Move to Trash"));
}

TEST_F(SettingsWindow, BoxesThatCannotBeStoredSnapBack) {
  openSettings();
  desk->defaults.refuseWrites(true);
  click("Move to Trash instead of deleting");
  settle();
  EXPECT_TRUE(isOn("Move to Trash"));
}

TEST_F(SettingsWindow, ADevelopmentCopyShowsTheNoteAndTheBoxStaysOff) {
  loginItem.current = LoginItem::Status::notFound;
  loginItem.canChange = false;
  openSettings();
  EXPECT_TRUE(shows("Unavailable until Klarvik is signed and in /Applications."));
  click("Launch at login");
  settle();
  EXPECT_FALSE(isOn("Launch at login"));
  picture("settings_not_installed");
}

TEST_F(SettingsWindow, LaunchAtLoginIsReadWhenTheWindowIsOpened) {
  openSettings();
  EXPECT_FALSE(isOn("Launch at login"));
  loginItem.current = LoginItem::Status::enabled;
  settle();
  EXPECT_FALSE(isOn("Launch at login"));
  press(Qt::Key_Escape);
  lookAt(nullptr);
  ASSERT_TRUE(turnUntil([this] { return app->window(settingsWindowId) == nullptr; }));
  ASSERT_TRUE(app->openWindow(settingsWindowId));
  lookAtSettings();
  EXPECT_TRUE(isOn("Launch at login"));
}

TEST_F(SettingsWindow, FollowsThePermission) {
  desk->denyFullDiskAccess();
  shared->permissionsManager().refreshAccess();
  openSettings();
  EXPECT_TRUE(shows("Not granted"));
  picture("settings_not_granted");
  click("Reopen Klarvik");
  EXPECT_EQ(desk->workspace.relaunches, 1);
  click("Open System Settings");
  desk->grantFullDiskAccess();
  ASSERT_NE(waitFor("Granted"), nullptr);
  settle();
  EXPECT_FALSE(shows("Reopen Klarvik"));
}

TEST_F(SettingsWindow, ShowOnboardingAgainLeavesTheSessionAsItIsAndTheNextStartShowsIt) {
  openSettings();
  ASSERT_TRUE(tabTo("Show onboarding again"));
  settle();
  picture("settings_about");
  press(Qt::Key_Space);
  settle();
  EXPECT_FALSE(desk->defaults.object("onboarding_complete"));
  EXPECT_FALSE(desk->defaults.object("fda_prompt_shown"));
  lookAt(nullptr);
  EXPECT_TRUE(shows("Smart Scan"));
  closeWindow();
  openWindow();
  EXPECT_TRUE(shows("Klarvik finds what the Finder hides"));
}

TEST_F(SettingsWindow, AboutNamesTheProgramTheSystemAndItsLinks) {
  desk->info["KlarvikWebsite"] = std::string("https://klarvik.example");
  desk->info["KlarvikSupportAddress"] = std::string("help@klarvik.example");
  openSettings();
  ASSERT_TRUE(tabTo("Show onboarding again"));
  settle();
  EXPECT_TRUE(shows("Klarvik 1.2.3 (45)"));
  EXPECT_TRUE(shows("macOS " + QSysInfo::prettyProductName()));
  picture("settings_links");
  click("Terms");
  click("Support");
  EXPECT_EQ(desk->workspace.openedUrls, (std::vector<std::string>{"https://klarvik.example/terms",
                                                                  "mailto:help@klarvik.example"}));
}

TEST_F(SettingsWindow, OpenedTwiceIsTheSameWindow) {
  openSettings();
  const QQuickWindow* const first = &window();
  ASSERT_TRUE(app->openWindow(settingsWindowId));
  EXPECT_EQ(&window(), first);
}

TEST_F(SettingsWindow, NoOtherWindowOpensByAnIdentifierOfNone) {
  openWindow();
  EXPECT_FALSE(app->openWindow("preferences"));
}

TEST_F(SettingsWindow, TheSameMainWindowComesBackWithItsPanesAsTheyWere) {
  openWindow();
  click("Privacy");
  settle();
  QQuickWindow* const before = &window();
  window().close();
  settle();
  EXPECT_FALSE(window().isVisible());
  ASSERT_TRUE(app->openWindow(mainWindowId));
  lookAt(nullptr);
  EXPECT_EQ(&window(), before);
  EXPECT_EQ(shared->navigator().section(), Section::privacy);
}

}  // namespace
}  // namespace klarvik
