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

bool AppInfo::goesToTrash() const {
  const bool isOneThing =
      kind == AppKind::bundle || kind == AppKind::appImage || kind == AppKind::byHand;
  return isOneThing && keptBecause.empty();
}

std::string AppInfo::removalCommand() const {
  if (!keptBecause.empty()) return {};
  switch (kind) {
    case AppKind::flatpak:
      return std::string("flatpak uninstall ") + (isForAllUsers ? "" : "--user ") + package;
    case AppKind::snap:
      return "snap remove " + package;
    case AppKind::systemPackage:
      return removedWith;
    case AppKind::bundle:
    case AppKind::appImage:
    case AppKind::byHand:
    case AppKind::foreign:
      break;
  }
  return {};
}

std::string_view rawValue(ResidualCategory category) {
  return names.at(static_cast<std::size_t>(category));
}

}  // namespace klarvik
