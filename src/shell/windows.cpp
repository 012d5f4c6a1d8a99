#include "shell/windows.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "panes/kit/kit.h"
#include "panes/uninstaller/application_icons.h"
#include "platform/file_system.h"

void qml_register_types_Klarvik_Panes();
void qml_register_types_Klarvik_Shell();

namespace klarvik {

namespace {

void registerModules() {
  qml_register_types_Klarvik_Panes();
  qml_register_types_Klarvik_Shell();
}

/// What the desktop draws around a window. Before it is shown nobody knows; then it is what most
/// desktops draw.
QMargins frameAround(const QWindow& window) {
  const QMargins known = window.frameMargins();
  constexpr QMargins usual(0, 38, 0, 0);
  return known.isNull() ? usual : known;
}

/// Where the content of a window may lie so that its frame is on the screen and under no panel.
QRect roomFor(const QWindow& window, const QScreen& screen) {
  return screen.availableGeometry().marginsRemoved(frameAround(window));
}

/// As large as wanted as far as there is room, but never smaller than the window may be.
QSize sizeThatFits(const QWindow& window, const QSize& wanted) {
  const QScreen* const screen = window.screen();
  if (screen == nullptr) return wanted;
  return wanted.boundedTo(roomFor(window, *screen).size()).expandedTo(window.minimumSize());
}

/// A place of that size around `middle`, on the screen as far as it fits there.
QRect placeAround(const QPoint& middle, const QSize& size, const QWindow& window,
                  const QScreen* screen) {
  QRect place(QPoint(), size);
  place.moveCenter(middle);
  if (screen == nullptr) return place;
  const QRect room = roomFor(window, *screen);
  place.moveRight(std::min(place.right(), room.right()));
  place.moveBottom(std::min(place.bottom(), room.bottom()));
  place.moveLeft(std::max(place.left(), room.left()));
  place.moveTop(std::max(place.top(), room.top()));
  return place;
}

/// Where a point is one and a half pixels, or one and a quarter, many edges lie exactly between two
/// pixels. The renderer rounds each corner of a letter by itself, one up and the next down, and the
/// letters come out uneven. This moves all that a window holds to one side, by less than is seen.
constexpr QPointF offTheMiddleOfPixels(0.02, 0.02);

}  // namespace

void fit(QWindow& window, const WindowFrame& frame) {
  const QPoint middle = window.geometry().center();
  window.setMaximumSize(frame.maximum);
  window.setMinimumSize(frame.minimum);
  const QSize size = sizeThatFits(window, frame.initial);
  if (window.isVisible()) {
    window.setGeometry(placeAround(middle, size, window, window.screen()));
  } else {
    window.resize(size);
  }
}

Windows::Windows(const Desktop& desktop) {
  registerModules();
  installKit(_engine, {desktop.formatting, desktop.files.home(), desktop.workspace, desktop.clock,
                       desktop.motion});
  // The engine takes it over.
  _engine.addImageProvider(ApplicationIcons::name, new ApplicationIcons(desktop.files));
}

QQuickWindow* Windows::make(const QString& id, const QUrl& view, const QVariantMap& properties,
                            const WindowFrame& frame) {
  QQmlComponent component(&_engine, view);
  std::unique_ptr<QObject> made;
  // Qt 6.4 crashes when it is to make what has not been compiled.
  if (component.isReady()) made.reset(component.createWithInitialProperties(properties));
  auto* const window = qobject_cast<QQuickWindow*>(made.get());
  if (window == nullptr) {
    qWarning().noquote() << component.errorString();
    return nullptr;
  }
  made.release();
  window->setObjectName(id);
  window->contentItem()->setPosition(offTheMiddleOfPixels);
  fit(*window, frame);
  placeOverMainWindow(*window);
  _windows[id].reset(window);
  return window;
}

/// Left to themselves, some desktops put a second window where nobody looks.
void Windows::placeOverMainWindow(QQuickWindow& window) const {
  const QQuickWindow* const main = find(mainWindowId);
  if (main == nullptr || !main->isVisible()) return;
  window.setGeometry(placeAround(main->geometry().center(), window.size(), window, main->screen()));
}

QQuickWindow* Windows::find(const QString& id) const {
  const auto found = _windows.find(id);
  return found != _windows.end() ? found->second.get() : nullptr;
}

void Windows::discard(const QString& id) {
  _windows.erase(id);
}

}  // namespace klarvik
