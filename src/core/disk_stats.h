#pragma once

#include <cstdint>

namespace klarvik {

class Volume;
struct DiskLayout;

/// How full a volume is, in bytes.
struct DiskStats {
  std::int64_t totalBytes = 0;
  std::int64_t usedBytes = 0;
  std::int64_t freeBytes = 0;

  bool operator==(const DiskStats&) const = default;
};

/// May be called from any thread. A volume that does not tell what is free counts as full, and one
/// that tells nothing as one of 0 bytes. Whether what is kept for root is used, the layout says.
[[nodiscard]] DiskStats readDiskStats(const Volume& volume, const DiskLayout& layout);

}  // namespace klarvik
