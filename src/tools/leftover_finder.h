#pragma once

#include <vector>

#include "platform/platform.h"
#include "tools/app_info.h"

namespace klarvik {

/// What an application of a disk with desktop entries has left in the user's folders: what is
/// called exactly by one of its identifiers, upper and lower case aside, and what the layout knows
/// of it. Nothing that another installed application may have left, that the rules keep, that is a
/// link or lies on another volume, or that holds keys. `installed` are all applications, this one
/// among them or not. Largest first. Nothing throws; any thread.
[[nodiscard]] std::vector<ResidualFile> findLeftovers(const Platform& platform, const AppInfo& app,
                                                      const std::vector<AppInfo>& installed);

/// The identifiers of `app` that no other installed application has, nor a package of the system.
/// None where a package manager cannot be asked.
[[nodiscard]] std::vector<std::string> ownIdentifiers(const Platform& platform, const AppInfo& app,
                                                      const std::vector<AppInfo>& installed);

}  // namespace klarvik
