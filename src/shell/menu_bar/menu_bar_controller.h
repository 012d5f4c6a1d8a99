#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "platform/platform.h"
#include "shell/menu_bar/menu_bar_model.h"
#include "shell/menu_bar/menu_bar_popover.h"
#include "shell/menu_bar/window_activation.h"
#include "state/app_state.h"
#include "state/trash_monitor.h"

namespace klarvik {

/// Owns the status item and its popover, and keeps both as the user wishes, from wherever that wish
/// is changed. The process has one. Main thread only; what is handed in must outlive it.
class MenuBarController : public QObject {
  Q_OBJECT
 public:
  using MakePopover = std::function<std::unique_ptr<MenuBarPopover>()>;

  /// Set when the program is launched; a window that has been closed is opened through it.
  static inline OpenWindowHandler openWindowHandler;

  MenuBarController(const Desktop& desktop, TrashMonitor& trash, MakePopover makePopover,
                    QObject* parent = nullptr);
  ~MenuBarController() override;

  /// Once, at the launch. From now on the item is there while it is enabled.
  void setup(AppState& appState);

  /// The user's wish: the preference "showMenuBar".
  [[nodiscard]] bool isEnabled() const { return _isEnabled; }
  void setEnabled(bool enabled);

  /// Whether the item is shown on a tray that is there, so that the user can reach the program
  /// through it.
  [[nodiscard]] bool isReachable() const { return _isReachable; }

  void togglePopover(const StatusItem::Place& icon);

 signals:
  void isEnabledChanged();
  void isReachableChanged();

 private:
  [[nodiscard]] bool storedWish() const;
  void followDefaults();
  void apply();
  void showItem();
  void removeItem();
  void updateItem();
  void updateReachable();
  void closePopover();
  [[nodiscard]] StatusItem::Look look() const;

  const Desktop& _desktop;
  TrashMonitor& _trash;
  MakePopover _makePopover;
  StatusItem* _statusItem = nullptr;  ///< while it is shown
  std::unique_ptr<MenuBarPopover> _popover;
  AppState* _appState = nullptr;
  std::unique_ptr<MenuBarModel> _view;
  NotificationCenter::Subscription _defaultsObservation;
  bool _isEnabled;
  bool _isReachable = false;
};

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
