#include "engine/shared_content.h"

#include <algorithm>

#include "base/bytes.h"
#include "engine/allocated_size.h"
#include "platform/file_system.h"

namespace klarvik {
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

}  // namespace klarvik
