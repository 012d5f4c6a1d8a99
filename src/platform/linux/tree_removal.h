#pragma once

#include "platform/linux/parent_handle.h"

namespace klarvik {

/// Removes for good the item behind an opened parent, and all it holds, as `FileSystem::remove`
/// promises. True only when nothing of it is left. May be called from any thread.
bool removeTree(const ParentHandle& item);

}  // namespace klarvik
