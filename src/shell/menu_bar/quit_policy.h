#pragma once

#include <QObject>

#include "shell/menu_bar/menu_bar_controller.h"

namespace klarvik {

/// Closing the last window ends the program, unless the status item can bring the window back. When
/// the item goes while no window is open, the main window comes back by itself: nothing ever runs
/// on without a way to it. Main thread only.
class QuitPolicy : public QObject {
 public:
  explicit QuitPolicy(MenuBarController& menuBar, QObject* parent = nullptr);

 private:
  void follow();

  MenuBarController& _menuBar;
};

}  // namespace klarvik
