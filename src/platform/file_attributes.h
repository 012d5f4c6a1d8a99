#pragma once

#include <compare>
#include <cstdint>
#include <optional>

#include "base/paths.h"
#include "platform/clock.h"

namespace klarvik {

class FileSystem;

enum class FileKind { directory, regular, symbolicLink, other };

/// What makes a file or folder the same one under all of its names.
struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;

  auto operator<=>(const FileIdentity&) const = default;
};

/// What one `statx` tells of an entry itself: a symbolic link is never followed.
struct FileAttributes {
  FileKind kind = FileKind::other;
  std::int64_t allocatedBytes = 0;  ///< bytes taken on the disk; 0 for a directory
  std::int64_t folderBytes = 0;     ///< what a directory's own list of names takes; else 0
  std::int64_t logicalBytes = 0;    ///< length of the content
  std::optional<Date> modified;
  std::optional<Date> accessed;
  std::optional<Date> created;
  std::optional<FileIdentity> identity = std::nullopt;  ///< nothing where files have none
  std::uint64_t names = 1;    ///< how many names the disk keeps for the file
  bool isOwn = true;          ///< belongs to the user whose program this is
  bool isReadOnly = false;    ///< even its owner may not change it as it stands
  bool isMountPoint = false;  ///< another volume begins here
};

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
