#pragma once

#include <optional>
#include <string>

#include "platform/file_system.h"
#include "tools/content_digest.h"

namespace klarvik {

/// As in `DuplicateGroup::hash`; nothing when the file cannot be opened for reading.
inline std::optional<std::string> contentHash(const FileSystem& files, const Path& path) {
  const auto digest = ContentHasher().digest(files.openForReading(path));
  return digest ? std::optional(hexadecimal(*digest)) : std::nullopt;
}

}  // namespace klarvik
