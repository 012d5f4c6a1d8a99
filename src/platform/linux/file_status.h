#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <cstdint>
#include <optional>

#include "base/paths.h"
#include "platform/file_attributes.h"

namespace klarvik {

/// Whether a server is asked what has become of an entry on a volume of its own. One that does not
/// answer would be waited for without end.
enum class Waiting { forServer, forNobody };

/// What the system tells of `name` in `folder` without following a link; of `folder` itself when
/// `name` is empty. Nothing when it cannot be asked.
[[nodiscard]] std::optional<struct statx> statusOf(int folder, const char* name,
                                                   Waiting waiting = Waiting::forServer);

/// The mount on which `name` in `folder` lies, or `folder` itself when `name` is empty; of a folder
/// where another volume is mounted, that volume's. A server that does not answer is not waited for.
struct MountOf {
  std::uint64_t number = 0;
  bool isItsRoot = false;  ///< whether the volume is mounted right here

  bool operator==(const MountOf&) const = default;
};
[[nodiscard]] std::optional<MountOf> mountOf(int folder, const char* name);

/// A moment counted from 1970. One that a `Date` cannot hold, before 1678 or after 2261, is the
/// furthest on its side.
[[nodiscard]] Date dateOf(std::int64_t seconds, std::int64_t nanoseconds);

/// Whether both were told of one entry, be it changed in between.
[[nodiscard]] bool isTheSame(const struct statx& now, const struct statx& before);
/// Whether `name` in `folder` still means what the system told of it before.
[[nodiscard]] bool isStill(const struct statx& before, int folder, const char* name);

[[nodiscard]] FileKind kindOf(const struct statx& status);
/// Bytes taken on the disk; a directory takes none.
[[nodiscard]] std::int64_t allocatedBytesOf(const struct statx& status);
[[nodiscard]] FileAttributes attributesOf(const struct statx& status);

// Copies that share their content on the disk ("reflinks", snapshots), on the file systems that
// have such and tell of them. Any thread; waits for the disk alone.

/// Whether the file system that the opened file or folder lies on is one of these.
[[nodiscard]] bool mayShareContent(int file);

/// How many bytes of the opened regular file stay on the disk when it is removed, for others have
/// them too. 0 where the file system does not tell.
[[nodiscard]] std::int64_t sharedBytesOf(int file);

}  // namespace klarvik
