#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "places/package_manager.h"
#include "platform/platform.h"

namespace klarvik {

/// An installed package of one of the system's package managers.
struct SystemPackage {
  std::string name;
  std::int64_t bytes = 0;  ///< as the package says; 0 where it does not
  /// The system does not do without it, by what the package or its manager says.
  bool isNeeded = false;
  const PackageManager* manager = nullptr;  ///< never none

  bool operator==(const SystemPackage&) const = default;
};

using PackageOwners = std::map<Path, SystemPackage>;
using PackageNames = std::set<std::string, std::less<>>;

/// The packages to which each of `paths` belongs, by what the package managers of the layout
/// record. A path of no package is not in the answer, nor one whose manager cannot be asked. Takes
/// up to some seconds. Any thread.
[[nodiscard]] PackageOwners packageOwners(const Platform& platform, const std::set<Path>& paths);

/// The names of all packages that are installed; nothing where a manager that has installed some
/// cannot be asked. Any thread.
[[nodiscard]] std::optional<PackageNames> installedPackageNames(const Platform& platform);

/// Whether a package may be called so, and a program takes the name for no option.
[[nodiscard]] bool isPackageName(std::string_view name, const PackageManager& manager);

/// The command that asks what a removal would do; names of packages follow. Whose database is meant
/// is said: some rpm looks for one in the home otherwise, and makes it.
[[nodiscard]] std::vector<std::string> removalQuestion(const Platform& platform,
                                                       const PackageManager& manager);
/// What says so in any command of its program.
[[nodiscard]] std::vector<std::string> databaseArguments(const Platform& platform,
                                                         const PackageManager& manager);

/// "sudo apt remove NAME": what the user may run, with the program that this disk has.
[[nodiscard]] std::string removalCommand(const Platform& platform, const PackageManager& manager,
                                         std::string_view package);

}  // namespace klarvik
