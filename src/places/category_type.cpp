#include "places/category_type.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace klarvik {
namespace {

struct Category {
  CategoryType type;
  /// Stored in histories, so that it never changes, in whatever language the program runs. What is
  /// shown are the names of the layout's scan rows, and their translations.
  std::string_view key;
  std::string_view icon;
  SystemColor color;
  SafetyLevel safety;
  std::string_view description;
};

using enum SafetyLevel;

// `systemData` is called "Leftovers" on purpose: System Data is a tool of its own, which explains
// what this category only cleans.
constexpr std::size_t macCategoryCount = 11;

constexpr std::array categories{
    Category{CategoryType::xcodeCache, "Xcode Cache", "hammer.fill", SystemColor::blue, safe,
             "Build artifacts & derived data. Regenerated automatically."},
    Category{CategoryType::simulators, "iOS Simulators", "iphone", SystemColor::purple, safe,
             "Old iOS/iPadOS simulator runtimes no longer in use."},
    Category{CategoryType::xcodeArchives, "Xcode Archives", "archivebox.fill", SystemColor::indigo,
             caution, "Old app archives. Keep recent ones for re-submission."},
    Category{CategoryType::appCaches, "App Caches", "memorychip", SystemColor::orange, safe,
             "Temporary files created by apps. 100% safe to remove."},
    Category{CategoryType::systemLogs, "System Logs", "doc.text.fill", SystemColor::yellow, safe,
             "macOS diagnostic and crash logs."},
    Category{CategoryType::iosBackups, "iPhone Backups", "icloud.and.arrow.up.fill",
             SystemColor::green, caution, "iPhone/iPad backups stored locally on your Mac."},
    Category{CategoryType::trashBin, "Trash", "trash.fill", SystemColor::red, safe,
             "Files waiting in Trash."},
    Category{CategoryType::browserCaches, "Browser Caches", "safari.fill", SystemColor::cyan, safe,
             "Cached web data from browsers."},
    Category{CategoryType::dockerData, "Docker", "shippingbox.fill", SystemColor::mint, caution,
             "Unused Docker images and containers."},
    Category{CategoryType::timeMachine, "Time Machine", "clock.arrow.2.circlepath",
             SystemColor::teal, caution, "Local Time Machine snapshots stored on this Mac."},
    Category{CategoryType::systemData, "Leftovers", "externaldrive.fill", SystemColor::gray,
             caution,
             "Hidden files macOS counts as System Data — iOS firmware, VM swap, Mail attachments, "
             "Homebrew."},
    Category{CategoryType::buildArtifacts, "Build Artifacts", "hammer.fill", SystemColor::blue,
             caution, "What builds left in your projects. The next build makes it again."},
    Category{CategoryType::packageCaches, "Package Caches", "shippingbox.and.arrow.backward.fill",
             SystemColor::purple, safe,
             "Downloads of package managers and compilers. They are fetched again when needed."},
    Category{CategoryType::toolchains, "Toolchains & Stores", "wrench.and.screwdriver.fill",
             SystemColor::indigo, caution,
             "Compilers, models and package stores. Fetching them again may take long."},
    Category{CategoryType::installedPackages, "Installed Packages", "archivebox.fill",
             SystemColor::green, caution,
             "Earlier versions and installers of what is installed already."},
};

constexpr bool everyRowStandsAtItsType() {
  for (std::size_t row = 0; row < categories.size(); ++row) {
    if (static_cast<std::size_t>(categories[row].type) != row) return false;
  }
  return true;
}
static_assert(everyRowStandsAtItsType());

constexpr const Category& category(CategoryType type) {
  return categories[static_cast<std::size_t>(type)];
}

}  // namespace

std::span<const CategoryType> allCategoryTypes() {
  static constexpr auto all = [] {
    std::array<CategoryType, macCategoryCount> types{};
    for (std::size_t row = 0; row < types.size(); ++row) types[row] = categories[row].type;
    return types;
  }();
  return all;
}

std::string_view rawValue(CategoryType type) {
  return category(type).key;
}

std::string_view icon(CategoryType type) {
  return category(type).icon;
}
SystemColor color(CategoryType type) {
  return category(type).color;
}
SafetyLevel safety(CategoryType type) {
  return category(type).safety;
}
std::string_view description(CategoryType type) {
  return category(type).description;
}

}  // namespace klarvik
