#include "platform/linux/write_whole.h"

#include <unistd.h>

#include "platform/linux/uninterrupted.h"

namespace klarvik {

bool writeWhole(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written =
        uninterrupted([&] { return ::write(file, bytes.data(), bytes.size()); });
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace klarvik
