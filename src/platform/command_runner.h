#pragma once

#include <optional>
#include <string>

namespace klarvik {

/// Runs one command line through the user's shell and waits for its end. May be called from any
/// thread.
class CommandRunner {
 public:
  virtual ~CommandRunner() = default;
  /// The bytes of standard output, whatever the exit status; nothing when the shell could not be
  /// started. Output is read only after the command has ended, so a command that writes more than
  /// the pipe holds (1 MiB) never comes back.
  [[nodiscard]] virtual std::optional<std::string> run(const std::string& commandLine) = 0;
};

}  // namespace klarvik
