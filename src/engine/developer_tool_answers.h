#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace klarvik {

/// The sum of the reclaimable column of what `docker system df` prints. The column is found by its
/// place, last but one, and the headers are not read. 0 when the sum is beyond 64 bits.
[[nodiscard]] std::int64_t dockerReclaimableBytes(std::string_view table);

/// A size such as "1.5GB" or "800kB": decimal units, case-sensitive, a comma read as a point. 0 for
/// everything else, and for a size beyond 64 bits.
[[nodiscard]] std::int64_t dockerSizeBytes(std::string_view size);

/// A simulated device whose runtime is gone.
struct SimulatorDevice {
  std::string udid;     ///< also the name of its folder: one plain path component
  std::string name;     ///< the udid where it has none
  std::string runtime;  ///< without the prefix that all runtimes share; may be empty

  bool operator==(const SimulatorDevice&) const = default;
};

/// The devices that `xcrun simctl list devices unavailable --json` prints. Empty for anything that
/// is not such a list. A device without a udid, or with one that could lead out of its folder, is
/// left out.
[[nodiscard]] std::vector<SimulatorDevice> unavailableSimulators(std::string_view json);

}  // namespace klarvik
