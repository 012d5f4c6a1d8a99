#include "core/disk_stats.h"

#include "platform/volume.h"

namespace klarvik {

DiskStats readDiskStats(const Volume& volume) {
  const std::int64_t total = volume.totalBytes().value_or(0);
  const auto available = volume.availableBytes();
  if (!available) return {total, total, 0};
  return {total, total - *available, *available};
}

}  // namespace klarvik
