#pragma once

#include <cstddef>
#include <string_view>

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
  // Only where the analysis accounts for the whole volume.
  containerStorage,
  packages,
  deletedOpen,
  reserved,
  otherUsers,
  yourFiles,
  elsewhere,
  notReadable,
};

/// Those that the analysis of any system knows; they come first.
inline constexpr std::size_t systemDataSubCategoryCount = 22;
/// All of them.
inline constexpr std::size_t ledgerKindCount = 30;

/// How one system calls a kind.
struct SystemDataWords {
  SystemDataSubCategory kind;
  std::string_view label;
  std::string_view description;  ///< one or two sentences
  std::string_view scanning;     ///< while the analysis is at it
};

}  // namespace klarvik
