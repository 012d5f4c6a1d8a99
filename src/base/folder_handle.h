#pragma once

#include "base/posix_io.h"

namespace klarvik {

/// What becomes of a link that stands where the folder is expected.
enum class LinkInPlace { refused, followed };

/// The folder `name` in `parent`, opened with `O_PATH`: good for every `...at` call, but it cannot
/// be listed or synced. None when there is no such folder; `errno` tells why.
[[nodiscard]] UniqueFd openFolderHandle(int parent, const char* name,
                                        LinkInPlace link = LinkInPlace::refused);

/// The same, but makes the folder where it is missing, for the user alone.
[[nodiscard]] UniqueFd openFolderHandleCreating(int parent, const char* name,
                                                LinkInPlace link = LinkInPlace::refused);

}  // namespace klarvik
