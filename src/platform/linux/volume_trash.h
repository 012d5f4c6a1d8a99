#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/linux/trash_folder.h"

namespace klarvik {

/// The user's Trash at the top of a volume other than the home's.
struct VolumeTrash {
  TrashFolder trash;
  Path folder;  ///< counted from the top of the volume; holds `files/`
};

/// Opens it, and makes it where it is missing: in the `.Trash` that all users of the volume share,
/// else as `.Trash-$uid`. `top` is the opened top of the volume and `mount` its mount. A shared
/// folder that is a link or lacks the sticky bit is passed over, and so is a folder that belongs to
/// someone else. Nothing when there can be no Trash.
[[nodiscard]] std::optional<VolumeTrash> openVolumeTrash(int top, std::uint64_t mount);

/// Those that are there already; nothing is made.
[[nodiscard]] std::vector<VolumeTrash> volumeTrashesAt(int top, std::uint64_t mount);

/// The folder at whose top the Trash would be that has `item` directly in its `files/`. Goes by the
/// text alone. Nothing when `item` is in no such place.
[[nodiscard]] std::optional<Path> topOfVolumeTrash(const Path& item);

/// Whether a component of `item` is named like a user's own Trash on a volume.
[[nodiscard]] bool passesThroughVolumeTrash(const Path& item);

}  // namespace klarvik
