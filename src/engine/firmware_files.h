#pragma once

#include <array>
#include <string_view>

#include "platform/path.h"

namespace klarvik {

/// Where iTunes keeps what it has downloaded to update devices with; below the home.
inline constexpr std::array<std::string_view, 3> softwareUpdateFolders{
    "Library/iTunes/iPhone Software Updates",
    "Library/iTunes/iPad Software Updates",
    "Library/iTunes/iPod Software Updates",
};

/// By its name alone.
[[nodiscard]] bool isFirmware(const Path& file);

}  // namespace klarvik
