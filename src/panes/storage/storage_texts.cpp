#include "panes/storage/storage_texts.h"

#include "translation/translation.h"

namespace klarvik::storage {

std::string measuringSubtitle(const std::string& label) {
  return filled(translate("Storage", "Measuring %1…"), translated(label).toStdString());
}

std::string restingSubtitle(const DiskStats& stats, std::optional<Date> measuredAt, Date now,
                            const Formatting& formatting, std::string_view keptWord) {
  std::string free = filled(translate("Kit", "%1 free of %2"), formatting.byteText(stats.freeBytes),
                            formatting.byteText(stats.totalBytes));
  const std::int64_t kept = stats.totalBytes - stats.usedBytes - stats.freeBytes;
  if (kept > 0 && !keptWord.empty()) {
    free.append(" · ")
        .append(formatting.byteText(kept))
        .append(" ")
        .append(translated(keptWord).toStdString());
  }
  if (!measuredAt) return free;
  return free + " · " +
         filled(translate("Storage", "measured %1"),
                formatting.relativeAbbreviated(*measuredAt, now));
}

std::string actionTitle(bool isMeasuring, bool isMeasured) {
  if (isMeasuring) return translate("Kit", "Stop").toStdString();
  return (isMeasured ? translate("Storage", "Re-measure") : translate("Storage", "Measure"))
      .toStdString();
}

std::string nothingMeasured(bool hasFullDiskAccess) {
  return (hasFullDiskAccess
              ? translate("Storage",
                          "Nothing measured yet. Walking your folders takes about a minute and "
                          "reads sizes only.")
              : translate("Storage",
                          "Nothing measured yet. Measuring reads Documents, Desktop and "
                          "Downloads, which macOS guards separately, so Klarvik waits for you to "
                          "ask. It reads sizes only."))
      .toStdString();
}

std::string noGrowth(std::size_t scans, std::size_t grown) {
  if (scans < 2) {
    return translate("Storage", "Two scans are needed before growth means anything.").toStdString();
  }
  if (grown > 0) return {};
  return translate("Storage", "Nothing has grown since your first scan on record.").toStdString();
}

std::string growthFigure(std::int64_t delta, const Formatting& formatting) {
  return "+" + formatting.byteText(delta);
}

std::string noTrend(std::size_t cleans) {
  if (cleans >= 2) return {};
  return translate("Storage", "Two cleans are needed before a trend means anything.").toStdString();
}

}  // namespace klarvik::storage
