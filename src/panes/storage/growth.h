#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/uuid.h"
#include "state/scan_history.h"

namespace klarvik {

/// How much more one category of junk takes than in the first scan on record. Sizes in bytes.
struct Growth {
  Uuid id = Uuid::random();
  std::string name;  ///< the category's key in the history
  std::int64_t delta = 0;
  std::int64_t current = 0;
};

/// What has grown from the oldest of `scans`, which is its last, to the newest, which is its first:
/// at most five rows, the largest growth first. What has shrunk or gone is not among them.
[[nodiscard]] std::vector<Growth> fastestGrowing(const std::vector<ScanHistoryEntry>& scans);

}  // namespace klarvik
