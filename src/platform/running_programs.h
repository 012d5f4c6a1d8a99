#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "platform/file_attributes.h"

namespace klarvik {

/// A file without a name, which takes its space until the program that has it open closes it.
struct DeletedOpenFile {
  std::string program;
  FileIdentity file;
  std::int64_t bytes = 0;  ///< allocated on the disk
};

/// What this user's programs are doing right now. Each answer looks anew; any thread.
class RunningPrograms {
 public:
  virtual ~RunningPrograms() = default;

  /// Whether a process of this user is the program of that name: its executable, or the main class
  /// of a Java program.
  [[nodiscard]] virtual bool isRunning(std::string_view program) const = 0;
  /// Whether the application with this identifier runs in a Flatpak or a snap.
  [[nodiscard]] virtual bool isSandboxRunning(std::string_view application) const = 0;
  /// Whether the process that made this link still runs. The link's text ends in the number of the
  /// process, after the name of its machine where it has one: what runs on another machine cannot
  /// be seen, and counts as running. `link` is a path on the machine.
  [[nodiscard]] virtual bool isLockHeld(const Path& link) const = 0;
  /// Whether a process of this user has something open at or below `path`, a path on the machine.
  [[nodiscard]] virtual bool hasOpen(const Path& path) const = 0;
  /// What processes of this user have open that lay on the volume of `folder`, a path on the
  /// machine, and has no name any more: each file once. Waits for no server.
  [[nodiscard]] virtual std::vector<DeletedOpenFile> deletedOpenFiles(const Path& folder) const = 0;
};

}  // namespace klarvik
