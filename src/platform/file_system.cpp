#include "platform/file_system.h"

#include <array>
#include <cstddef>

namespace klarvik {

std::optional<std::string> textOfFile(const FileSystem& files, const Path& path,
                                      std::size_t mostBytes) {
  const auto file = files.openForReading(path);
  if (!file) return std::nullopt;
  std::string text;
  std::array<std::byte, 65'536> buffer;
  while (const auto got = file->read(buffer)) {
    if (*got == 0) return text;
    if (text.size() + *got > mostBytes) return std::nullopt;
    text.append(reinterpret_cast<const char*>(buffer.data()), *got);
  }
  return std::nullopt;
}

}  // namespace klarvik
