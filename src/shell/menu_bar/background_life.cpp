#include "shell/menu_bar/background_life.h"

#include <QGuiApplication>

#include "shell/menu_bar/window_fronting.h"

namespace klarvik {

BackgroundLife::BackgroundLife(MenuBarController& menuBar, QObject* parent)
    : QObject(parent), _menuBar(menuBar) {
  connect(&_menuBar, &MenuBarController::isReachableChanged, this, &BackgroundLife::follow);
  QGuiApplication::setQuitOnLastWindowClosed(!_menuBar.isReachable());
}

void BackgroundLife::follow() {
  QGuiApplication::setQuitOnLastWindowClosed(!_menuBar.isReachable());
  if (!_menuBar.isReachable() && !hasOpenWindow()) frontWindow("main");
}

}  // namespace klarvik
