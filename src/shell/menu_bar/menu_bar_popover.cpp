#include "shell/menu_bar/menu_bar_popover.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <chrono>

#include "platform/clock.h"
#include "platform/platform.h"

namespace klarvik {
namespace {

constexpr int gap = 4;

/// As near to `wanted` as a stretch of `length` can be within `low` to `high`; the start of what is
/// too long stays to be seen.
int held(int wanted, int length, int low, int high) {
  return std::max(low, std::min(wanted, high - length));
}

}  // namespace

QPoint popoverPlace(const QRect& icon, const QSize& popover, const QRect& screen) {
  const int right = screen.x() + screen.width();
  const int bottom = screen.y() + screen.height();
  const int below = icon.y() + icon.height() + gap;
  const int above = icon.y() - gap - popover.height();
  const bool hasRoomBelow = below + popover.height() <= bottom;
  const int x = icon.x() + icon.width() / 2 - popover.width() / 2;
  const int y = hasRoomBelow ? below : above;
  return {held(x, popover.width(), screen.x(), right),
          held(y, popover.height(), screen.y(), bottom)};
}

namespace {

using namespace std::chrono_literals;

/// Longer than a desktop takes from telling that the focus is gone to telling what was pressed.
constexpr auto onePress = 300ms;

QRect screenAt(const QRect& place) {
  const QScreen* screen = QGuiApplication::screenAt(place.center());
  return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

/// With the pointer grabbed, a press on a place that takes no focus, such as the desktop's
/// background, is seen as well. Only there: elsewhere a program may not grab it, and every press
/// takes the focus.
void grabPointer(QWindow& window) {
  if (QGuiApplication::platformName() == "xcb") window.setMouseGrabEnabled(true);
}

}  // namespace

QuickPopover::QuickPopover(QQmlEngine& engine, const Desktop& desktop)
    : _desktop(desktop), _component(&engine) {
  _component.loadUrl(QUrl("qrc:/Klarvik/Shell/MenuBarPopover.qml"));
}

QuickPopover::~QuickPopover() = default;

bool QuickPopover::isShown() const {
  return _window && _window->isVisible();
}

bool QuickPopover::hasJustClosed() const {
  if (!_lostFocus) return false;
  // Negative once the clock has been set back, for however long.
  const auto since = _desktop.clock.now() - *_lostFocus;
  return 0ms <= since && since < onePress;
}

void QuickPopover::show(MenuBarModel& content, const StatusItem::Place& icon) {
  _icon = QRect(icon.x, icon.y, icon.width, icon.height);
  _lostFocus.reset();
  QObject* made = _component.createWithInitialProperties(
      {{"model", QVariant::fromValue(&content)},
       {"hasRoundCorners", _desktop.statusItem.seesThroughWindows()}});
  _window.reset(qobject_cast<QQuickWindow*>(made));
  if (!_window) {
    qWarning("%s", qUtf8Printable(_component.errorString()));
    return;
  }
  _window->installEventFilter(this);
  connect(_window.get(), &QWindow::heightChanged, this, &QuickPopover::place);
  connect(_window.get(), &QWindow::activeChanged, this, &QuickPopover::followFocus);
  place();
  _window->show();
  _window->raise();
  _window->requestActivate();
}

void QuickPopover::close() {
  if (_window) _window->close();
}

bool QuickPopover::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Expose && _window->isExposed()) grabPointer(*_window);
  if (event->type() == QEvent::MouseButtonPress) {
    const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
    if (!QRect(QPoint(), _window->size()).contains(place)) close();
  }
  return QObject::eventFilter(watched, event);
}

void QuickPopover::place() {
  _window->setPosition(popoverPlace(_icon, _window->size(), screenAt(_icon)));
}

void QuickPopover::followFocus() {
  if (_window->isActive() || !isShown()) return;
  _lostFocus = _desktop.clock.now();
  close();
}

}  // namespace klarvik
