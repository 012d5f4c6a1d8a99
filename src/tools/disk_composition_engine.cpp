#include "tools/disk_composition_engine.h"

#include <string_view>
#include <utility>
#include <vector>

#include "base/bytes.h"
#include "core/disk_stats.h"
#include "core/shown_folders.h"
#include "engine/allocated_size.h"
#include "places/disk_layout.h"
#include "places/storage_palette.h"
#include "platform/file_system.h"

namespace klarvik {

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

}  // namespace

DiskCompositionEngine::DiskCompositionEngine(const Platform& platform, PresentTime now)
    : _platform(platform), _now(std::move(now)) {}

DiskComposition DiskCompositionEngine::measureDisk(std::stop_token stop,
                                                   const ProgressSink& progress) {
  const std::scoped_lock serial(_measuring);
  const DiskLayout& layout = layoutFor(_platform.files.home());
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

  progress("The rest of the disk", (stepCount - 1) / stepCount);
  const DiskStats stats = readDiskStats(_platform.volume, layout);
  disk.usedBytes = stats.usedBytes;
  disk.freeBytes = stats.freeBytes;
  // Clones, shared space and sparse files can make the places add up to more than what is used.
  const auto rest = stats.usedBytes - sum;
  if (rest >= 1) {
    disk.buckets.push_back({.id = "system",
                            .label = std::string(layout.words.systemAndEverythingElse),
                            .bytes = rest,
                            .color = storage_palette::white(0.34)});
  }
  progress("Done", 1.0);
  disk.measuredAt = _now();
  return disk;
}

std::int64_t DiskCompositionEngine::measure(const Path& url, std::stop_token stop) const {
  return wholeAllocatedSize(_platform.files, url, stop);
}

}  // namespace klarvik
