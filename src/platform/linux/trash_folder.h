#pragma once

#include <sys/stat.h>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "base/posix_io.h"
#include "platform/clock.h"
#include "platform/linux/parent_handle.h"

namespace klarvik {

/// What a record's name has behind the name of the thing it tells of.
inline constexpr std::string_view kTrashRecordSuffix = ".trashinfo";

/// The name to try for a thing called `name` when `taken` earlier ones were taken already: first
/// its own, then numbered ones, then ones with a random number, so that the thousandth thing of one
/// name finds its place as fast as the tenth. Cut in the middle, before the extension, where a
/// record of that name would be too long for a disk.
[[nodiscard]] std::string trashName(std::string_view name, std::size_t taken);

/// The text of a `.trashinfo`, which tells where a trashed thing was and when it went. `place` is
/// written as percent-encoded bytes, so a name of any bytes stays on its line; `deleted` is written
/// in local time.
[[nodiscard]] std::string trashRecordText(const Path& place, std::time_t deleted);

/// The place that such a text names. Nothing when it is not a whole record: another heading, no
/// place, a broken percent sign or a NUL in it, or a ".." among its components.
[[nodiscard]] std::optional<Path> placeInTrashRecord(std::string_view text);

/// One Trash, held open: a folder with `files/`, where the things are, and `info/`, where each has
/// its record. Neither may be a link. May be used from several threads at once, and other programs
/// may use the same Trash meanwhile.
///
/// The record of a name reserves that name in `files/`. A record is whole and on the
/// disk before it has its name, has its name before its thing comes, and is dropped only after its
/// thing went. A program that is killed, or a machine that loses power, leaves at worst a whole
/// record without a thing.
class TrashFolder {
 public:
  /// Makes `files/` and `info/` in `folder` where they are missing. Nothing when they cannot be
  /// had.
  [[nodiscard]] static std::optional<TrashFolder> openCreating(const UniqueFd& folder);
  /// The same, but makes nothing.
  [[nodiscard]] static std::optional<TrashFolder> open(const UniqueFd& folder);
  /// The Trash whose `files/` is opened as `files`.
  [[nodiscard]] static std::optional<TrashFolder> openAround(const UniqueFd& files);

  [[nodiscard]] int files() const { return _files.get(); }

  /// Moves the item in and answers the name that it has here. `seen` is what the system told of it
  /// before: what has come to its name since stays. On failure the item stays and no record is
  /// left.
  [[nodiscard]] std::optional<std::string> take(const ParentHandle& item, const struct statx& seen,
                                                std::string_view record) const;
  [[nodiscard]] std::optional<std::string> readRecord(const std::string& name) const;
  [[nodiscard]] bool holdsRecord(const std::string& name) const;
  /// Only for a record that was there before its thing went: otherwise the name may have come to
  /// another thing meanwhile, and the record with it.
  void dropRecord(const std::string& name) const;
  /// Drops each record that was written before `time` and has no thing.
  void dropRecordsOfNothing(Date time) const;

 private:
  TrashFolder(UniqueFd files, UniqueFd info) : _files(std::move(files)), _info(std::move(info)) {}

  UniqueFd _files;
  UniqueFd _info;
};

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
