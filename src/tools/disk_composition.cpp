#include "tools/disk_composition.h"

#include <algorithm>
#include <utility>

#include "base/bytes.h"
#include "base/message.h"
#include "places/colors.h"

namespace klarvik {

std::vector<DiskComposition::Bucket> DiskComposition::displayBuckets(double smallestShare) const {
  const auto used = static_cast<double>(std::max<std::int64_t>(usedBytes, 1));
  const auto cut = static_cast<std::int64_t>(smallestShare * used);

  std::vector<Bucket> shown;
  std::int64_t smaller = 0;
  for (const Bucket& bucket : buckets) {
    if (bucket.bytes < 1) continue;
    if (bucket.bytes >= cut) {
      shown.push_back(bucket);
    } else {
      smaller = addBytes(smaller, bucket.bytes);
    }
  }
  std::ranges::stable_sort(shown, std::ranges::greater{}, &Bucket::bytes);
  if (smaller >= 1) {
    shown.push_back({.id = "smaller",
                     .label = QT_TRANSLATE_NOOP("Engine", "Smaller folders"),
                     .bytes = smaller,
                     .color = storage_palette::white(0.42)});
  }
  return shown;
}

}  // namespace klarvik
