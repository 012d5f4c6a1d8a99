#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>
#include <string_view>

#include "base/posix_io.h"
#include "platform/linux/parent_handle.h"

namespace klarvik {

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

 private:
  TrashFolder(UniqueFd files, UniqueFd info) : _files(std::move(files)), _info(std::move(info)) {}

  UniqueFd _files;
  UniqueFd _info;
};

}  // namespace klarvik
