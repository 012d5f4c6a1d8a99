#pragma once

#include <optional>

#include "core/deletion_guard.h"
#include "core/removal_outcome.h"
#include "platform/file_attributes.h"
#include "platform/file_system.h"

namespace klarvik {

/// The rules of `DeletionGuard` for one disk: what every removal asks before it touches anything.
/// `named` is the path as it stands after `standardizedPath`, and is what the removal is then
/// given. May be called from any thread.

/// Whether the guard allows a removal by this name, for the user of this disk.
[[nodiscard]] bool mayRemove(const FileSystem& files, const Path& named,
                             const DeletionScope& scope);

/// The same for the place where it really lies, counted from where the home really is.
[[nodiscard]] bool mayRemoveReal(const FileSystem& files, const Path& real,
                                 const DeletionScope& scope);

/// Lets go only the thing that was `shown`: links among the folders above may lead to another one
/// by now, and another one may have come to its name. The place where it really lies is judged by
/// the same rules as the one it is named by. Must not outlive `files`.
[[nodiscard]] ItemCheck itemCheck(const FileSystem& files, const Path& named,
                                  const DeletionScope& scope,
                                  const std::optional<EntryIdentity>& shown);

/// Counts a thing that was not removed, if the reason is that another one stands under its name.
void countIfReplaced(const FileSystem& files, const Path& named,
                     const std::optional<EntryIdentity>& shown, LeftAlone* leftAlone);

/// Removes `path` for good, however it is spelled, if it is still what was `shown`, and if both the
/// place it names and the place it really leads to are allowed. False when it is not all gone,
/// whatever the reason.
[[nodiscard]] bool removeIfAllowed(FileSystem& files, const Path& path, const DeletionScope& scope,
                                   const std::optional<EntryIdentity>& shown,
                                   LeftAlone* leftAlone = nullptr);

}  // namespace klarvik
