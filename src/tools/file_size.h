#pragma once

#include <cstdint>

#include "platform/path.h"

namespace klarvik {

class FileSystem;

// Sizes by the length of the content, in bytes: what the tools show for things that they list. What
// the disk gives for them is another measure, `allocatedSize`. May be called from any thread.

/// Length of one file, or of a link itself. 0 for a folder, and where the path cannot be asked.
[[nodiscard]] std::int64_t fileSize(const FileSystem& files, const Path& path);

/// Sum over everything in a folder, hidden things left out and packages entered. For what cannot be
/// walked, its own `fileSize`.
[[nodiscard]] std::int64_t contentSize(const FileSystem& files, const Path& path);

}  // namespace klarvik
