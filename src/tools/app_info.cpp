#include "tools/app_info.h"

namespace klarvik {

namespace {

constexpr std::array<std::string_view, residualCategoryCount> names{
    "Preferences", "Caches",      "App Support", "Logs",
    "Containers",  "Saved State", "Cookies",     "Other"};

constexpr std::array<ResidualCategory, residualCategoryCount> all{
    ResidualCategory::preferences, ResidualCategory::caches,     ResidualCategory::appSupport,
    ResidualCategory::logs,        ResidualCategory::containers, ResidualCategory::savedState,
    ResidualCategory::cookies,     ResidualCategory::other};

}  // namespace

const std::array<ResidualCategory, residualCategoryCount>& allResidualCategories() {
  return all;
}

std::string_view rawValue(ResidualCategory category) {
  return names.at(static_cast<std::size_t>(category));
}

}  // namespace klarvik
