#pragma once

#include <span>
#include <string_view>

namespace klarvik {

/// Where a system's programs keep trails of what their user did, below the home. Empty where the
/// trails of a kind are not looked for.
struct TrailPlaces {
  std::span<const std::string_view> histories;      ///< files
  std::span<const std::string_view> cookies;        ///< files
  std::span<const std::string_view> browserCaches;  ///< folders
  std::span<const std::string_view> downloads;      ///< files
  std::span<const std::string_view> locations;      ///< folders
  std::string_view recentLists;                     ///< a folder
  std::string_view recentApplications;              ///< a file
  std::string_view downloadOrigins;                 ///< a file
};

}  // namespace klarvik
