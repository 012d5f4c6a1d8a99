#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "systemdata/system_data_item.h"

namespace klarvik {

class SystemDataSearch;

/// A folder each of whose children is worth a row from a certain size on.
struct ChildFolder {
  std::string_view path;  ///< below the home
  std::int64_t minimumSize;
};

/// A place that is worth one row as a whole, from a certain size on.
struct WholePlace {
  std::string_view path;  ///< below the home unless absolute
  std::string_view name;
  std::int64_t minimumSize;
  std::optional<ItemSafety> safetyOverride = std::nullopt;
};

/// What is found by rules of its own.
using OwnSearch = std::vector<SystemDataItem> (SystemDataSearch::*)(SystemDataSubCategory) const;

/// One step of the analysis.
struct Pass {
  std::string_view label;
  double fraction;  ///< of the whole analysis, told when the pass begins
  SystemDataSubCategory kind;
  std::variant<ChildFolder, std::span<const WholePlace>, OwnSearch> places;
};

/// Every pass, in the order in which they run.
[[nodiscard]] std::span<const Pass> passTable();

}  // namespace klarvik
