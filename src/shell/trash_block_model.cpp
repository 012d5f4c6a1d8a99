#include "shell/trash_block_model.h"

#include "places/disk_layout.h"
#include "platform/desktop_services.h"
#include "platform/file_system.h"
#include "platform/trash.h"
#include "shell/sidebar_texts.h"
#include "translation/translation.h"

namespace klarvik {

TrashBlockModel::TrashBlockModel(TrashMonitor& monitor, PermissionsManager& permissions,
                                 const Desktop& desktop, QObject* parent)
    : QObject(parent), _monitor(monitor), _permissions(permissions), _desktop(desktop) {
  connect(&monitor, &TrashMonitor::changed, this, &TrashBlockModel::changed);
  connect(&monitor, &TrashMonitor::confirmationWanted, this, [this] {
    if (control() == Control::Empty) setConfirming(true);
  });
}

QString TrashBlockModel::symbol() const {
  return QString::fromStdString(std::string(sidebar::trashSymbol(_monitor.figures())));
}

QString TrashBlockModel::subtitle() const {
  return QString::fromStdString(
      sidebar::trashSubtitle(_monitor.figures(), layout().words, _desktop.formatting));
}

TrashBlockModel::Control TrashBlockModel::control() const {
  return sidebar::trashControl(_monitor.figures(), layout());
}

QString TrashBlockModel::controlTitle() const {
  switch (control()) {
    case Control::Grant:
      return translate("Shell", "Grant");
    case Control::Empty:
      return translate("Shell", "Empty", "the button that empties the Trash");
    case Control::None:
    case Control::Progress:
      return {};
  }
  return {};
}

QString TrashBlockModel::controlHelp() const {
  return QString::fromStdString(
      sidebar::trashControlHelp(_monitor.figures(), layout(), _desktop.formatting));
}

QString TrashBlockModel::confirmationMessage() const {
  return QString::fromStdString(
      sidebar::emptyTrashMessage(_monitor.figures(), _desktop.formatting));
}

void TrashBlockModel::open() {
  const std::vector<Path> folders = _desktop.trash.folders();
  if (!folders.empty()) {
    _desktop.workspace.openFolder(folders.front());
  }
}

void TrashBlockModel::pressControl() {
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

void TrashBlockModel::confirmEmpty() {
  setConfirming(false);
  _monitor.emptyTrash();
}

void TrashBlockModel::cancelConfirmation() {
  setConfirming(false);
}

const DiskLayout& TrashBlockModel::layout() const {
  return layoutFor(_desktop.files.home());
}

void TrashBlockModel::setConfirming(bool confirming) {
  if (_isConfirming != confirming) {
    _isConfirming = confirming;
    emit isConfirmingChanged();
  }
}

}  // namespace klarvik
