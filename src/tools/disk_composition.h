#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "places/colors.h"
#include "platform/clock.h"
#include "platform/path.h"

namespace klarvik {

/// What fills the disk, in the coarse terms that a person thinks in.
struct DiskComposition {
  /// One share of the disk.
  struct Bucket {
    std::string id;
    std::string label;
    std::int64_t bytes = 0;
    RgbColor color{};
    std::optional<Path> url = std::nullopt;  ///< the folder; nothing for what is no one folder
    /// What can be looked into, largest first; none on a disk of whose places only some are
    /// measured.
    std::vector<Path> places{};

    bool operator==(const Bucket&) const = default;
  };

  std::vector<Bucket> buckets{};  ///< measured places in a fixed order, then the remainder
  std::int64_t usedBytes = 0;     ///< of the volume, when it was measured
  std::int64_t freeBytes = 0;
  Date measuredAt{};  ///< when the result was finished

  /// What to draw: the buckets by size, largest first, and last one bucket for all those below
  /// `smallestShare` (0 to 1) of the used bytes together.
  [[nodiscard]] std::vector<Bucket> displayBuckets(double smallestShare) const;
};

}  // namespace klarvik
