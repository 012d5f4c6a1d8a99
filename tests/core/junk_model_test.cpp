#include "core/junk_model.h"
#include "platform/application_info.h"
#include "platform/formatting.h"

#include <gtest/gtest.h>

#include <limits>

namespace klarvik {
namespace {

constexpr auto largest = std::numeric_limits<std::int64_t>::max();

JunkItem itemOf(std::int64_t size) {
  return {.name = "x", .path = "/tmp/x", .size = size, .modifiedDate = std::nullopt};
}

struct Expected {
  CategoryType type;
  std::string_view name;
  std::string_view icon;
  SystemColor color;
  SafetyLevel safety;
  std::string_view description;
};

TEST(CategoryType, ListsTheElevenPlacesWithTheirTextsInOrder) {
  using enum SafetyLevel;
  const std::array<Expected, 11> expected{{
      {CategoryType::xcodeCache, "Xcode Cache", "hammer.fill", SystemColor::blue, safe,
       "Build artifacts & derived data. Regenerated automatically."},
      {CategoryType::simulators, "iOS Simulators", "iphone", SystemColor::purple, safe,
       "Old iOS/iPadOS simulator runtimes no longer in use."},
      {CategoryType::xcodeArchives, "Xcode Archives", "archivebox.fill", SystemColor::indigo,
       caution, "Old app archives. Keep recent ones for re-submission."},
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
       "Hidden files macOS counts as System Data \u2014 iOS firmware, VM swap, Mail attachments, "
       "Homebrew."},
  }};
  ASSERT_EQ(allCategoryTypes().size(), expected.size());
  for (std::size_t row = 0; row < expected.size(); ++row) {
    const CategoryType type = allCategoryTypes()[row];
    EXPECT_EQ(type, expected[row].type);
    EXPECT_EQ(rawValue(type), expected[row].name);
    EXPECT_EQ(icon(type), expected[row].icon);
    EXPECT_EQ(color(type), expected[row].color);
    EXPECT_EQ(safety(type), expected[row].safety);
    EXPECT_EQ(description(type), expected[row].description);
  }
}

TEST(JunkItem, DiffersFromItsTwinOfAnotherScan) {
  EXPECT_NE(itemOf(1), itemOf(1));
}

TEST(JunkItem, DiffersInEveryField) {
  const JunkItem item = itemOf(1);
  JunkItem other = item;
  EXPECT_EQ(item, other);
  other.name = "y";
  EXPECT_NE(item, other);
  other = item;
  other.path = "/tmp/y";
  EXPECT_NE(item, other);
  other = item;
  other.size = 2;
  EXPECT_NE(item, other);
}

TEST(JunkItem, DiffersWithAndWithoutADate) {
  const JunkItem undated = itemOf(1);
  JunkItem dated = undated;
  dated.modifiedDate = Date{};
  EXPECT_NE(undated, dated);
}

TEST(CleanCategory, AddsUpItsItems) {
  CleanCategory category;
  category.items = {itemOf(3'000'000'000), itemOf(250'000'000)};
  EXPECT_EQ(category.totalSize(), 3'250'000'000);
  EXPECT_EQ(category.formattedSize(Formatting("en_US")), "3.25 GB");
}

TEST(CleanCategory, WithoutItemsHoldsZeroBytes) {
  EXPECT_EQ(CleanCategory{}.totalSize(), 0);
  EXPECT_EQ(CleanCategory{}.formattedSize(Formatting("en_US")), "Zero KB");
}

TEST(CleanCategoryDeathTest, EndsTheProgramWhenItsSizeNoLongerFits) {
  CleanCategory category;
  category.items = {itemOf(largest), itemOf(1)};
  EXPECT_DEATH(static_cast<void>(category.totalSize()), "");
}

TEST(Version, IsWhatTheApplicationSaysOfItself) {
  const ApplicationInfo info{{"CFBundleShortVersionString", "2.1.0"}, {"CFBundleVersion", "57"}};
  EXPECT_EQ(appVersion(info), "2.1.0");
  EXPECT_EQ(buildNumber(info), "57");
}

TEST(Version, IsZeroWhereTheApplicationSaysNothing) {
  EXPECT_EQ(appVersion({}), "0.0.0");
  EXPECT_EQ(buildNumber({}), "0");
}

TEST(Version, IsZeroWhereTheApplicationSaysSomethingOtherThanText) {
  const ApplicationInfo info{{"CFBundleShortVersionString", 2.1},
                             {"CFBundleVersion", std::int64_t{57}}};
  EXPECT_EQ(appVersion(info), "0.0.0");
  EXPECT_EQ(buildNumber(info), "0");
}

}  // namespace
}  // namespace klarvik
