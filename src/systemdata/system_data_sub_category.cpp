#include "systemdata/system_data_sub_category.h"

#include <algorithm>

#include "places/colors.h"
#include "places/disk_layout.h"

namespace klarvik {
namespace {

struct Kind {
  SystemDataSubCategory kind;
  std::string_view name;
  std::string_view icon;
  RgbColor color;
  ItemSafety safety;
  std::string_view description;
};

using enum ItemSafety;
using Sub = SystemDataSubCategory;

constexpr std::array<Kind, ledgerKindCount> kinds{{
    {Sub::applicationSupport, "Application Support", "app.badge.fill", storage_palette::teal,
     review,
     "The working data of installed apps: libraries, databases, saved sessions. Removing a folder "
     "here empties that app. Uninstall the app instead, or clear its caches from inside it."},
    {Sub::containers, "Containers", "shippingbox.fill", storage_palette::violet, review,
     "Sandboxed app data. A Docker VM can be pruned from Docker; most other containers hold the "
     "app's own documents and settings."},
    {Sub::groupContainers, "Group Containers", "square.stack.3d.up.fill", storage_palette::orange,
     review,
     "Data shared between an app and its extensions. WhatsApp and Telegram keep their message "
     "history here, so emptying a folder signs you out and loses the chats. Clear media from "
     "inside each app."},
    {Sub::developerTools, "Developer Tools", "wrench.and.screwdriver.fill", storage_palette::blue,
     safe, "Xcode data, iOS simulators, Android SDK. Delete old simulators and unused SDKs."},
    {Sub::packageManagerCaches, "Package Manager Caches", "shippingbox.and.arrow.backward.fill",
     storage_palette::amber, safe,
     "Cached packages from npm, yarn, pip, CocoaPods, Gradle, etc. Safe to delete — will "
     "re-download when needed."},
    {Sub::timeMachineSnapshots, "Time Machine Snapshots", "clock.arrow.2.circlepath",
     storage_palette::coral, review,
     "Local snapshots kept for Time Machine. Safe to delete — your external backups remain "
     "intact."},
    {Sub::systemTemp, "System Temp Files", "doc.badge.clock.fill", storage_palette::lightGray, safe,
     "Temporary files created by macOS and apps. Mostly auto-managed, some can be cleared."},
    {Sub::vmSwap, "VM & Swap", "memorychip.fill", storage_palette::darkGray, protected_,
     "Virtual memory used by macOS. Cannot be deleted — system-managed and essential."},
    {Sub::systemDatabases, "System Databases", "cylinder.fill", storage_palette::darkGray,
     protected_,
     "System databases (fseventsd, dyld, etc.). Cannot be deleted — essential for macOS."},
    {Sub::mailStorage, "Mail Storage", "envelope.fill", storage_palette::pink, review,
     "Email data and attachments. Manage in Mail.app by deleting old emails."},
    {Sub::homebrewCache, "Homebrew", "mug.fill", storage_palette::lightGray, safe,
     "Cached package downloads. Run 'brew cleanup' to free this space."},
    {Sub::firmware, "Firmware Files", "cpu.fill", storage_palette::lightGray, review,
     "iOS/iPadOS firmware files (IPSW). Safe to delete after updating your devices."},
    {Sub::spotlightIndex, "Spotlight Index", "magnifyingglass", storage_palette::darkGray,
     protected_, "Search index built by Spotlight. Cannot be manually deleted — system-managed."},
    {Sub::diagnostics, "Diagnostic Reports", "stethoscope", storage_palette::lightGray, safe,
     "Crash reports and diagnostic logs. Safe to delete."},
    {Sub::savedState, "Saved App State", "bookmark.fill", storage_palette::lightGray, safe,
     "Window positions and state saved by apps. Safe to delete — apps recreate on launch."},
    {Sub::cookiesStorage, "Cookies & Web Storage", "globe", storage_palette::lightGray, review,
     "Browser cookies and web storage. Deleting may log you out of websites."},
    {Sub::caches, "App Caches", "archivebox.fill", storage_palette::green, safe,
     "Temporary cache files from all apps. Safe to delete — apps will regenerate them."},
    {Sub::systemLibrary, "System Library Data", "building.columns.fill", storage_palette::darkGray,
     protected_,
     "System-level library data. Cannot be deleted — essential for macOS and installed apps."},
    {Sub::logs, "Logs", "doc.text.fill", storage_palette::lightGray, safe,
     "System and app log files. Safe to delete — they accumulate over time."},
    {Sub::preferences, "Preferences & Config", "gearshape.fill", storage_palette::darkGray,
     protected_,
     "App preferences and configuration files. Do not delete — may reset app settings."},
    {Sub::icloudData, "iCloud & Mobile Docs", "icloud.fill", storage_palette::darkGray, protected_,
     "iCloud Drive and Mobile Documents data. Managed by iCloud — do not delete manually."},
    {Sub::otherLibrary, "Other Library Data", "folder.fill", storage_palette::lightGray, review,
     "Other data in your Library folder not covered by specific categories. Review individually."},
    // The texts of these are the layout's.
    {Sub::containerStorage, "Containers & Machines", "square.stack.3d.up.fill",
     storage_palette::violet, protected_, ""},
    {Sub::packages, "Flatpak & Snap", "shippingbox.fill", storage_palette::orange, protected_, ""},
    {Sub::deletedOpen, "Deleted but Still Open", "trash", storage_palette::coral, protected_, ""},
    {Sub::reserved, "Kept for the System", "lock.fill", storage_palette::lightGray, protected_, ""},
    {Sub::otherUsers, "Other Users", "person.2.fill", storage_palette::darkGray, protected_, ""},
    {Sub::yourFiles, "Your Files", "house.fill", storage_palette::blue, protected_, ""},
    {Sub::elsewhere, "Elsewhere on the Disk", "externaldrive.fill", storage_palette::lightGray,
     protected_, ""},
    {Sub::notReadable, "Not Readable for You", "lock.fill", storage_palette::darkGray, protected_,
     ""},
}};

constexpr bool everyRowStandsAtItsKind() {
  for (std::size_t row = 0; row < kinds.size(); ++row) {
    if (static_cast<std::size_t>(kinds[row].kind) != row) return false;
  }
  return true;
}
static_assert(everyRowStandsAtItsKind());

constexpr const Kind& row(SystemDataSubCategory kind) {
  return kinds[static_cast<std::size_t>(kind)];
}

}  // namespace

const std::array<SystemDataSubCategory, systemDataSubCategoryCount>& allSystemDataSubCategories() {
  static constexpr auto all = [] {
    std::array<SystemDataSubCategory, systemDataSubCategoryCount> order{};
    std::ranges::transform(kinds.begin(), kinds.begin() + systemDataSubCategoryCount, order.begin(),
                           &Kind::kind);
    return order;
  }();
  return all;
}

std::string_view rawValue(SystemDataSubCategory kind) {
  return row(kind).name;
}

std::string_view icon(SystemDataSubCategory kind) {
  return row(kind).icon;
}
RgbColor color(SystemDataSubCategory kind) {
  return row(kind).color;
}
std::string_view description(SystemDataSubCategory kind) {
  return row(kind).description;
}
std::string_view label(SystemDataSubCategory kind, const DiskLayout& layout) {
  const auto place = static_cast<std::size_t>(kind);
  return layout.systemData.empty() ? rawValue(kind) : layout.systemData[place].label;
}
std::string_view description(SystemDataSubCategory kind, const DiskLayout& layout) {
  const auto place = static_cast<std::size_t>(kind);
  return layout.systemData.empty() ? description(kind) : layout.systemData[place].description;
}
ItemSafety defaultSafety(SystemDataSubCategory kind) {
  return row(kind).safety;
}

}  // namespace klarvik
