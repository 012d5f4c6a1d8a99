#include "shell/main_window.h"

#include <QUrl>
#include <QVariant>

#include "panes/kit/kit.h"

void qml_register_types_Klarvik_SmartScan();
void qml_register_types_Klarvik_Storage();
void qml_register_types_Klarvik_SystemData();
void qml_register_types_Klarvik_Shell();

namespace klarvik {

std::unique_ptr<MainWindow> MainWindow::open(AppShell& shell, const Desktop& desktop) {
  std::unique_ptr<MainWindow> opened(new MainWindow);
  QQmlApplicationEngine& engine = opened->_engine;
  qml_register_types_Klarvik_SmartScan();
  qml_register_types_Klarvik_Storage();
  qml_register_types_Klarvik_SystemData();
  qml_register_types_Klarvik_Shell();
  installKit(engine, {desktop.formatting, desktop.files.home(), desktop.workspace, desktop.clock});
  engine.setInitialProperties({{"shell", QVariant::fromValue(&shell)}});
  engine.load(QUrl("qrc:/Klarvik/Shell/MainWindow.qml"));
  if (engine.rootObjects().isEmpty()) {
    return nullptr;
  }
  opened->_window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
  return opened->_window != nullptr ? std::move(opened) : nullptr;
}

}  // namespace klarvik
