#include "platform/desktop/qt_status_item.h"

#include <QApplication>
#include <QCursor>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/desktop/tray_watch.h"

namespace klarvik {
namespace {

class PillIconEngine final : public QIconEngine {
 public:
  PillIconEngine(StatusItem::Icon icon, const QColor& color) : _icon(icon), _color(color) {}

  void paint(QPainter* painter, const QRect& area, QIcon::Mode /*mode*/,
             QIcon::State /*state*/) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->translate(area.topLeft());
    for (const StatusItem::Pill& pill : _icon(area.width(), area.height())) {
      QColor fill = _color;
      fill.setAlphaF(static_cast<float>(pill.opacity));
      painter->setBrush(fill);
      painter->drawRoundedRect(QRectF(pill.x, pill.y, pill.width, pill.height), pill.radius,
                               pill.radius);
    }
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return drawn;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new PillIconEngine(*this); }

 private:
  StatusItem::Icon _icon;
  QColor _color;
};

}  // namespace

QIcon pillIcon(StatusItem::Icon icon, const QColor& color) {
  return icon != nullptr ? QIcon(new PillIconEngine(icon, color)) : QIcon();
}

namespace {

/// The colour of text, unless the desktop's panel is dark whatever its windows look like.
QColor indicatorColor() {
  static constexpr std::array alwaysDark{"GNOME", "Unity", "Pantheon"};
  const auto desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':');
  const bool isDark = std::ranges::any_of(
      alwaysDark, [&](const char* name) { return desktops.contains(QLatin1String(name)); });
  return isDark ? QColor(Qt::white) : QGuiApplication::palette().color(QPalette::WindowText);
}

StatusItem::Place placeOf(const QRect& area) {
  return {area.x(), area.y(), area.width(), area.height()};
}

}  // namespace

QtStatusItem::QtStatusItem() : _tray([this] { followTray(); }) {
  qApp->installEventFilter(this);
}

QtStatusItem::~QtStatusItem() = default;

void QtStatusItem::setHandlers(Handlers handlers) {
  _handlers = std::move(handlers);
}

bool QtStatusItem::seesThroughWindows() const {
  // Who draws the windows of an X11 display together owns this. Elsewhere there is always somebody.
  xcb_connection_t* const connection = x11Connection();
  return connection == nullptr || isOwned(connection, x11Selection(connection, "_NET_WM_CM_S0"));
}

void QtStatusItem::show(const Look& look) {
  if (_look == look) return;
  _look = look;
  place();
}

void QtStatusItem::remove() {
  _look.reset();
  place();
}

bool QtStatusItem::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange && _icon) update();
  return QObject::eventFilter(watched, event);
}

void QtStatusItem::followTray() {
  place();
  if (_handlers.trayChanged) _handlers.trayChanged();
}

void QtStatusItem::place() {
  if (!_look || !_tray.isPresent()) {
    dropIcon();
    return;
  }
  if (!_icon) makeIcon();
  update();
  _icon->show();
}

void QtStatusItem::makeIcon() {
  _menu = std::make_unique<QMenu>();
  _heading = _menu->addAction(QString());
  _heading->setEnabled(false);
  _icon = std::make_unique<QSystemTrayIcon>();
  _icon->setContextMenu(_menu.get());
  connect(_icon.get(), &QSystemTrayIcon::activated, this,
          [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger) tellActivated();
          });
}

void QtStatusItem::dropIcon() {
  _icon.reset();
  _entries.clear();
  _menu.reset();
}

void QtStatusItem::update() {
  const QString toolTip = QString::fromStdString(_look->toolTip + _look->title);
  _icon->setIcon(icon());
  _icon->setToolTip(toolTip);
  updateMenu(_look->title.empty() ? QString() : toolTip);
}

/// A panel that is told of the item by name draws it as it likes; a window that embeds it shows
/// what Klarvik draws.
QIcon QtStatusItem::icon() const {
  const QString name = QString::fromStdString(_look->themeIcon);
  if (_tray.isHost() && QIcon::hasThemeIcon(name)) return QIcon::fromTheme(name);
  return pillIcon(_look->icon, indicatorColor());
}

/// In place, for an open menu must not lose the entry that the pointer is on.
void QtStatusItem::updateMenu(const QString& heading) {
  _heading->setText(heading);
  _heading->setVisible(!heading.isEmpty());
  const auto& wanted = _look->menu;
  for (; _entries.size() > wanted.size(); _entries.pop_back()) {
    delete _entries.back().line;
    delete _entries.back().action;
  }
  while (_entries.size() < wanted.size()) _entries.push_back(addEntry(_entries.size()));
  for (std::size_t index = 0; index < wanted.size(); ++index) {
    const MenuEntry& entry = wanted[index];
    _entries[index].line->setVisible(entry.startsGroup);
    _entries[index].action->setText(QString::fromStdString(entry.title).replace('&', "&&"));
    _entries[index].action->setEnabled(entry.isEnabled);
  }
}

QtStatusItem::Entry QtStatusItem::addEntry(std::size_t index) {
  const Entry entry{_menu->addSeparator(), _menu->addAction(QString())};
  connect(entry.action, &QAction::triggered, this, [this, index] {
    if (_handlers.chosen) _handlers.chosen(index);
  });
  return entry;
}

void QtStatusItem::tellActivated() {
  if (!_handlers.activated) return;
  const QRect icon = _icon->geometry();
  _handlers.activated(placeOf(icon.isEmpty() ? QRect(QCursor::pos(), QSize(1, 1)) : icon));
}

}  // namespace klarvik
