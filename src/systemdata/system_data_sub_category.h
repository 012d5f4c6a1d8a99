#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "places/colors.h"
#include "places/system_data_places.h"

namespace klarvik {

struct DiskLayout;

/// Those that the analysis of any system knows.
[[nodiscard]] const std::array<SystemDataSubCategory, systemDataSubCategoryCount>&
allSystemDataSubCategories();

/// The key under which a pane remembers a kind. What the user reads is its `label`.
[[nodiscard]] std::string_view rawValue(SystemDataSubCategory kind);
/// The name of a symbol.
[[nodiscard]] std::string_view icon(SystemDataSubCategory kind);
[[nodiscard]] RgbColor color(SystemDataSubCategory kind);
/// One or two sentences that explain the kind, where the layout has no others.
[[nodiscard]] std::string_view description(SystemDataSubCategory kind);
/// What the user reads on a disk of this layout: the name of the kind, and what explains it.
[[nodiscard]] std::string_view label(SystemDataSubCategory kind, const DiskLayout& layout);
[[nodiscard]] std::string_view description(SystemDataSubCategory kind, const DiskLayout& layout);
/// What holds for an item of the kind unless the item says otherwise.
[[nodiscard]] ItemSafety defaultSafety(SystemDataSubCategory kind);

}  // namespace klarvik
