#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace klarvik {

/// A folder of its own for one test, empty at first, and gone with all it holds at the end. It can
/// stand for a whole disk: hand `path()` to a file system as its root.
///
/// The places given to the members count from this folder, with or without a leading slash:
/// "/Users/ann/x" is `path()`/Users/ann/x. Folders above a place are made as needed. Whatever
/// cannot be done ends the test program with a message.
class TemporaryFolder {
 public:
  /// In `base`; the folder for temporary files when none is given.
  explicit TemporaryFolder(const Path& base = std::filesystem::temp_directory_path());
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const Path& path() const { return _path; }
  [[nodiscard]] Path onDisk(const Path& place) const { return _path / place.relative_path(); }

  /// Each answers where on the disk the new thing is.
  Path makeFolder(const Path& place) const;
  /// `bytes` written in full, so that they are allocated too.
  Path makeFile(const Path& place, std::int64_t bytes = 0) const;
  Path makeFile(const Path& place, std::string_view content) const;
  /// A file that says it is `bytes` long and takes next to nothing on the disk.
  Path makeSparseFile(const Path& place, std::int64_t bytes) const;
  /// `target` is written into the link as it stands.
  Path makeLink(const Path& place, const Path& target) const;

  [[nodiscard]] std::string contentOf(const Path& place) const;
  /// Whether anything is there, a link to nothing included.
  [[nodiscard]] bool holds(const Path& place) const;

 private:
  Path _path;
};

}  // namespace klarvik
