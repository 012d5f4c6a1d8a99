#include "shell/menu_bar/quit_policy.h"

#include <QGuiApplication>

#include "shell/menu_bar/window_activation.h"

namespace klarvik {

QuitPolicy::QuitPolicy(MenuBarController& menuBar, QObject* parent)
    : QObject(parent), _menuBar(menuBar) {
  connect(&_menuBar, &MenuBarController::isReachableChanged, this, &QuitPolicy::follow);
  QGuiApplication::setQuitOnLastWindowClosed(!_menuBar.isReachable());
}

void QuitPolicy::follow() {
  QGuiApplication::setQuitOnLastWindowClosed(!_menuBar.isReachable());
  if (!_menuBar.isReachable() && !hasOpenWindow()) activateWindow("main");
}

}  // namespace klarvik
