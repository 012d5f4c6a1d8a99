#include "shell/updates/update_window_model.h"

#include "platform/application_info.h"
#include "platform/desktop_services.h"
#include "platform/formatting.h"
#include "state/set_if_changed.h"
#include "state/update_manager.h"

namespace klarvik {
namespace {

using namespace update_stage;

class Writer {
 public:
  Writer(const std::string& running, const Formatting& formatting)
      : _running(running), _formatting(formatting) {}

  UpdateWindowContent operator()(const Hidden&) const { return {}; }
  UpdateWindowContent operator()(const Checking&) const {
    return {.title = "Checking for updates…",
            .detail = "You have Klarvik " + _running + ".",
            .progress = UpdateWindowContent::barWithoutEnd,
            .secondary = "Cancel"};
  }
  UpdateWindowContent operator()(const Offered& stage) const {
    return {.title = "Klarvik " + stage.version + " is available",
            .detail = "You have " + _running + ". The download is " +
                      _formatting.byteText(stage.bytes) + ".",
            .notes = stage.notes,
            .notesLink = stage.notesLink,
            .primary = "Install",
            .secondary = "Later"};
  }
  UpdateWindowContent operator()(const Downloading& stage) const {
    return {
        .title = "Downloading Klarvik " + stage.version + "…",
        .detail = _formatting.byteText(stage.received) + " of " + _formatting.byteText(stage.total),
        .progress = static_cast<double>(stage.received) / static_cast<double>(stage.total),
        .secondary = "Cancel"};
  }
  UpdateWindowContent operator()(const Verifying& stage) const {
    return {.title = "Checking Klarvik " + stage.version + "…",
            .detail = "Only what the makers of Klarvik have signed is accepted.",
            .progress = UpdateWindowContent::barWithoutEnd,
            .secondary = "Cancel"};
  }
  UpdateWindowContent operator()(const Delivered& stage) const {
    return {.title = "Klarvik " + stage.version + " is ready to install",
            .detail = stage.fileName + " is in your Downloads folder.",
            .primary = "Open Installer",
            .secondary = "Done"};
  }
  UpdateWindowContent operator()(const UpToDate&) const {
    return {.title = "Klarvik is up to date",
            .detail = _running + " is the newest version.",
            .secondary = "OK"};
  }
  UpdateWindowContent operator()(const Failed& stage) const {
    const bool isAboutTheFeed = stage.error.code == updater_code::feedNotUsable;
    return {
        .title = isAboutTheFeed ? "Could not check for updates" : "The update cannot be installed",
        .detail = updateErrorText(stage.error),
        .secondary = "OK"};
  }

 private:
  const std::string& _running;
  const Formatting& _formatting;
};

}  // namespace

UpdateWindowContent updateWindowContent(const UpdateStage& stage, const std::string& running,
                                        const Formatting& formatting) {
  return std::visit(Writer(running, formatting), stage);
}

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
