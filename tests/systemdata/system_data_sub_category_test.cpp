#include "systemdata/system_data_sub_category.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

struct Expected {
  SystemDataSubCategory kind;
  std::string_view name;
  std::string_view icon;
  RgbColor color;
  ItemSafety safety;
  std::string_view description;
};

constexpr std::array<Expected, 22> expected{{
    {SystemDataSubCategory::applicationSupport,
     "Application Support",
     "app.badge.fill",
     {0.098, 0.62, 0.439},
     ItemSafety::review,
     "The working data of installed apps: libraries, databases, saved sessions. Removing a folder "
     "here empties that app. Uninstall the app instead, or clear its caches from inside it."},
    {SystemDataSubCategory::containers,
     "Containers",
     "shippingbox.fill",
     {0.565, 0.522, 0.914},
     ItemSafety::review,
     "Sandboxed app data. A Docker VM can be pruned from Docker; most other containers hold the "
     "app's own documents and settings."},
    {SystemDataSubCategory::groupContainers,
     "Group Containers",
     "square.stack.3d.up.fill",
     {0.851, 0.349, 0.149},
     ItemSafety::review,
     "Data shared between an app and its extensions. WhatsApp and Telegram keep their message "
     "history here, so emptying a folder signs you out and loses the chats. Clear media from "
     "inside each app."},
    {SystemDataSubCategory::developerTools,
     "Developer Tools",
     "wrench.and.screwdriver.fill",
     {0.224, 0.529, 0.898},
     ItemSafety::safe,
     "Xcode data, iOS simulators, Android SDK. Delete old simulators and unused SDKs."},
    {SystemDataSubCategory::packageManagerCaches,
     "Package Manager Caches",
     "shippingbox.and.arrow.backward.fill",
     {0.788, 0.522, 0.0},
     ItemSafety::safe,
     "Cached packages from npm, yarn, pip, CocoaPods, Gradle, etc. Safe to delete — will "
     "re-download when needed."},
    {SystemDataSubCategory::timeMachineSnapshots,
     "Time Machine Snapshots",
     "clock.arrow.2.circlepath",
     {0.902, 0.404, 0.404},
     ItemSafety::review,
     "Local snapshots kept for Time Machine. Safe to delete — your external backups remain "
     "intact."},
    {SystemDataSubCategory::systemTemp,
     "System Temp Files",
     "doc.badge.clock.fill",
     {0.443, 0.443, 0.463},
     ItemSafety::safe,
     "Temporary files created by macOS and apps. Mostly auto-managed, some can be cleared."},
    {SystemDataSubCategory::vmSwap,
     "VM & Swap",
     "memorychip.fill",
     {0.298, 0.298, 0.318},
     ItemSafety::protected_,
     "Virtual memory used by macOS. Cannot be deleted — system-managed and essential."},
    {SystemDataSubCategory::systemDatabases,
     "System Databases",
     "cylinder.fill",
     {0.298, 0.298, 0.318},
     ItemSafety::protected_,
     "System databases (fseventsd, dyld, etc.). Cannot be deleted — essential for macOS."},
    {SystemDataSubCategory::mailStorage,
     "Mail Storage",
     "envelope.fill",
     {0.835, 0.318, 0.506},
     ItemSafety::review,
     "Email data and attachments. Manage in Mail.app by deleting old emails."},
    {SystemDataSubCategory::homebrewCache,
     "Homebrew",
     "mug.fill",
     {0.443, 0.443, 0.463},
     ItemSafety::safe,
     "Cached package downloads. Run 'brew cleanup' to free this space."},
    {SystemDataSubCategory::firmware,
     "Firmware Files",
     "cpu.fill",
     {0.443, 0.443, 0.463},
     ItemSafety::review,
     "iOS/iPadOS firmware files (IPSW). Safe to delete after updating your devices."},
    {SystemDataSubCategory::spotlightIndex,
     "Spotlight Index",
     "magnifyingglass",
     {0.298, 0.298, 0.318},
     ItemSafety::protected_,
     "Search index built by Spotlight. Cannot be manually deleted — system-managed."},
    {SystemDataSubCategory::diagnostics,
     "Diagnostic Reports",
     "stethoscope",
     {0.443, 0.443, 0.463},
     ItemSafety::safe,
     "Crash reports and diagnostic logs. Safe to delete."},
    {SystemDataSubCategory::savedState,
     "Saved App State",
     "bookmark.fill",
     {0.443, 0.443, 0.463},
     ItemSafety::safe,
     "Window positions and state saved by apps. Safe to delete — apps recreate on launch."},
    {SystemDataSubCategory::cookiesStorage,
     "Cookies & Web Storage",
     "globe",
     {0.443, 0.443, 0.463},
     ItemSafety::review,
     "Browser cookies and web storage. Deleting may log you out of websites."},
    {SystemDataSubCategory::caches,
     "App Caches",
     "archivebox.fill",
     {0.0, 0.514, 0.0},
     ItemSafety::safe,
     "Temporary cache files from all apps. Safe to delete — apps will regenerate them."},
    {SystemDataSubCategory::systemLibrary,
     "System Library Data",
     "building.columns.fill",
     {0.298, 0.298, 0.318},
     ItemSafety::protected_,
     "System-level library data. Cannot be deleted — essential for macOS and installed apps."},
    {SystemDataSubCategory::logs,
     "Logs",
     "doc.text.fill",
     {0.443, 0.443, 0.463},
     ItemSafety::safe,
     "System and app log files. Safe to delete — they accumulate over time."},
    {SystemDataSubCategory::preferences,
     "Preferences & Config",
     "gearshape.fill",
     {0.298, 0.298, 0.318},
     ItemSafety::protected_,
     "App preferences and configuration files. Do not delete — may reset app settings."},
    {SystemDataSubCategory::icloudData,
     "iCloud & Mobile Docs",
     "icloud.fill",
     {0.298, 0.298, 0.318},
     ItemSafety::protected_,
     "iCloud Drive and Mobile Documents data. Managed by iCloud — do not delete manually."},
    {SystemDataSubCategory::otherLibrary,
     "Other Library Data",
     "folder.fill",
     {0.443, 0.443, 0.463},
     ItemSafety::review,
     "Other data in your Library folder not covered by specific categories. Review individually."},
}};

TEST(SystemDataSubCategory, KindsAreListedInTheirOrder) {
  ASSERT_EQ(allSystemDataSubCategories().size(), expected.size());
  for (std::size_t row = 0; row < expected.size(); ++row) {
    EXPECT_EQ(allSystemDataSubCategories()[row], expected[row].kind);
  }
}

TEST(SystemDataSubCategory, EachKindHasItsNameIconColourSafetyAndDescription) {
  for (const Expected& each : expected) {
    EXPECT_EQ(rawValue(each.kind), each.name);
    EXPECT_EQ(icon(each.kind), each.icon) << each.name;
    EXPECT_EQ(color(each.kind), each.color) << each.name;
    EXPECT_EQ(defaultSafety(each.kind), each.safety) << each.name;
    EXPECT_EQ(description(each.kind), each.description) << each.name;
  }
}

TEST(SystemDataSubCategory, IsFoundAgainByItsName) {
  for (const Expected& each : expected) EXPECT_EQ(systemDataSubCategory(each.name), each.kind);
}

TEST(SystemDataSubCategory, AnUnknownNameGivesNothing) {
  for (const char* const name : {"", "logs", "Logs ", "Other", "applicationSupport"}) {
    EXPECT_EQ(systemDataSubCategory(name), std::nullopt) << name;
  }
}

}  // namespace
}  // namespace klarvik
