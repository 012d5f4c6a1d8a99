#include "engine/place_scanner.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "base/paths.h"
#include "core/removal_check.h"
#include "engine/place_conditions.h"
#include "engine/project_walk.h"
#include "engine/root_command.h"
#include "engine/scanner_engine.h"
#include "engine/sizes.h"
#include "engine/tool_removal.h"
#include "places/path_pattern.h"
#include "platform/file_system.h"
#include "platform/running_programs.h"
#include "platform/trash.h"

namespace klarvik {
namespace {

std::vector<std::string_view> views(const std::vector<std::string>& texts) {
  return {texts.begin(), texts.end()};
}

constexpr std::chrono::hours oneDay{24};

bool isFolderOrFile(const std::optional<FileAttributes>& attributes) {
  return attributes &&
         (attributes->kind == FileKind::directory || attributes->kind == FileKind::regular);
}

void sortHintsBySize(std::vector<Hint>& hints) {
  std::ranges::stable_sort(hints, std::ranges::greater{}, &Hint::size);
}

}  // namespace

PlaceScanner::PlaceScanner(const Platform& platform, std::stop_token stop, ItemReport report)
    : _platform(platform),
      _layout(layoutFor(platform.files.home())),
      _catalogue(_layout, platform.files.folders()),
      _stop(std::move(stop)),
      _report(std::move(report)),
      _now(std::chrono::system_clock::now()) {}

CleanCategory PlaceScanner::find(CategoryType type) {
  CleanCategory category{.type = type, .items = {}};
  for (const Place& place : _layout.places) {
    if (place.category != type) continue;
    for (const PlaceMatch& match : matches(place)) {
      if (_stop.stop_requested()) return category;
      look(place, match, category);
    }
  }
  for (const CleaningTool& tool : _layout.tools) {
    if (_stop.stop_requested()) return category;
    if (tool.category != type) continue;
    for (JunkItem& item : itemsOf(_platform, tool, _stop)) {
      category.items.push_back(std::move(item));
      _report(category.items.back());
    }
  }
  sortItemsBySize(category.items);
  sortHintsBySize(category.hints);
  return category;
}

CleanCategory PlaceScanner::findArtifacts() {
  CleanCategory category{.type = CategoryType::buildArtifacts, .items = {}};
  for (const auto& [path, kind] :
       findProjectArtifacts(_platform.files, _catalogue, _layout, _stop)) {
    if (_stop.stop_requested()) return category;
    const auto attributes = _platform.files.attributes(path);
    const Measure measure = measureWhole(_platform.files, path);
    if (!attributes || measure.bytes <= _layout.artifactsAbove) continue;
    const Path project = path.parent_path().filename();
    offer({.name = (project / path.filename()).native(),
           .path = path,
           .size = measure.bytes,
           .modifiedDate = attributes->modified,
           .identity = entryIdentity(*attributes),
           .reason = std::string(kind->reason),
           .wasJustUsed = measure.used && *measure.used > _now - oneDay},
          measure, category);
  }
  sortItemsBySize(category.items);
  sortHintsBySize(category.hints);
  return category;
}

CleanCategory PlaceScanner::findTrashed() {
  CleanCategory category{.type = CategoryType::trashBin, .items = {}};
  for (const Path& entry : _platform.trash.list().value_or(std::vector<Path>{})) {
    if (_stop.stop_requested()) return category;
    if (_platform.files.isMountPoint(entry)) continue;
    const auto attributes = _platform.files.attributes(entry);
    if (!attributes) continue;
    const Measure measure = measureWhole(_platform.files, entry);
    offer({.name = entry.filename().native(),
           .path = entry,
           .size = measure.bytes,
           .modifiedDate = attributes->modified,
           .identity = entryIdentity(*attributes),
           .goesForGood = true},
          measure, category);
  }
  sortItemsBySize(category.items);
  sortHintsBySize(category.hints);
  return category;
}

Path PlaceScanner::folder(Base base) const {
  const auto below = _catalogue.folder(base);
  return below ? _platform.files.home() / *below : Path("/");
}

std::vector<PlaceMatch> PlaceScanner::matches(const Place& place) const {
  const FileSystem& files = _platform.files;
  auto found = matchesBelow(files, {{.path = folder(place.base)}}, place.pattern);
  std::erase_if(found, [&](const PlaceMatch& match) { return isExcepted(place, match); });
  if (!place.details.only.empty()) {
    std::vector<PlaceMatch> inside;
    for (const PlaceMatch& outer : found) {
      for (const std::string_view pattern : place.details.only) {
        for (PlaceMatch& inner : matchesBelow(files, {outer}, pattern)) {
          inner.inside = inner.path.lexically_relative(outer.path);
          inside.push_back(std::move(inner));
        }
      }
    }
    found = std::move(inside);
  }
  if (place.unit == Unit::children || place.unit == Unit::unknown) {
    found = matchesBelow(files, std::move(found), "*", PlaceKinds::folders);
  }
  std::erase_if(found, [&](const PlaceMatch& match) { return isExcepted(place, match); });
  return found;
}

bool PlaceScanner::isExcepted(const Place& place, const PlaceMatch& match) const {
  const auto isNone = [&](const std::string& name) {
    return nameMatchesAny(place.details.except, name);
  };
  if (std::ranges::any_of(match.stars, isNone)) return true;
  return place.unit == Unit::unknown && !match.stars.empty() &&
         _catalogue.hasRowOfItsOwn(place.base, match.stars.back());
}

/// Empty where the place has no name but that of its file.
Message PlaceScanner::nameOf(const Place& place, const PlaceMatch& match) {
  if (place.name.empty()) return {};
  Message name(place.name, match.stars);
  return match.inside.empty() ? name : name.followedBy(" — " + match.inside.native());
}

void PlaceScanner::look(const Place& place, const PlaceMatch& match, CleanCategory& category) {
  const FileSystem& files = _platform.files;
  if (overlapsAnItem(match.path) || isElsewhere(_platform.files, match.path)) return;
  const auto attributes = files.attributes(match.path);
  const bool foldersOnly = place.unit == Unit::unknown || place.unit == Unit::children;
  if (!isFolderOrFile(attributes)) return;
  if (foldersOnly && attributes->kind != FileKind::directory) return;
  const Measure measure = measureWhole(files, match.path);
  if (measure.bytes <= place.above) return;
  if (!conditionHolds(_platform, _catalogue, place, match.path, views(match.stars), measure,
                      _now)) {
    return;
  }
  Message nameText = nameOf(place, match);
  std::string name = nameText.empty() ? match.path.filename().native() : nameText.english();
  const CleaningTool* tool = _layout.tool(place.details.tool);
  if (tool != nullptr && !mayRun(*tool, match.path, measure)) {
    category.hints.push_back({.name = std::move(name),
                              .path = match.path,
                              .size = measure.bytes,
                              .reason = place.reason,
                              .command = commandLine(*tool),
                              .runAsRoot = mayRunAsRoot(*tool) ? tool : nullptr,
                              .nameText = std::move(nameText)});
    return;
  }
  JunkItem item{.name = std::move(name),
                .path = match.path,
                .size = measure.bytes,
                .modifiedDate = attributes->modified,
                .identity = entryIdentity(*attributes),
                .reason = std::string(place.reason),
                .goesForGood = tool != nullptr || place.details.removal == Removal::outright,
                .closeFirst = runningUser(place, match),
                .tool = tool,
                .nameText = std::move(nameText)};
  if (tool != nullptr) {
    list(std::move(item), measure, category);
  } else {
    offer(std::move(item), measure, category);
  }
}

bool PlaceScanner::mayRun(const CleaningTool& tool, const Path& path,
                          const Measure& measure) const {
  return measure.isOwn && !measure.holdsMountPoint && cleansFolder(_platform, tool, path, _stop);
}

bool PlaceScanner::mayRunAsRoot(const CleaningTool& tool) {
  if (tool.asRoot.empty() || !_platform.files.exists(tool.asRoot.front())) return false;
  if (!_asksForPassword) _asksForPassword = canRunAsRoot(_platform.tools, _stop);
  return *_asksForPassword;
}

void PlaceScanner::offer(JunkItem item, const Measure& measure, CleanCategory& category) {
  if (const Message why = obstacle(item.path, measure); !why.empty()) {
    category.hints.push_back({.name = std::move(item.name),
                              .path = std::move(item.path),
                              .size = item.size,
                              .reason = why,
                              .command = {},
                              .nameText = std::move(item.nameText)});
    return;
  }
  list(std::move(item), measure, category);
}

void PlaceScanner::list(JunkItem item, const Measure& measure, CleanCategory& category) {
  const std::int64_t stays = sharedBytes(_platform.files, item.path, _stop);
  item.size = std::max<std::int64_t>(item.size - stays, 0);
  if (measure.taken > item.size) item.taken = measure.taken;
  _taken.insert(item.path.native() + "/");
  category.items.push_back(std::move(item));
  _report(category.items.back());
}

Message PlaceScanner::obstacle(const Path& path, const Measure& measure) const {
  const FileSystem& files = _platform.files;
  const bool isTrashed = _platform.trash.contains(path);
  const auto scope = isTrashed ? DeletionScope::trashed() : DeletionScope::general();
  if (const auto refusal = DeletionGuard::refusalReason(path, scope, files.folders(), _layout)) {
    return *refusal;
  }
  const auto real = files.realPath(path);
  if (!real) return _layout.words.folderAboveUnreadable;
  // The Trash itself makes sure that an entry really lies in it, wherever the user keeps it.
  if (*real != path && !isTrashed && !mayRemoveReal(files, *real, scope)) {
    return {_layout.words.liesElsewhere, {real->native()}};
  }
  if (measure.holdsMountPoint) return _layout.words.holdsOtherVolume;
  if (!measure.isOwn) return _layout.words.belongsToAnother;
  if (measure.holdsReadOnlyFolder) return _layout.words.holdsReadOnlyFolders;
  return {};
}

std::string PlaceScanner::runningUser(const Place& place, const PlaceMatch& match) const {
  const std::string_view program = place.details.closedFirst;
  if (program.empty()) return {};
  if (program != "*") return nameIfRunning(_platform, _catalogue, program);
  const std::string& application = match.stars.front();
  return _platform.programs.isSandboxRunning(application) ? application : "";
}

bool PlaceScanner::overlapsAnItem(const Path& path) const {
  const std::string folder = path.native() + "/";
  // The taken ones in this folder come right after it in the order of the texts.
  const auto after = _taken.lower_bound(folder);
  if (after != _taken.end() && after->starts_with(folder)) return true;
  for (Path above = path; above.has_relative_path(); above = above.parent_path()) {
    if (_taken.contains(above.native() + "/")) return true;
  }
  return false;
}

bool isStillOffered(const Platform& platform, const Path& path) {
  const FileSystem& files = platform.files;
  const DiskLayout& layout = layoutFor(files.home());
  if (!layout.guard.onlyListedPlaces) return true;
  const Catalogue catalogue(layout, files.folders());
  const Path below = path.lexically_relative(files.home());
  const bool inHome = !below.empty() && *below.begin() != "..";
  const std::string text = inHome ? below.native() : path.native();
  const auto pieces = splitPath(text);
  const auto places = catalogue.placesOf(pieces, inHome);
  if (places.empty()) return artifactAt(files, layout, path) != nullptr;
  return std::ranges::any_of(places, [&](const Place* place) {
    if (place->details.condition == Condition::none) return true;
    const auto base = catalogue.folder(place->base).value_or("");
    const PatternMatch match = matchPattern(pieces, {base, place->pattern});
    return conditionHolds(platform, catalogue, *place, path, match.stars, measureWhole(files, path),
                          std::chrono::system_clock::now());
  });
}

}  // namespace klarvik
