#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/paths.h"
#include "base/posix_io.h"

namespace klarvik {

/// The opened folder that an item lies in. Whatever is done to `name` through `folder` happens
/// there, even when a folder on the way is renamed or replaced by a link afterwards.
///
/// `folder` is opened with `O_PATH`: good for every `...at` call, but to list or to sync it, it has
/// to be opened again as ".".
struct ParentHandle {
  UniqueFd folder;
  std::string name;
  Path realPath;  ///< logical place of the item with every link in its parents followed
};

/// Opens the parent of `item`, a logical path beneath `root`, one component at a time. Links in the
/// parents are followed as the system follows them: an absolute target counts from the root of the
/// machine. The last component is not looked at, and need not exist. Depth is not limited by
/// PATH_MAX.
///
/// Nothing when a parent is missing or is no folder, when links go in circles, when the item really
/// lies outside of `root`, and when `item` is not absolute or does not end in a name.
/// May be called from any thread.
[[nodiscard]] std::optional<ParentHandle> openParent(const Path& root, const Path& item);

/// Sees the place that an item will really have, before any folder above it is made. Answering
/// false leaves everything as it is.
using RealPathPredicate = std::function<bool(const Path& realPath)>;

/// The same, but makes the parents that are missing. Before the first is made, `mayCreate` is asked
/// with the real place of the item; false leaves everything as it is. A link to nothing is not
/// filled in: it counts as failure.
[[nodiscard]] std::optional<ParentHandle> openParentCreating(const Path& root, const Path& item,
                                                             const RealPathPredicate& mayCreate);

}  // namespace klarvik
