#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "tools/system_packages.h"

namespace klarvik {

/// What "desc" in the folder of a package says.
struct PacmanDescription {
  std::string name;
  std::int64_t bytes = 0;  ///< 0 where it does not say

  bool operator==(const PacmanDescription&) const = default;
};

/// Nothing where the text names no package.
[[nodiscard]] std::optional<PacmanDescription> readPacmanDescription(std::string_view text);

/// Those of `wanted` that the text of "files" lists: paths without the first slash.
[[nodiscard]] std::vector<std::string_view> pacmanFilesOf(
    std::string_view text, const std::set<std::string, std::less<>>& wanted);

/// Of the packages below "/var/lib/pacman/local", as `packageOwners` and `installedPackageNames`
/// say.
[[nodiscard]] PackageOwners pacmanOwners(const Platform& platform, const PackageManager& manager,
                                         const std::set<Path>& paths);
[[nodiscard]] std::optional<PackageNames> pacmanNames(const Platform& platform,
                                                      const PackageManager&);

}  // namespace klarvik
