#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "tools/system_packages.h"

namespace klarvik {

/// What rpm says of one package.
struct RpmPackage {
  std::int64_t bytes = 0;  ///< of all that are installed under this name
  std::set<Path> owned{};  ///< those that were asked for

  bool operator==(const RpmPackage&) const = default;
};

/// Reads what rpm prints in the format that `rpmOwners` asks for: a line for each package with its
/// name and size, and behind it a line that begins with a tab for each of its files. Of these,
/// `wanted` are kept.
[[nodiscard]] std::map<std::string, RpmPackage> readRpmPackages(std::string_view output,
                                                                const std::set<Path>& wanted);

/// The packages that need those which `rpm --erase --test` was asked about, by what it printed as
/// errors.
[[nodiscard]] PackageNames rpmDependents(std::string_view errors);

/// All packages that would have to go together with this one, itself left out. Nothing where rpm
/// cannot be asked, or refuses for another reason. Nothing is changed.
[[nodiscard]] std::optional<PackageNames> rpmDependentsOf(const Platform& platform,
                                                          const PackageManager& manager,
                                                          const std::string& package);

/// By what the program "rpm" answers, as `packageOwners` and `installedPackageNames` say.
[[nodiscard]] PackageOwners rpmOwners(const Platform& platform, const PackageManager& manager,
                                      const std::set<Path>& paths);
[[nodiscard]] std::optional<PackageNames> rpmNames(const Platform& platform,
                                                   const PackageManager& manager);

}  // namespace klarvik
