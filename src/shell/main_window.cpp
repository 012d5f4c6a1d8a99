#include "shell/main_window.h"

#include <QUrl>
#include <QVariant>

namespace klarvik {

std::unique_ptr<MainWindow> MainWindow::open(AppShell& shell) {
  std::unique_ptr<MainWindow> opened(new MainWindow);
  QQmlApplicationEngine& engine = opened->_engine;
  engine.addImportPath("qrc:/");
  engine.setInitialProperties({{"shell", QVariant::fromValue(&shell)}});
  engine.load(QUrl("qrc:/Klarvik/Shell/MainWindow.qml"));
  if (engine.rootObjects().isEmpty()) {
    return nullptr;
  }
  opened->_window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
  return opened->_window != nullptr ? std::move(opened) : nullptr;
}

}  // namespace klarvik
