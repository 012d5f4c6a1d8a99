#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/user_defaults.h"

namespace klarvik {

/// What the program says of itself ("CFBundleShortVersionString" and the like).
using ApplicationInfo = std::map<std::string, DefaultsValue>;

/// What was laid down when this program was built.
[[nodiscard]] ApplicationInfo builtInApplicationInfo();

/// Nothing where there is no text for the key.
[[nodiscard]] std::optional<std::string> informationText(const ApplicationInfo& info,
                                                         const std::string& key);

/// Whether the system takes this build and the one after it for the same program, and so keeps the
/// permissions it was given. False for what a developer builds.
[[nodiscard]] bool hasSigningIdentity(const ApplicationInfo& info);

}  // namespace klarvik
