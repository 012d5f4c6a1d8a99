#pragma once

#include <chrono>
#include <optional>

#include "base/posix_io.h"
#include "platform/path.h"

namespace klarvik {

/// Keeps other threads and processes out for as long as it lives.
class FileLock {
 public:
  /// Locks `file`, a path on the machine, making it when it is missing. Nothing when it cannot be
  /// made, or when another holds it for longer than `patience`.
  [[nodiscard]] static std::optional<FileLock> take(const Path& file,
                                                    std::chrono::milliseconds patience);

 private:
  explicit FileLock(UniqueFd fd) : _fd(std::move(fd)) {}
  UniqueFd _fd;
};

}  // namespace klarvik
