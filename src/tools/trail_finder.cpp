#include "tools/trail_finder.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>

#include "base/bytes.h"
#include "base/message.h"
#include "core/catalogue.h"
#include "core/removal_check.h"
#include "engine/place_conditions.h"
#include "engine/place_matches.h"
#include "engine/place_scanner.h"
#include "engine/sizes.h"
#include "platform/file_system.h"
#include "tools/foreign_database.h"

namespace klarvik {
namespace {

constexpr std::size_t pieceBytes = 64UL * 1024;
constexpr std::int64_t mostCountedBytes = 256LL * 1024 * 1024;

/// How often `text` stands in the file. What is longer than anybody's history is not read to its
/// end.
std::int64_t occurrences(const FileSystem& files, const Path& path, std::string_view text) {
  const auto file = files.openForReading(path);
  if (!file) return 0;
  std::string piece;
  std::int64_t count = 0;
  for (std::int64_t read = 0; read < mostCountedBytes;) {
    // What the piece before ended with may be the beginning of one.
    const std::size_t kept = std::min(piece.size(), text.size() - 1);
    piece.erase(0, piece.size() - kept);
    piece.resize(kept + pieceBytes);
    const auto got = file->read(std::as_writable_bytes(std::span(piece)).subspan(kept));
    if (!got || *got == 0) break;
    piece.resize(kept + *got);
    read += static_cast<std::int64_t>(*got);
    for (auto at = piece.find(text); at != std::string::npos; at = piece.find(text, at + 1)) {
      ++count;
    }
  }
  return count;
}

/// Of a database, none where they cannot be told.
std::int64_t rowsOf(const FileSystem& files, const Path& path,
                    std::span<const CountedTable> tables) {
  const auto counted = std::ranges::find(tables, path.filename().native(), &CountedTable::file);
  const auto real = counted != tables.end() ? files.realPath(path) : std::nullopt;
  return real ? rowCount(files.diskPath(*real), counted->table).value_or(0) : 0;
}

std::int64_t countOf(const FileSystem& files, const Path& path, TrailCount count,
                     std::span<const CountedTable> tables) {
  switch (count) {
    case TrailCount::none:
      return 0;
    case TrailCount::files:
      return 1;
    case TrailCount::lines:
      return occurrences(files, path, "\n");
    case TrailCount::bookmarks:
      return occurrences(files, path, "<bookmark ");
    case TrailCount::rows:
      return rowsOf(files, path, tables);
  }
  return 0;
}

/// `told`: how the user clears it, where Klarvik does not.
PrivacyItem& itemOf(std::vector<PrivacyItem>& items, const Trail& trail, std::string_view told) {
  const auto same = std::ranges::find_if(items, [&](const PrivacyItem& item) {
    return item.category == trail.category && item.program == trail.program && item.told == told;
  });
  if (same != items.end()) return *same;
  std::string name(rawValue(trail.category));
  if (!trail.program.empty()) name.append(" — ").append(trail.program);
  return items.emplace_back(PrivacyItem{.category = trail.category,
                                        .name = std::move(name),
                                        .program = std::string(trail.program),
                                        .closedFirst = trail.closedFirst,
                                        .told = told});
}

/// What stands in the way of clearing a history; `usual` is how its program is told to.
std::string_view obstacle(HistoryOutcome outcome, std::string_view usual) {
  switch (outcome) {
    case HistoryOutcome::done:
      return {};
    case HistoryOutcome::damaged:
      return QT_TRANSLATE_NOOP("Engine", "Its database is damaged: left as it is");
    case HistoryOutcome::tooLarge:
      return QT_TRANSLATE_NOOP("Engine", "Too large to clear from here");
    case HistoryOutcome::inUse:
    case HistoryOutcome::replaced:
    case HistoryOutcome::unknown:
    case HistoryOutcome::failed:
      break;
  }
  return usual;
}

/// One search, and what it has come to.
class Search {
 public:
  explicit Search(const Platform& platform)
      : _platform(platform),
        _files(platform.files),
        _layout(layoutFor(platform.files.home())),
        _catalogue(_layout, platform.files.folders()) {}

