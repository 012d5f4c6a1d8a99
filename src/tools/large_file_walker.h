#pragma once

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>

#include "platform/file_system.h"
#include "tools/large_file.h"

namespace klarvik {

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
