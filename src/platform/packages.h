#pragma once

#include <string_view>

namespace klarvik {

/// Whether a directory of this name is shown to the user as one thing: an application, a photo
/// library, an installer. Only its extension counts, in capitals or not.
[[nodiscard]] bool isPackageName(std::string_view directoryName);

}  // namespace klarvik