  void look(PrivacyCategory category) {
    if (category == PrivacyCategory::browserCache) addBrowserCaches();
    if (category == PrivacyCategory::quarantine) addOrigins();
    for (const Trail& trail : _layout.trails.trails) {
      if (trail.category == category) add(trail);
    }
  }

  std::vector<PrivacyItem> found() {
    for (PrivacyItem& item : _items) {
      if (!item.closedFirst.empty()) {
        item.closeFirst = nameIfRunning(_platform, _catalogue, item.closedFirst);
      }
      item.isSelected = item.canBeCleared();
      if (item.parts.size() == 1) item.path = item.parts.front().path;
    }
    return std::move(_items);
  }

 private:
  void add(const Trail& trail) {
    const Path start = _files.home() / _catalogue.folder(trail.base).value_or("") / trail.folder;
    for (const std::string_view inside : trail.inside) {
      for (const PlaceMatch& match : matchesBelow(_files, {{.path = start}}, inside)) {
        add(trail, match.path);
      }
    }
  }

  void add(const Trail& trail, const Path& path) {
    if (isElsewhere(_files, path)) return;
    const auto attributes = _files.attributes(path);
    if (!attributes) return;
    const bool isFile = attributes->kind == FileKind::regular;
    if (trail.clearing == TrailClearing::firefoxHistory) {
      if (isFile) addHistory(trail, path, *attributes);
      return;
    }
    if (!isFile && attributes->kind != FileKind::directory) return;
    if (trail.clearing == TrailClearing::orphansRemoved && !isOrphanedRecord(_files, path)) return;
    const bool staysAsFile =
        trail.clearing == TrailClearing::emptied || trail.clearing == TrailClearing::asList;
    const bool isEmpty = isFile && attributes->logicalBytes == 0;
    if (staysAsFile && (!isFile || isEmpty)) return;
    const std::int64_t count =
        isFile ? countOf(_files, path, trail.count, _layout.trails.countedTables) : 0;
    if (trail.clearing == TrailClearing::asList && count == 0) return;
    if (trail.clearing != TrailClearing::told && !isAllowed(path, DeletionScope::trail())) return;
    PrivacyItem& item = itemOf(_items, trail, trail.told);
    append(item, {.path = path,
                  .size = wholeAllocatedSize(_files, path),
                  .identity = entryIdentity(*attributes),
                  .clearing = trail.clearing});
    item.count = addBytes(item.count, count);
  }

  /// The database stays, and as large as it is: Firefox uses the space again.
  void addHistory(const Trail& trail, const Path& path, const FileAttributes& attributes) {
    const auto databases = firefoxDatabases(_files, path);
    if (!databases) return;
    const FirefoxHistory history = readFirefoxHistory(*databases);
    const bool isReadable = history.outcome == HistoryOutcome::done;
    if (isReadable && history.pages == 0 && !history.mayHoldMore) return;
    PrivacyItem& item = itemOf(_items, trail, obstacle(history.outcome, trail.told));
    append(item, {.path = path, .identity = entryIdentity(attributes), .clearing = trail.clearing});
    item.count = addBytes(item.count, history.pages);
  }

  static void append(PrivacyItem& item, TrailPart part) {
    item.size = addBytes(item.size, part.size);
    item.parts.push_back(std::move(part));
  }

  [[nodiscard]] bool isAllowed(const Path& path, const DeletionScope& scope) const {
    const auto real = _files.realPath(path);
    return mayRemove(_files, path, scope) && real &&
           (*real == path || mayRemoveReal(_files, *real, scope));
  }

  [[nodiscard]] bool saysOrigin(const Path& file) const {
    return std::ranges::any_of(_files.userAttributes(file), [&](const std::string& attribute) {
      return std::ranges::find(_layout.trails.originAttributes, attribute) !=
             _layout.trails.originAttributes.end();
    });
  }

