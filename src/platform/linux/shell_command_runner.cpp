#include "platform/linux/shell_command_runner.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <limits>

#include "base/posix_io.h"

namespace klarvik {
namespace {

constexpr int outputCapacity = 1024 * 1024;

struct Pipe {
  UniqueFd reading;
  UniqueFd writing;
};

std::optional<Pipe> makePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return std::nullopt;
  return Pipe{UniqueFd(ends[0]), UniqueFd(ends[1])};
}

const char* shell() {
  constexpr const char* preferred = "/bin/zsh";
  return ::access(preferred, X_OK) == 0 ? preferred : "/bin/sh";
}

class SpawnFiles {
 public:
  SpawnFiles(int output, int errors) {
    ::posix_spawn_file_actions_init(&_actions);
    ::posix_spawn_file_actions_adddup2(&_actions, output, STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&_actions, errors, STDERR_FILENO);
    ::posix_spawn_file_actions_addopen(&_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(&_actions, STDERR_FILENO + 1);
  }
  ~SpawnFiles() { ::posix_spawn_file_actions_destroy(&_actions); }
  SpawnFiles(const SpawnFiles&) = delete;
  SpawnFiles& operator=(const SpawnFiles&) = delete;
  [[nodiscard]] const ::posix_spawn_file_actions_t* get() const { return &_actions; }

 private:
  ::posix_spawn_file_actions_t _actions{};
};

class SpawnSignals {
 public:
  SpawnSignals() {
    ::sigset_t all;
    ::sigset_t none;
    ::sigfillset(&all);
    ::sigemptyset(&none);
    ::posix_spawnattr_init(&_attributes);
    ::posix_spawnattr_setflags(&_attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    ::posix_spawnattr_setsigdefault(&_attributes, &all);
    ::posix_spawnattr_setsigmask(&_attributes, &none);
  }
  ~SpawnSignals() { ::posix_spawnattr_destroy(&_attributes); }
  SpawnSignals(const SpawnSignals&) = delete;
  SpawnSignals& operator=(const SpawnSignals&) = delete;
  [[nodiscard]] const ::posix_spawnattr_t* get() const { return &_attributes; }

 private:
  ::posix_spawnattr_t _attributes{};
};

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
