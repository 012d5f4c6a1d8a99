#include "base/posix_io.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>

namespace klarvik {

std::optional<std::string> readToEnd(int file, std::size_t most) {
  std::string text;
  std::array<char, 4096> buffer;
  while (text.size() <= most) {
    const ssize_t length = retryOnEintr([&] { return ::read(file, buffer.data(), buffer.size()); });
    if (length < 0) return std::nullopt;
    if (length == 0) return text;
    text.append(buffer.data(), static_cast<std::size_t>(length));
  }
  return std::nullopt;
}

bool writeAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = retryOnEintr([&] { return ::write(file, bytes.data(), bytes.size()); });
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

UniqueFd openFolderHandle(int parent, const char* name, LinkInPlace link) {
  const int flags =
      O_PATH | O_DIRECTORY | O_CLOEXEC | (link == LinkInPlace::refused ? O_NOFOLLOW : 0);
  return UniqueFd(retryOnEintr([&] { return ::openat(parent, name, flags); }));
}

UniqueFd openFolderHandleCreating(int parent, const char* name, LinkInPlace link) {
  UniqueFd folder = openFolderHandle(parent, name, link);
  if (folder || errno != ENOENT) return folder;
  constexpr mode_t forTheUserAlone = 0700;
  const auto make = [&] { return ::mkdirat(parent, name, forTheUserAlone); };
  if (retryOnEintr(make) != 0 && errno != EEXIST) return {};
  return openFolderHandle(parent, name, link);
}

}  // namespace klarvik
