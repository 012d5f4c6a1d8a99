#pragma once

#include <QString>
#include <QWindow>
#include <functional>

namespace klarvik {

/// Opens a window that is not open, by its identifier ("main" or "settings").
using OpenWindowHandler = std::function<void(const QString& id)>;

/// On the screen, unfolded, before all others, and with the keyboard. Main thread only.
void bringToFront(QWindow& window);

/// Brings the first open window whose identifier contains `id` to the front, before other
/// programs; without one, asks `MenuBarController::openWindowHandler` for it. A window's identifier
/// is its object name. Main thread only.
void activateWindow(const QString& id);

/// Whether the user has any of the program's windows on the screen, minimised or not.
[[nodiscard]] bool hasOpenWindow();

}  // namespace klarvik
