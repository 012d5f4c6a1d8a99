#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "core/rgb_color.h"

namespace klarvik {

/// What may become of a finding. `protected_` ones are shown and never offered: no selection
/// reaches them.
enum class ItemSafety { safe, review, protected_ };

/// The kinds of storage that the analysis can name, in the order in which they are listed.
enum class SystemDataSubCategory {
  applicationSupport,
  containers,
  groupContainers,
  developerTools,
  packageManagerCaches,
  timeMachineSnapshots,
  systemTemp,
  vmSwap,
  systemDatabases,
  mailStorage,
  homebrewCache,
  firmware,
  spotlightIndex,
  diagnostics,
  savedState,
  cookiesStorage,
  caches,
  systemLibrary,
  logs,
  preferences,
  icloudData,
  otherLibrary,
};

inline constexpr std::size_t systemDataSubCategoryCount = 22;
[[nodiscard]] const std::array<SystemDataSubCategory, systemDataSubCategoryCount>&
allSystemDataSubCategories();

/// The name that the user reads. It is also the key under which a pane remembers a kind.
[[nodiscard]] std::string_view rawValue(SystemDataSubCategory kind);
/// Nothing for a name that no kind has.
[[nodiscard]] std::optional<SystemDataSubCategory> systemDataSubCategory(std::string_view rawValue);
/// The name of a symbol.
[[nodiscard]] std::string_view icon(SystemDataSubCategory kind);
[[nodiscard]] RgbColor color(SystemDataSubCategory kind);
/// One or two sentences that explain the kind.
[[nodiscard]] std::string_view description(SystemDataSubCategory kind);
/// What holds for an item of the kind unless the item says otherwise.
[[nodiscard]] ItemSafety defaultSafety(SystemDataSubCategory kind);

}  // namespace klarvik
