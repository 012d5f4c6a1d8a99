#pragma once

#include <QPoint>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QRect>
#include <QSize>
#include <memory>
#include <optional>

#include "platform/status_item.h"
#include "shell/menu_bar/menu_bar_model.h"

namespace klarvik {

struct Desktop;

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

/// Where a popover goes that belongs to an icon: below it, or above where there is no room below,
/// on one middle line with it, and in any case inside `screen`, the part of the icon's screen that
/// no panel takes.
[[nodiscard]] QPoint popoverPlace(const QRect& icon, const QSize& popover, const QRect& screen);

/// The popover as a window of its own. Esc closes it, and so does a press outside it.
class QuickPopover final : public QObject, public MenuBarPopover {
 public:
  /// Requires that the kit has been installed in `engine`.
  QuickPopover(QQmlEngine& engine, const Desktop& desktop);
  ~QuickPopover() override;

  [[nodiscard]] bool isShown() const override;
  [[nodiscard]] bool hasJustClosed() const override;
  void show(MenuBarModel& content, const StatusItem::Place& icon) override;
  void close() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void place();
  void followFocus();

  const Desktop& _desktop;
  QQmlComponent _component;
  std::unique_ptr<QQuickWindow> _window;  ///< the one shown last
  QRect _icon;
  std::optional<Date> _lostFocus;
};

}  // namespace klarvik
