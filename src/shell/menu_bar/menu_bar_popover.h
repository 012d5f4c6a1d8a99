#pragma once

#include "platform/status_item.h"
#include "shell/menu_bar/menu_bar_model.h"

namespace klarvik {

/// The small window that the status item opens beside itself. It closes by itself when the user
/// turns to anything else. Main thread only.
class MenuBarPopover {
 public:
  virtual ~MenuBarPopover() = default;

  [[nodiscard]] virtual bool isShown() const = 0;
  /// Whether it has lost the focus, and closed, so shortly ago that the press which did it may be
  /// the one on the status item that is being told of now.
  [[nodiscard]] virtual bool hasJustClosed() const = 0;
  /// Shows `content`, drawn afresh, near the icon; it must outlive the popover.
  virtual void show(MenuBarModel& content, const StatusItem::Place& icon) = 0;
  virtual void close() = 0;
};

}  // namespace klarvik
