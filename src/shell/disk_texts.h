#pragma once

#include <string>

#include "core/disk_stats.h"
#include "platform/formatting.h"

/// What the sidebar says and draws of the disk, as plain functions of its figures.
namespace klarvik::sidebar {

/// 0 to 1.
[[nodiscard]] double usedFraction(const DiskStats& stats);
[[nodiscard]] bool isNearlyFull(const DiskStats& stats);
[[nodiscard]] std::string percentFull(const DiskStats& stats);
[[nodiscard]] std::string freeLine(const DiskStats& stats, const Formatting& formatting);

}  // namespace klarvik::sidebar
