#pragma once

#include <QPoint>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QRect>
#include <QSize>
#include <memory>
#include <optional>

#include "shell/menu_bar/menu_bar_popover.h"

namespace klarvik {

/// Where a popover goes that belongs to an icon: below it, or above where there is no room below,
/// on one middle line with it, and in any case inside `screen`, the part of the icon's screen that
/// no panel takes.
[[nodiscard]] QPoint popoverPlace(const QRect& icon, const QSize& popover, const QRect& screen);

struct Desktop;

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
