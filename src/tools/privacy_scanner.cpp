#include "tools/privacy_scanner.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/bytes.h"
#include "base/message.h"
#include "base/paths.h"
#include "base/text.h"
#include "core/catalogue.h"
#include "core/removal_check.h"
#include "engine/place_conditions.h"
#include "engine/sizes.h"
#include "places/disk_layout.h"
#include "platform/desktop_services.h"
#include "platform/file_system.h"
#include "tools/firefox_history.h"
#include "tools/trail_finder.h"

namespace klarvik {
namespace {

using Places = std::span<const std::string_view>;
using Measure = std::int64_t (*)(const FileSystem&, const Path&);

std::int64_t folderSize(const FileSystem& files, const Path& path) {
  const auto attributes = files.attributes(path);
  const bool isFolder = attributes && attributes->kind == FileKind::directory;
  return isFolder ? contentSize(files, path) : 0;
}

const TrailPlaces& trails(const FileSystem& files) {
  return layoutFor(files.home()).trails;
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
  if (place.empty() || !files.exists(path)) return std::nullopt;
  const auto identity = entryIdentity(files, path);
  return PrivacyItem{.category = category,
                     .name = std::move(name),
                     .path = path,
                     .size = fileSize(files, path),
                     .identity = identity};
}

Found history(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::browserHistory, "Browser History",
                 sum(files, trails(files).histories, fileSize));
}

Found cookies(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::browserCookies, "Browser Cookies",
                 sum(files, trails(files).cookies, fileSize));
}

Found browserCache(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::browserCache, "Browser Cache",
                 sum(files, trails(files).browserCaches, folderSize));
}

std::int64_t listCount(const FileSystem& files, const Path& folder) {
  const auto entries = files.list(folder).value_or(std::vector<Path>{});
  return std::count_if(entries.begin(), entries.end(), [](const Path& entry) {
    return entry.filename().native().ends_with(".sfl2");
  });
}

Found recentFiles(const FileSystem& files, Pasteboard&) {
  const Path folder = files.home() / trails(files).recentLists;
  if (trails(files).recentLists.empty() || !files.exists(folder)) return std::nullopt;
  return PrivacyItem{.category = PrivacyCategory::recentFiles,
                     .name = "Recent Files Lists",
                     .path = folder,
                     .count = listCount(files, folder),
                     .size = folderSize(files, folder)};
}

Found recentApps(const FileSystem& files, Pasteboard&) {
  return fileTrail(files, PrivacyCategory::recentApps, "Recent Apps (Dock)",
                   trails(files).recentApplications);
}

Found downloads(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::downloadsList, "Downloads History",
                 sum(files, trails(files).downloads, fileSize));
}

Found clipboard(const FileSystem&, Pasteboard& pasteboard) {
  if (!pasteboard.holdsTextOrImage()) return std::nullopt;
  return PrivacyItem{
      .category = PrivacyCategory::clipboard, .name = "Clipboard Contents", .count = 1};
}

Found quarantine(const FileSystem& files, Pasteboard&) {
  return fileTrail(files, PrivacyCategory::quarantine, "Quarantine Database",
                   trails(files).downloadOrigins);
}

Found locationCache(const FileSystem& files, Pasteboard&) {
  return trailOf(PrivacyCategory::locationHistory, "Location Cache",
                 sum(files, trails(files).locations, folderSize));
}

struct TrailSearch {
  double fraction;
  std::string_view line;
  Found (*find)(const FileSystem&, Pasteboard&);
};

constexpr std::array<TrailSearch, 9> searches{{
    {0.1, QT_TRANSLATE_NOOP("Engine", "Scanning browser history..."), history},
    {0.22, QT_TRANSLATE_NOOP("Engine", "Scanning browser cookies..."), cookies},
    {0.34, QT_TRANSLATE_NOOP("Engine", "Scanning browser cache..."), browserCache},
    {0.45, QT_TRANSLATE_NOOP("Engine", "Scanning recent files..."), recentFiles},
    {0.55, QT_TRANSLATE_NOOP("Engine", "Scanning recent apps..."), recentApps},
    {0.65, QT_TRANSLATE_NOOP("Engine", "Scanning downloads list..."), downloads},
    {0.73, QT_TRANSLATE_NOOP("Engine", "Scanning clipboard..."), clipboard},
    {0.83, QT_TRANSLATE_NOOP("Engine", "Scanning quarantine database..."), quarantine},
    {0.93, QT_TRANSLATE_NOOP("Engine", "Scanning location cache..."), locationCache},
}};

}  // namespace

std::vector<PrivacyItem> PrivacyScanner::scan(const ProgressSink& progress) {
  const std::scoped_lock lock(_working);
  if (!trails(_files).trails.empty()) return scanTable(progress);
  std::vector<PrivacyItem> items;
  for (const TrailSearch& search : searches) {
    if (progress) progress(search.fraction, search.line);
    if (auto item = search.find(_files, _pasteboard)) items.push_back(std::move(*item));
  }
  if (progress) progress(1.0, QT_TRANSLATE_NOOP("Engine", "Done"));
  return items;
}

