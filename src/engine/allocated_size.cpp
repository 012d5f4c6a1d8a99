#include "engine/allocated_size.h"

#include "base/bytes.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"

namespace klarvik {

namespace {

/// What the item itself takes, for one that cannot be walked: a plain file, but never a link.
std::int64_t ownAllocation(const FileSystem& files, const Path& path) {
  const auto attributes = files.attributes(path);
  if (!attributes || attributes->kind == FileKind::symbolicLink) return 0;
  return attributes->allocatedBytes;
}

bool sizesAreWhole(const FileSystem& files) {
  return layoutFor(files.home()).sizesAreWhole;
}

std::int64_t sumOfAllocations(const FileSystem& files, const Path& path, WalkOptions options,
                              const std::stop_token& stop) {
  if (isOtherVolume(files, path)) return 0;
  std::int64_t total = 0;
  const auto outcome = files.walk(path, options, [&](WalkEntry& entry) {
    if (stop.stop_requested()) return WalkStep::stop;
    if (entry.kind() != FileKind::directory && entry.kind() != FileKind::symbolicLink) {
      total = addBytes(total, entry.allocatedBytes());
    }
    return WalkStep::proceed;
  });
  return outcome == WalkOutcome::refused ? ownAllocation(files, path) : total;
}

}  // namespace

bool isOtherVolume(const FileSystem& files, const Path& path) {
  return sizesAreWhole(files) && files.isMountPoint(path);
}

WalkOptions wholeWalk(const FileSystem& files) {
  return {.stayOnMount = sizesAreWhole(files)};
}

std::int64_t allocatedSize(const FileSystem& files, const Path& path) {
  const WalkOptions partly{.skipHidden = true, .skipPackageContents = true};
  return sumOfAllocations(files, path, sizesAreWhole(files) ? wholeWalk(files) : partly, {});
}

std::int64_t wholeAllocatedSize(const FileSystem& files, const Path& path,
                                const std::stop_token& stop) {
  return sumOfAllocations(files, path, wholeWalk(files), stop);
}

}  // namespace klarvik
