#include "platform/linux/command_runners.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

#include "base/posix_io.h"

namespace klarvik {
namespace {

struct Pipe {
  UniqueFd reading;
  UniqueFd writing;
};

/// Not inherited by any program that is started.
std::optional<Pipe> makePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return std::nullopt;
  return Pipe{UniqueFd(ends[0]), UniqueFd(ends[1])};
}

/// What a started program has open: the two outputs, and an empty input.
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

  void startIn(const char* folder) { ::posix_spawn_file_actions_addchdir_np(&_actions, folder); }

 private:
  ::posix_spawn_file_actions_t _actions{};
};

/// A started program inherits no blocked signal and no signal handling.
class SpawnSignals {
 public:
  /// `more` are further flags of posix_spawn.
  explicit SpawnSignals(short more = 0) {
    ::sigset_t all;
    ::sigset_t none;
    ::sigfillset(&all);
    ::sigemptyset(&none);
    ::posix_spawnattr_init(&_attributes);
    ::posix_spawnattr_setflags(
        &_attributes, static_cast<short>(POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | more));
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

namespace {

using Moment = std::chrono::steady_clock::time_point;
using End = ToolResult::End;

constexpr std::chrono::seconds timeToEnd{2};      ///< after it was asked to
constexpr std::chrono::seconds timeToBeEnded{5};  ///< after it was made to

constexpr std::array<std::string_view, 8> systemFolders{
    "usr/local/bin", "usr/bin",          "bin",      "usr/local/sbin", "usr/sbin",
    "sbin",          "usr/local/go/bin", "snap/bin",
};

/// Into which a link of a system folder may lead.
constexpr std::array<std::string_view, 6> systemTrees{"usr", "bin", "sbin", "lib", "opt", "snap"};

constexpr std::array<std::string_view, 4> homeFolders{
    ".local/bin",
    ".cargo/bin",
    "miniconda3/bin",
    "anaconda3/bin",
};

/// What would have a tool act on another machine, or load code that is not its own.
constexpr std::array<std::string_view, 7> droppedVariables{
    "DOCKER_HOST",          "DOCKER_CONTEXT", "BUILDX_BUILDER",  "CONTAINER_HOST",
    "CONTAINER_CONNECTION", "LD_PRELOAD",     "LD_LIBRARY_PATH",
};

void setVariable(std::vector<std::string>& environment, std::string_view name,
                 std::string_view value) {
  const std::string start = std::string(name) + '=';
  std::erase_if(environment, [&](const std::string& each) { return each.starts_with(start); });
  environment.push_back(start + std::string(value));
}

std::vector<std::string> inheritedEnvironment() {
  std::vector<std::string> environment;
  for (char** each = environ; each != nullptr && *each != nullptr; ++each) {
    environment.emplace_back(*each);
  }
  std::erase_if(environment, [](const std::string& each) {
    return std::ranges::any_of(droppedVariables, [&](std::string_view name) {
      return each.starts_with(std::string(name) + '=');
    });
  });
  return environment;
}

/// Nobody but root and the user can have put something into it.
bool isOwn(const Path& path, ::mode_t kind) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 && (status.st_mode & S_IFMT) == kind &&
         (status.st_uid == 0 || status.st_uid == ::geteuid()) && (status.st_mode & S_IWOTH) == 0;
}

/// The pointers that a program is started with.
std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

int milliseconds(Moment until) {
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(until - std::chrono::steady_clock::now());
  return static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, 60'000));
}

/// One of the two outputs of a running tool.
struct Output {
  UniqueFd reading;
  std::string kept{};
};

/// A started program, from its start to the moment when nothing of it is left to wait for.
class RunningTool {
 public:
  RunningTool(::pid_t child, Pipe output, Pipe errors, const ToolLimits& limits)
      : _child(child),
        _limits(limits),
        _process(static_cast<int>(::syscall(SYS_pidfd_open, child, 0))),
        _stopped(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
        _outputs{Output{std::move(output.reading)}, Output{std::move(errors.reading)}},
        _onStop(limits.stop, [this] { ::eventfd_write(_stopped.get(), 1); }) {
    for (const Output& each : _outputs) ::fcntl(each.reading.get(), F_SETFL, O_NONBLOCK);
  }

  ToolResult waitForEnd() {
    const Moment end = std::chrono::steady_clock::now() + _limits.time;
    if (!_process) {
      finish(End::notStarted);
    } else if (!goOn(end, /*untilStopped=*/true)) {
      finish(_limits.stop.stop_requested() ? End::stopped : End::timedOut);
    } else {
      // What the tool has started may live on and hold the outputs open. What it has printed is
      // there by now.
      for (Output& each : _outputs) read(each);
      reap();
    }
    _result.output = std::move(_outputs[0].kept);
    _result.errors = std::move(_outputs[1].kept);
    return std::move(_result);
  }

 private:
  /// Takes what it prints until it has ended. False when the time is over before, or at a stop.
  bool goOn(Moment end, bool untilStopped) {
    for (;;) {
      std::array<::pollfd, 4> watched{{
          {.fd = _process.get(), .events = POLLIN, .revents = 0},
          {.fd = untilStopped ? _stopped.get() : -1, .events = POLLIN, .revents = 0},
          {.fd = _outputs[0].reading.get(), .events = POLLIN, .revents = 0},
          {.fd = _outputs[1].reading.get(), .events = POLLIN, .revents = 0},
      }};
      const int ready =
          retryOnEintr([&] { return ::poll(watched.data(), watched.size(), milliseconds(end)); });
      if (ready < 0) return false;
      if (watched[0].revents != 0) return true;
      if (watched[1].revents != 0) return false;
      for (std::size_t each = 0; each < _outputs.size(); ++each) {
        if (watched[each + 2].revents != 0) read(_outputs[each]);
      }
      // Output without an end must not keep the time from being looked at.
      if (std::chrono::steady_clock::now() >= end) return false;
    }
  }

  /// What is there now, and no more than a pipe holds. What is too much is thrown away.
  void read(Output& output) {
    std::array<char, 65536> buffer{};
    for (int turn = 0; turn < 16; ++turn) {
      const auto count =
          retryOnEintr([&] { return ::read(output.reading.get(), buffer.data(), buffer.size()); });
      if (count == 0) output.reading.reset();
      if (count <= 0) return;
      const auto bytes = static_cast<std::size_t>(count);
      const std::size_t taken = std::min(bytes, _limits.output - output.kept.size());
      output.kept.append(buffer.data(), taken);
      _result.isCut = _result.isCut || taken < bytes;
    }
  }

  /// Until it is waited for, the number of the process cannot become another's.
  void finish(End why) {
    ::kill(-_child, SIGTERM);
    if (_process) static_cast<void>(goOn(std::chrono::steady_clock::now() + timeToEnd, false));
    ::kill(-_child, SIGKILL);
    // One that the system holds in the middle of a call cannot be ended, nor waited for.
    if (!_process || goOn(std::chrono::steady_clock::now() + timeToBeEnded, false)) reap();
    _result.end = why;
    _result.status = 0;
  }

  void reap() {
    int status = 0;
    if (retryOnEintr([&] { return ::waitpid(_child, &status, 0); }) != _child) return;
    const bool wasKilled = WIFSIGNALED(status);
    _result.end = wasKilled ? End::signalled : End::exited;
    _result.status = wasKilled ? WTERMSIG(status) : WEXITSTATUS(status);
  }

  const ::pid_t _child;
  const ToolLimits& _limits;
  const UniqueFd _process;
  const UniqueFd _stopped;
  std::array<Output, 2> _outputs;
  ToolResult _result;
  std::stop_callback<std::function<void()>> _onStop;
};

}  // namespace

SystemTools::SystemTools(const Path& root, const UserFolders& folders) {
  std::error_code ignored;
  _root = std::filesystem::canonical(root, ignored);
  const auto onDisk = [&](const Path& logical) { return _root / logical.relative_path(); };
  _home = onDisk(folders.home);
  for (const std::string_view folder : systemFolders) _folders.push_back(onDisk(folder));
  for (const std::string_view folder : homeFolders) _folders.push_back(_home / folder);
  _folders.push_back(onDisk(folders.data) / "pnpm");
  for (const std::string_view tree : systemTrees) _trees.push_back(onDisk(tree));

  std::string path;
  for (const Path& folder : _folders) path += (path.empty() ? "" : ":") + folder.native();
  if (_root == "/") {
    _environment = inheritedEnvironment();
  } else {
    setVariable(_environment, "XDG_CACHE_HOME", onDisk(folders.cache).native());
    setVariable(_environment, "XDG_CONFIG_HOME", onDisk(folders.configuration).native());
    setVariable(_environment, "XDG_DATA_HOME", onDisk(folders.data).native());
    setVariable(_environment, "XDG_STATE_HOME", onDisk(folders.state).native());
  }
  setVariable(_environment, "HOME", _home.native());
  setVariable(_environment, "PATH", path);
  setVariable(_environment, "LC_ALL", "C");
  setVariable(_environment, "LANGUAGE", "C");
  setVariable(_environment, "TERM", "dumb");
  setVariable(_environment, "NO_COLOR", "1");
  // A question must not make a tool fetch another version of itself.
  setVariable(_environment, "GOTOOLCHAIN", "local");
  setVariable(_environment, "COREPACK_ENABLE_NETWORK", "0");
}

std::optional<Path> SystemTools::find(std::string_view name) const {
  for (const Path& folder : _folders) {
    const Path tool = folder / name;
    if (::access(tool.c_str(), X_OK) != 0) continue;
    std::error_code failed;
    const Path realFolder = std::filesystem::canonical(folder, failed);
    const Path real = std::filesystem::canonical(tool, failed);
    if (failed) continue;
    if (isOwn(realFolder, S_IFDIR) && isOwn(real.parent_path(), S_IFDIR) && isOwn(real, S_IFREG) &&
        mayLeadTo(folder, real)) {
      return tool;
    }
  }
  return std::nullopt;
}

bool SystemTools::mayLeadTo(const Path& folder, const Path& file) const {
  const auto liesIn = [](const Path& path, const Path& tree) {
    return path.native().starts_with(tree.native() + '/');
  };
  if (liesIn(folder, _home) && liesIn(file, _home)) return true;
  return std::ranges::any_of(_trees, [&](const Path& tree) { return liesIn(file, tree); });
}

ToolResult SystemTools::run(std::span<const std::string> command, const ToolLimits& limits) {
  const bool hasNul = std::ranges::any_of(
      command, [](const std::string& each) { return each.find('\0') != std::string::npos; });
  if (command.empty() || command.front().empty() || hasNul ||
      command.front().find('/') != std::string::npos) {
    return {};
  }
  if (limits.stop.stop_requested()) return {.end = End::stopped};
  const auto tool = find(command.front());
  auto output = makePipe();
  auto errors = makePipe();
  if (!tool || !output || !errors) return {};

  SpawnFiles files(output->writing.get(), errors->writing.get());
  files.startIn(_home.c_str());
  const SpawnSignals signals(POSIX_SPAWN_SETSID);
  std::vector<std::string> arguments(command.begin(), command.end());
  std::vector<std::string> environment = _environment;
  ::pid_t child = 0;
  if (::posix_spawn(&child, tool->c_str(), files.get(), signals.get(), pointersTo(arguments).data(),
                    pointersTo(environment).data()) != 0) {
    return {};
  }
  output->writing.reset();
  errors->writing.reset();
  return RunningTool(child, std::move(*output), std::move(*errors), limits).waitForEnd();
}

}  // namespace klarvik
