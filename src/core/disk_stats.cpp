#include "core/disk_stats.h"

#include "places/disk_layout.h"
#include "platform/volume.h"

namespace klarvik {

DiskStats readDiskStats(const Volume& volume, const DiskLayout& layout) {
  const std::int64_t total = volume.totalBytes().value_or(0);
  const auto available = volume.availableBytes();
  if (!available) return {total, total, 0};
  const std::int64_t kept = layout.keptBlocksAreUsed ? 0 : volume.keptForRootBytes().value_or(0);
  return {total, total - *available - kept, *available};
}

}  // namespace klarvik
