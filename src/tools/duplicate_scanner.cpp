#include "tools/duplicate_scanner.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <unordered_map>
#include <utility>

#include "base/parallel_for.h"
#include "engine/sizes.h"
#include "platform/file_system.h"
#include "platform/packages.h"
#include "tools/content_digest.h"
#include "tools/found_files.h"

namespace klarvik {

namespace {

constexpr std::array<std::string_view, 5> skippedNames{"node_modules", ".git", ".build", "Pods",
                                                       "__pycache__"};
constexpr std::size_t filesAReport = 10;
constexpr std::size_t greatestWidth = 12;  // each has a buffer of its own

using FileNumbers = std::vector<std::size_t>;

struct DigestHash {
  std::size_t operator()(const Digest& digest) const {
    std::size_t part = 0;
    std::memcpy(&part, digest.data(), sizeof part);
    return part;
  }
};

/// Which files hold which content. Contents keep the order of their first files.
class Contents {
 public:
  Contents() = default;
  Contents(Contents&&) = default;

  void add(const Digest& digest, std::size_t number) {
    const auto [content, isNew] = _holders.try_emplace(digest);
    if (isNew) _inOrder.push_back(&*content);
    content->second.push_back(number);
    if (content->second.size() == 2) ++_shared;
  }

  /// How many contents more than one file holds.
  [[nodiscard]] std::int64_t shared() const { return _shared; }

  template <typename Each>
  void forEachShared(const Each& each) const {
    for (const auto* content : _inOrder) {
      if (content->second.size() > 1) each(content->first, content->second);
    }
  }

 private:
  using Holders = std::unordered_map<Digest, FileNumbers, DigestHash>;
  Holders _holders;
  std::vector<const Holders::value_type*> _inOrder;
  std::int64_t _shared = 0;
};

/// Collects the files of some folders.
class Collection {
 public:
  Collection(const FileSystem& files, std::int64_t minimumSize)
      : _files(files), _minimumSize(minimumSize) {}

  void addFolder(const Path& folder) {
    if (!isNew(_files.attributes(folder))) return;
    _found.beginWalk(folder);
    WalkOptions options = wholeWalk(_files);
    options.skipHidden = true;
    options.skipPackageContents = true;
    _files.walk(folder, options, [this](WalkEntry& entry) {
      if (entry.kind() == FileKind::directory) {
        const bool isEntered = isPackageName(entry.name()) || isNew(entry.attributes());
        return isEntered ? WalkStep::proceed : WalkStep::skipDescendants;
      }
      if (isEligible(entry)) _found.add(entry);
      return WalkStep::proceed;
    });
  }

  [[nodiscard]] FoundFiles take() { return std::move(_found); }

 private:
  /// Whether a folder has not been met before.
  bool isNew(const std::optional<FileAttributes>& folder) {
    return !folder || !folder->identity || _met.insert(*folder->identity).second;
  }

  [[nodiscard]] bool isEligible(WalkEntry& entry) const {
    if (entry.kind() != FileKind::regular) return false;
    if (std::ranges::find(skippedNames, entry.name()) != skippedNames.end()) return false;
    const auto attributes = entry.attributes();
    return attributes && attributes->kind == FileKind::regular &&
           attributes->logicalBytes >= _minimumSize;
  }

