#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "places/disk_layout.h"

/// A Mac's disk. Paths are below the home unless absolute.
namespace klarvik::mac {

[[nodiscard]] std::span<const Pass> analysisPasses();
[[nodiscard]] std::span<const StorageShare> storageShares();
extern const TrailPlaces trailPlaces;
extern const ApplicationPlaces applicationPlaces;
extern const GuardRules guardRules;
extern const Words words;
[[nodiscard]] const DiskLayout& layout();

}  // namespace klarvik::mac
