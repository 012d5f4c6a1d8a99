#include "shell/updates/update_window_content.h"

#include "platform/formatting.h"
#include "state/update_error_text.h"

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

}  // namespace klarvik
