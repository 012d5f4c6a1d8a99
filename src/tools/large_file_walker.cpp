#include "tools/large_file_walker.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/message.h"
#include "base/text.h"
#include "core/catalogue.h"
#include "core/shown_folders.h"
#include "engine/sizes.h"
#include "places/disk_layout.h"
#include "platform/file_attributes.h"
#include "platform/file_system.h"
#include "platform/formatting.h"

namespace klarvik {
namespace {

bool isLarger(const LargeFileList::value_type& left, const LargeFileList::value_type& right) {
  return left->size > right->size;
}

// No date is the earliest of all.
bool isLongerUnopened(const LargeFileList::value_type& left,
                      const LargeFileList::value_type& right) {
  return left->lastOpened < right->lastOpened;
}

void sortByName(LargeFileList& files, const Formatting& formatting) {
  struct Named {
    std::string name;
    LargeFileList::value_type file;
  };
  std::vector<Named> named;
  named.reserve(files.size());
  for (auto& file : files) named.push_back({file->url.filename(), std::move(file)});
  std::stable_sort(named.begin(), named.end(), [&](const Named& left, const Named& right) {
    return formatting.compareNames(left.name, right.name) < 0;
  });
  std::transform(named.begin(), named.end(), files.begin(),
                 [](Named& each) { return std::move(each.file); });
}

}  // namespace

std::string_view LargeFile::kind() const {
  const std::string extension = lowercased(url.extension().native());
  if (extension.size() > 1) {
    const std::string_view wanted = std::string_view(extension).substr(1);
    // Where the file lies tells the disk's layout as well as the home does.
    for (const FileKindName& kind : layoutFor(url).fileKinds) {
      if (std::ranges::find(kind.extensions, wanted) != kind.extensions.end()) return kind.name;
    }
  }
  return QT_TRANSLATE_NOOP("Engine", "Other");
}

std::string LargeFile::lastOpenedText(const Formatting& formatting, Date now) const {
  return lastOpened ? formatting.relative(*lastOpened, now) : QT_TRANSLATE_NOOP("Engine", "never");
}

std::string_view label(LargeFileSort sort) {
  switch (sort) {
    case LargeFileSort::size:
      return QT_TRANSLATE_NOOP("Engine", "Size");
    case LargeFileSort::date:
      return QT_TRANSLATE_NOOP("Engine", "Last opened");
    case LargeFileSort::name:
      return QT_TRANSLATE_NOOP("Engine", "Name");
  }
  return {};
}

void sortFiles(LargeFileList& files, LargeFileSort sort, const Formatting& formatting) {
  switch (sort) {
    case LargeFileSort::size:
      return std::stable_sort(files.begin(), files.end(), isLarger);
    case LargeFileSort::date:
      return std::stable_sort(files.begin(), files.end(), isLongerUnopened);
    case LargeFileSort::name:
      return sortByName(files, formatting);
  }
}

void mergeBySize(LargeFileList& sorted, LargeFileList fresh) {
  std::stable_sort(fresh.begin(), fresh.end(), isLarger);
  const auto known = static_cast<std::ptrdiff_t>(sorted.size());
  sorted.resize(sorted.size() + fresh.size());
  auto rest = sorted.begin() + known;
  auto gap = sorted.end();
  for (auto file = fresh.rbegin(); file != fresh.rend(); ++file) {
    const auto place = std::upper_bound(sorted.begin(), rest, *file, isLarger);
    gap = std::move_backward(place, rest, gap);
    rest = place;
    *--gap = std::move(*file);
  }
}

namespace {

/// Folders that build tools and package managers fill.
constexpr std::array<std::string_view, 8> skippedComponents{
    "node_modules", ".git", ".build", "DerivedData", "Pods", ".gradle", "build", "__pycache__"};

constexpr std::array<std::string_view, 10> libraryExtensions{
    "photoslibrary",        "musiclibrary",  "tvlibrary", "aplibrary", "photolibrary",
    "migratedphotolibrary", "imovielibrary", "theater",   "logicx",    "band"};

constexpr std::array<std::string_view, 3> libraryNames{
    "Photos Library.photoslibrary", "Music Library.musiclibrary", "TV Library.tvlibrary"};

constexpr std::int64_t visitsAReport = 500;
constexpr double visitsOfAFullBar = 80000.0;
constexpr double highestFraction = 0.95;

template <std::size_t count>
bool holds(const std::array<std::string_view, count>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// No letter outside of ASCII is one of theirs in lower case.
bool isInLowerCase(std::string_view text, std::string_view lowerCase) {
  const auto same = [](char letter, char lower) {
    return (letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter) == lower;
  };
  return text.size() == lowerCase.size() &&
         std::equal(text.begin(), text.end(), lowerCase.begin(), same);
}

bool isLibraryName(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return false;
  const std::string_view extension = name.substr(dot + 1);
  return std::any_of(libraryExtensions.begin(), libraryExtensions.end(),
                     [&](std::string_view known) { return isInLowerCase(extension, known); }) ||
         holds(libraryNames, name);
}

/// Whether nothing of this name, and nothing below it, is ever listed.
bool isPassedOver(std::string_view name) {
  return holds(skippedComponents, name) || isLibraryName(name);
}

bool liesInPassedOver(const Path& path) {
  return std::any_of(path.begin(), path.end(),
                     [](const Path& part) { return isPassedOver(part.native()); });
}

/// The visible folders of the home that hold neither what programs have put there for themselves
/// nor what may not be picked.
std::vector<Path> visibleFolders(const FileSystem& files, const DiskLayout& layout) {
  const Catalogue catalogue(layout, files.folders());
  std::vector<Path> folders = files.list(files.home()).value_or(std::vector<Path>{});
  std::erase_if(folders, [&](const Path& folder) {
    const std::string name = folder.filename().native();
    const std::array<std::string_view, 1> pieces{name};
    const auto& others = layout.notSearchedForProjects;
    return name.starts_with('.') || std::ranges::find(others, name) != others.end() ||
           catalogue.ownPlaceOf(pieces) || files.isMountPoint(folder);
  });
  std::ranges::sort(folders);
  return folders;
}

std::vector<Path> roots(const FileSystem& files) {
  const DiskLayout& layout = layoutFor(files.home());
  const UserFolders shown = shownFolders(files);
  std::vector<Path> folders{shown.documents, shown.downloads, shown.desktop,
                            shown.videos,    shown.music,     shown.pictures};
  for (const std::string_view more : layout.moreLargeFileFolders) {
    folders.push_back(files.home() / more);
  }
  if (!layout.allVisibleFoldersMayBeLarge) return folders;
  for (Path& folder : visibleFolders(files, layout)) folders.push_back(std::move(folder));
  return withoutNested(folders, files.home());
}

/// One run through the roots.
class Run {
 public:
  Run(const FileSystem& files, std::int64_t thresholdBytes, std::stop_token stop,
      const LargeFileWalker::UpdateSink& onProgress)
      : _files(files), _threshold(thresholdBytes), _stop(std::move(stop)), _sink(onProgress) {}

  LargeFileList found() {
    for (const Path& root : roots(_files)) {
      if (_stop.stop_requested()) break;
      walkRoot(root);
    }
    mergeBySize(_update.files, std::exchange(_fresh, {}));
    return std::move(_update.files);
  }

 private:
  void walkRoot(const Path& root) {
    if (liesInPassedOver(judgedPart(root))) return;
    WalkOptions options = wholeWalk(_files);
    options.skipHidden = true;
    options.skipPackageContents = true;
    _files.walk(root, options, [this](WalkEntry& entry) {
      if (_stop.stop_requested()) return WalkStep::stop;
      if (isPassedOver(entry.name())) return WalkStep::skipDescendants;
      visit(entry);
      return WalkStep::proceed;
    });
  }

  /// A Linux home may lie anywhere, also in a folder called "build".
  [[nodiscard]] Path judgedPart(const Path& root) const {
    const Path below = root.lexically_relative(_files.home());
    const bool isInHome = !below.empty() && *below.begin() != "..";
    return isInHome && layoutFor(_files.home()).allVisibleFoldersMayBeLarge ? below : root;
  }

  void visit(WalkEntry& entry) {
    ++_visited;
    if (_visited % visitsAReport == 0) report(entry.name());
    if (entry.kind() != FileKind::regular) return;
    const auto attributes = entry.attributes();
    if (!attributes || attributes->kind != FileKind::regular) return;
    if (attributes->logicalBytes < _threshold) return;
    _fresh.push_back(std::make_shared<const LargeFile>(LargeFile{
        .url = entry.path(),
        .size = attributes->logicalBytes,
        .modifiedDate = attributes->modified,
        .lastOpened = attributes->accessed,
        .identity = entryIdentity(*attributes),
    }));
  }

  void report(std::string_view name) {
    mergeBySize(_update.files, std::exchange(_fresh, {}));
    _update.fraction = std::min(static_cast<double>(_visited) / visitsOfAFullBar, highestFraction);
    _update.currentName = name;
    if (_sink) _sink(_update);
  }

  const FileSystem& _files;
  const std::int64_t _threshold;
  const std::stop_token _stop;
  const LargeFileWalker::UpdateSink& _sink;
  std::int64_t _visited = 0;
  LargeFileUpdate _update;
  LargeFileList _fresh;  // found since the last report
};

}  // namespace

LargeFileList LargeFileWalker::walk(std::int64_t thresholdBytes, std::stop_token stop,
                                    const UpdateSink& onProgress) const {
  return Run(_files, thresholdBytes, std::move(stop), onProgress).found();
}

bool LargeFileWalker::isMediaLibrary(const Path& url) {
  return std::any_of(url.begin(), url.end(),
                     [](const Path& part) { return isLibraryName(part.native()); });
}

}  // namespace klarvik