  const FileSystem& _files;
  const std::int64_t _minimumSize;
  FoundFiles _found;
  std::set<FileIdentity> _met;
};

FoundFiles collected(const FileSystem& files, const std::vector<Path>& directories,
                     std::int64_t minimumSize) {
  Collection collection(files, minimumSize);
  for (const Path& folder : directories) collection.addFolder(folder);
  return collection.take();
}

/// As many as suit the slowest of the disks that the folders lie on.
std::size_t filesAtOnce(const FileSystem& files, const std::vector<Path>& directories) {
  std::size_t least = greatestWidth;
  for (const Path& folder : directories) {
    if (files.exists(folder)) least = std::min(least, files.filesAtOnce(folder));
  }
  return least;
}

/// What the walks came by, and how many threads may ask the disk about it at a time.
struct FoundOnDisk {
  const FileSystem& files;
  const FoundFiles& list;
  std::size_t width;
};

/// A file as it is found once more after the walks.
struct SizedFile {
  std::int64_t size = 0;  // bytes; less than nothing: it is not there
  std::size_t number = 0;
};

/// The files whose content decides, in the order in which they are read.
struct ToRead {
  std::vector<SizedFile> files;
  /// By its place among the files, another name of a file: the place of its first one. The file is
  /// read once.
  std::unordered_map<std::size_t, std::size_t> firstNames{};
};

std::unordered_map<std::size_t, std::size_t> firstNames(
    const std::vector<SizedFile>& files,
    const std::unordered_map<std::size_t, FileIdentity>& severalNames) {
  std::unordered_map<std::size_t, std::size_t> firsts;
  if (severalNames.empty()) return firsts;
  std::map<FileIdentity, std::size_t> places;
  for (std::size_t at = 0; at < files.size(); ++at) {
    const auto file = severalNames.find(files[at].number);
    if (file == severalNames.end()) continue;
    const auto [place, isFirst] = places.try_emplace(file->second, at);
    if (!isFirst) firsts.emplace(at, place->second);
  }
  return firsts;
}

/// Calls `each(access, number)` for every number below `count`, neighbours mostly on one thread.
template <typename Each>
void forEachAsked(const FoundOnDisk& found, std::size_t count, const Each& each) {
  constexpr std::size_t numbersAtOnce = 64;
  std::vector<std::optional<FoundFileAccess>> threads(found.width);
  const auto perform = [&](std::size_t part, std::size_t thread) {
    if (!threads[thread]) threads[thread].emplace(found.files, found.list);
    const std::size_t end = std::min((part + 1) * numbersAtOnce, count);
    for (std::size_t at = part * numbersAtOnce; at < end; ++at) each(*threads[thread], at);
  };
  parallelFor({.count = (count + numbersAtOnce - 1) / numbersAtOnce,
               .width = found.width,
               .order = ParallelOrder::byNumber},
              perform, [](std::size_t) {});
}

/// Leaves those whose size others have as well.
void dropSingleSizes(std::vector<SizedFile>& files) {
  std::ranges::sort(files, std::ranges::greater(), &SizedFile::size);
  auto kept = files.begin();
  for (auto first = files.begin(); first != files.end();) {
    const auto end = std::find_if(
        first, files.end(), [&](const SizedFile& other) { return other.size != first->size; });
    kept = end - first > 1 ? std::move(first, end, kept) : kept;
    first = end;
  }
  files.erase(kept, files.end());
}

/// The largest first, so that at the end no core is left alone with a huge file, and all others
/// folder by folder, as they probably lie on the disk.
void putInOrder(std::vector<SizedFile>& files) {
  constexpr std::int64_t large = std::int64_t{4} << 20;
  std::ranges::sort(files, std::ranges::less(), [](const SizedFile& file) {
    return std::pair(file.size < large ? 0 : -file.size, file.number);
  });
}

ToRead sameSized(const FoundOnDisk& found) {
  constexpr std::int64_t notThere = -1;
  std::vector<SizedFile> sized(found.list.size(), {.size = notThere});
  std::mutex mutex;  // guards those with several names
  std::unordered_map<std::size_t, FileIdentity> severalNames;
  forEachAsked(found, sized.size(), [&](FoundFileAccess& access, std::size_t number) {
    const auto now = access.attributes(number);
    if (!now || now->kind == FileKind::directory) return;
    sized[number] = {now->logicalBytes, number};
    if (now->names < 2 || !now->identity) return;
    const std::scoped_lock lock(mutex);
    severalNames.emplace(number, *now->identity);
  });
  std::erase_if(sized, [](const SizedFile& file) { return file.size == notThere; });
  dropSingleSizes(sized);
  putInOrder(sized);
  auto otherNames = firstNames(sized, severalNames);
  return {std::move(sized), std::move(otherNames)};
}

using Report =
    std::function<void(double fraction, std::int64_t groupsFound, Message line, double readShare)>;

/// How much has been read, by the bytes. To read nothing takes a moment as well.
class ReadShare {
 public:
  explicit ReadShare(const std::vector<SizedFile>& files) {
    for (const SizedFile& file : files) _all += bytesOf(file);
  }

  void add(const SizedFile& file) { _read += bytesOf(file); }
  /// 0 to 1.
  [[nodiscard]] double get() const { return std::min(_read / _all, 1.0); }

 private:
  static double bytesOf(const SizedFile& file) {
    return static_cast<double>(std::max<std::int64_t>(file.size, 1));
  }

  double _all = 0;
  double _read = 0;
};

/// What one thread hashes found files with.
class FileHashing {
 public:
  explicit FileHashing(const FoundOnDisk& found) : _access(found.files, found.list) {}

  [[nodiscard]] std::optional<Digest> digest(std::size_t number) {
    return _hasher.digest(_access.openForReading(number));
  }

