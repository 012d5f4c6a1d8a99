// relaunching_program FILE: adds a line with its own process id to FILE. The first instance then
// relaunches.

#include <QFile>
#include <QGuiApplication>
#include <QTimer>

#include "platform/desktop/xdg_workspace.h"
#include "platform/linux/linux_file_system.h"

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  QFile file(QCoreApplication::arguments().at(1));
  if (!file.open(QIODevice::ReadWrite | QIODevice::Text)) return 1;
  const bool isFirst = file.readAll().isEmpty();
  file.write(QByteArray::number(QCoreApplication::applicationPid()) + '\n');
  file.close();
  if (!isFirst) return 0;

  const klarvik::LinuxFileSystem files("/", "/");
  klarvik::XdgWorkspace workspace(files);
  QTimer::singleShot(0, [&] { workspace.relaunch(); });
  const int status = QGuiApplication::exec();
  workspace.startSuccessor();
  return status;
}
