#include "platform/linux/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <thread>

namespace klarvik {

std::optional<FileLock> FileLock::take(const Path& file, std::chrono::milliseconds patience) {
  using Clock = std::chrono::steady_clock;
  UniqueFd fd{::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)};
  if (!fd) return std::nullopt;
  const Clock::time_point end = Clock::now() + patience;
  while (::flock(fd.get(), LOCK_EX | LOCK_NB) != 0) {
    const bool worthWaiting = errno == EWOULDBLOCK || errno == EINTR;
    if (!worthWaiting || Clock::now() >= end) return std::nullopt;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return FileLock(std::move(fd));
}

}  // namespace klarvik
