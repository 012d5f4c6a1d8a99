#pragma once

#include <functional>
#include <optional>

#include "platform/updater.h"

namespace klarvik {

/// Checks nothing: a test is its server and its user. Main thread only, like the real one.
class ScriptedUpdater final : public Updater {
 public:
  void start(UpdaterDelegate& toBeTold) override { delegate = &toBeTold; }
  void stop() override { delegate = nullptr; }
  [[nodiscard]] bool canCheckForUpdates() const override { return canCheck; }
  void checkForUpdates() override { ++checks; }
  [[nodiscard]] std::optional<Date> lastUpdateCheckDate() const override { return lastCheck; }
  [[nodiscard]] bool automaticallyChecksForUpdates() const override { return isAutomatic; }
  void setAutomaticallyChecksForUpdates(bool checksByItself) override {
    if (canStore) isAutomatic = checksByItself;
  }
  void present(std::function<void(const UpdateStage&)> toShow) override { show = toShow; }
  void install() override { ++installs; }
  void dismiss() override {
    ++dismissals;
    if (show) show(update_stage::Hidden{});
  }

  bool canCheck = true;
  bool isAutomatic = true;
  bool canStore = true;
  std::optional<Date> lastCheck;
  UpdaterDelegate* delegate = nullptr;  ///< null: not started
  std::function<void(const UpdateStage&)> show;
  int checks = 0;
  int installs = 0;
  int dismissals = 0;
};

}  // namespace klarvik
