#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "base/paths.h"

namespace klarvik {

class FileSystem;

/// An installed package of Debian's package manager.
struct DebianPackage {
  std::int64_t bytes = 0;  ///< as the package says; 0 where it does not
  /// The system does not do without it, by what the package says.
  bool isNeeded = false;

  bool operator==(const DebianPackage&) const = default;
};

using DebianPackageTable = std::map<std::string, DebianPackage, std::less<>>;

/// The packages that are installed, by their names, of the text of "/var/lib/dpkg/status". What
/// cannot be read of a package is as if it were not said.
[[nodiscard]] DebianPackageTable readDebianStatus(std::string_view status);

/// The same of a disk; none where it has no such package manager, or its table cannot be read.
[[nodiscard]] DebianPackageTable installedDebianPackages(const FileSystem& files);

/// The packages to which each of `paths` belongs, by the lists of the package manager. A path of
/// no package is not in the answer. Reads all lists: some ten megabytes.
[[nodiscard]] std::map<Path, std::string> debianOwners(const FileSystem& files,
                                                       const std::set<Path>& paths);

}  // namespace klarvik
