#include "core/junk_model.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <tuple>

#include "platform/formatting.h"

namespace klarvik {
namespace {

struct Category {
  CategoryType type;
  std::string_view name;
  std::string_view icon;
  SystemColor color;
  SafetyLevel safety;
  std::string_view description;
};

using enum SafetyLevel;

// `systemData` is called "Leftovers" on purpose: System Data is a tool of its own, which explains
// what this category only cleans.
constexpr std::array<Category, categoryTypeCount> categories{{
    {CategoryType::xcodeCache, "Xcode Cache", "hammer.fill", SystemColor::blue, safe,
     "Build artifacts & derived data. Regenerated automatically."},
    {CategoryType::simulators, "iOS Simulators", "iphone", SystemColor::purple, safe,
     "Old iOS/iPadOS simulator runtimes no longer in use."},
    {CategoryType::xcodeArchives, "Xcode Archives", "archivebox.fill", SystemColor::indigo, caution,
     "Old app archives. Keep recent ones for re-submission."},
    {CategoryType::appCaches, "App Caches", "memorychip", SystemColor::orange, safe,
     "Temporary files created by apps. 100% safe to remove."},
    {CategoryType::systemLogs, "System Logs", "doc.text.fill", SystemColor::yellow, safe,
     "macOS diagnostic and crash logs."},
    {CategoryType::iosBackups, "iPhone Backups", "icloud.and.arrow.up.fill", SystemColor::green,
     caution, "iPhone/iPad backups stored locally on your Mac."},
    {CategoryType::trashBin, "Trash", "trash.fill", SystemColor::red, safe,
     "Files waiting in Trash."},
    {CategoryType::browserCaches, "Browser Caches", "safari.fill", SystemColor::cyan, safe,
     "Cached web data from browsers."},
    {CategoryType::dockerData, "Docker", "shippingbox.fill", SystemColor::mint, caution,
     "Unused Docker images and containers."},
    {CategoryType::timeMachine, "Time Machine", "clock.arrow.2.circlepath", SystemColor::teal,
     caution, "Local Time Machine snapshots stored on this Mac."},
    {CategoryType::systemData, "Leftovers", "externaldrive.fill", SystemColor::gray, caution,
     "Hidden files macOS counts as System Data — iOS firmware, VM swap, Mail attachments, "
     "Homebrew."},
}};

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

const std::array<CategoryType, categoryTypeCount>& allCategoryTypes() {
  static constexpr auto all = [] {
    std::array<CategoryType, categoryTypeCount> types{};
    std::ranges::transform(categories, types.begin(), &Category::type);
    return types;
  }();
  return all;
}

std::string_view rawValue(CategoryType type) {
  return category(type).name;
}

std::optional<CategoryType> categoryType(std::string_view rawValue) {
  const auto* found = std::ranges::find(categories, rawValue, &Category::name);
  return found != categories.end() ? std::optional(found->type) : std::nullopt;
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

bool JunkItem::operator==(const JunkItem& other) const {
  return std::tie(id, name, path, size, modifiedDate) ==
         std::tie(other.id, other.name, other.path, other.size, other.modifiedDate);
}

std::int64_t CleanCategory::totalSize() const {
  std::int64_t total = 0;
  for (const JunkItem& item : items) total = addBytes(total, item.size);
  return total;
}

std::string CleanCategory::formattedSize(const Formatting& formatting) const {
  return formatting.byteText(totalSize());
}

std::int64_t addBytes(std::int64_t left, std::int64_t right) {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(left, right, &sum)) std::abort();
  return sum;
}

}  // namespace klarvik
