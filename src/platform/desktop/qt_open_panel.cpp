#include "platform/desktop/qt_open_panel.h"

#include <QAbstractItemView>
#include <QFile>
#include <QGuiApplication>
#include <QWindow>
#include <utility>

#include "platform/file_system.h"
#include "platform/path.h"

namespace klarvik {
namespace {

QString shown(const Path& disk) {
  return QFile::decodeName(disk.c_str());
}

/// Nothing in Qt's interface asks for several folders; its lists allow it once they are told.
void allowSeveral(QFileDialog& dialog) {
  for (const char* name : {"listView", "treeView"}) {
    if (auto* list = dialog.findChild<QAbstractItemView*>(name)) {
      list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    }
  }
}

void keepInFront(QFileDialog& dialog) {
  dialog.winId();
  dialog.windowHandle()->setTransientParent(QGuiApplication::focusWindow());
}

}  // namespace

QtOpenPanel::QtOpenPanel(const FileSystem& files) : _files(files) {}

void QtOpenPanel::chooseFolders(const Request& request, Answer answer) {
  if (_dialog && _dialog->isVisible()) {
    _dialog->raise();
    _dialog->activateWindow();
    return;
  }
  _dialog = std::make_unique<QFileDialog>(nullptr, QString::fromStdString(request.message),
                                          shown(_files.diskPath(request.start)));
  _dialog->setOption(QFileDialog::DontUseNativeDialog);
  _dialog->setOption(QFileDialog::ReadOnly);
  _dialog->setOption(QFileDialog::ShowDirsOnly);
  _dialog->setFileMode(QFileDialog::Directory);
  _dialog->setLabelText(QFileDialog::Accept, QString::fromStdString(request.prompt));
  _dialog->setWindowModality(Qt::ApplicationModal);
  allowSeveral(*_dialog);
  keepInFront(*_dialog);
  QObject::connect(_dialog.get(), &QDialog::finished, _dialog.get(),
                   [this, answer = std::move(answer)](int result) {
                     answer(result == QDialog::Accepted ? chosen() : std::vector<Path>());
                   });
  _dialog->show();
}

std::vector<Path> QtOpenPanel::chosen() const {
  std::vector<Path> folders;
  for (const QString& name : _dialog->selectedFiles()) {
    const auto folder = _files.logicalPath(Path(QFile::encodeName(name).toStdString()));
    if (folder) folders.push_back(*folder);
  }
  return folders;
}

}  // namespace klarvik
