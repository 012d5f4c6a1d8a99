#pragma once

#include <dirent.h>

#include <cstddef>
#include <memory>
#include <string_view>

#include "base/posix_io.h"

namespace klarvik {

/// One entry of a directory as it was listed. The name ends with a zero byte.
struct ListedEntry {
  std::string_view name;
  unsigned char type = DT_UNKNOWN;  ///< one of DT_...; not every file system tells
};

/// Lists opened directories, one after the other, through one big buffer.
class DirectoryReader {
 public:
  /// Hands every entry but "." and ".." to `each` until it answers false. An error on the way ends
  /// the list early; false only when nothing at all could be read.
  template <typename Each>
  bool read(int folder, const Each& each) {
    for (bool first = true;; first = false) {
      const ssize_t filled = fill(folder);
      if (filled <= 0) return !(first && filled < 0);
      if (!handOver(static_cast<std::size_t>(filled), each)) return true;
    }
  }

 private:
  static constexpr std::size_t kBufferBytes = std::size_t{64} * 1024;

  ssize_t fill(int folder) {
    return retryOnEintr([&] { return ::getdents64(folder, _buffer.get(), kBufferBytes); });
  }

  template <typename Each>
  bool handOver(std::size_t filled, const Each& each) {
    for (std::size_t at = 0; at < filled;) {
      const auto* entry = reinterpret_cast<const struct dirent64*>(_buffer.get() + at);
      at += entry->d_reclen;
      if (isDotOrDotDot(entry->d_name)) continue;
      if (!each(ListedEntry{entry->d_name, entry->d_type})) return false;
    }
    return true;
  }

  static bool isDotOrDotDot(const char* name) {
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
  }

  std::unique_ptr<std::byte[]> _buffer = std::make_unique_for_overwrite<std::byte[]>(kBufferBytes);
};

}  // namespace klarvik