std::vector<PrivacyItem> PrivacyScanner::scanTable(const ProgressSink& progress) {
  std::vector<PrivacyItem> items = TrailFinder(_platform).find([&](PrivacyCategory category) {
    if (!progress) return;
    const auto step = static_cast<double>(category) + 1;
    const std::string_view kind = category == PrivacyCategory::quarantine
                                      ? layoutFor(_files.home()).words.downloadOrigins
                                      : rawValue(category);
    const std::string line = "Scanning " + lowercased(kind) + "...";
    progress(step / (privacyCategoryCount + 1), line);
  });
  if (auto copied = clipboard(_files, _pasteboard)) items.push_back(std::move(*copied));
  if (progress) progress(1.0, QT_TRANSLATE_NOOP("Engine", "Done"));
  return items;
}

PrivacyClearance PrivacyScanner::clear(const std::vector<PrivacyItem>& items) {
  const std::scoped_lock lock(_working);
  PrivacyClearance sums;
  for (const PrivacyItem& item : items) {
    const PrivacyClearance done = clearItem(item);
    sums.cleaned += done.cleaned;
    sums.freed = addBytes(sums.freed, done.freed);
    sums.stayed.insert(sums.stayed.end(), done.stayed.begin(), done.stayed.end());
  }
  return sums;
}

PrivacyClearance PrivacyScanner::clearItem(const PrivacyItem& item) {
  if (!item.parts.empty()) return clearParts(item);
  if (item.category == PrivacyCategory::recentFiles) {
    _platform.recentDocuments.clear();
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

PrivacyClearance PrivacyScanner::clearParts(const PrivacyItem& item) {
  PrivacyClearance done;
  std::size_t gone = 0;
  std::string program = programThatUses(item);
  if (item.told.empty() && program.empty()) {
    for (const TrailPart& part : item.parts) {
      const std::int64_t before = wholeAllocatedSize(_files, part.path);
      if (const PartEnd end = clearPart(part); end != PartEnd::gone) {
        // No process of the user's is it, but one that cannot be seen has it open.
        if (end == PartEnd::isOpen) program = item.program;
        continue;
      }
      ++gone;
      done.freed = addBytes(done.freed, before - wholeAllocatedSize(_files, part.path));
    }
  }
  if (gone == item.parts.size()) {
    done.cleaned = 1;
  } else {
    done.stayed.push_back({item.id, std::move(program)});
  }
  return done;
}

PrivacyScanner::PartEnd PrivacyScanner::clearPart(const TrailPart& part) {
  const auto scope = DeletionScope::trail();
  const auto endOf = [](bool isGone) { return isGone ? PartEnd::gone : PartEnd::stayed; };
  switch (part.clearing) {
    case TrailClearing::orphansRemoved:
      if (!isOrphanedRecord(_files, part.path)) return PartEnd::stayed;
      [[fallthrough]];
    case TrailClearing::removed:
      return endOf(removeIfAllowed(_files, part.path, scope, part.identity, _leftAlone));
    case TrailClearing::emptied:
      return endOf(mayRemove(_files, part.path, scope) &&
                   _files.empty(part.path, itemCheck(_files, part.path, scope, part.identity)));
    case TrailClearing::asList:
      return endOf(_platform.recentDocuments.clear());
    case TrailClearing::firefoxHistory:
      return clearHistory(part);
    case TrailClearing::originRemoved: {
      const auto origin = DeletionScope::origin();
      return endOf(
          mayRemove(_files, part.path, origin) &&
          _files.removeUserAttributes(part.path, trails(_files).originAttributes,
                                      itemCheck(_files, part.path, origin, part.identity)));
    }
    case TrailClearing::told:
      break;
  }
  return PartEnd::stayed;
}

PrivacyScanner::PartEnd PrivacyScanner::clearHistory(const TrailPart& part) {
  const auto databases = firefoxDatabases(_files, part.path);
  if (!databases) return PartEnd::stayed;
  const auto check = itemCheck(_files, part.path, DeletionScope::database(), part.identity);
  const auto outcome = clearFirefoxHistory(*databases, [&] {
    const auto real = _files.realPath(part.path);
    const auto attributes = real ? _files.attributes(*real) : std::nullopt;
    return attributes && _files.diskPath(*real) == databases->places && check(*real, *attributes);
  });
  if (outcome == HistoryOutcome::inUse) return PartEnd::isOpen;
  return outcome == HistoryOutcome::done ? PartEnd::gone : PartEnd::stayed;
}

/// Looked at again: a program may have been started since the scan. Empty where none runs.
std::string PrivacyScanner::programThatUses(const PrivacyItem& item) const {
  const Catalogue catalogue(layoutFor(_files.home()), _files.folders());
  std::vector<std::string_view> programs{item.closedFirst};
  for (const TrailPart& part : item.parts) {
    const std::string below = part.path.lexically_relative(_files.home()).native();
    for (const Place* place : catalogue.placesOf(splitPath(below), /*inHome=*/true)) {
      programs.push_back(place->details.closedFirst);
    }
  }
  for (const std::string_view program : programs) {
    if (program.empty()) continue;
    if (std::string name = nameIfRunning(_platform, catalogue, program); !name.empty()) return name;
  }
  return {};
}

}  // namespace klarvik
