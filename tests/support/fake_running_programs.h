#pragma once

#include <set>
#include <string>

#include "base/paths.h"
#include "platform/running_programs.h"

namespace klarvik {

/// Says of the programs that a test names that they run, and of the paths that they are open.
class FakeRunningPrograms final : public RunningPrograms {
 public:
  [[nodiscard]] bool isRunning(std::string_view program) const override {
    return running.contains(std::string(program));
  }
  [[nodiscard]] bool isSandboxRunning(std::string_view application) const override {
    return running.contains(std::string(application));
  }
  [[nodiscard]] bool isLockHeld(const Path& link) const override {
    return running.contains(link.filename().native());
  }
  [[nodiscard]] bool hasOpen(const Path& path) const override { return open.contains(path); }
  [[nodiscard]] std::vector<DeletedOpenFile> deletedOpenFiles(const Path&) const override {
    return deleted;
  }

  std::set<std::string> running;
  std::set<Path> open;
  std::vector<DeletedOpenFile> deleted;
};

}  // namespace klarvik
