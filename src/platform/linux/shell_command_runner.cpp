#include "platform/linux/shell_command_runner.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <limits>

#include "base/posix_io.h"
#include "platform/linux/child_spawn.h"

namespace klarvik {
namespace {

constexpr int outputCapacity = 1024 * 1024;

const char* shell() {
  constexpr const char* preferred = "/bin/zsh";
  return ::access(preferred, X_OK) == 0 ? preferred : "/bin/sh";
}

std::optional<::pid_t> startShell(std::string commandLine, int output, int errors) {
  const SpawnFiles files(output, errors);
  const SpawnSignals signals;
  std::string path = shell();
  std::string option = "-c";
  const std::array<char*, 4> arguments{path.data(), option.data(), commandLine.data(), nullptr};
  ::pid_t child = 0;
  const int failure =
      ::posix_spawn(&child, path.c_str(), files.get(), signals.get(), arguments.data(), environ);
  return failure == 0 ? std::optional(child) : std::nullopt;
}

}  // namespace

std::optional<std::string> ShellCommandRunner::run(const std::string& commandLine) {
  // The shell would see such a line only as far as its NUL, which is another command than this one.
  if (commandLine.find('\0') != std::string::npos) return std::nullopt;
  std::optional<Pipe> output = makePipe();
  std::optional<Pipe> errors = makePipe();
  if (!output || !errors) return std::nullopt;
  ::fcntl(output->writing.get(), F_SETPIPE_SZ, outputCapacity);

  const auto child = startShell(commandLine, output->writing.get(), errors->writing.get());
  if (!child) return std::nullopt;
  output->writing.reset();
  errors->writing.reset();
  retryOnEintr([&] { return ::waitpid(*child, nullptr, 0); });
  return readToEnd(output->reading.get(), std::numeric_limits<std::size_t>::max());
}

}  // namespace klarvik
