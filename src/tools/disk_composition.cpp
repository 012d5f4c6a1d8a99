#include "tools/disk_composition.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "base/bytes.h"
#include "base/message.h"
#include "base/paths.h"
#include "core/catalogue.h"
#include "core/disk_stats.h"
#include "core/shown_folders.h"
#include "engine/project_walk.h"
#include "engine/sizes.h"
#include "engine/volume_census.h"
#include "places/colors.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/volume.h"

namespace klarvik {

std::vector<DiskComposition::Bucket> DiskComposition::displayBuckets(double smallestShare) const {
  const auto used = static_cast<double>(std::max<std::int64_t>(usedBytes, 1));
  const auto cut = static_cast<std::int64_t>(smallestShare * used);

  std::vector<Bucket> shown;
  std::int64_t smaller = 0;
  for (const Bucket& bucket : buckets) {
    if (bucket.bytes < 1) continue;
    if (bucket.bytes >= cut) {
      shown.push_back(bucket);
    } else {
      smaller = addBytes(smaller, bucket.bytes);
    }
  }
  std::ranges::stable_sort(shown, std::ranges::greater{}, &Bucket::bytes);
  if (smaller >= 1) {
    shown.push_back({.id = "smaller",
                     .label = QT_TRANSLATE_NOOP("Engine", "Smaller folders"),
                     .bytes = smaller,
                     .color = storage_palette::white(0.42)});
  }
  return shown;
}

namespace {

/// The folders that the user sees, each once: whatever lies in two of them is part of one share.
std::vector<Path> shownOnce(const FileSystem& files) {
  const UserFolders shown = shownFolders(files);
  return withoutNested(
      {shown.documents, shown.desktop, shown.downloads, shown.pictures, shown.music, shown.videos},
      files.home());
}

/// Takes the folder of the share out of `shown`, where it is still there.
std::vector<Path> placesOf(const StorageShare& share, const FileSystem& files,
                           std::vector<Path>& shown) {
  std::vector<Path> places;
  if (share.shown != nullptr) {
    const Path folder = shownFolders(files).*share.shown;
    if (std::erase(shown, folder) > 0) places.push_back(folder);
  }
  for (const std::string_view place : share.places) places.push_back(files.home() / place);
  return places;
}

constexpr double fractionOfWalk = 0.98;

/// What a census is asked for, and the share that each of its places belongs to.
struct SharePlaces {
  std::vector<CensusPlace> places;
  std::vector<std::size_t> shares;

