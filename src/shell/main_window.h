#pragma once

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <memory>

#include "platform/platform.h"
#include "shell/app_shell.h"

namespace klarvik {

/// The window on the screen. Main thread only.
class MainWindow {
 public:
  /// Nothing when the window cannot be drawn. What is handed in must outlive it.
  [[nodiscard]] static std::unique_ptr<MainWindow> open(AppShell& shell, const Desktop& desktop);

  [[nodiscard]] QQuickWindow* window() const { return _window; }

 private:
  MainWindow() = default;

  QQmlApplicationEngine _engine;
  QQuickWindow* _window = nullptr;  ///< owned by the engine
};

}  // namespace klarvik
