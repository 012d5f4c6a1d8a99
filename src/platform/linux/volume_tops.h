#pragma once

#include <cstdint>
#include <vector>

#include "platform/file_system.h"
#include "platform/linux/mounts.h"

namespace klarvik {

/// The folder from which a disk is counted, and the mount it lies on.
struct RootFolder {
  Path place;  ///< on the machine
  std::uint64_t mount = 0;
};

/// Where the file system of `homeMount` is seen at or below `root`: machine paths. A mount that
/// shows a part of what another one shows is left out. Only "/" itself may be another file system
/// above one of them: to open a path through a server that does not answer would never end. Empty
/// when `mounts` lacks that mount.
[[nodiscard]] VolumeTops volumeTopsFrom(const std::vector<MountPoint>& mounts,
                                        const RootFolder& root, std::uint64_t homeMount);

}  // namespace klarvik
