#pragma once

#include <cstdint>

namespace klarvik {

class Volume;

/// How full a volume is, in bytes.
struct DiskStats {
  std::int64_t totalBytes = 0;
  std::int64_t usedBytes = 0;
  std::int64_t freeBytes = 0;

  bool operator==(const DiskStats&) const = default;
};

/// May be called from any thread. A volume that does not tell what is free counts as full, and one
/// that tells nothing as one of 0 bytes.
[[nodiscard]] DiskStats readDiskStats(const Volume& volume);

}  // namespace klarvik
