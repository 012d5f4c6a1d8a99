#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/path.h"

namespace klarvik {

class FileSystem;

/// All that a regular file holds; nothing where it cannot be read to its end, or holds more than
/// `mostBytes`. Any thread.
[[nodiscard]] std::optional<std::string> textOfFile(const FileSystem& files, const Path& path,
                                                    std::size_t mostBytes);

}  // namespace klarvik
