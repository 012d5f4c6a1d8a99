#pragma once

#include "base/paths.h"
#include "platform/running_programs.h"

namespace klarvik {

/// The processes of this user, as the kernel lists them.
class ProcessTable final : public RunningPrograms {
 public:
  explicit ProcessTable(Path folder = "/proc") : _folder(std::move(folder)) {}

  [[nodiscard]] bool isRunning(std::string_view program) const override;
  [[nodiscard]] bool isSandboxRunning(std::string_view application) const override;
  [[nodiscard]] bool isLockHeld(const Path& link) const override;
  [[nodiscard]] bool hasOpen(const Path& path) const override;
  [[nodiscard]] std::vector<DeletedOpenFile> deletedOpenFiles(const Path& folder) const override;

 private:
  const Path _folder;
};

}  // namespace klarvik
