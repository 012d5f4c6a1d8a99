#include "tools/folder_sizes.h"

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <utility>

#include "base/bytes.h"
#include "engine/sizes.h"
#include "platform/file_system.h"

namespace klarvik {

namespace {

constexpr std::int64_t untold = std::numeric_limits<std::int64_t>::min();

struct FileIdentityHash {
  std::size_t operator()(const FileIdentity& file) const noexcept {
    return std::hash<std::uint64_t>{}(file.inode ^ file.device << 48U);
  }
};

std::string joined(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.ends_with('/')) path += '/';
  return path.append(name);
}

}  // namespace

/// The walks that fill one `FolderSizes`. A walk shows all that lies in a folder at once, and
/// enters the folders among it afterwards from the last to the first: so their numbers follow one
/// another, and the one that is entered is found without a search.
class FolderMeasurement {
 public:
  FolderMeasurement(const FileSystem& files, std::span<const Path> leftOut,
                    const std::stop_token& stop, const FolderSizes::Progress& progress)
      : _files(files), _stop(stop), _progress(progress) {
    for (const Path& path : leftOut) {
      _leftOut.insert(path.native());
      _aboveLeftOut.insert(path.parent_path().native());
    }
  }

  FolderSizes measure(std::span<const Path> starts) {
    beginListing(FolderSizes::top);
    for (const Path& start : starts) addStart(start);
    endListing();
    const Id count = _sizes._folders[FolderSizes::top].folderCount;
    for (Id start = 1; start <= count && !_stop.stop_requested(); ++start) walk(start);
    for (Id folder = static_cast<Id>(_sizes._folders.size()) - 1; folder > 0; --folder) {
      Folder& above = _sizes._folders[_sizes._folders[folder].above];
      above.bytes = addBytes(above.bytes, _sizes._folders[folder].bytes);
      above.hasOtherNames = above.hasOtherNames || _sizes._folders[folder].hasOtherNames;
    }
    return std::move(_sizes);
  }

 private:
  using Id = FolderSizes::Id;
  using Entry = FolderSizes::Entry;
  using Folder = FolderSizes::Folder;

  /// A folder that was listed, and some of whose folders may not have been entered yet.
  struct Level {
    Id folder = 0;
    std::size_t pathLength = 0;  // as the walk tells its path
    Id notEntered = 0;           // the number after the last folder that may still be entered
  };
  struct Candidate {
    Entry entry;
    std::string name;
  };

  void addStart(const Path& start) {
    if (isOtherVolume(_files, start)) return;
    if (const auto attributes = _files.attributes(start)) add(start.native(), *attributes);
  }

  void walk(Id start) {
    const Path place{std::string(_sizes.name(start))};
    _levels.clear();
    _known.clear();
    _place = place.native();
    beginListing(start);
    (void)_files.walk(place, {.stayOnMount = true}, [&](WalkEntry& entry) {
      if (_stop.stop_requested()) return WalkStep::stop;
      if (entry.folder() != _known) comeTo(place, entry.folder());
      return visit(entry);
    });
    endListing();
  }

  void comeTo(const Path& start, std::string_view path) {
    endListing();
    const std::size_t slash = path.rfind('/');
    const std::size_t aboveLength = slash == path.npos ? 0 : slash;
    // All that leads to the folder is still in hand, and no two of those paths are equally long.
    while (_levels.back().pathLength != aboveLength) _levels.pop_back();
    const std::string_view name = path.substr(slash == path.npos ? 0 : slash + 1);
    Id& notEntered = _levels.back().notEntered;
    while (_sizes.name(notEntered - 1) != name) --notEntered;
    --notEntered;
    _known.assign(path);
    _place = joined(start.native(), path);
    beginListing(notEntered, path.size());
    constexpr Id foldersBetween = 512;
    if (_progress && ++_listings % foldersBetween == 0) _progress(_counted);
  }

