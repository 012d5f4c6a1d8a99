#pragma once

#include <sys/stat.h>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "platform/file_system.h"
#include "platform/volume.h"

namespace klarvik {

/// One line of what is mounted where.
struct MountPoint {
  std::uint64_t id = 0;  ///< what `statx` calls `stx_mnt_id`
  Path place;            ///< on the machine
  /// The same for all mounts of one file system; 0 where the line does not tell.
  std::uint64_t volume = 0;
  Path top{};     ///< which folder of the file system is mounted, counted from its own top
  Path source{};  ///< what was mounted: a device of the machine, or any word where there is none
  /// Whether its kind of file system keeps files on this machine, so that no server has to answer.
  bool isLocal = false;
  /// Whether something is mounted here, or in here, once somebody enters ("autofs").
  bool mountsOnEntry = false;
};

/// What is mounted just now, as this process sees it. Nothing when the system does not tell.
[[nodiscard]] std::optional<std::vector<MountPoint>> readMountTable();
/// The same out of the text of a `mountinfo`; lines that are not of its form are left out.
[[nodiscard]] std::vector<MountPoint> mountTableFrom(std::string_view text);

/// Of one entry of a folder: a link is not followed.
struct MountOfEntry {
  std::uint64_t id = 0;
  bool isDirectory = false;
  bool isMountPoint = false;
};

/// Of what the system has told of an entry. Nothing when it does not tell its mount.
[[nodiscard]] std::optional<MountOfEntry> mountOf(const struct statx& entry);
/// Asks for the entry `name` of the opened `folder`, or for `folder` itself when `name` is empty.
/// Nothing when there is none, or when the system does not tell its mount.
[[nodiscard]] std::optional<MountOfEntry> mountOfEntry(int folder, const char* name);

/// The mounted file system that a folder of this machine lies on.
class MountedVolume final : public Volume {
 public:
  /// `folder` is a path on the machine.
  explicit MountedVolume(Path folder);

  [[nodiscard]] std::optional<std::int64_t> totalBytes() const override;
  [[nodiscard]] std::optional<std::int64_t> availableBytes() const override;
  [[nodiscard]] std::optional<std::int64_t> keptForRootBytes() const override;
  [[nodiscard]] std::optional<std::string> name() const override;

 private:
  Path _folder;
};

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
