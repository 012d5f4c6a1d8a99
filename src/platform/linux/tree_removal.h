#pragma once

#include <sys/stat.h>

#include "platform/linux/parent_handle.h"

namespace klarvik {

/// Removes for good the item behind an opened parent, and all it holds, as `FileSystem::remove`
/// promises. `seen` is what the system told of it before: what has come to its name since stays.
/// True only when nothing of it is left. May be called from any thread.
///
/// A file has a name of its own for a moment, "NAME.klarvik-removal-1a2b3c4d", and keeps it when
/// the process is killed in that moment.
bool removeTree(const ParentHandle& item, const struct statx& seen);

}  // namespace klarvik
