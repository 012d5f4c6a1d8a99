#include "engine/sizes.h"

#include <algorithm>

#include "base/bytes.h"
#include "places/disk_layout.h"
#include "platform/file_attributes.h"
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

namespace {

/// Of smaller ones even many make no difference that a user would see.
constexpr std::int64_t leastBytes = 256LL * 1024;

std::int64_t sharedBytesOfFile(const FileSystem& files, const Path& path, std::int64_t allocated) {
  if (allocated < leastBytes) return 0;
  const auto file = files.openForReading(path);
  const auto attributes = file ? file->attributes() : std::nullopt;
  // One with another name is told by its names.
  if (!attributes || attributes->names > 1) return 0;
  return std::clamp<std::int64_t>(file->sharedBytes(), 0, allocated);
}

}  // namespace

std::int64_t sharedBytes(const FileSystem& files, const Path& path, const std::stop_token& stop) {
  if (!files.mayShareContent(path)) return 0;
  std::int64_t shared = 0;
  const auto outcome = files.walk(path, wholeWalk(files), [&](WalkEntry& entry) {
    if (stop.stop_requested()) return WalkStep::stop;
    if (entry.kind() == FileKind::regular) {
      const std::int64_t allocated = entry.allocatedBytes();
      if (allocated >= leastBytes) {
        shared = addBytes(shared, sharedBytesOfFile(files, entry.path(), allocated));
      }
    }
    return WalkStep::proceed;
  });
  if (outcome != WalkOutcome::refused) return shared;
  const auto attributes = files.attributes(path);
  const bool isFile = attributes && attributes->kind == FileKind::regular;
  return isFile ? sharedBytesOfFile(files, path, attributes->allocatedBytes) : 0;
}

namespace {

std::int64_t lengthOf(const std::optional<FileAttributes>& attributes) {
  if (!attributes || attributes->kind == FileKind::directory) return 0;
  return attributes->logicalBytes;
}

}  // namespace

std::int64_t fileSize(const FileSystem& files, const Path& path) {
  return lengthOf(files.attributes(path));
}

std::int64_t contentSize(const FileSystem& files, const Path& path) {
  std::int64_t total = 0;
  WalkOptions options = wholeWalk(files);
  options.skipHidden = true;
  const auto outcome = files.walk(path, options, [&](WalkEntry& entry) {
    if (entry.kind() != FileKind::directory) total = addBytes(total, lengthOf(entry.attributes()));
    return WalkStep::proceed;
  });
  return outcome == WalkOutcome::refused ? fileSize(files, path) : total;
}

}  // namespace klarvik
