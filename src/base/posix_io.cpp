#include "base/posix_io.h"

#include <array>

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

}  // namespace klarvik
