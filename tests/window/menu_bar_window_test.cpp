#include <QMouseEvent>
#include <QScreen>
#include <optional>
#include <utility>

#include "fake_app_state.h"
#include "panes/kit/kit.h"
#include "shell/menu_bar/menu_bar_controller.h"
#include "shell/menu_bar/menu_bar_popover.h"
#include "window_fixture.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

constexpr StatusItem::Place icon{500, 2, 22, 22};

QQuickWindow* openPopoverWindow() {
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (window->objectName() == "popover" && window->isVisible()) {
      return qobject_cast<QQuickWindow*>(window);
    }
  }
  return nullptr;
}

/// The real popover beside a status item that nobody sees.
class MenuBarWindow : public EmptyHomeWindowFixture, protected FakeAppState {
 protected:
  void SetUp() override {
    EmptyHomeWindowFixture::SetUp();
    installKit(engine, {around.formatting, around.files.home(), around.workspace, around.clock,
                        around.motion});
    controller.emplace(around.desktop, trash,
                       [this] { return std::make_unique<QuickPopover>(engine, around.desktop); });
    controller->setup(*state);
    MenuBarController::openWindowHandler = [this](const QString& id) { opened << id; };
  }
  void TearDown() override {
    MenuBarController::openWindowHandler = nullptr;
    removal.open();
    lookAt(nullptr);
    controller.reset();
    state.reset();
    EmptyHomeWindowFixture::TearDown();
  }

  /// Whether the border of the upper edge goes on to the corner.
  [[nodiscard]] bool hasSquareCorners() {
    const QImage shown = window().grabWindow();
    return shown.pixelColor(0, 0) == shown.pixelColor(100, 0);
  }
  void openPopover() {
    around.statusItem.press(icon);
    QQuickWindow* popover = openPopoverWindow();
    ASSERT_NE(popover, nullptr);
    lookAt(popover);
    ASSERT_TRUE(QTest::qWaitForWindowActive(popover));
    settle();
  }
  [[nodiscard]] static bool isOpen() { return openPopoverWindow() != nullptr; }

