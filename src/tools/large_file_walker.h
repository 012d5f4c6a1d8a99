#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "core/uuid.h"
#include "platform/clock.h"
#include "platform/file_attributes.h"
#include "platform/file_system.h"

namespace klarvik {

class Formatting;

/// One file that a walk for large files listed.
struct LargeFile {
  Uuid id = Uuid::random();  ///< made afresh by each walk
  Path url;
  std::int64_t size = 0;  ///< bytes; the length of the content
  std::optional<Date> modifiedDate = std::nullopt;
  std::optional<Date> lastOpened = std::nullopt;  ///< when the file system last saw it read
  /// As it was found. Another thing that comes to its name later is not removed in its place.
  std::optional<EntryIdentity> identity = std::nullopt;

  /// What the user calls such a file: "Video", "Archive", "Other". By the extension alone.
  [[nodiscard]] std::string_view kind() const;
  /// "3 days ago", seen from `now`; "never" where the file system keeps no such date.
  [[nodiscard]] std::string lastOpenedText(const Formatting& formatting, Date now) const;

  bool operator==(const LargeFile&) const = default;
};

/// Files are never changed once they are listed, so that lists share them: a list is cheap to copy
/// and to hand to another thread, and a file is the same object in every list of one walk.
using LargeFileList = std::vector<std::shared_ptr<const LargeFile>>;

/// The orders in which a user may look at the files.
enum class LargeFileSort { size, date, name };

/// "Size", "Last opened", "Name".
[[nodiscard]] std::string_view label(LargeFileSort sort);

/// Stable. By size the largest come first; by date those never opened, then those not opened for
/// longest; by name as a user of the locale expects it, without regard to case.
void sortFiles(LargeFileList& files, LargeFileSort sort, const Formatting& formatting);

/// Brings more files into a list that is sorted by size, each behind those of its own size. Cheap
/// when few are new: the others are moved on as they stand.
void mergeBySize(LargeFileList& sorted, LargeFileList fresh);

/// What a running walk reports.
struct LargeFileUpdate {
  LargeFileList files;  ///< everything found so far, largest first
  double fraction = 0;
  std::string currentName;  ///< of what is looked at next; bytes of the disk
};

/// Lists the large files of the user's home, largest first. It only looks: nothing is selected and
/// nothing removed.
///
/// Keeps nothing between walks; may be used from any thread, and is meant to be called off the main
/// thread. Nothing throws: what is missing or cannot be read is not listed. `files` must outlive
/// it.
class LargeFileWalker {
 public:
  /// Called on the walking thread. The update is only good during the call; a copy of it is cheap.
  using UpdateSink = std::function<void(const LargeFileUpdate&)>;

  explicit LargeFileWalker(const FileSystem& files) : _files(files) {}

  /// Every regular file of `thresholdBytes` and more in the folders where a user keeps things.
  /// Hidden things, the insides of packages, photo and music libraries, and the folders of build
  /// tools and dependencies are passed over. Files of one size stand in the order they were found.
  ///
  /// Reports once for every 500 things looked at. A stop request is seen before the next thing;
  /// what was found until then is answered.
  LargeFileList walk(std::int64_t thresholdBytes, std::stop_token stop,
                     const UpdateSink& onProgress) const;

  /// Whether the path is, or lies in, a library that a photo, music or film program manages.
  [[nodiscard]] static bool isMediaLibrary(const Path& url);

 private:
  const FileSystem& _files;
};

}  // namespace klarvik
