#include "platform/linux/read_to_end.h"

#include <unistd.h>

#include <array>

#include "platform/linux/uninterrupted.h"

namespace klarvik {

std::optional<std::string> readToEnd(int file, std::size_t most) {
  std::string text;
  std::array<char, 4096> buffer;
  while (text.size() <= most) {
    const ssize_t length =
        uninterrupted([&] { return ::read(file, buffer.data(), buffer.size()); });
    if (length < 0) return std::nullopt;
    if (length == 0) return text;
    text.append(buffer.data(), static_cast<std::size_t>(length));
  }
  return std::nullopt;
}

}  // namespace klarvik
