// The rows of the scan table that look at what everybody's disk collects.

#include <algorithm>
#include <array>

#include "engine/category_scanners.h"
#include "engine/firmware_files.h"
#include "engine/local_snapshots.h"
#include "engine/scanner_engine.h"
#include "engine/shell.h"
#include "engine/tool_text.h"
#include "platform/formatting.h"
#include "platform/trash.h"

namespace klarvik {

namespace {

constexpr std::int64_t largestIgnoredCache = 1'000'000;
constexpr std::int64_t largestIgnoredFirmware = 100'000'000;
constexpr std::size_t backupNameCharacters = 8;

/// Children of the caches folder that other rows account for, by what their names begin with.
constexpr std::array<std::string_view, 9> knownCacheOwners{
    "com.google.Chrome",  "Google",
    "com.apple.Safari",   "Firefox",
    "com.brave.Browser",  "com.microsoft.edgemac",
    "com.apple.dt.Xcode", "org.llvm",
    "com.docker.docker",
};

/// Holds firmware beside backups of devices.
constexpr std::string_view mobileSyncFolder = "Library/Apple/MobileSync/Backup";

/// A folder that is worth a row of the leftovers from a certain size on.
struct Leftover {
  std::string_view path;  ///< below the home unless absolute
  std::int64_t largestIgnored;
  std::string_view name;
};

constexpr std::array<Leftover, 8> leftoverFolders{{
    {"Library/Caches/Homebrew", 100'000'000, "🍺 Homebrew Cache"},
    {"/opt/homebrew/Caches", 100'000'000, "🍺 Homebrew Cache"},
    {"/usr/local/Homebrew/Cache", 100'000'000, "🍺 Homebrew Cache"},
    {"Library/Logs/DiagnosticReports", 100'000'000, "🩺 Diagnostic Reports"},
    {"/Library/Logs/DiagnosticReports", 100'000'000, "🩺 Diagnostic Reports"},
    {"Library/Saved Application State", 50'000'000, "📋 Saved App State"},
    {"Library/Cookies", 20'000'000, "🍪 Cookies"},
    {"Library/HTTPStorages", 20'000'000, "🌐 HTTP Storage"},
}};

bool hasAnotherOwner(std::string_view name) {
  return std::any_of(knownCacheOwners.begin(), knownCacheOwners.end(),
                     [&](std::string_view owner) { return name.starts_with(owner); });
}

}  // namespace

CategoryScanners::Items CategoryScanners::appCaches() const {
  Items items;
  for (const Path& child : children("Library/Caches")) {
    if (isLink(child) || hasAnotherOwner(child.filename().native())) continue;
    JunkItem cache = datedItem(child.filename().native(), child);
    if (cache.size <= largestIgnoredCache) continue;
    items.push_back(std::move(cache));
    _report(items.back());
  }
  sortItemsBySize(items);
  return items;
}

CategoryScanners::Items CategoryScanners::systemLogs() const {
  return scanPaths({"Library/Logs", "/var/log"});
}

CategoryScanners::Items CategoryScanners::deviceBackups() const {
  Items items;
  for (const Path& child : children("Library/Application Support/MobileSync/Backup")) {
    items.push_back(datedItem(child.filename().native(), child));
    items.back().name = backupName(items.back());
  }
  sortItemsBySize(items);
  return items;
}

std::string CategoryScanners::backupName(const JunkItem& folder) const {
  const std::string told = folder.modifiedDate
                               ? _platform.formatting.dateAndTime(*folder.modifiedDate)
                               : std::string(firstCharacters(folder.name, backupNameCharacters));
  return "iPhone Backup — " + told;
}

CategoryScanners::Items CategoryScanners::trash() const {
  Items items;
  for (const Path& entry : _platform.trash.list().value_or(std::vector<Path>{})) {
    items.push_back(datedItem(entry.filename().native(), entry));
  }
  return items;
}

CategoryScanners::Items CategoryScanners::browserCaches() const {
  return scanPaths({"Library/Caches/Google/Chrome", "Library/Caches/com.google.Chrome",
                    "Library/Caches/com.apple.Safari", "Library/Caches/Firefox",
                    "Library/Caches/com.brave.Browser", "Library/Caches/com.microsoft.edgemac"});
}

CategoryScanners::Items CategoryScanners::timeMachine() const {
  Items items;
  const auto listing = runShell(_platform.commands, "tmutil listlocalsnapshotdates / 2>/dev/null");
  for (const std::string& text : snapshotTexts(listing)) {
    items.push_back(
        {.name = snapshotName(text), .path = snapshotPath(text), .size = snapshotSize(text)});
  }
  return items;
}

std::string CategoryScanners::snapshotName(const std::string& text) const {
  const auto date = Formatting::parseDate(text, "yyyy-MM-dd-HHmmss");
  return "Snapshot — " + (date ? _platform.formatting.dateAndTime(*date) : text);
}

std::int64_t CategoryScanners::snapshotSize(const std::string& text) const {
  const auto command = snapshotSizeCommand(text);
  return snapshotBytes(command ? runShell(_platform.commands, *command) : std::string());
}

CategoryScanners::Items CategoryScanners::firmware() const {
  Items items;
  const auto lookInto = [&](std::string_view folder) {
    for (const Path& child : children(folder)) {
      if (!isFirmware(child)) continue;
      JunkItem file = datedItem("📱 Firmware: " + child.filename().native(), child);
      if (file.size > largestIgnoredFirmware) items.push_back(std::move(file));
    }
  };
  for (const std::string_view folder : softwareUpdateFolders) lookInto(folder);
  lookInto(mobileSyncFolder);
  return items;
}

CategoryScanners::Items CategoryScanners::leftovers() const {
  Items items = firmware();
  for (const Leftover& leftover : leftoverFolders) {
    JunkItem folder = item(std::string(leftover.name), inHome(leftover.path));
    if (folder.size > leftover.largestIgnored) items.push_back(std::move(folder));
  }
  sortItemsBySize(items);
  return items;
}

}  // namespace klarvik
