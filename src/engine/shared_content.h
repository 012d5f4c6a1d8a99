#pragma once

#include <cstdint>
#include <stop_token>

#include "platform/path.h"

namespace klarvik {

class FileSystem;

/// How many bytes of the thing at `path` stay on the disk when it goes, because copies elsewhere
/// have the same content. Only large files are asked, and files that share content with each other
/// count as well, so it is no exact figure; 0 where the file system does not tell, at no cost. May
/// be called from any thread; ends early at a stop, with what it has.
[[nodiscard]] std::int64_t sharedBytes(const FileSystem& files, const Path& path,
                                       const std::stop_token& stop);

}  // namespace klarvik
