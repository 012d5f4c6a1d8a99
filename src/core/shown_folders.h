#pragma once

#include <vector>

#include "base/paths.h"
#include "platform/user_folders.h"

namespace klarvik {

class FileSystem;

/// The folders that the user sees, as the disk's layout names them: always the same names on a
/// Mac's disk, and those that the user's desktop has set on a Linux disk. Any thread.
[[nodiscard]] UserFolders shownFolders(const FileSystem& files);

/// Of `folders`, in their order, those that are neither the home itself nor at or below one before
/// them: what is walked once must not be walked twice.
[[nodiscard]] std::vector<Path> withoutNested(const std::vector<Path>& folders, const Path& home);

}  // namespace klarvik
