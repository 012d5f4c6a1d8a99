#include "platform/linux/linux_trash.h"

#include <fcntl.h>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <set>
#include <string_view>

#include "base/paths.h"
#include "base/posix_io.h"
#include "platform/linux/directory_stack.h"
#include "platform/linux/file_status.h"
#include "platform/linux/item_move.h"
#include "platform/linux/mounts.h"
#include "platform/linux/trash_folder.h"
#include "platform/linux/tree_removal.h"

namespace klarvik {
namespace {

Path withoutLinks(const Path& root) {
  std::error_code error;
  Path real = std::filesystem::canonical(root, error);
  return error ? root : real;
}

/// The part of `item` that comes after `folder`, which it lies below.
Path pathFrom(const Path& folder, const Path& item) {
  return Path(item.native().substr(folder == "/" ? 1 : folder.native().size() + 1));
}

bool isTopOfVolume(const Path& onMachine) {
  const auto entry = mountOfEntry(AT_FDCWD, onMachine.c_str());
  return entry && entry->isMountPoint;
}

/// A link in place of the folder is not followed.
UniqueFd openForListing(const Path& root, const Path& folder) {
  const auto parent = openParent(root, folder);
  if (!parent) return {};
  return UniqueFd(::openat(parent->folder.get(), parent->name.c_str(),
                           O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

std::optional<std::vector<Path>> entriesOf(const Path& root, const Path& folder) {
  const UniqueFd opened = openForListing(root, folder);
  std::vector<Path> entries;
  const bool listed = opened && DirectoryReader().read(opened.get(), [&](const ListedEntry& entry) {
    entries.push_back(folder / entry.name);
    return true;
  });
  return listed ? std::optional(std::move(entries)) : std::nullopt;
}

std::optional<FileAttributes> attributesAt(const Path& root, const Path& item) {
  const auto parent = openParent(root, item);
  const auto status = parent ? statusOf(parent->folder.get(), parent->name.c_str()) : std::nullopt;
  return status ? std::optional(attributesOf(*status)) : std::nullopt;
}

bool returnTo(const ParentHandle& to, const ParentHandle& from, const struct statx& seen) {
  const Move move = moveItem({from.folder.get(), from.name}, seen, {to.folder.get(), to.name});
  return move == Move::done || move == Move::unseen;
}

bool isFolder(const std::optional<FileAttributes>& attributes) {
  return attributes && attributes->kind == FileKind::directory;
}

}  // namespace

LinuxTrash::LinuxTrash(const Path& root, Path home, const Path& dataFolder)
    : _root(withoutLinks(root)), _home(std::move(home)), _homeTrash(dataFolder / "Trash") {}

std::vector<Path> LinuxTrash::folders() {
  static_cast<void>(openHomeTrash());
  std::vector<Path> folders{_homeTrash / "files"};
  Path ofTheHome = _home / ".Trash";
  if (isFolder(attributesAt(_root, ofTheHome))) folders.push_back(std::move(ofTheHome));
  for (OnVolume& found : trashesOnVolumes()) folders.push_back(std::move(found.files));
  return folders;
}

std::optional<std::vector<Path>> LinuxTrash::list() {
  std::optional<std::vector<Path>> items;
  for (const Path& folder : folders()) {
    const auto more = entriesOf(_root, folder);
    if (!more) continue;
    if (!items) items.emplace();
    items->insert(items->end(), more->begin(), more->end());
  }
  return items;
}

std::optional<Date> LinuxTrash::modificationDate() {
  std::optional<Date> newest;
  for (const Path& folder : folders()) {
    const auto attributes = attributesAt(_root, folder);
    if (isFolder(attributes)) newest = std::max(newest, attributes->modified);
  }
  return newest;
}

bool LinuxTrash::contains(const Path& item) const {
  if (item.native().find("/.Trash/") != std::string::npos) return true;
  const Path place = item.lexically_normal();
  if (isBelow(place.native(), (_homeTrash / "files").native())) return true;
  if (!passesThroughVolumeTrash(place)) return false;
  for (Path step = place; step.has_relative_path(); step = step.parent_path()) {
    const auto top = topOfVolumeTrash(step);
    if (top) return top == "/" || isTopOfVolume(onMachine(*top));
  }
  return false;
}

std::optional<Path> LinuxTrash::moveToTrash(const Path& item, const ItemCheck& mayMove) {
  const auto parent = openParent(_root, item);
  if (!parent || isPartOfATrash(parent->realPath)) return std::nullopt;
  const auto seen = statusOf(parent->folder.get(), parent->name.c_str());
  const auto entry = seen ? mountOf(*seen) : std::nullopt;
  if (!entry || entry->isMountPoint) return std::nullopt;
  if (!mayMove(parent->realPath, attributesOf(*seen))) return std::nullopt;
  if (entry->isDirectory && holdsMountPoint(parent->realPath)) return std::nullopt;

  const auto destination = destinationFor(parent->realPath, entry->id);
  if (!destination) return std::nullopt;
  const auto name = destination->trash.take(
      *parent, *seen, trashRecordText(destination->recordedPlace, std::time(nullptr)));
  if (!name) return std::nullopt;
  return destination->files / *name;
}

bool LinuxTrash::putBack(const Path& trashed, const Path& original, const ItemCheck& mayReturn) {
  const PathLocks::Hold hold(_inHand, trashed.lexically_normal());
  if (!hold) return false;
  const auto from = openTrashed(trashed);
  const auto seen = from ? statusOf(from->folder.get(), from->name.c_str()) : std::nullopt;
  if (!seen || !mayReturn(placeOf(*from, trashed), attributesOf(*seen))) return false;
  const auto recorder = recorderOf(*from, trashed);
  const auto recorded = recorder ? recordedPlace(*recorder, from->name) : std::nullopt;

  const bool isRecorded = recorder && recorder->trash.holdsRecord(from->name);
  const auto mayGoThere = [&](const Path& real) { return leadsBack(real, original, recorded); };
  const auto to = openParentCreating(_root, original, mayGoThere);
  if (!to || !mayGoThere(to->realPath) || !returnTo(*to, *from, *seen)) {
    return false;
  }
  if (isRecorded) recorder->trash.dropRecord(from->name);
  return true;
}

bool LinuxTrash::remove(const Path& trashed, const ItemCheck& mayRemove) {
  const PathLocks::Hold hold(_inHand, trashed.lexically_normal());
  if (!hold) return false;
  const auto parent = openTrashed(trashed);
  const auto seen = parent ? statusOf(parent->folder.get(), parent->name.c_str()) : std::nullopt;
  if (!seen) return false;
  const auto recorder = recorderOf(*parent, trashed);
  const bool isRecorded = recorder && recorder->trash.holdsRecord(parent->name);
  if (!mayRemove(placeOf(*parent, trashed), attributesOf(*seen)) || !removeTree(*parent, *seen)) {
    return false;
  }
  if (isRecorded) recorder->trash.dropRecord(parent->name);
  return true;
}

void LinuxTrash::dropRecordsOfNothing() {
  const Date yesterday = std::chrono::system_clock::now() - std::chrono::days(1);
  if (const auto home = openHomeTrash()) home->dropRecordsOfNothing(yesterday);
  for (const OnVolume& found : trashesOnVolumes()) found.trash.dropRecordsOfNothing(yesterday);
}

std::vector<LinuxTrash::OnVolume> LinuxTrash::trashesOnVolumes() const {
  std::vector<OnVolume> found;
  std::set<FileIdentity> known;
  const auto addThoseAt = [&](const Path& top, std::optional<std::uint64_t> mount) {
    const auto opened = openParent(_root, top / "x");
    const auto topMount = opened ? mountOfEntry(opened->folder.get(), "") : std::nullopt;
    if (!topMount || (mount && topMount->id != *mount)) return;
    for (VolumeTrash& trash : volumeTrashesAt(opened->folder.get(), topMount->id)) {
      const auto files = statusOf(trash.trash.files(), "");
      if (!files || !known.insert(*attributesOf(*files).identity).second) continue;
      found.push_back({std::move(trash.trash), top / trash.folder / "files"});
    }
  };
  addThoseAt("/", std::nullopt);
  const auto mounts = readMountTable();
  if (!mounts) return found;
  for (const MountPoint& point : *mounts) {
    const auto top = logical(point.place);
    const bool waitsForAServer = std::ranges::any_of(*mounts, [&](const MountPoint& other) {
      return !other.isLocal && other.place != "/" &&
             isBelow(point.place.native(), other.place.native());
    });
    if (point.isLocal && top && top != "/" && !waitsForAServer) addThoseAt(*top, point.id);
  }
  return found;
}

/// The user may keep the home's Trash behind a link; an entry of it is then told by its name there.
Path LinuxTrash::placeOf(const ParentHandle& item, const Path& trashed) const {
  const Path named = trashed.lexically_normal();
  if (named.parent_path() != _homeTrash / "files") return item.realPath;
  const auto home = openHomeTrash();
  const auto files = home ? statusOf(home->files(), "") : std::nullopt;
  return files && isStill(*files, item.folder.get(), "") ? named : item.realPath;
}

std::optional<ParentHandle> LinuxTrash::openTrashed(const Path& trashed) const {
  if (!contains(trashed)) return std::nullopt;
  auto parent = openParent(_root, trashed);
  const auto folder = openParent(_root, trashed.lexically_normal().parent_path());
  if (!parent || !folder || folder->realPath / parent->name != parent->realPath) {
    return std::nullopt;
  }
  return parent;
}

Path LinuxTrash::onMachine(const Path& logical) const {
  return logical == "/" ? _root : _root / logical.relative_path();
}

std::optional<Path> LinuxTrash::logical(const Path& onMachine) const {
  if (onMachine == _root) return Path("/");
  if (!isBelow(onMachine.native(), _root.native())) return std::nullopt;
  return Path("/") / pathFrom(_root, onMachine);
}

std::optional<TrashFolder> LinuxTrash::openHomeTrash() const {
  auto parent = openParent(_root, _homeTrash);
  if (!parent) parent = makeParentOfHomeTrash();
  if (!parent) return std::nullopt;
  // The user may have put a link in place of the whole Trash.
  const UniqueFd folder =
      openFolderHandleCreating(parent->folder.get(), parent->name.c_str(), LinkInPlace::followed);
  return folder ? TrashFolder::openCreating(folder) : std::nullopt;
}

std::optional<ParentHandle> LinuxTrash::makeParentOfHomeTrash() const {
  const bool homeIsThere = openParent(_root, _home / "x").has_value();
  if (!homeIsThere) return std::nullopt;
  return openParentCreating(_root, _homeTrash, [](const Path&) { return true; });
}

std::optional<LinuxTrash::Destination> LinuxTrash::destinationFor(const Path& item,
                                                                  std::uint64_t mount) const {
  auto home = openHomeTrash();
  const auto files = home ? mountOfEntry(home->files(), "") : std::nullopt;
  if (!files) return std::nullopt;
  if (files->id != mount) return destinationOnVolume(item, mount);
  return Destination{std::move(*home), _homeTrash / "files", onMachine(item)};
}

std::optional<LinuxTrash::Destination> LinuxTrash::destinationOnVolume(const Path& item,
                                                                       std::uint64_t mount) const {
  const auto mounts = readMountTable();
  if (!mounts) return std::nullopt;
  const auto own = std::find_if(mounts->begin(), mounts->end(),
                                [&](const MountPoint& point) { return point.id == mount; });
  if (own == mounts->end()) return std::nullopt;
  // A mount point above the root of this disk has no logical path; the disk's top counts then.
  const Path top = logical(own->place).value_or("/");
  if (!isBelow(item.native(), top.native())) return std::nullopt;

  const auto opened = openParent(_root, top / "x");
  const auto topMount = opened ? mountOfEntry(opened->folder.get(), "") : std::nullopt;
  if (!topMount || topMount->id != mount) return std::nullopt;
  auto found = openVolumeTrash(opened->folder.get(), mount);
  if (!found) return std::nullopt;
  return Destination{std::move(found->trash), top / found->folder / "files", pathFrom(top, item)};
}

bool LinuxTrash::holdsMountPoint(const Path& folder) const {
  const auto mounts = readMountTable();
  const Path place = onMachine(folder);
  return !mounts || std::any_of(mounts->begin(), mounts->end(), [&](const MountPoint& point) {
    return isBelow(point.place.native(), place.native());
  });
}

bool LinuxTrash::isPartOfATrash(const Path& item) const {
  return contains(item) || item == _homeTrash || isBelow(item.native(), _homeTrash.native()) ||
         passesThroughVolumeTrash(item);
}

std::optional<LinuxTrash::Recorder> LinuxTrash::recorderOf(const ParentHandle& item,
                                                           const Path& trashed) const {
  auto base = recordBase(item, trashed);
  if (!base) return std::nullopt;
  auto trash = TrashFolder::openAround(item.folder);
  if (!trash) return std::nullopt;
  return Recorder{std::move(*trash), std::move(*base)};
}

std::optional<Path> LinuxTrash::recordBase(const ParentHandle& item, const Path& trashed) const {
  if (trashed.lexically_normal().parent_path() == _homeTrash / "files") return Path("/");
  const auto top = topOfVolumeTrash(item.realPath);
  if (!top || (*top != "/" && !isTopOfVolume(onMachine(*top)))) return std::nullopt;
  return onMachine(*top);
}

std::optional<Path> LinuxTrash::recordedPlace(const Recorder& recorder,
                                              const std::string& name) const {
  const auto text = recorder.trash.readRecord(name);
  const auto place = text ? placeInTrashRecord(*text) : std::nullopt;
  if (!place) return std::nullopt;
  return logical(recorder.base / *place);
}

bool LinuxTrash::leadsBack(const Path& real, const Path& original,
                           const std::optional<Path>& recorded) const {
  const Path place = original.lexically_normal();
  // The name in the Trash may have come to another thing, which was somewhere else.
  if (recorded && recorded != real && recorded != place) return false;
  return real == recorded || real == placeWithoutLinks(place);
}

Path LinuxTrash::placeWithoutLinks(const Path& original) const {
  const auto inHome = openParent(_root, _home / "x");
  if (!inHome || !isBelow(original.native(), _home.native())) return original;
  return inHome->realPath.parent_path() / pathFrom(_home, original);
}

}  // namespace klarvik
