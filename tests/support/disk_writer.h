#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"

namespace klarvik {

inline constexpr std::int64_t kilobyte = 1'000;
inline constexpr std::int64_t megabyte = 1'000'000;
inline constexpr std::int64_t mebibyte = 1'048'576;
inline constexpr std::int64_t secondsADay = 86'400;
/// 2026-01-01 00:00 UTC: everything that is given no date of its own is somewhat older.
inline constexpr std::int64_t newestSecond = 1'767'225'600;

/// Writes the files of a sample disk below a root, and dates all of them in the end. Places count
/// from the root. What cannot be made is thrown as std::system_error.
class DiskWriter {
 public:
  /// A folder that is missing or empty; else throws std::invalid_argument.
  explicit DiskWriter(Path root);

  void folder(const Path& place);
  /// `bytes` that are really allocated; the content begins with `content`.
  void file(const Path& place, std::int64_t bytes, std::string_view content);
  /// Like no other file on the disk.
  void file(const Path& place, std::int64_t bytes);
  void text(const Path& place, std::string_view content) { file(place, 0, content); }
  /// As long as `bytes`, and next to nothing allocated.
  void sparse(const Path& place, std::int64_t bytes);
  /// `count` files that share `bytes` evenly.
  void files(const Path& folderPlace, std::int64_t count, std::int64_t bytes);
  void link(const Path& place, const Path& target);
  /// Another name of a file that is there.
  void hardLink(const Path& place, const Path& existing);
  void socket(const Path& place);

  /// An extended attribute of a file that is there, where the file system has such a thing.
  void attribute(const Path& place, const char* name, std::string_view content) const;

  /// For what is made at and below `place`, in place of a date of the writer's choice.
  void date(const Path& place, std::int64_t second);
  /// For the one thing at `place`.
  void mode(const Path& place, mode_t permissions);

  /// To be called last: making a file changes the date of its folder, and no file can be made in a
  /// folder that is read-only.
  void finish() const;

  [[nodiscard]] std::size_t fileCount() const { return _files; }
  /// What the files at and below `place` take of the disk, links left out.
  [[nodiscard]] std::int64_t allocatedBytes(const Path& place) const;

 private:
  struct Dated {
    Path place;
    std::int64_t second;
  };
  struct Mode {
    Path place;
    mode_t permissions;
  };

  [[nodiscard]] Path onDisk(const Path& place) const { return _root / place.relative_path(); }
  [[nodiscard]] std::int64_t secondOf(const Path& place) const;

  Path _root;
  std::vector<Path> _made;
  std::vector<Dated> _dates;
  std::vector<Mode> _modes;
  std::size_t _files = 0;
};

/// The record of a thing that lies in a Trash. It names the place as it is on the machine, so that
/// other programs can put the thing back.
[[nodiscard]] std::string trashRecord(const Path& original);

}  // namespace klarvik
