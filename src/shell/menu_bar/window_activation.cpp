#include "shell/menu_bar/window_activation.h"

#include <QGuiApplication>

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

void bringToFront(QWindow& window) {
  window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
  window.setVisible(true);
  window.raise();
  window.requestActivate();
}

void activateWindow(const QString& id) {
  if (QWindow* window = openWindow(id)) {
    bringToFront(*window);
    return;
  }
  if (MenuBarController::openWindowHandler) MenuBarController::openWindowHandler(id);
}

bool hasOpenWindow() {
  return openWindow(QStringLiteral("main")) != nullptr ||
         openWindow(QStringLiteral("settings")) != nullptr;
}

}  // namespace klarvik
