#pragma once

#include <unistd.h>
#include <cerrno>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
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

/// Makes a system call again for as long as signals interrupt it.
template <typename Call>
auto retryOnEintr(const Call& call) {
  for (;;) {
    const auto result = call();
    if (result != -1 || errno != EINTR) return result;
  }
}

/// All that can still be read from the opened file. Nothing when reading fails or when it would be
/// more than `most` bytes.
[[nodiscard]] std::optional<std::string> readToEnd(int file, std::size_t most);

/// Writes all of `bytes` to the opened file. False when that failed; the file may have taken some
/// of them then.
[[nodiscard]] bool writeAll(int file, std::string_view bytes);

/// What becomes of a link that stands where the folder is expected.
enum class LinkInPlace { refused, followed };

/// The folder `name` in `parent`, opened with `O_PATH`: good for every `...at` call, but it cannot
/// be listed or synced. None when there is no such folder; `errno` tells why.
[[nodiscard]] UniqueFd openFolderHandle(int parent, const char* name,
                                        LinkInPlace link = LinkInPlace::refused);

/// The same, but makes the folder where it is missing, for the user alone.
[[nodiscard]] UniqueFd openFolderHandleCreating(int parent, const char* name,
                                                LinkInPlace link = LinkInPlace::refused);

}  // namespace klarvik
