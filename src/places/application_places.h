#pragma once

#include <span>
#include <string_view>

namespace klarvik {

/// What a leftover of an application is, by the folder it lies in.
enum class ResidualCategory {
  preferences,
  caches,
  appSupport,
  logs,
  containers,
  savedState,
  cookies,
  other,
};

/// A folder in which applications leave things of theirs.
struct ResidualFolder {
  std::string_view folder;  ///< below the home, unless absolute
  ResidualCategory category;
};

/// Where a system's applications lie, and what they leave behind.
struct ApplicationPlaces {
  std::span<const std::string_view> folders;  ///< of applications; below the home, unless absolute
  std::span<const ResidualFolder> residuals;  ///< in the order in which they are searched
  /// How the names of things begin, in lower case, that are the system's own.
  std::span<const std::string_view> protectedNames;
};

}  // namespace klarvik