  /// The downloads that say where they came from, also in folders of the download folder.
  void addOrigins() {
    const Path downloads = _files.folders().downloads;
    // Where all of the home counts as the download folder, nobody has one.
    if (_layout.trails.originAttributes.empty() || downloads == _files.home()) return;
    if (isElsewhere(_files, downloads)) return;
    PrivacyItem item{.category = PrivacyCategory::quarantine,
                     .name = std::string(_layout.words.downloadOrigins)};
    _files.walk(downloads, {.stayOnMount = true}, [&](WalkEntry& entry) {
      if (entry.kind() != FileKind::regular) return WalkStep::proceed;
      const Path path = entry.path();
      const auto attributes = saysOrigin(path) ? entry.attributes() : std::nullopt;
      if (!attributes || !isAllowed(path, DeletionScope::origin())) return WalkStep::proceed;
      append(item, {.path = path,
                    .identity = entryIdentity(*attributes),
                    .clearing = TrailClearing::originRemoved});
      ++item.count;
      return WalkStep::proceed;
    });
    if (!item.parts.empty()) _items.push_back(std::move(item));
  }

  /// Those of a browser that runs are an item of their own, to be cleared when it is closed.
  void addBrowserCaches() {
    PlaceScanner scanner(_platform, {}, [](const JunkItem&) {});
    for (JunkItem& cache : scanner.find(CategoryType::browserCaches).items) {
      const auto same = std::ranges::find_if(_items, [&](const PrivacyItem& item) {
        return item.category == PrivacyCategory::browserCache &&
               item.closeFirst == cache.closeFirst;
      });
      PrivacyItem& item =
          same != _items.end()
              ? *same
              : _items.emplace_back(PrivacyItem{.category = PrivacyCategory::browserCache,
                                                .name = "Browser Cache",
                                                .program = cache.closeFirst,
                                                .closeFirst = cache.closeFirst});
      append(item, {.path = cache.path, .size = cache.size, .identity = cache.identity});
    }
  }

  const Platform& _platform;
  const FileSystem& _files;
  const DiskLayout& _layout;
  const Catalogue _catalogue;
  std::vector<PrivacyItem> _items;
};

}  // namespace

std::optional<FirefoxDatabases> firefoxDatabases(const FileSystem& files, const Path& places) {
  const auto scope = DeletionScope::database();
  const auto real = files.realPath(places);
  const auto isWhole = [&](const Path& file) {
    const auto attributes = files.attributes(file);
    return attributes && attributes->kind == FileKind::regular && attributes->names == 1;
  };
  const bool isAllowed = mayRemove(files, places, scope) && real && isWhole(*real) &&
                         (*real == places || mayRemoveReal(files, *real, scope));
  if (!isAllowed) return std::nullopt;
  FirefoxDatabases databases{.places = files.diskPath(*real)};
  const Path icons = real->parent_path() / "favicons.sqlite";
  if (isWhole(icons)) databases.icons = files.diskPath(icons);
  return databases;
}

bool isOrphanedRecord(const FileSystem& files, const Path& record) {
  // A program that moves a thing to the Trash writes its record first.
  constexpr std::chrono::hours longerThanAnyMove{24};
  const auto attributes = files.attributes(record);
  const bool isOld = attributes && attributes->modified &&
                     *attributes->modified < std::chrono::system_clock::now() - longerThanAnyMove;
  const Path trashed = record.parent_path().parent_path() / "files" / record.stem();
  return isOld && !files.attributes(trashed);
}

std::vector<PrivacyItem> TrailFinder::find(
    const std::function<void(PrivacyCategory)>& before) const {
  Search search(_platform);
  for (const PrivacyCategory category : allPrivacyCategories()) {
    if (before) before(category);
    search.look(category);
  }
  return search.found();
}

}  // namespace klarvik
