#pragma once

#include <QAbstractNativeEventFilter>
#include <QDBusServiceWatcher>
#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

struct xcb_connection_t;

namespace klarvik {

// Selections by which programs on an X11 display say what they are: the tray, the compositor. Main
// thread only.

/// Nothing where the program does not draw to such a display.
[[nodiscard]] xcb_connection_t* x11Connection();
/// The number of a selection; 0 where the display does not answer.
[[nodiscard]] std::uint32_t x11Selection(xcb_connection_t* connection, std::string_view name);
[[nodiscard]] bool isOwned(xcb_connection_t* connection, std::uint32_t selection);

/// Whether a window of an X11 display embeds the icons of other programs. Main thread only.
class X11TrayWatch final : public QAbstractNativeEventFilter {
 public:
  /// Nothing when the program is not on an X11 display. `changed` is called from the main loop, as
  /// long as the watch lives.
  [[nodiscard]] static std::unique_ptr<X11TrayWatch> onThisDisplay(std::function<void()> changed);
  ~X11TrayWatch() override;

  [[nodiscard]] bool hasTray() const { return _hasTray; }

  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 private:
  X11TrayWatch(xcb_connection_t* connection, std::uint8_t selectionEvent,
               std::function<void()> changed);

  std::function<void()> _changed;
  std::uint8_t _selectionEvent;
  std::uint32_t _selection;
  bool _hasTray;
};

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
  /// Whether it is a host of status notifiers.
  [[nodiscard]] bool isHost() const { return _hasHost; }

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