  void add(std::size_t share, const Path& pattern) {
    places.push_back({.pattern = pattern.native()});
    shares.push_back(share);
  }
};

Path underRealHome(const Path& path, const FileSystem& files) {
  const Path home = files.home();
  if (path == home) return files.realHome();
  return isBelow(path.native(), home.native()) ? files.realHome() / path.lexically_relative(home)
                                               : path;
}

Path asNamed(const Path& path, const FileSystem& files) {
  const Path home = files.realHome();
  if (path == home) return files.home();
  return isBelow(path.native(), home.native()) ? files.home() / path.lexically_relative(home)
                                               : path;
}

SharePlaces sharePlaces(const FileSystem& files, const DiskLayout& layout,
                        const std::stop_token& stop) {
  const Catalogue catalogue(layout, files.folders());
  const UserFolders shown = shownFolders(files);
  const Path home = files.realHome();
  SharePlaces all;
  for (std::size_t share = 0; share < layout.storageShares.size(); ++share) {
    const StorageShare& asked = layout.storageShares[share];
    // A desktop without such a folder names the home.
    if (asked.shown != nullptr && shown.*asked.shown != files.home()) {
      all.add(share, underRealHome(shown.*asked.shown, files));
    }
    for (const auto& [base, pattern] : asked.patterns) {
      const auto folder = catalogue.folder(base);
      all.add(share,
              base == Base::root ? Path("/") / pattern : home / folder.value_or("") / pattern);
    }
    if (!asked.holdsArtifacts) continue;
    for (const FoundArtifact& artifact : findProjectArtifacts(files, catalogue, layout, stop)) {
      all.add(share, underRealHome(artifact.path, files));
    }
  }
  return all;
}

DiskComposition::Bucket bucketOf(std::size_t share, const Census& census, const SharePlaces& all,
                                 const FileSystem& files) {
  const StorageShare& asked = layoutFor(files.home()).storageShares[share];
  DiskComposition::Bucket bucket{
      .id = std::string(asked.id), .label = std::string(asked.label), .color = asked.color};
  std::vector<const CensusRow*> rows;
  for (const CensusRow& row : census.rows) {
    if (all.shares[row.place] != share || row.bytes < 1) continue;
    bucket.bytes = addBytes(bucket.bytes, row.bytes);
    rows.push_back(&row);
  }
  std::ranges::stable_sort(rows, std::ranges::greater{}, &CensusRow::bytes);
  for (const CensusRow* row : rows) bucket.places.push_back(asNamed(row->path, files));
  if (bucket.places.size() == 1) bucket.url = bucket.places.front();
  return bucket;
}

}  // namespace

DiskCompositionEngine::DiskCompositionEngine(const Platform& platform, PresentTime now)
    : _platform(platform), _now(std::move(now)) {}

DiskComposition DiskCompositionEngine::measureDisk(std::stop_token stop,
                                                   const ProgressSink& progress) {
  const std::scoped_lock serial(_measuring);
  const DiskLayout& layout = layoutFor(_platform.files.home());
  if (!layout.ledger.empty()) return measureVolume(stop, progress);
  const double stepCount = static_cast<double>(layout.storageShares.size()) + 1;
  std::vector<Path> shown = shownOnce(_platform.files);
  DiskComposition disk;
  std::int64_t sum = 0;
  double stepsBegun = 0;
  for (const StorageShare& share : layout.storageShares) {
    if (stop.stop_requested()) break;
    progress(std::string(share.label), stepsBegun++ / stepCount);
    const std::vector<Path> places = placesOf(share, _platform.files, shown);
    std::int64_t bytes = 0;
    for (const Path& place : places) bytes = addBytes(bytes, measure(place, stop));
    if (bytes < 1) continue;
    sum = addBytes(sum, bytes);
    disk.buckets.push_back(
        {.id = std::string(share.id),
         .label = std::string(share.label),
         .bytes = bytes,
         .color = share.color,
         .url = places.size() == 1 ? std::optional(places.front()) : std::nullopt});
  }

  progress(QT_TRANSLATE_NOOP("Engine", "The rest of the disk"), (stepCount - 1) / stepCount);
  addRemainder(disk, sum);
  progress(QT_TRANSLATE_NOOP("Engine", "Done"), 1.0);
  disk.measuredAt = _now();
  return disk;
}

DiskComposition DiskCompositionEngine::measureVolume(const std::stop_token& stop,
                                                     const ProgressSink& progress) {
  const DiskLayout& layout = layoutFor(_platform.files.home());
  progress(std::string(layout.storageShares.front().label), 0.0);
  const SharePlaces all = sharePlaces(_platform.files, layout, stop);
  const auto used = static_cast<double>(
      std::max<std::int64_t>(readDiskStats(_platform.volume, layout).usedBytes, 1));
  const Census census =
      takeCensus(_platform.files, all.places, stop, [&](std::size_t place, std::int64_t bytes) {
        const double fraction = std::min(static_cast<double>(bytes) / used, 1.0);
        const std::string_view label = layout.storageShares[all.shares[place]].label;
        progress(std::string(label), fraction * fractionOfWalk);
      });
  DiskComposition disk;
  std::int64_t sum = 0;
  for (std::size_t share = 0; share < layout.storageShares.size(); ++share) {
    DiskComposition::Bucket bucket = bucketOf(share, census, all, _platform.files);
    if (bucket.bytes < 1) continue;
    sum = addBytes(sum, bucket.bytes);
    disk.buckets.push_back(std::move(bucket));
  }
  progress(QT_TRANSLATE_NOOP("Engine", "The rest of the disk"), fractionOfWalk);
  addRemainder(disk, sum);
  if (!disk.buckets.empty() && disk.buckets.back().id == "system") {
    disk.buckets.back().places = {"/"};
  }
  progress(QT_TRANSLATE_NOOP("Engine", "Done"), 1.0);
  disk.measuredAt = _now();
  return disk;
}

void DiskCompositionEngine::addRemainder(DiskComposition& disk, std::int64_t measured) {
  const DiskLayout& layout = layoutFor(_platform.files.home());
  const DiskStats stats = readDiskStats(_platform.volume, layout);
  disk.usedBytes = stats.usedBytes;
  disk.freeBytes = stats.freeBytes;
  // Clones, shared space and sparse files can make the places add up to more than what is used.
  const auto rest = stats.usedBytes - measured;
  if (rest >= 1) {
    disk.buckets.push_back({.id = "system",
                            .label = std::string(layout.words.systemAndEverythingElse),
                            .bytes = rest,
                            .color = storage_palette::white(0.34)});
  }
}

std::int64_t DiskCompositionEngine::measure(const Path& url, std::stop_token stop) const {
  return wholeAllocatedSize(_platform.files, url, stop);
}

}  // namespace klarvik
