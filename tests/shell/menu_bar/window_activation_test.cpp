#include "shell/menu_bar/window_activation.h"

#include <QTest>
#include <QWindow>

#include "menu_bar_fixture.h"
#include "shell/menu_bar/menu_bar_controller.h"
#include "support/desktop_fakes.h"

namespace klarvik {
namespace {

class Windows : public MenuBarFixture {
 protected:
  void openMain() {
    window.setObjectName("main");
    window.resize(200, 100);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  QWindow window;
};

TEST_F(Windows, AnOpenWindowIsBroughtToTheFrontAndNotOpenedAgain) {
  start();
  openMain();
  QWindow other;
  other.setObjectName("other");
  other.show();
  other.requestActivate();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  activateWindow("main");
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_TRUE(opened.isEmpty());
}

TEST_F(Windows, AMinimisedWindowIsRestored) {
  start();
  openMain();
  window.showMinimized();
  activateWindow("main");
  EXPECT_FALSE(window.windowStates().testFlag(Qt::WindowMinimized));
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(opened.isEmpty());
}

TEST_F(Windows, AWindowThatWasClosedIsAskedFor) {
  start();
  openMain();
  window.close();
  activateWindow("main");
  EXPECT_EQ(opened, QStringList{"main"});
}

TEST_F(Windows, WithoutAHandlerNothingHappens) {
  start();
  MenuBarController::openWindowHandler = nullptr;
  activateWindow("settings");
  EXPECT_TRUE(opened.isEmpty());
}

TEST_F(Windows, TheProgramOutlivesItsLastWindowOnlyWhileTheItemCanBringItBack) {
  start();
  const QuitPolicy life(*controller);
  openMain();
  EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
  around.statusItem.setTray(false);
  EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
  around.statusItem.setTray(true);
  EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
  around.defaults.set("showMenuBar", false);
  EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
  EXPECT_TRUE(opened.isEmpty()) << "the window is open all the time";
}

TEST_F(Windows, ATrayThatDisappearsWhileNoWindowIsOpenBringsTheMainWindowBack) {
  start();
  const QuitPolicy life(*controller);
  openMain();
  window.close();
  EXPECT_TRUE(opened.isEmpty());
  around.statusItem.setTray(false);
  EXPECT_EQ(opened, QStringList{"main"});
  EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
}

TEST_F(Windows, SwitchingTheItemOffFromOutsideWhileNoWindowIsOpenBringsTheMainWindowBack) {
  start();
  const QuitPolicy life(*controller);
  around.defaults.set("showMenuBar", false);
  EXPECT_EQ(opened, QStringList{"main"});
}

TEST_F(Windows, WithTheSettingsStillOpenNoWindowIsForcedOnTheUser) {
  start();
  const QuitPolicy life(*controller);
  openMain();
  window.setObjectName("settings");
  around.statusItem.setTray(false);
  EXPECT_TRUE(opened.isEmpty());
}

TEST_F(Windows, AStartWithoutATrayOpensNothingByItself) {
  around.statusItem.setTray(false);
  start();
  const QuitPolicy life(*controller);
  EXPECT_TRUE(opened.isEmpty());
  EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
}

}  // namespace
}  // namespace klarvik
