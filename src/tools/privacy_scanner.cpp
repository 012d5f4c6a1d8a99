#include "tools/privacy_scanner.h"

#include <algorithm>
#include <array>
#include <span>

#include "core/junk_model.h"
#include "core/removal_check.h"
#include "platform/file_system.h"
#include "platform/pasteboard.h"
#include "platform/recent_documents.h"
#include "tools/file_size.h"

namespace klarvik {

namespace {

// All paths are relative to the home. Some of them are folders, which as files measure nothing.
constexpr std::string_view recentLists = "Library/Application Support/com.apple.sharedfilelist";
constexpr std::string_view dockPreferences = "Library/Preferences/com.apple.dock.plist";
constexpr std::string_view quarantineDatabase =
    "Library/Preferences/com.apple.LaunchServices.QuarantineEventsV2";
constexpr std::string_view firefoxProfiles = "Library/Application Support/Firefox/Profiles";

constexpr std::array<std::string_view, 4> historyFiles{
    "Library/Application Support/Google/Chrome/Default/History", "Library/Safari/History.db",
    firefoxProfiles, recentLists};

constexpr std::array<std::string_view, 3> cookieFiles{
    "Library/Application Support/Google/Chrome/Default/Cookies", "Library/Cookies",
    firefoxProfiles};

constexpr std::array<std::string_view, 4> browserCaches{
    "Library/Caches/Google/Chrome", "Library/Caches/com.apple.Safari",
    "Library/Caches/com.google.Chrome", "Library/Caches/Firefox"};

constexpr std::array<std::string_view, 2> downloadRecords{
    quarantineDatabase,
    "Library/Application Support/com.apple.sharedfilelist/"
    "com.apple.LSSharedFileList.RecentDownloads.sfl2"};

constexpr std::array<std::string_view, 2> locationCaches{"Library/Caches/com.apple.locationd",
                                                         "Library/Caches/locationd"};

using Places = std::span<const std::string_view>;
using Measure = std::int64_t (*)(const FileSystem&, const Path&);

std::int64_t folderSize(const FileSystem& files, const Path& path) {
  const auto attributes = files.attributes(path);
  const bool isFolder = attributes && attributes->kind == FileKind::directory;
  return isFolder ? contentSize(files, path) : 0;
}

std::int64_t sum(const FileSystem& files, Places places, Measure measure) {
  std::int64_t total = 0;
  for (const std::string_view place : places) {
    const Path path = files.home() / place;
    if (files.exists(path)) total = addBytes(total, measure(files, path));
  }
  return total;
}

using Found = std::optional<PrivacyItem>;

Found trailOf(PrivacyCategory category, std::string name, std::int64_t size) {
  if (size < 1) return std::nullopt;
  return PrivacyItem{.category = category, .name = std::move(name), .size = size};
}

Found fileTrail(const FileSystem& files, PrivacyCategory category, std::string name,
                std::string_view place) {
  const Path path = files.home() / place;
  if (!files.exists(path)) return std::nullopt;
  const auto identity = entryIdentity(files, path);
  return PrivacyItem{.category = category,
                     .name = std::move(name),
                     .path = path,
                     .size = fileSize(files, path),
                     .identity = identity};
}

Found history(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::browserHistory, "Browser History",
                 sum(files, historyFiles, fileSize));
}

Found cookies(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::browserCookies, "Browser Cookies",
                 sum(files, cookieFiles, fileSize));
}

Found browserCache(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::browserCache, "Browser Cache",
                 sum(files, browserCaches, folderSize));
}

std::int64_t listCount(const FileSystem& files, const Path& folder) {
  const auto entries = files.list(folder).value_or(std::vector<Path>{});
  return std::count_if(entries.begin(), entries.end(), [](const Path& entry) {
    return entry.filename().native().ends_with(".sfl2");
  });
}

Found recentFiles(const FileSystem& files, Pasteboard&) {
  const Path folder = files.home() / recentLists;
  if (!files.exists(folder)) return std::nullopt;
  return PrivacyItem{.category = PrivacyCategory::recentFiles,
                     .name = "Recent Files Lists",
                     .path = folder,
                     .count = listCount(files, folder),
                     .size = folderSize(files, folder)};
}

Found recentApps(const FileSystem& files, Pasteboard&) {
  return fileTrail(files, PrivacyCategory::recentApps, "Recent Apps (Dock)", dockPreferences);
}

Found downloads(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::downloadsList, "Downloads History",
                 sum(files, downloadRecords, fileSize));
}

Found clipboard(const FileSystem&, Pasteboard& pasteboard) {
  if (!pasteboard.holdsTextOrImage()) return std::nullopt;
  return PrivacyItem{
      .category = PrivacyCategory::clipboard, .name = "Clipboard Contents", .count = 1};
}

Found quarantine(const FileSystem& files, Pasteboard&) {
  return fileTrail(files, PrivacyCategory::quarantine, "Quarantine Database", quarantineDatabase);
}

Found locationCache(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::locationHistory, "Location Cache",
                 sum(files, locationCaches, folderSize));
}

struct Pass {
  double fraction;
  std::string_view line;
  Found (*find)(const FileSystem&, Pasteboard&);
};

constexpr std::array<Pass, 9> passes{{
    {0.1, "Scanning browser history...", history},
    {0.22, "Scanning browser cookies...", cookies},
    {0.34, "Scanning browser cache...", browserCache},
    {0.45, "Scanning recent files...", recentFiles},
    {0.55, "Scanning recent apps...", recentApps},
    {0.65, "Scanning downloads list...", downloads},
    {0.73, "Scanning clipboard...", clipboard},
    {0.83, "Scanning quarantine database...", quarantine},
    {0.93, "Scanning location cache...", locationCache},
}};

}  // namespace

std::vector<PrivacyItem> PrivacyScanner::scan(const ProgressSink& progress) {
  const std::scoped_lock lock(_working);
  std::vector<PrivacyItem> items;
  for (const Pass& pass : passes) {
    if (progress) progress(pass.fraction, pass.line);
    if (auto item = pass.find(_files, _pasteboard)) items.push_back(std::move(*item));
  }
  if (progress) progress(1.0, "Done");
  return items;
}

PrivacyClearance PrivacyScanner::clear(const std::vector<PrivacyItem>& items) {
  const std::scoped_lock lock(_working);
  PrivacyClearance sums;
  for (const PrivacyItem& item : items) {
    const PrivacyClearance done = clearItem(item);
    sums.cleaned += done.cleaned;
    sums.freed = addBytes(sums.freed, done.freed);
  }
  return sums;
}

PrivacyClearance PrivacyScanner::clearItem(const PrivacyItem& item) {
  if (item.category == PrivacyCategory::recentFiles) {
    _recentDocuments.clear();
    return {.cleaned = 1};
  }
  if (item.category == PrivacyCategory::clipboard) {
    _pasteboard.clear();
    return {.cleaned = 1};
  }
  const bool stays = item.path && !removeIfAllowed(_files, *item.path, DeletionScope::general(),
                                                   item.identity, _leftAlone);
  if (stays) return {};
  return {.cleaned = 1, .freed = item.size};
}

}  // namespace klarvik