  WalkStep visit(WalkEntry& entry) {
    const auto attributes = entry.attributes();
    const bool counts =
        attributes && !attributes->isMountPoint && !(_holdsLeftOut && isLeftOut(entry.name()));
    if (counts) add(entry.name(), *attributes);
    // Only a folder that was listed may be entered, or its number would be sought in vain.
    const bool isListedFolder = counts && attributes->kind == FileKind::directory;
    return isListedFolder ? WalkStep::proceed : WalkStep::skipDescendants;
  }

  void add(std::string_view name, const FileAttributes& attributes) {
    if (attributes.kind == FileKind::directory) {
      Folder folder;
      static_cast<Entry&>(folder) = entryOf(attributes, attributes.folderBytes);
      keepName(folder, name);
      folder.above = _listed;
      _sizes._folders.push_back(folder);
      _counted = addBytes(_counted, folder.bytes);
    } else {
      addFile(name, attributes);
    }
  }

  void addFile(std::string_view name, const FileAttributes& attributes) {
    const std::int64_t bytes = isAnotherName(attributes) ? 0 : attributes.allocatedBytes;
    Folder& folder = _sizes._folders[_listed];
    folder.bytes = addBytes(folder.bytes, bytes);
    folder.hasOtherNames = folder.hasOtherNames || attributes.names > 1;
    _counted = addBytes(_counted, bytes);
    ++folder.smallerFiles;
    folder.smallerBytes = addBytes(folder.smallerBytes, bytes);
    if (bytes < 1 || (_largest.size() == FolderSizes::keptFiles && bytes <= smallestKept())) return;
    _largest.push_back({entryOf(attributes, bytes), std::string(name)});
    std::ranges::push_heap(_largest, std::ranges::greater{}, bytesOf);
    if (_largest.size() <= FolderSizes::keptFiles) return;
    std::ranges::pop_heap(_largest, std::ranges::greater{}, bytesOf);
    _largest.pop_back();
  }

  static std::int64_t bytesOf(const Candidate& file) { return file.entry.bytes; }
  [[nodiscard]] std::int64_t smallestKept() const { return _largest.front().entry.bytes; }

  static Entry entryOf(const FileAttributes& attributes, std::int64_t bytes) {
    Entry entry{.kind = attributes.kind, .created = untold, .bytes = bytes};
    entry.hasOtherNames = attributes.kind != FileKind::directory && attributes.names > 1;
    if (attributes.identity) {
      entry.device = attributes.identity->device;
      entry.inode = attributes.identity->inode;
    }
    if (attributes.created) entry.created = attributes.created->time_since_epoch().count();
    return entry;
  }

  bool isAnotherName(const FileAttributes& file) {
    return file.names > 1 && file.identity && !_linked.insert(*file.identity).second;
  }

  void keepName(Entry& entry, std::string_view name) {
    entry.nameOffset = static_cast<std::uint32_t>(_sizes._names.size());
    entry.nameLength = static_cast<std::uint16_t>(name.size());
    _sizes._names.append(name);
  }

  void beginListing(Id folder, std::size_t pathLength = 0) {
    _listed = folder;
    _sizes._folders[folder].firstFolder = static_cast<Id>(_sizes._folders.size());
    _levels.push_back({.folder = folder, .pathLength = pathLength});
    _largest.clear();
    _holdsLeftOut = !_leftOut.empty() && _aboveLeftOut.contains(_place);
  }

  void endListing() {
    Folder& folder = _sizes._folders[_listed];
    const auto end = static_cast<Id>(_sizes._folders.size());
    folder.folderCount = end - folder.firstFolder;
    _levels.back().notEntered = end;
    folder.firstFile = static_cast<std::uint32_t>(_sizes._files.size());
    folder.fileCount = static_cast<std::uint32_t>(_largest.size());
    for (Candidate& file : _largest) {
      folder.smallerBytes -= file.entry.bytes;
      --folder.smallerFiles;
      keepName(file.entry, file.name);
      _sizes._files.push_back(file.entry);
    }
  }

