#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace klarvik {

/// What a record's name has behind the name of the thing it tells of.
inline constexpr std::string_view kTrashRecordSuffix = ".trashinfo";

/// The name to try for a thing called `name` when `taken` earlier ones were taken already: first
/// its own, then numbered ones, then ones with a random number, so that the thousandth thing of one
/// name finds its place as fast as the tenth. Cut in the middle, before the extension, where a
/// record of that name would be too long for a disk.
[[nodiscard]] std::string trashName(std::string_view name, std::size_t taken);

}  // namespace klarvik
