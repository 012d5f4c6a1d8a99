#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/user_defaults.h"

namespace klarvik {

/// What the program says of itself ("CFBundleShortVersionString" and the like).
struct ApplicationInfo : std::map<std::string, DefaultsValue> {
  using map::map;
};

/// What was laid down when this program was built.
[[nodiscard]] ApplicationInfo builtInApplicationInfo();

/// Nothing where there is no text for the key.
[[nodiscard]] std::optional<std::string> informationText(const ApplicationInfo& info,
                                                         const std::string& key);

/// "0.0.0" where the information has no text for it.
[[nodiscard]] std::string appVersion(const ApplicationInfo& info);
/// "0" where the information has no text for it.
[[nodiscard]] std::string buildNumber(const ApplicationInfo& info);

/// The address of a page of the program's website; of its front page where `page` is empty. Empty
/// when this build has no website.
[[nodiscard]] std::string websitePage(const ApplicationInfo& info, const std::string& page);
/// The link that writes to those who help with the program. Empty when this build has none.
[[nodiscard]] std::string supportLink(const ApplicationInfo& info);

/// Whether the system takes this build and the one after it for the same program, and so keeps the
/// permissions it was given. False for what a developer builds.
[[nodiscard]] bool hasSigningIdentity(const ApplicationInfo& info);

}  // namespace klarvik
