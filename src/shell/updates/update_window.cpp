#include "shell/updates/update_window.h"

#include "platform/application_info.h"
#include "platform/workspace.h"
#include "state/set_if_changed.h"

namespace klarvik {

UpdateWindow::UpdateWindow(const Desktop& desktop, QObject* parent)
    : QObject(parent), _desktop(desktop) {
  _desktop.updater.present([this](const UpdateStage& stage) { show(stage); });
}

UpdateWindow::~UpdateWindow() {
  _desktop.updater.present(nullptr);
}

/// What is hidden keeps its words until the window is gone.
void UpdateWindow::show(const UpdateStage& stage) {
  const bool isShown = !std::holds_alternative<update_stage::Hidden>(stage);
  if (isShown && setIfChanged(_content, updateWindowContent(stage, appVersion(_desktop.info),
                                                            _desktop.formatting))) {
    emit changed();
  }
  if (setIfChanged(_isShown, isShown)) emit isShownChanged();
  if (std::holds_alternative<update_stage::Checking>(stage)) emit isAskedFor();
}

QString UpdateWindow::title() const {
  return QString::fromStdString(_content.title);
}

QString UpdateWindow::detail() const {
  return QString::fromStdString(_content.detail);
}

QString UpdateWindow::notes() const {
  return QString::fromStdString(_content.notes);
}

QString UpdateWindow::primary() const {
  return QString::fromStdString(_content.primary);
}

QString UpdateWindow::secondary() const {
  return QString::fromStdString(_content.secondary);
}

void UpdateWindow::goOn() {
  _desktop.updater.install();
}

void UpdateWindow::dismiss() {
  _desktop.updater.dismiss();
}

void UpdateWindow::openNotes() {
  _desktop.workspace.openUrl(_content.notesLink);
}

}  // namespace klarvik
