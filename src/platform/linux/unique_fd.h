#pragma once

#include <unistd.h>

#include <utility>

namespace klarvik {

/// Owns one file descriptor and closes it. Holds -1 when there is none.
class UniqueFd {
 public:
  UniqueFd() = default;
  explicit UniqueFd(int fd) : _fd(fd) {}
  UniqueFd(UniqueFd&& other) noexcept : _fd(other.release()) {}
  UniqueFd& operator=(UniqueFd&& other) noexcept {
    reset(other.release());
    return *this;
  }
  UniqueFd(const UniqueFd&) = delete;
  UniqueFd& operator=(const UniqueFd&) = delete;
  ~UniqueFd() { reset(); }

  [[nodiscard]] int get() const { return _fd; }
  explicit operator bool() const { return _fd >= 0; }
  [[nodiscard]] int release() { return std::exchange(_fd, -1); }
  void reset(int fd = -1) {
    const int old = std::exchange(_fd, fd);
    if (old >= 0 && old != fd) ::close(old);
  }

 private:
  int _fd = -1;
};

}  // namespace klarvik
