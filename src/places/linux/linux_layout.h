#pragma once

#include <array>
#include <span>
#include <string_view>

#include "places/disk_layout.h"

/// A Linux machine's disk.
namespace klarvik::linux_disk {

[[nodiscard]] std::span<const Place> scanPlaces();
[[nodiscard]] std::span<const CleaningTool> tools();
[[nodiscard]] std::span<const ProjectArtifact> projectArtifacts();
[[nodiscard]] std::span<const LedgerPlace> ledgerPlaces();
[[nodiscard]] std::span<const StorageShare> storageShares();
extern const TrailPlaces trailPlaces;
extern const ApplicationPlaces applicationPlaces;
extern const std::array<PackageManager, 3> packageManagers;
extern const GuardRules guardRules;
extern const Words words;
[[nodiscard]] std::span<const SystemDataWords> systemDataWords();
[[nodiscard]] const DiskLayout& layout();

}  // namespace klarvik::linux_disk
