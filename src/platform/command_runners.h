#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <stop_token>
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

/// How long a tool may take and how much it may say.
struct ToolLimits {
  std::chrono::milliseconds time = std::chrono::seconds(10);
  std::size_t output = 1024UL * 1024;  ///< bytes kept of each of the two outputs
  std::stop_token stop{};              ///< ends the tool before its time
};

/// How a run of a tool ended, and what it printed.
struct ToolResult {
  enum class End {
    exited,      ///< by itself, with `status`
    signalled,   ///< by the signal `status`, which did not come from here
    timedOut,    ///< it had to be ended
    stopped,     ///< it was ended because of the stop request
    notStarted,  ///< it is not there, is not trusted, or the system refused to start it
  };

  End end = End::notStarted;
  int status = 0;
  std::string output{};  ///< standard output; bytes of any kind
  std::string errors{};  ///< standard error
  bool isCut = false;    ///< it printed more than was kept

  /// It ended well, and all that it printed is here.
  [[nodiscard]] bool isWhole() const { return end == End::exited && status == 0 && !isCut; }
};

/// Runs a program of somebody else's by its name and its arguments, without a shell, and waits for
/// its end. Any thread.
class ToolRunner {
 public:
  virtual ~ToolRunner() = default;
  /// `command` is the name of the tool, without a slash, and its arguments. An empty one, and one
  /// with a NUL in it, is not started.
  [[nodiscard]] virtual ToolResult run(std::span<const std::string> command,
                                       const ToolLimits& limits) = 0;
};

}  // namespace klarvik
