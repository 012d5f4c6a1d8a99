// The rows of the scan table that look at what everybody's disk collects.

#include <algorithm>

#include "base/text.h"

#include "base/message.h"
#include "engine/category_scanners.h"
#include "engine/local_snapshots.h"
#include "engine/scanner_engine.h"
#include "engine/shell.h"
#include "places/mac/scan_places.h"
#include "platform/formatting.h"
#include "platform/trash.h"

namespace klarvik {

namespace {

constexpr std::size_t backupNameCharacters = 8;

bool hasAnotherOwner(std::string_view name) {
  return std::any_of(mac::knownCacheOwners.begin(), mac::knownCacheOwners.end(),
                     [&](std::string_view owner) { return name.starts_with(owner); });
}

}  // namespace

CategoryScanners::Items CategoryScanners::appCaches() const {
  Items items;
  for (const Path& child : children(mac::appCaches)) {
    if (isLink(child) || hasAnotherOwner(child.filename().native())) continue;
    JunkItem cache = datedItem(child.filename().native(), child);
    if (cache.size <= mac::largestIgnoredCache) continue;
    items.push_back(std::move(cache));
    _report(items.back());
  }
  sortItemsBySize(items);
  return items;
}

CategoryScanners::Items CategoryScanners::systemLogs() const {
  return scanPaths(mac::logs);
}

CategoryScanners::Items CategoryScanners::deviceBackups() const {
  Items items;
  for (const Path& child : children(mac::deviceBackups)) {
    items.push_back(datedItem(child.filename().native(), child));
    items.back().nameText = backupName(items.back());
    items.back().name = items.back().nameText.english();
  }
  sortItemsBySize(items);
  return items;
}

Message CategoryScanners::backupName(const JunkItem& folder) const {
  const std::string told = folder.modifiedDate
                               ? _platform.formatting.dateAndTime(*folder.modifiedDate)
                               : std::string(firstCharacters(folder.name, backupNameCharacters));
  return {QT_TRANSLATE_NOOP("Engine", "iPhone Backup — %1"), {told}};
}

CategoryScanners::Items CategoryScanners::trash() const {
  Items items;
  for (const Path& entry : _platform.trash.list().value_or(std::vector<Path>{})) {
    items.push_back(datedItem(entry.filename().native(), entry));
    items.back().goesForGood = true;
  }
  return items;
}

CategoryScanners::Items CategoryScanners::browserCaches() const {
  return scanPaths(mac::browserCaches);
}

CategoryScanners::Items CategoryScanners::timeMachine() const {
  Items items;
  const auto listing = runShell(_platform.commands, "tmutil listlocalsnapshotdates / 2>/dev/null");
  for (const std::string& text : snapshotTexts(listing)) {
    Message name = snapshotName(text);
    items.push_back({.name = name.english(),
                     .path = snapshotPath(text),
                     .size = snapshotSize(text),
                     .nameText = std::move(name)});
  }
  return items;
}

Message CategoryScanners::snapshotName(const std::string& text) const {
  const auto date = Formatting::parseDate(text, "yyyy-MM-dd-HHmmss");
  return {QT_TRANSLATE_NOOP("Engine", "Snapshot — %1"),
          {date ? _platform.formatting.dateAndTime(*date) : text}};
}

std::int64_t CategoryScanners::snapshotSize(const std::string& text) const {
  const auto command = snapshotSizeCommand(text);
  return snapshotBytes(command ? runShell(_platform.commands, *command) : std::string());
}

CategoryScanners::Items CategoryScanners::firmware() const {
  Items items;
  const auto lookInto = [&](std::string_view folder) {
    for (const Path& child : children(folder)) {
      if (!mac::isFirmware(child)) continue;
      JunkItem file = datedItem(
          {QT_TRANSLATE_NOOP("Engine", "📱 Firmware: %1"), {child.filename().native()}}, child);
      if (file.size > mac::largestIgnoredFirmware) items.push_back(std::move(file));
    }
  };
  for (const std::string_view folder : mac::softwareUpdateFolders) lookInto(folder);
  lookInto(mac::mobileSyncFolder);
  return items;
}

CategoryScanners::Items CategoryScanners::leftovers() const {
  Items items = firmware();
  for (const mac::Leftover& leftover : mac::leftoverFolders) {
    JunkItem folder = item(Message(leftover.name), inHome(leftover.path));
    if (folder.size > leftover.largestIgnored) items.push_back(std::move(folder));
  }
  sortItemsBySize(items);
  return items;
}

}  // namespace klarvik
