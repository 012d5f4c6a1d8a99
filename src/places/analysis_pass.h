#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "places/place.h"
#include "places/system_data_sub_category.h"

namespace klarvik {

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

}  // namespace klarvik
