#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string_view>

namespace klarvik {

/// Puts `content` in the place of `file`, a path on the machine. Whoever reads the file, also after
/// a crash at any moment, finds either all that stood there before or all of `content`. `mode` says
/// who may read it: the user alone, unless told otherwise.
///
/// False when that failed; what stood there before then still stands. Two writers of one file must
/// keep each other out.
[[nodiscard]] bool writeAtomically(const std::filesystem::path& file, std::string_view content,
                                   ::mode_t mode = 0600);

}  // namespace klarvik
