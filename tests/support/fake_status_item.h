#pragma once

#include <optional>
#include <utility>

#include "platform/status_item.h"

namespace klarvik {

/// A status item that nobody sees: a test presses it, and lets trays come and go. Main thread only.
class FakeStatusItem final : public StatusItem {
 public:
  void setHandlers(Handlers handlers) override { _handlers = std::move(handlers); }
  [[nodiscard]] bool hasTray() const override { return _hasTray; }
  void show(const Look& look) override { shown = look; }
  void remove() override { shown.reset(); }

  void press(const Place& icon = {1000, 0, 24, 24}) const { _handlers.activated(icon); }
  void choose(std::size_t entry) const { _handlers.chosen(entry); }
  /// There is one until a test says otherwise.
  void setTray(bool hasTray) {
    _hasTray = hasTray;
    if (_handlers.trayChanged) _handlers.trayChanged();
  }

  std::optional<Look> shown;

 private:
  Handlers _handlers;
  bool _hasTray = true;
};

}  // namespace klarvik
