#pragma once

#include <QAbstractNativeEventFilter>
#include <cstdint>
#include <functional>
#include <memory>

struct xcb_connection_t;

namespace klarvik {

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

}  // namespace klarvik