  [[nodiscard]] bool isLeftOut(std::string_view name) const {
    return _leftOut.contains(joined(_place, name));
  }

  const FileSystem& _files;
  const std::stop_token& _stop;
  const FolderSizes::Progress& _progress;

  std::unordered_set<std::string> _leftOut;
  std::unordered_set<std::string> _aboveLeftOut;
  FolderSizes _sizes;
  std::vector<Level> _levels;
  std::vector<Candidate> _largest;  // files of the folder that is being listed, a heap
  std::unordered_set<FileIdentity, FileIdentityHash> _linked;
  Id _listed = FolderSizes::top;
  std::string _known;  // the folder that is being listed, as the walk tells it
  std::string _place;  // and as a whole path
  bool _holdsLeftOut = false;
  std::int64_t _counted = 0;
  Id _listings = 0;
};

FolderSizes FolderSizes::measure(const FileSystem& files, std::span<const Path> starts,
                                 std::span<const Path> leftOut, const std::stop_token& stop,
                                 const Progress& progress) {
  return FolderMeasurement(files, leftOut, stop, progress).measure(starts);
}

Path FolderSizes::path(Id folder) const {
  if (folder == top) return {};
  const Id holds = above(folder);
  const Path own{std::string(name(folder))};
  return holds == top ? own : path(holds) / own;
}

FolderSizes::Row FolderSizes::rowOf(Id holds, const Entry& entry) const {
  Row row{.name = std::string(nameOf(entry)),
          .bytes = entry.bytes,
          .hasOtherNames = entry.hasOtherNames};
  row.path = holds == top ? Path(row.name) : path(holds) / row.name;
  row.identity = EntryIdentity{.file = {.device = entry.device, .inode = entry.inode},
                               .created = entry.created == untold
                                              ? std::nullopt
                                              : std::optional(Date(Date::duration(entry.created))),
                               .kind = entry.kind};
  return row;
}

std::vector<FolderSizes::Row> FolderSizes::rows(Id folder, std::size_t most) const {
  const Folder& listed = _folders[folder];
  struct Found {
    const Entry* entry;
    std::optional<Id> folder;
  };
  std::vector<Found> found;
  for (Id at = listed.firstFolder; at < listed.firstFolder + listed.folderCount; ++at) {
    if (!_folders[at].isGone) found.push_back({&_folders[at], at});
  }
  for (std::uint32_t at = listed.firstFile; at < listed.firstFile + listed.fileCount; ++at) {
    if (!_files[at].isGone) found.push_back({&_files[at], std::nullopt});
  }
  std::ranges::stable_sort(found, std::ranges::greater{},
                           [](const Found& one) { return one.entry->bytes; });
  std::vector<Row> rows;
  Row smaller{.name = {}, .bytes = listed.smallerBytes, .things = listed.smallerFiles};
  for (const Found& one : found) {
    if (rows.size() < most) {
      rows.push_back(rowOf(folder, *one.entry));
      rows.back().folder = one.folder;
    } else {
      smaller.bytes = addBytes(smaller.bytes, one.entry->bytes);
      ++smaller.things;
    }
  }
  if (smaller.things > 0) rows.push_back(std::move(smaller));
  return rows;
}

void FolderSizes::remove(Id folder, const Path& gone) {
  const Folder& listed = _folders[folder];
  const std::string name = folder == top ? gone.native() : gone.filename().native();
  const auto take = [&](Entry& entry) {
    if (entry.isGone || nameOf(entry) != name) return;
    entry.isGone = true;
    for (Id holds = folder;; holds = above(holds)) {
      _folders[holds].bytes -= entry.bytes;
      if (holds == top) break;
    }
  };
  for (Id at = 0; at < listed.folderCount; ++at) take(_folders[listed.firstFolder + at]);
  for (std::uint32_t at = 0; at < listed.fileCount; ++at) take(_files[listed.firstFile + at]);
}

}  // namespace klarvik
