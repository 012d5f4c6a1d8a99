#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "places/place.h"

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

/// A folder each of whose children is worth a row from a certain size on.
struct ChildFolder {
  std::string_view path;  ///< below the base
  std::int64_t minimumSize;
  Base base = Base::home;
  bool onlyHidden = false;
  std::span<const std::string_view> except{};  ///< children that other passes look at
};

/// A place that is worth one row as a whole, from a certain size on.
struct WholePlace {
  std::string_view path;  ///< below the home unless absolute
  std::string_view name;
  std::int64_t minimumSize;
  std::optional<ItemSafety> safetyOverride = std::nullopt;
};

/// What is found by rules of its own.
enum class AnalysisMethod { localSnapshots, swapFiles, firmware, libraryRemainder };

/// One step of the analysis of System Data.
struct Pass {
  std::string_view label;
  double fraction;  ///< of the whole analysis, told when the pass begins
  SystemDataSubCategory kind;
  std::variant<ChildFolder, std::span<const WholePlace>, AnalysisMethod> places;
};

/// What of a place is one row.
enum class LedgerUnit {
  whole,            ///< each thing that the pattern stands for
  children,         ///< each thing in it
  visibleChildren,  ///< the same without those whose name begins with a dot
  hiddenChildren,   ///< and these
};

/// A part of the volume that is told of in rows of its own. A thing that lies in several places
/// counts where it lies deepest; of two patterns that end alike, for the one without a "*", and
/// then for the first of the table.
struct LedgerPlace {
  SystemDataSubCategory kind;
  Base base;
  std::string_view pattern;  ///< empty: the base itself
  LedgerUnit unit;
  std::int64_t above;  ///< bytes; rows that take less are told of together, in one of their kind
  /// "*" is the file name; where empty, what an application of that file name is called.
  std::string_view name;
  std::string_view sentence;  ///< what it is, and what one can do about it
  /// Whether it may be removed if the rules let it go; else it is only shown.
  bool mayBeOffered = false;
};

}  // namespace klarvik
