#pragma once

#include <stop_token>
#include <string>
#include <vector>

#include "places/tool.h"

namespace klarvik {

class ToolRunner;

// The few commands that are run with the rights of root, by the system's own program for that,
// which has the desktop ask for the password. Klarvik itself never has these rights. Each call runs
// programs and waits for them; any thread.

/// Whether that program is there.
[[nodiscard]] bool canRunAsRoot(ToolRunner& tools, const std::stop_token& stop);

/// All that is started for `tool`, whose `asRoot` is not empty: constants, and no shell.
[[nodiscard]] std::vector<std::string> rootCommand(const CleaningTool& tool);

struct RootRun {
  enum class End {
    done,
    failed,      ///< with `status`
    dismissed,   ///< the user gave no password: nothing was run
    notAllowed,  ///< it was wrong, or the system refuses anyhow: nothing was run
    noAgent,     ///< no program of the desktop could ask for it: nothing was run
    noService,   ///< the system's service that decides does not answer: nothing was run
    notFound,    ///< the command is not there: nothing was run
    notThere,    ///< the program that runs it could not be started
    killed,      ///< by the signal `status`
    leftAlone,   ///< it took too long, or was stopped, and may go on by itself
  };

  End end = End::notThere;
  int status = 0;
  std::string output{};  ///< all that was printed, errors at the end; bytes of any kind
  bool isCut = false;    ///< more was printed

  bool operator==(const RootRun&) const = default;
};

/// Runs the command of `tool`, once the user has agreed to it.
[[nodiscard]] RootRun runAsRoot(ToolRunner& tools, const CleaningTool& tool,
                                const std::stop_token& stop);

}  // namespace klarvik