 private:
  FoundFileAccess _access;
  ContentHasher _hasher;
};

Contents hashed(const FoundOnDisk& found, const ToRead& toRead, const Report& report) {
  Contents contents;
  const std::vector<SizedFile>& toHash = toRead.files;
  ReadShare readShare(toHash);
  const auto reportBefore = [&](std::size_t at) {
    if (at % filesAReport != 0 || at == toHash.size()) return;
    const double part = static_cast<double>(at) / static_cast<double>(toHash.size());
    report(0.15 + part * 0.8, contents.shared(), found.list.name(toHash[at].number),
           readShare.get());
  };
  std::vector<std::unique_ptr<FileHashing>> threads(found.width);
  std::vector<std::optional<Digest>> digests(toHash.size());
  reportBefore(0);
  parallelFor(
      {.count = toHash.size(), .width = found.width, .order = ParallelOrder::byNumber},
      [&](std::size_t at, std::size_t number) {
        if (toRead.firstNames.contains(at)) return;
        auto& thread = threads[number];
        if (!thread) thread = std::make_unique<FileHashing>(found);
        digests[at] = thread->digest(toHash[at].number);
      },
      [&](std::size_t at) {
        readShare.add(toHash[at]);
        const auto firstName = toRead.firstNames.find(at);
        const auto& digest = digests[firstName == toRead.firstNames.end() ? at : firstName->second];
        if (digest) contents.add(*digest, toHash[at].number);
        reportBefore(at + 1);
      });
  return contents;
}

void tell(const std::optional<FileAttributes>& now, DuplicateFile& file) {
  if (!now) return;
  file.size = now->kind == FileKind::directory ? 0 : now->logicalBytes;
  file.modifiedDate = now->modified;
  file.identity = entryIdentity(*now);
}

std::vector<DuplicateGroup> duplicateGroups(const FoundOnDisk& found, const Contents& contents) {
  std::vector<DuplicateGroup> groups;
  groups.reserve(static_cast<std::size_t>(contents.shared()));
  struct Copy {
    std::size_t number;
    DuplicateFile* file;
  };
  std::vector<Copy> copies;
  FoundFilePaths paths(found.list);
  contents.forEachShared([&](const Digest& digest, const FileNumbers& holders) {
    DuplicateGroup& group =
        groups.emplace_back(DuplicateGroup{.hash = hexadecimal(digest), .files = {}});
    group.files.reserve(holders.size());
    for (const std::size_t number : holders) {
      group.files.push_back({.url = paths.path(number)});
      copies.push_back({number, &group.files.back()});
    }
  });
  // Folder by folder, so that each is opened once.
  std::ranges::sort(copies, std::less(), &Copy::number);
  forEachAsked(found, copies.size(), [&](FoundFileAccess& access, std::size_t at) {
    tell(access.attributes(copies[at].number), *copies[at].file);
  });
  for (DuplicateGroup& group : groups) {
    std::ranges::stable_sort(group.files, std::ranges::greater(), [](const DuplicateFile& file) {
      return file.modifiedDate.value_or(Date::min());
    });
  }
  return groups;
}

}  // namespace

DuplicateScanner::DuplicateScanner(const FileSystem& files, std::optional<std::size_t> hashedAtOnce)
    : _files(files), _hashedAtOnce(hashedAtOnce) {}

std::vector<DuplicateGroup> DuplicateScanner::scan(const std::vector<Path>& directories,
                                                   std::int64_t minimumSize,
                                                   const ProgressSink& progress) {
  const std::scoped_lock lock(_scanning);
  const Report report = [&](double fraction, std::int64_t groupsFound, Message line,
                            double readShare) {
    if (progress) progress({fraction, groupsFound, std::move(line), readShare});
  };

  report(0.05, 0, QT_TRANSLATE_NOOP("Engine", "Collecting files..."), 0);
  const FoundFiles list = collected(_files, directories, minimumSize);
  if (list.size() == 0) return {};

  report(0.15, 0,
         Message::counted(QT_TRANSLATE_N_NOOP("Engine", "Grouping by size (%n files)..."),
                          static_cast<int>(list.size())),
         0);
  const FoundOnDisk found{_files, list, _hashedAtOnce.value_or(filesAtOnce(_files, directories))};
  const ToRead toRead = sameSized(found);
  if (toRead.files.empty()) return {};

  const Contents contents = hashed(found, toRead, report);

  report(0.97, 0, QT_TRANSLATE_NOOP("Engine", "Building results..."), 1);
  std::vector<DuplicateGroup> groups = duplicateGroups(found, contents);
  report(1.0, static_cast<std::int64_t>(groups.size()), QT_TRANSLATE_NOOP("Engine", "Done"), 1);
  std::ranges::stable_sort(groups, std::ranges::greater(), &DuplicateGroup::reclaimableBytes);
  return groups;
}

}  // namespace klarvik
