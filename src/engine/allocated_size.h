#pragma once

#include <cstdint>

#include "platform/file_system.h"

namespace klarvik {

/// The size of a thing in a Smart Scan: bytes allocated on the disk, hidden files and the contents
/// of packages inside it left out, links not followed. 0 for a link and for what cannot be read; a
/// plain file counts its own allocation. May be called from any thread; takes as long as the tree
/// is large.
[[nodiscard]] std::int64_t allocatedSize(const FileSystem& files, const Path& path);

}  // namespace klarvik
