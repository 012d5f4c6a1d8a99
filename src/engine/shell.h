#pragma once

#include <string>
#include <string_view>

namespace klarvik {

class CommandRunner;

/// The one way to an outside tool: what the command line prints, without white space at both ends.
/// Empty when it cannot be started, prints nothing or prints what is not UTF-8. Waits for its end,
/// however long that takes.
[[nodiscard]] std::string runShell(CommandRunner& commands, const std::string& commandLine);

/// Whether a text that came from elsewhere may become a part of a command line: it holds nothing
/// that a shell acts on, and cannot be taken for an option. Whoever gets a no must not run
/// anything.
[[nodiscard]] bool isShellSafe(std::string_view text);

}  // namespace klarvik
