#include "shell/updates/update_window_model.h"

#include "platform/application_info.h"
#include "platform/desktop_services.h"
#include "platform/formatting.h"
#include "state/set_if_changed.h"
#include "state/update_manager.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

using namespace update_stage;

class Writer {
 public:
  Writer(const std::string& running, const Formatting& formatting)
      : _running(running), _formatting(formatting) {}

  UpdateWindowContent operator()(const Hidden&) const { return {}; }
  UpdateWindowContent operator()(const Checking&) const {
    return {.title = translate("Updates", "Checking for updates…").toStdString(),
            .detail = filled(translate("Updates", "You have Klarvik %1."), _running),
            .progress = UpdateWindowContent::barWithoutEnd,
            .secondary = translate("Kit", "Cancel").toStdString()};
  }
  UpdateWindowContent operator()(const Offered& stage) const {
    return {.title = filled(translate("Updates", "Klarvik %1 is available"), stage.version),
            .detail = filled(translate("Updates", "You have %1. The download is %2."), _running,
                             _formatting.byteText(stage.bytes)),
            .notes = stage.notes,
            .notesLink = stage.notesLink,
            .primary = translate("Updates", "Install").toStdString(),
            .secondary = translate("Updates", "Later").toStdString()};
  }
  UpdateWindowContent operator()(const Downloading& stage) const {
    return {.title = filled(translate("Updates", "Downloading Klarvik %1…"), stage.version),
            .detail = filled(translate("Updates", "%1 of %2"), _formatting.byteText(stage.received),
                             _formatting.byteText(stage.total)),
            .progress = static_cast<double>(stage.received) / static_cast<double>(stage.total),
            .secondary = translate("Kit", "Cancel").toStdString()};
  }
  UpdateWindowContent operator()(const Verifying& stage) const {
    return {
        .title = filled(translate("Updates", "Checking Klarvik %1…"), stage.version),
        .detail = translate("Updates", "Only what the makers of Klarvik have signed is accepted.")
                      .toStdString(),
        .progress = UpdateWindowContent::barWithoutEnd,
        .secondary = translate("Kit", "Cancel").toStdString()};
  }
  UpdateWindowContent operator()(const Delivered& stage) const {
    return {
        .title = filled(translate("Updates", "Klarvik %1 is ready to install"), stage.version),
        .detail = filled(translate("Updates", "%1 is in your Downloads folder."), stage.fileName),
        .primary = translate("Updates", "Open Installer").toStdString(),
        .secondary = translate("Updates", "Done").toStdString()};
  }
  UpdateWindowContent operator()(const UpToDate&) const {
    return {.title = translate("Updates", "Klarvik is up to date").toStdString(),
            .detail = filled(translate("Updates", "%1 is the newest version."), _running),
            .secondary = translate("Updates", "OK").toStdString()};
  }
  UpdateWindowContent operator()(const Failed& stage) const {
    const bool isAboutTheFeed = stage.error.code == updater_code::feedNotUsable;
    return {.title = (isAboutTheFeed ? translate("Updates", "Could not check for updates")
                                     : translate("Updates", "The update cannot be installed"))
                         .toStdString(),
            .detail = updateErrorText(stage.error),
            .secondary = translate("Updates", "OK").toStdString()};
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
