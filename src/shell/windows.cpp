#include "shell/windows.h"

#include <QQmlComponent>
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

/// A place of that size around `middle`, on the screen as far as it fits there.
QRect placeAround(const QPoint& middle, const QSize& size, const QScreen* screen) {
  QRect place(QPoint(), size);
  place.moveCenter(middle);
  if (screen == nullptr) return place;
  const QRect room = screen->availableGeometry();
  place.moveRight(std::min(place.right(), room.right()));
  place.moveBottom(std::min(place.bottom(), room.bottom()));
  place.moveLeft(std::max(place.left(), room.left()));
  place.moveTop(std::max(place.top(), room.top()));
  return place;
}

}  // namespace

void fit(QWindow& window, const WindowFrame& frame) {
  const QPoint middle = window.geometry().center();
  window.setMaximumSize(frame.maximum);
  window.setMinimumSize(frame.minimum);
  if (window.isVisible()) {
    window.setGeometry(placeAround(middle, frame.initial, window.screen()));
  } else {
    window.resize(frame.initial);
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
  fit(*window, frame);
  placeOverMainWindow(*window);
  _windows[id].reset(window);
  return window;
}

/// Left to themselves, some desktops put a second window where nobody looks.
void Windows::placeOverMainWindow(QQuickWindow& window) const {
  const QQuickWindow* const main = find(mainWindowId);
  if (main == nullptr || !main->isVisible()) return;
  window.setGeometry(placeAround(main->geometry().center(), window.size(), main->screen()));
}

QQuickWindow* Windows::find(const QString& id) const {
  const auto found = _windows.find(id);
  return found != _windows.end() ? found->second.get() : nullptr;
}

void Windows::discard(const QString& id) {
  _windows.erase(id);
}

}  // namespace klarvik
