#include "shell/menu_bar/background_life.h"

#include <QGuiApplication>

#include "shell/menu_bar/window_fronting.h"

namespace klarvik {

BackgroundLife::BackgroundLife(MenuBarController& menuBar, QObject* parent)
    : QObject(parent), _menuBar(menuBar) {
  connect(&_menuBar, &MenuBarController::isReachableChanged, this, &BackgroundLife::follow);
  follow();
}

void BackgroundLife::follow() {
  const bool canComeBack = _menuBar.isReachable();
  if (!canComeBack && !QGuiApplication::quitOnLastWindowClosed() && !hasOpenWindow()) {
    frontWindow("main");
  }
  QGuiApplication::setQuitOnLastWindowClosed(!canComeBack);
}

}  // namespace klarvik