  [[nodiscard]] bool find(std::size_t categories) {
    std::vector<CleanCategory> found;
    for (std::size_t at = 0; at < categories; ++at) {
      found.push_back({.type = allCategoryTypes()[at],
                       .items = {{.name = "thing",
                                  .path = "/Users/ann/thing",
                                  .size = static_cast<std::int64_t>(9 - at) * 1'234'000'000}}});
    }
    const int run = scans.runsBegun();
    state->startScan();
    scans.finish(run, std::move(found));
    return turnUntil(
        [this] { return state->scanState() == AppState::ScanState(AppState::Done{}); });
  }
  void trashOneFile() {
    around.disk.makeFile("/Users/ann/.Trash/old film", 2'345'000);
    around.trash.moveStamp();
    trash.refresh(true);
    ASSERT_TRUE(turnUntil([this] { return !trash.isMeasuring(); }));
  }
  void hover(const QString& name) {
    const QQuickItem* item = WindowFixture::find(name);
    ASSERT_NE(item, nullptr);
    QTest::mouseMove(&window(), item->mapToScene(item->boundingRect().center()).toPoint());
    settle();
  }
  /// As a desktop delivers it to whoever has grabbed the pointer, also from outside the window.
  void pressAt(const QPointF& place) {
    QMouseEvent press(QEvent::MouseButtonPress, place, window().mapToGlobal(place), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window(), &press);
  }
  [[nodiscard]] QQuickItem* row(const QString& name) { return WindowFixture::find(name); }

  Gate removal;
  TrashMonitor trash{around.desktop, notice};
  QQmlEngine engine;
  std::optional<MenuBarController> controller;
  QStringList opened;
};

TEST_F(MenuBarWindow, HasRoundCornersWhereNothingBlackIsBehindThem) {
  openPopover();
  EXPECT_FALSE(hasSquareCorners());
  press(Qt::Key_Escape);
  around.statusItem.isComposited = false;
  around.clock.advance(10s);
  openPopover();
  EXPECT_TRUE(hasSquareCorners());
}

TEST_F(MenuBarWindow, WithNoResultsAtAllItIsTheHeaderAndTheActionListOnly) {
  openPopover();
  EXPECT_EQ(window().width(), 260);
  for (const char* text :
       {"Klarvik", "Scan Now", "Trash is empty", "Open Klarvik", "Preferences", "Quit"}) {
    EXPECT_TRUE(shows(text)) << text;
  }
  EXPECT_FALSE(shows("Total found"));
  EXPECT_FALSE(row("Trash is empty")->isEnabled());
  picture("menu_bar_without_results");
}

TEST_F(MenuBarWindow, AResultOfExactlyFourCategoriesHasNoLineForMore) {
  ASSERT_TRUE(find(4));
  openPopover();
  for (const char* text : {"Xcode Cache", "11.11 GB", "iOS Simulators", "9.87 GB", "Xcode Archives",
                           "App Caches", "7.4 GB", "Total found", "37.02 GB"}) {
    EXPECT_TRUE(shows(text)) << text;
  }
  EXPECT_FALSE(shows("1 more categories"));
  EXPECT_FALSE(shows("0 more categories"));
  picture("menu_bar_four_categories");
}

TEST_F(MenuBarWindow, AResultOfFiveCategoriesHasALineFor1More) {
  ASSERT_TRUE(find(5));
  openPopover();
  EXPECT_TRUE(shows("1 more categories"));
  EXPECT_TRUE(shows("App Caches"));
  EXPECT_FALSE(shows("System Logs"));
  picture("menu_bar_five_categories");
}

TEST_F(MenuBarWindow, GrowsWithWhatIsFoundWhileItIsOpenAndStaysOnTheScreen) {
  openPopover();
  const int before = window().height();
  ASSERT_TRUE(find(11));
  settle();
  EXPECT_GT(window().height(), before);
  EXPECT_TRUE(shows("7 more categories"));
  EXPECT_TRUE(window().screen()->availableGeometry().contains(window().geometry()));
}

TEST_F(MenuBarWindow, TheTrashRowSaysHowMuchThereIsToEmpty) {
  trashOneFile();
  openPopover();
  EXPECT_TRUE(shows("Empty Trash · 2.3 MB"));
  EXPECT_TRUE(row("Empty Trash · ")->isEnabled());
  picture("menu_bar_trash_full");
}

TEST_F(MenuBarWindow, TheTrashRowNeedsThePermissionWhereTheTrashCannotBeRead) {
  around.trash.readable = false;
  trash.refresh(true);
  openPopover();
  EXPECT_TRUE(shows("Trash · needs Full Disk Access"));
  EXPECT_FALSE(row("Trash · needs")->isEnabled());
  picture("menu_bar_trash_unreadable");
}

TEST_F(MenuBarWindow, TheTrashIsEmptiedWithoutAQuestionAndTheRowSaysSo) {
  trashOneFile();
  around.trash.holdAt(TrashOperation::remove, removal);
  removal.close();
  openPopover();
  click("Empty Trash · 2.3 MB");
  ASSERT_NE(waitFor("Emptying Trash…"), nullptr);
  EXPECT_FALSE(row("Emptying Trash…")->isEnabled());
  picture("menu_bar_trash_emptying");
  EXPECT_TRUE(isOpen());
  removal.open();
  ASSERT_NE(waitFor("Trash is empty"), nullptr);
  EXPECT_FALSE(around.disk.holds("/Users/ann/.Trash/old film"));
}

TEST_F(MenuBarWindow, ARowUnderThePointerIsLit) {
  openPopover();
  hover("Open Klarvik");
  EXPECT_TRUE(row("Open Klarvik")->property("hovered").toBool());
  EXPECT_FALSE(row("Preferences")->property("hovered").toBool());
  picture("menu_bar_hover");
}

TEST_F(MenuBarWindow, TheArrowKeysMoveThroughWhatCanBePressed) {
  openPopover();
  EXPECT_EQ(focused(), "");
  for (const char* name : {"Scan Now", "Open Klarvik", "Preferences", "Quit"}) {
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), name);
  }
  picture("menu_bar_keyboard");
  press(Qt::Key_Up);
  EXPECT_EQ(focused(), "Preferences");
  press(Qt::Key_Return);
  EXPECT_EQ(opened, QStringList{"settings"});
  EXPECT_FALSE(isOpen());
}

TEST_F(MenuBarWindow, TabAndSpaceStartAScanThatShowsInTheMainWindow) {
  openPopover();
  ASSERT_TRUE(tabTo("Scan Now"));
  press(Qt::Key_Space);
  EXPECT_TRUE(std::holds_alternative<AppState::Scanning>(state->scanState()));
  EXPECT_EQ(opened, QStringList{"main"});
  EXPECT_FALSE(isOpen());
}

TEST_F(MenuBarWindow, TheFocusStaysOnARowWhoseLabelChanges) {
  trashOneFile();
  openPopover();
  ASSERT_TRUE(tabTo("Preferences"));
  around.trash.readable = false;
  trash.refresh(true);
  settle();
  EXPECT_TRUE(shows("Trash · needs Full Disk Access"));
  EXPECT_EQ(focused(), "Preferences");
}

TEST_F(MenuBarWindow, EscapeClosesIt) {
  openPopover();
  press(Qt::Key_Escape);
  EXPECT_FALSE(isOpen());
  openPopover();
  press(Qt::Key_Down);
  press(Qt::Key_Escape);
  EXPECT_FALSE(isOpen());
}

TEST_F(MenuBarWindow, APressOutsideClosesItAndOneInsideDoesNot) {
  openPopover();
  QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(130, 20));
  EXPECT_TRUE(isOpen());
  pressAt(QPointF(-40, 500));
  EXPECT_FALSE(isOpen());
}

TEST_F(MenuBarWindow, TurningToAnotherWindowClosesItAndTheSamePressDoesNotOpenItAgain) {
  openPopover();
  QWindow other;
  other.show();
  other.requestActivate();
  ASSERT_TRUE(turnUntil([] { return !isOpen(); }));
  around.statusItem.press(icon);
  EXPECT_FALSE(isOpen());
  around.clock.advance(1s);
  around.statusItem.press(icon);
  EXPECT_TRUE(isOpen());
}

TEST_F(MenuBarWindow, OpensAlsoAfterTheClockHasBeenSetBack) {
  openPopover();
  QWindow other;
  other.show();
  other.requestActivate();
  ASSERT_TRUE(turnUntil([] { return !isOpen(); }));
  around.clock.advance(-1h);
  around.statusItem.press(icon);
  EXPECT_TRUE(isOpen());
}

TEST_F(MenuBarWindow, UncheckingTheRowInSettingsWhileItIsOpenClosesIt) {
  openPopover();
  lookAt(nullptr);
  around.defaults.set("showMenuBar", false);
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(around.statusItem.shown);
}

TEST_F(MenuBarWindow, StandsBelowItsIcon) {
  openPopover();
  EXPECT_EQ(window().position(), QPoint(500 + 11 - 130, 2 + 22 + 4));
}

/// The whole program, with an item in a tray.
class WindowWithAStatusItem : public WindowFixture {
 protected:
  enum Entry : std::size_t { scanNow = 0, openKlarvik = 2, preferences = 3 };

