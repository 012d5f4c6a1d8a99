#include "tools/disk_composition_engine.h"

#include <array>
#include <string_view>
#include <utility>

#include "core/disk_stats.h"
#include "core/junk_model.h"
#include "core/storage_palette.h"
#include "engine/allocated_size.h"
#include "platform/file_system.h"

namespace klarvik {

namespace {

struct Target {
  std::string_view id;
  std::string_view label;
  std::string_view path;  ///< below the home unless absolute
  RgbColor color;
};

// People keep photos in Pictures, so that is what its share is called.
constexpr std::array<Target, 13> targets{{
    {"applications", "Applications", "/Applications", storage_palette::blue},
    {"documents", "Documents", "Documents", storage_palette::orange},
    {"desktop", "Desktop", "Desktop", storage_palette::teal},
    {"downloads", "Downloads", "Downloads", storage_palette::amber},
    {"photos", "Photos", "Pictures", storage_palette::pink},
    {"music", "Music", "Music", storage_palette::green},
    {"movies", "Movies", "Movies", storage_palette::violet},
    {"developer", "Developer", "Library/Developer", storage_palette::coral},
    {"icloud", "iCloud Drive (local)", "Library/Mobile Documents", storage_palette::lightGray},
    {"mail", "Mail", "Library/Mail", storage_palette::lightGray},
    {"containers", "App containers", "Library/Containers", storage_palette::lightGray},
    {"appSupport", "App support", "Library/Application Support", storage_palette::lightGray},
    {"caches", "Caches", "Library/Caches", storage_palette::lightGray},
}};

/// The targets, and the remainder.
constexpr double stepCount = targets.size() + 1;

}  // namespace

DiskCompositionEngine::DiskCompositionEngine(const Platform& platform, PresentTime now)
    : _platform(platform), _now(std::move(now)) {}

DiskComposition DiskCompositionEngine::measureDisk(std::stop_token stop,
                                                   const ProgressSink& progress) {
  const std::scoped_lock serial(_measuring);
  DiskComposition disk;
  std::int64_t sum = 0;
  double stepsBegun = 0;
  for (const Target& target : targets) {
    if (stop.stop_requested()) break;
    progress(std::string(target.label), stepsBegun++ / stepCount);
    const Path url = _platform.files.home() / target.path;
    const auto bytes = measure(url, stop);
    if (bytes < 1) continue;
    sum = addBytes(sum, bytes);
    disk.buckets.push_back({.id = std::string(target.id),
                            .label = std::string(target.label),
                            .bytes = bytes,
                            .color = target.color,
                            .url = url});
  }

  progress("The rest of the disk", targets.size() / stepCount);
  const DiskStats stats = readDiskStats(_platform.volume);
  disk.usedBytes = stats.usedBytes;
  disk.freeBytes = stats.freeBytes;
  // Clones, shared space and sparse files can make the places add up to more than what is used.
  const auto rest = stats.usedBytes - sum;
  if (rest >= 1) {
    disk.buckets.push_back({.id = "system",
                            .label = "macOS and everything else",
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
