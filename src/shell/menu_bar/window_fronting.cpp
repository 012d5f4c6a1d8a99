#include "shell/menu_bar/window_fronting.h"

#include <QGuiApplication>
#include <QWindow>

#include "shell/menu_bar/menu_bar_controller.h"

namespace klarvik {
namespace {

QWindow* openWindow(const QString& id) {
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (window->isVisible() && window->objectName().contains(id)) return window;
  }
  return nullptr;
}

}  // namespace

void frontWindow(const QString& id) {
  if (QWindow* window = openWindow(id)) {
    window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
    window->raise();
    window->requestActivate();
    return;
  }
  if (MenuBarController::openWindowHandler) MenuBarController::openWindowHandler(id);
}

bool hasOpenWindow() {
  return openWindow(QStringLiteral("main")) != nullptr ||
         openWindow(QStringLiteral("settings")) != nullptr;
}

}  // namespace klarvik
