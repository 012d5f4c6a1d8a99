#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "platform/command_runners.h"
#include "platform/user_folders.h"

namespace klarvik {

/// Runs command lines through `/bin/zsh` where there is one, else `/bin/sh`. The command reads
/// nothing, and inherits the environment and the working directory but no open file, no blocked
/// signal and no signal handling.
///
/// Standard error goes to a pipe that nobody reads.
class ShellCommandRunner final : public CommandRunner {
 public:
  [[nodiscard]] std::optional<std::string> run(const std::string& commandLine) override;
};

/// Runs the tools that are installed on one disk. May be used from any thread.
///
/// A tool is looked up in a fixed list of folders, and never in those of the user's PATH: first the
/// system's, then the folders of the home into which tools install themselves. It is taken only if
/// the file that it really is, the folder that this lies in, and the folder where it was found
/// belong to root or to the user and cannot be written by everybody; and if what is found in a
/// system folder really lies in the system ("/usr", "/opt", "/snap"), and what is found in the home
/// in either.
///
/// It runs in the home, with that list for its PATH, in English, reads nothing, has no terminal
/// that it could ask, and leads a process group of its own, which is ended as a whole. It is asked
/// to end first, and made to shortly after. Where the disk is the machine's it has the user's
/// environment, except what would send it to another machine; on any other disk it has nothing of
/// it.
class SystemTools final : public ToolRunner {
 public:
  /// `root` is where the logical "/" lies on the machine.
  SystemTools(const Path& root, const UserFolders& folders);

  [[nodiscard]] ToolResult run(std::span<const std::string> command,
                               const ToolLimits& limits) override;

 private:
  [[nodiscard]] std::optional<Path> find(std::string_view name) const;
  [[nodiscard]] bool mayLeadTo(const Path& folder, const Path& file) const;

  Path _root;
  Path _home;
  std::vector<Path> _folders;  ///< on the machine, like all the paths here
  std::vector<Path> _trees;    ///< into which a link of a system folder may lead
  std::vector<std::string> _environment;
};

}  // namespace klarvik
