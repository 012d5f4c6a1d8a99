#pragma once

#include <QColor>
#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>
#include <memory>
#include <optional>
#include <vector>

#include "platform/desktop/tray_watch.h"
#include "platform/status_item.h"

namespace klarvik {

/// An icon that is drawn anew at each size that is asked for. Without an `icon` it is empty.
[[nodiscard]] QIcon pillIcon(StatusItem::Icon icon, const QColor& color);

/// The status item as a tray icon. Needs a `QApplication` as long as it is in use.
///
/// A tray shows no text beside an icon: the title follows the tool tip in the tip itself, and both
/// are the heading of the menu as long as there is a title. Some desktops deliver nothing but the
/// menu.
class QtStatusItem final : public QObject, public StatusItem {
 public:
  QtStatusItem();
  ~QtStatusItem() override;

  void setHandlers(Handlers handlers) override;
  [[nodiscard]] bool hasTray() const override { return _tray.isPresent(); }
  [[nodiscard]] bool seesThroughWindows() const override;
  void show(const Look& look) override;
  void remove() override;

  /// The desktop's colours may change.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] QIcon icon() const;
  struct Entry {
    QAction* line;  ///< before the entry, where it starts a group
    QAction* action;
  };

  void followTray();
  void place();
  void makeIcon();
  void dropIcon();
  void update();
  void updateMenu(const QString& heading);
  [[nodiscard]] Entry addEntry(std::size_t index);
  void tellActivated();

  TrayWatch _tray;
  Handlers _handlers;
  std::optional<Look> _look;     ///< as long as the item is wanted
  std::unique_ptr<QMenu> _menu;  ///< as long as there is a tray to show it in, and so the rest
  std::unique_ptr<QSystemTrayIcon> _icon;
  QAction* _heading = nullptr;
  std::vector<Entry> _entries;
};

}  // namespace klarvik
