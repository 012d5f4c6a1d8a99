#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/disk_stats.h"
#include "platform/formatting.h"

/// Every sentence of the Storage pane that follows a rule, as plain functions of what it tells of.
namespace klarvik::storage {

[[nodiscard]] std::string measuringSubtitle(const std::string& label);
/// Without `measuredAt` nothing has been measured. `keptWord` is said of what is neither used nor
/// free for the user.
[[nodiscard]] std::string restingSubtitle(const DiskStats& stats, std::optional<Date> measuredAt,
                                          Date now, const Formatting& formatting,
                                          std::string_view keptWord = {});
[[nodiscard]] std::string actionTitle(bool isMeasuring, bool isMeasured);
/// What stands in the place of a chart that there is none of yet.
[[nodiscard]] std::string nothingMeasured(bool hasFullDiskAccess);
/// Instead of the growth list; empty when there is one.
[[nodiscard]] std::string noGrowth(std::size_t scans, std::size_t grown);
[[nodiscard]] std::string growthFigure(std::int64_t delta, const Formatting& formatting);
/// Instead of the bars; empty when there are some.
[[nodiscard]] std::string noTrend(std::size_t cleans);

}  // namespace klarvik::storage
