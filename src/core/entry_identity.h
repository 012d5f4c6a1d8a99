#pragma once

#include <optional>

#include "platform/file_attributes.h"
#include "platform/path.h"

namespace klarvik {

class FileSystem;

/// What tells an entry of the disk from another one that has come to the same name since. The file
/// system may give the number of a file that is gone to a new one, so the date counts as well.
struct EntryIdentity {
  FileIdentity file;
  std::optional<Date> created;  ///< nothing where the file system does not tell

  bool operator==(const EntryIdentity&) const = default;
};

/// Of the entry itself: no link is followed. Nothing when it is gone, or where files have no
/// identity. May be called from any thread.
[[nodiscard]] std::optional<EntryIdentity> entryIdentity(const FileSystem& files, const Path& path);

}  // namespace klarvik
