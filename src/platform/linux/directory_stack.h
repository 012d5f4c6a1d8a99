#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/posix_io.h"

namespace klarvik {

/// Where a walk stands: the opened folders from its start down to the current one.
///
/// 1. Every folder was opened by its name in the folder above, and is no symbolic link.
/// 2. Only a few handles are open at a time, the start's and the current one's among them, so that
///    depth is bounded by memory alone.
/// 3. A folder above whose handle was closed is opened again through "..", and only accepted when
///    it is the same folder as before. A trail never leads to a place that it did not come from.
///
/// Belongs to one thread.
class DirectoryStack {
 public:
  explicit DirectoryStack(UniqueFd start);

  /// 0 in the folder that the trail started at.
  [[nodiscard]] std::size_t depth() const { return _levels.size() - 1; }
  [[nodiscard]] int current() const { return _levels.back().handle.get(); }
  /// Of the current folder, counted from the start: "a/b", and empty at the start itself.
  [[nodiscard]] const std::string& path() const { return _path; }
  [[nodiscard]] std::string_view currentName() const { return nameAt(depth()); }

  /// Opens a folder that lies in the current one. Holds -1 when it is none, or when it cannot be
  /// opened.
  [[nodiscard]] UniqueFd open(const char* name);
  void enter(UniqueFd folder, std::string_view name);
  /// Goes back to the folder above. When folders have been moved meanwhile, so that it is not to be
  /// found, goes back as far as the last folder that still is where it was. Never called at the
  /// start.
  void leave();

 private:
  struct Level {
    UniqueFd handle;
    std::size_t pathLength = 0;  // of the path up to this folder
    dev_t device = 0;            // these two are known once the handle was closed
    ino_t inode = 0;

    void closeHandle();
    [[nodiscard]] bool isThe(const UniqueFd& folder) const;
  };

  [[nodiscard]] std::string_view nameAt(std::size_t level) const;
  bool closeHighest();
  void reopenFromRoot();
  void truncate(std::size_t depth);

  std::vector<Level> _levels;
  std::size_t _firstOpen = 1;  // levels from 1 to here have their handles closed, the others open
  std::string _path;
};

}  // namespace klarvik
