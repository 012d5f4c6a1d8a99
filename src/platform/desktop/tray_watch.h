#pragma once

#include <QDBusServiceWatcher>
#include <QObject>
#include <functional>
#include <memory>

#include "platform/desktop/x11_tray_watch.h"

namespace klarvik {

/// Whether something on this desktop shows the icons of programs that have no window: a host of
/// status notifiers on the message bus, or a tray of the X11 display. Main thread only.
///
/// Qt would answer as well, but asks the bus once in the life of a program and stays with what it
/// heard: one that is started with the session, before the panel, would never get its icon.
class TrayWatch : public QObject {
  Q_OBJECT
 public:
  /// `changed` is called from the main loop, when `isPresent` has changed.
  explicit TrayWatch(std::function<void()> changed);

  [[nodiscard]] bool isPresent() const { return _isPresent; }

 private slots:
  void askForHost();

 private:
  void followBus();
  void setHasHost(bool hasHost);
  void update();

  std::function<void()> _changed;
  QDBusServiceWatcher _notifierWatcher;
  std::unique_ptr<X11TrayWatch> _x11Tray;
  bool _hasHost = false;
  bool _isPresent = false;
};

}  // namespace klarvik