  void openWindow() {
    WindowFixture::openWindow();
    ASSERT_TRUE(desk->statusItem.shown);
  }
};

TEST_F(WindowWithAStatusItem, IsClosedAndComesBackAsItWas) {
  openWindow();
  click("Duplicates");
  QQuickWindow* const before = &window();
  window().close();
  EXPECT_FALSE(window().isVisible());
  EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
  desk->statusItem.choose(openKlarvik);
  settle();
  EXPECT_EQ(&window(), before);
  EXPECT_TRUE(window().isVisible());
  EXPECT_EQ(shared->navigator().section(), Section::duplicates);
  EXPECT_TRUE(shows("Add a folder"));
}

TEST_F(WindowWithAStatusItem, AScanGoesOnWhileItIsClosedAndShowsItsEndInIt) {
  openWindow();
  window().close();
  desk->statusItem.choose(scanNow);
  EXPECT_TRUE(window().isVisible());
  window().close();
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
  desk->statusItem.press();
  QQuickWindow* const popover = openPopoverWindow();
  ASSERT_NE(popover, nullptr);
  lookAt(popover);
  settle();
  EXPECT_TRUE(shows("Total found"));
  picture("menu_bar_after_a_scan");
  click("Open Klarvik");
  lookAt(nullptr);
  settle();
  EXPECT_TRUE(window().isVisible());
}

TEST_F(WindowWithAStatusItem, PreferencesOpensTheSettings) {
  openWindow();
  desk->statusItem.choose(preferences);
  ASSERT_NE(app->window(settingsWindowId), nullptr);
  EXPECT_TRUE(app->window(settingsWindowId)->isVisible());
}

TEST_F(WindowWithAStatusItem, TheBoxInTheSettingsTakesItAwayWithItsPopoverAndBringsItBack) {
  openWindow();
  desk->statusItem.choose(preferences);
  QQuickWindow* const settings = app->window(settingsWindowId);
  ASSERT_NE(settings, nullptr);
  lookAt(settings);
  settle();
  desk->statusItem.press();
  ASSERT_NE(openPopoverWindow(), nullptr);
  click("Show in the menu bar");
  EXPECT_FALSE(desk->defaults.boolean("showMenuBar", true));
  EXPECT_FALSE(desk->statusItem.shown);
  EXPECT_EQ(openPopoverWindow(), nullptr);
  click("Show in the menu bar");
  EXPECT_TRUE(desk->defaults.boolean("showMenuBar", false));
  EXPECT_TRUE(desk->statusItem.shown);
}

TEST_F(WindowWithAStatusItem, ATrayThatDisappearsBringsTheClosedWindowBack) {
  openWindow();
  window().close();
  desk->statusItem.setTray(false);
  EXPECT_TRUE(window().isVisible());
  EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
}

}  // namespace
}  // namespace klarvik
