#include "panes/storage/storage_texts.h"

namespace klarvik::storage {

std::string measuringSubtitle(const std::string& label) {
  return "Measuring " + label + "…";
}

std::string restingSubtitle(const DiskStats& stats, std::optional<Date> measuredAt, Date now,
                            const Formatting& formatting, std::string_view keptWord) {
  std::string free =
      formatting.byteText(stats.freeBytes) + " free of " + formatting.byteText(stats.totalBytes);
  const std::int64_t kept = stats.totalBytes - stats.usedBytes - stats.freeBytes;
  if (kept > 0 && !keptWord.empty()) {
    free.append(" · ").append(formatting.byteText(kept)).append(" ").append(keptWord);
  }
  return measuredAt ? free + " · measured " + formatting.relativeAbbreviated(*measuredAt, now)
                    : free;
}

std::string actionTitle(bool isMeasuring, bool isMeasured) {
  if (isMeasuring) return "Stop";
  return isMeasured ? "Re-measure" : "Measure";
}

std::string nothingMeasured(bool hasFullDiskAccess) {
  return hasFullDiskAccess
             ? "Nothing measured yet. Walking your folders takes about a minute and reads sizes "
               "only."
             : "Nothing measured yet. Measuring reads Documents, Desktop and Downloads, which "
               "macOS guards separately, so Klarvik waits for you to ask. It reads sizes only.";
}

std::string noGrowth(std::size_t scans, std::size_t grown) {
  if (scans < 2) return "Two scans are needed before growth means anything.";
  return grown == 0 ? "Nothing has grown since your first scan on record." : "";
}

std::string growthFigure(std::int64_t delta, const Formatting& formatting) {
  return "+" + formatting.byteText(delta);
}

std::string noTrend(std::size_t cleans) {
  return cleans < 2 ? "Two cleans are needed before a trend means anything." : "";
}

}  // namespace klarvik::storage
