#pragma once

#include <map>
#include <string>

#include "platform/user_defaults.h"

namespace klarvik {

/// What the program says of itself ("CFBundleShortVersionString" and the like).
using ApplicationInfo = std::map<std::string, DefaultsValue>;

/// What was laid down when this program was built.
[[nodiscard]] ApplicationInfo builtInApplicationInfo();

}  // namespace klarvik
