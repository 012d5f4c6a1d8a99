#pragma once

#include <cstdint>

namespace klarvik {

// Copies that share their content on the disk ("reflinks", snapshots), on the file systems that
// have such and tell of them. Any thread; waits for the disk alone.

/// Whether the file system that the opened file or folder lies on is one of these.
[[nodiscard]] bool mayShareContent(int file);

/// How many bytes of the opened regular file stay on the disk when it is removed, for others have
/// them too. 0 where the file system does not tell.
[[nodiscard]] std::int64_t sharedBytesOf(int file);

}  // namespace klarvik
