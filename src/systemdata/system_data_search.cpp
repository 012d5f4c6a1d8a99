#include "systemdata/system_data_search.h"

#include <algorithm>
#include <array>

#include "base/message.h"
#include "base/paths.h"
#include "base/text.h"
#include "core/removal_check.h"
#include "engine/local_snapshots.h"
#include "engine/place_scanner.h"
#include "engine/shell.h"
#include "engine/sizes.h"
#include "places/mac/scan_places.h"
#include "platform/file_attributes.h"
#include "platform/file_system.h"
#include "systemdata/system_data_item.h"

namespace klarvik {

namespace {

constexpr std::int64_t smallestSwapFile = 100'000'001;
constexpr std::int64_t smallestFirmware = 50'000'001;
constexpr std::int64_t smallestRemainder = 10'000'001;
constexpr std::size_t snapshotNameCharacters = 30;

/// Folders of the home's Library that have a pass of their own.
constexpr std::array<std::string_view, 12> coveredLibraryFolders{
    "Application Support",
    "Containers",
    "Group Containers",
    "Caches",
    "Developer",
    "Mail",
    "Logs",
    "Preferences",
    "Cookies",
    "HTTPStorages",
    "Saved Application State",
    "Mobile Documents",
};

void sortBySize(std::vector<SystemDataItem>& items) {
  std::ranges::stable_sort(items, std::ranges::greater{}, &SystemDataItem::size);
}

template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

}  // namespace

SystemDataSearch::SystemDataSearch(const Platform& platform)
    : _platform(platform),
      _layout(layoutFor(platform.files.home())),
      _catalogue(_layout, platform.files.folders()) {}

SystemDataSearch::Items SystemDataSearch::find(const Pass& pass) const {
  return std::visit(
      Overloaded{[&](const ChildFolder& folder) { return childrenOf(folder, pass.kind); },
                 [&](std::span<const WholePlace> places) { return wholePlaces(places, pass.kind); },
                 [&](AnalysisMethod method) { return byMethod(method, pass.kind); }},
      pass.places);
}

SystemDataSearch::Items SystemDataSearch::byMethod(AnalysisMethod method,
                                                   SystemDataSubCategory kind) const {
  switch (method) {
    case AnalysisMethod::localSnapshots:
      return localSnapshots(kind);
    case AnalysisMethod::swapFiles:
      return swapFiles(kind);
    case AnalysisMethod::firmware:
      return firmware(kind);
    case AnalysisMethod::libraryRemainder:
      return libraryRemainder(kind);
  }
  return {};
}

SystemDataSearch::Items SystemDataSearch::childrenOf(const ChildFolder& folder,
                                                     SystemDataSubCategory kind) const {
  const Path start = inHome(_catalogue.folder(folder.base).value_or("")) / folder.path;
  return childrenExcept(folder.except, start, kind, folder.minimumSize, folder.onlyHidden);
}

SystemDataSearch::Items SystemDataSearch::wholePlaces(std::span<const WholePlace> places,
                                                      SystemDataSubCategory kind) const {
  Items items;
  for (const WholePlace& place : places) {
    SystemDataItem found = item(std::string(place.name), inHome(place.path), kind);
    found.nameText = place.name;
    if (found.size < place.minimumSize) continue;
    if (place.safetyOverride) found.safetyOverride = place.safetyOverride;
    items.push_back(std::move(found));
  }
  return items;
}

SystemDataSearch::Items SystemDataSearch::children(const Path& folder, SystemDataSubCategory kind,
                                                   std::int64_t minimumSize) const {
  return childrenExcept({}, folder, kind, minimumSize);
}

SystemDataSearch::Items SystemDataSearch::libraryRemainder(SystemDataSubCategory kind) const {
  return childrenExcept(coveredLibraryFolders, inHome("Library"), kind, smallestRemainder);
}

SystemDataSearch::Items SystemDataSearch::childrenExcept(std::span<const std::string_view> names,
                                                         const Path& folder,
                                                         SystemDataSubCategory kind,
                                                         std::int64_t minimumSize,
                                                         bool onlyHidden) const {
  Items items;
  for (const Path& child : list(folder)) {
    const Path name = child.filename();
    if (std::ranges::find(names, name.native()) != names.end()) continue;
    if (onlyHidden && !name.native().starts_with('.')) continue;
    SystemDataItem found = item(friendlyName(name.native()), child, kind);
    if (found.size >= minimumSize && !isLink(child)) items.push_back(std::move(found));
  }
  sortBySize(items);
  return items;
}

SystemDataSearch::Items SystemDataSearch::localSnapshots(SystemDataSubCategory kind) const {
  Items items;
  const auto listing = runShell(_platform.commands, "tmutil listlocalsnapshots / 2>/dev/null");
  for (const std::string& text : listedSnapshots(listing)) {
    const auto command = listedSnapshotSizeCommand(text);
    const auto told = command ? runShell(_platform.commands, *command) : std::string();
    const auto beginning = firstCharacters(text, snapshotNameCharacters);
    Message name(QT_TRANSLATE_NOOP("Engine", "Snapshot: %1"), {std::string(beginning)});
    items.push_back({.name = name.english(),
                     .path = snapshotPath(text),
                     .size = listedSnapshotBytes(told),
                     .subCategory = kind,
                     .nameText = std::move(name)});
  }
  return items;
}

SystemDataSearch::Items SystemDataSearch::swapFiles(SystemDataSubCategory kind) const {
  Items items;
  for (const Path& file : list("/private/var/vm")) {
    const auto attributes = _platform.files.attributes(file);
    if (!attributes || attributes->kind == FileKind::directory) continue;
    // Swap files are as large as they say, however little of them the disk has given yet.
    if (attributes->logicalBytes < smallestSwapFile) continue;
    items.push_back({.name = file.filename().native(),
                     .path = file,
                     .size = attributes->logicalBytes,
                     .subCategory = kind,
                     .identity = entryIdentity(*attributes)});
  }
  return items;
}

SystemDataSearch::Items SystemDataSearch::firmware(SystemDataSubCategory kind) const {
  Items items;
  for (const std::string_view folder : mac::softwareUpdateFolders) {
    for (const Path& file : list(inHome(folder))) {
      if (!mac::isFirmware(file)) continue;
      Message name(QT_TRANSLATE_NOOP("Engine", "Firmware: %1"), {file.filename().native()});
      SystemDataItem found = item(name.english(), file, kind);
      found.nameText = std::move(name);
      if (found.size >= smallestFirmware) items.push_back(std::move(found));
    }
  }
  return items;
}

Path SystemDataSearch::inHome(std::string_view path) const {
  return _platform.files.home() / path;
}

std::vector<Path> SystemDataSearch::list(const Path& folder) const {
  const FileSystem& files = _platform.files;
  if (isOtherVolume(files, folder)) return {};
  auto children = files.list(folder).value_or(std::vector<Path>{});
  std::erase_if(children, [&](const Path& child) { return isOtherVolume(files, child); });
  return children;
}

bool SystemDataSearch::isLink(const Path& path) const {
  const auto attributes = _platform.files.attributes(path);
  return attributes && attributes->kind == FileKind::symbolicLink;
}

SystemDataItem SystemDataSearch::item(std::string name, const Path& path,
                                      SystemDataSubCategory kind) const {
  if (isOtherVolume(_platform.files, path)) return {.name = std::move(name), .path = path};
  const auto identity = entryIdentity(_platform.files, path);
  return {.name = std::move(name),
          .path = path,
          .size = wholeAllocatedSize(_platform.files, path),
          .subCategory = kind,
          .safetyOverride = verdict(path),
          .identity = identity};
}

std::optional<ItemSafety> SystemDataSearch::verdict(const Path& path) const {
  if (!_layout.guard.onlyListedPlaces) return std::nullopt;
  const FileSystem& files = _platform.files;
  const auto real = files.realPath(path);
  const auto scope = DeletionScope::general();
  const bool mayGo = mayRemove(files, path, scope) && real &&
                     (*real == path || mayRemoveReal(files, *real, scope)) &&
                     !files.isMountPoint(path) && isStillOffered(_platform, path);
  if (!mayGo) return ItemSafety::protected_;
  const Path below = path.lexically_relative(files.home());
  const bool inHome = !below.empty() && *below.begin() != "..";
  const std::string text = inHome ? below.native() : path.native();
  const bool isSafe = std::ranges::any_of(
      _catalogue.placesOf(splitPath(text), inHome),
      [](const Place* place) { return safety(place->category) == SafetyLevel::safe; });
  return isSafe ? ItemSafety::safe : ItemSafety::review;
}

}  // namespace klarvik
