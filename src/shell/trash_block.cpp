#include "shell/trash_block.h"

#include "shell/sidebar_texts.h"

namespace klarvik {
namespace {

sidebar::TrashFigures figures(const TrashMonitor& monitor) {
  return {monitor.bytes(),         monitor.itemCount(),  monitor.isEmptying(),
          monitor.emptyProgress(), monitor.isReadable(), monitor.isMeasuring()};
}

TrashBlock::Control control(sidebar::TrashControl control) {
  switch (control) {
    case sidebar::TrashControl::none:
      return TrashBlock::Control::None;
    case sidebar::TrashControl::progress:
      return TrashBlock::Control::Progress;
    case sidebar::TrashControl::grant:
      return TrashBlock::Control::Grant;
    case sidebar::TrashControl::empty:
      return TrashBlock::Control::Empty;
  }
  return TrashBlock::Control::None;
}

}  // namespace

TrashBlock::TrashBlock(TrashMonitor& monitor, PermissionsManager& permissions,
                       const Desktop& desktop, QObject* parent)
    : QObject(parent), _monitor(monitor), _permissions(permissions), _desktop(desktop) {
  connect(&monitor, &TrashMonitor::changed, this, &TrashBlock::changed);
}

QString TrashBlock::symbol() const {
  return QString::fromStdString(std::string(sidebar::trashSymbol(figures(_monitor))));
}

QString TrashBlock::subtitle() const {
  return QString::fromStdString(sidebar::trashSubtitle(figures(_monitor), _desktop.formatting));
}

TrashBlock::Control TrashBlock::control() const {
  return klarvik::control(sidebar::trashControl(figures(_monitor)));
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
  return QString::fromStdString(sidebar::trashControlHelp(figures(_monitor), _desktop.formatting));
}

QString TrashBlock::confirmationMessage() const {
  return QString::fromStdString(sidebar::emptyTrashMessage(figures(_monitor), _desktop.formatting));
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

void TrashBlock::setConfirming(bool confirming) {
  if (_isConfirming != confirming) {
    _isConfirming = confirming;
    emit isConfirmingChanged();
  }
}

}  // namespace klarvik
