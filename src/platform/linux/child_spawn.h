#pragma once

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <array>
#include <optional>

#include "base/posix_io.h"

namespace klarvik {

struct Pipe {
  UniqueFd reading;
  UniqueFd writing;
};

/// Not inherited by any program that is started.
inline std::optional<Pipe> makePipe() {
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

}  // namespace klarvik
