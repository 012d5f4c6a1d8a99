#include "tools/duplicate_scanner.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <iterator>
#include <map>
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

/// The files whose content decides.
struct ToRead {
  FileNumbers numbers;
  /// By its place among the numbers, another name of a file: the place of its first one. The file
  /// is read once.
  std::unordered_map<std::size_t, std::size_t> firstNames{};
  /// Files of one size, one after the other: up to which place among the numbers.
  struct Run {
    std::size_t end;
    std::int64_t size;
  };
  std::vector<Run> runs{};
};

std::unordered_map<std::size_t, std::size_t> firstNames(
    const FileNumbers& numbers, const std::unordered_map<std::size_t, FileIdentity>& severalNames) {
  std::unordered_map<std::size_t, std::size_t> firsts;
  if (severalNames.empty()) return firsts;
  std::map<FileIdentity, std::size_t> places;
  for (std::size_t at = 0; at < numbers.size(); ++at) {
    const auto file = severalNames.find(numbers[at]);
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

/// Those whose size others have as well: the largest first, so that at the end no core is left
/// alone with a huge file.
ToRead sameSized(const FoundOnDisk& found) {
  constexpr std::int64_t notThere = -1;
  struct Sized {
    std::int64_t size = notThere;
    std::size_t number = 0;
  };
  std::vector<Sized> sized(found.list.size());
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
  std::erase_if(sized, [](const Sized& file) { return file.size == notThere; });
  std::ranges::stable_sort(sized, std::ranges::greater(), &Sized::size);

  ToRead toRead;
  for (auto first = sized.begin(); first != sized.end();) {
    const auto end = std::find_if(first, sized.end(),
                                  [&](const Sized& other) { return other.size != first->size; });
    if (end - first > 1) {
      std::transform(first, end, std::back_inserter(toRead.numbers), std::mem_fn(&Sized::number));
      toRead.runs.push_back({toRead.numbers.size(), first->size});
    }
    first = end;
  }
  toRead.firstNames = firstNames(toRead.numbers, severalNames);
  return toRead;
}

using Report =
    std::function<void(double fraction, std::int64_t groupsFound, Message line, double readShare)>;

/// Counts the files that have been read, in their order.
class ReadShare {
 public:
  explicit ReadShare(const std::vector<ToRead::Run>& runs) : _run(runs.begin()) {
    std::size_t start = 0;
    for (const ToRead::Run& run : runs) {
      _all += static_cast<double>(run.end - std::exchange(start, run.end)) * bytesOf(run);
    }
  }

  void add(std::size_t at) {
    if (at == _run->end) ++_run;
    _read += bytesOf(*_run);
  }
  /// 0 to 1, of the bytes.
  [[nodiscard]] double get() const { return std::min(_read / _all, 1.0); }

 private:
  /// To read nothing takes a moment as well.
  static double bytesOf(const ToRead::Run& run) {
    return static_cast<double>(std::max<std::int64_t>(run.size, 1));
  }

  std::vector<ToRead::Run>::const_iterator _run;
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
  const FileNumbers& numbers = toRead.numbers;
  ReadShare readShare(toRead.runs);
  const auto reportBefore = [&](std::size_t at) {
    if (at % filesAReport != 0 || at == numbers.size()) return;
    const double part = static_cast<double>(at) / static_cast<double>(numbers.size());
    report(0.15 + part * 0.8, contents.shared(), found.list.name(numbers[at]), readShare.get());
  };
  std::vector<std::unique_ptr<FileHashing>> threads(found.width);
  std::vector<std::optional<Digest>> digests(numbers.size());
  reportBefore(0);
  parallelFor(
      {.count = numbers.size(), .width = found.width, .order = ParallelOrder::byNumber},
      [&](std::size_t at, std::size_t number) {
        if (toRead.firstNames.contains(at)) return;
        auto& thread = threads[number];
        if (!thread) thread = std::make_unique<FileHashing>(found);
        digests[at] = thread->digest(numbers[at]);
      },
      [&](std::size_t at) {
        readShare.add(at);
        const auto firstName = toRead.firstNames.find(at);
        const auto& digest = digests[firstName == toRead.firstNames.end() ? at : firstName->second];
        if (digest) contents.add(*digest, numbers[at]);
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
  if (toRead.numbers.empty()) return {};

  const Contents contents = hashed(found, toRead, report);

  report(0.97, 0, QT_TRANSLATE_NOOP("Engine", "Building results..."), 1);
  std::vector<DuplicateGroup> groups = duplicateGroups(found, contents);
  report(1.0, static_cast<std::int64_t>(groups.size()), QT_TRANSLATE_NOOP("Engine", "Done"), 1);
  std::ranges::stable_sort(groups, std::ranges::greater(), &DuplicateGroup::reclaimableBytes);
  return groups;
}

}  // namespace klarvik
