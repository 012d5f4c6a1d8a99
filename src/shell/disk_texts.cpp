#include "shell/disk_texts.h"

#include <algorithm>

#include "shell/percent_text.h"

namespace klarvik::sidebar {

double usedFraction(const DiskStats& stats) {
  if (stats.totalBytes < 1) {
    return 0;
  }
  const double used = static_cast<double>(stats.usedBytes) / static_cast<double>(stats.totalBytes);
  return std::clamp(used, 0.0, 1.0);
}

bool isNearlyFull(const DiskStats& stats) {
  return usedFraction(stats) > 0.9;
}

std::string percentFull(const DiskStats& stats) {
  return percentText(usedFraction(stats)) + " full";
}

std::string freeLine(const DiskStats& stats, const Formatting& formatting) {
  return formatting.byteText(stats.freeBytes) + " free of " + formatting.byteText(stats.totalBytes);
}

}  // namespace klarvik::sidebar
