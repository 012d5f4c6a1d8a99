#pragma once

#include "core/deletion_guard.h"
#include "platform/file_system.h"

namespace klarvik {

/// The rules of `DeletionGuard` for one disk: what every removal asks before it touches anything.
/// `named` is the path as it stands after `standardizedPath`, and is what the removal is then
/// given. May be called from any thread.

/// Whether the guard lets go what is called so, for the user of this disk.
[[nodiscard]] bool mayRemove(const FileSystem& files, const Path& named,
                             const DeletionScope& scope);

/// Links among the folders above may lead an allowed path to a place that is not: the real place is
/// judged by the same rules. Must not outlive `files`.
[[nodiscard]] PlaceCheck placeCheck(const FileSystem& files, const Path& named,
                                    const DeletionScope& scope);

/// Removes `path`, however it is spelled, if both the place it names and the place it really leads
/// to are allowed. False when it is not all gone, whatever the reason.
[[nodiscard]] bool removeIfAllowed(FileSystem& files, const Path& path, const DeletionScope& scope);

}  // namespace klarvik
