#include "shell/updates/update_window_model.h"

#include "platform/application_info.h"
#include "platform/workspace.h"
#include "state/set_if_changed.h"

namespace klarvik {

UpdateWindowModel::UpdateWindowModel(const Desktop& desktop, QObject* parent)
    : QObject(parent), _desktop(desktop) {
  _desktop.updater.present([this](const UpdateStage& stage) { show(stage); });
}

UpdateWindowModel::~UpdateWindowModel() {
  _desktop.updater.present(nullptr);
}

/// What is hidden keeps its words until the window is gone.
void UpdateWindowModel::show(const UpdateStage& stage) {
  const bool isShown = !std::holds_alternative<update_stage::Hidden>(stage);
  if (isShown && setIfChanged(_content, updateWindowContent(stage, appVersion(_desktop.info),
                                                            _desktop.formatting))) {
    emit changed();
  }
  if (setIfChanged(_isShown, isShown)) emit isShownChanged();
  if (std::holds_alternative<update_stage::Checking>(stage)) emit isAskedFor();
}

QString UpdateWindowModel::title() const {
  return QString::fromStdString(_content.title);
}

QString UpdateWindowModel::detail() const {
  return QString::fromStdString(_content.detail);
}

QString UpdateWindowModel::notes() const {
  return QString::fromStdString(_content.notes);
}

QString UpdateWindowModel::primary() const {
  return QString::fromStdString(_content.primary);
}

QString UpdateWindowModel::secondary() const {
  return QString::fromStdString(_content.secondary);
}

void UpdateWindowModel::goOn() {
  _desktop.updater.install();
}

void UpdateWindowModel::dismiss() {
  _desktop.updater.dismiss();
}

void UpdateWindowModel::openNotes() {
  _desktop.workspace.openUrl(_content.notesLink);
}

}  // namespace klarvik
