#pragma once

#include <optional>

#include "platform/file_attributes.h"
#include "platform/path.h"

namespace klarvik {

class FileSystem;

/// What tells an entry of the disk from another one that has come to the same name since. The file
/// system may give the number of a file that is gone to a new one, so the date counts as well. What
/// is written into an entry, or changed about it, leaves it the one it was.
struct EntryIdentity {
  FileIdentity file;
  std::optional<Date> created;  ///< nothing where the file system does not tell
  FileKind kind = FileKind::other;

  bool operator==(const EntryIdentity&) const = default;
};

/// Nothing where files have no identity.
[[nodiscard]] std::optional<EntryIdentity> entryIdentity(const FileAttributes& attributes);

/// Of what stands at `path` itself: links above it are followed, one in its place is not. Nothing
/// when it is gone, or where files have no identity. May be called from any thread.
[[nodiscard]] std::optional<EntryIdentity> entryIdentity(const FileSystem& files, const Path& path);

}  // namespace klarvik
