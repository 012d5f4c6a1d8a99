#pragma once

#include "platform/command_runner.h"

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

}  // namespace klarvik
