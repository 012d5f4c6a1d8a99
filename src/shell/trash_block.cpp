#include "shell/trash_block.h"

#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/trash.h"
#include "platform/workspace.h"
#include "shell/trash_texts.h"

namespace klarvik {

TrashBlock::TrashBlock(TrashMonitor& monitor, PermissionsManager& permissions,
                       const Desktop& desktop, QObject* parent)
    : QObject(parent), _monitor(monitor), _permissions(permissions), _desktop(desktop) {
  connect(&monitor, &TrashMonitor::changed, this, &TrashBlock::changed);
}

QString TrashBlock::symbol() const {
  return QString::fromStdString(std::string(sidebar::trashSymbol(_monitor.figures())));
}

QString TrashBlock::subtitle() const {
  return QString::fromStdString(
      sidebar::trashSubtitle(_monitor.figures(), layout().words, _desktop.formatting));
}

TrashBlock::Control TrashBlock::control() const {
  return sidebar::trashControl(_monitor.figures(), layout());
}

QString TrashBlock::controlTitle() const {
  switch (control()) {
    case Control::Grant:
      return QStringLiteral("Grant");
    case Control::Empty:
      return QStringLiteral("Empty");
    case Control::None:
    case Control::Progress:
      return {};
  }
  return {};
}

QString TrashBlock::controlHelp() const {
  return QString::fromStdString(
      sidebar::trashControlHelp(_monitor.figures(), layout(), _desktop.formatting));
}

QString TrashBlock::confirmationMessage() const {
  return QString::fromStdString(
      sidebar::emptyTrashMessage(_monitor.figures(), _desktop.formatting));
}

void TrashBlock::open() {
  const std::vector<Path> folders = _desktop.trash.folders();
  if (!folders.empty()) {
    _desktop.workspace.openFolder(folders.front());
  }
}

void TrashBlock::pressControl() {
  switch (control()) {
    case Control::Grant:
      _permissions.openFullDiskAccessSettings();
      return;
    case Control::Empty:
      setConfirming(true);
      return;
    case Control::None:
    case Control::Progress:
      return;
  }
}

void TrashBlock::confirmEmpty() {
  setConfirming(false);
  _monitor.emptyTrash();
}

void TrashBlock::cancelConfirmation() {
  setConfirming(false);
}

const DiskLayout& TrashBlock::layout() const {
  return layoutFor(_desktop.files.home());
}

void TrashBlock::setConfirming(bool confirming) {
  if (_isConfirming != confirming) {
    _isConfirming = confirming;
    emit isConfirmingChanged();
  }
}

}  // namespace klarvik
