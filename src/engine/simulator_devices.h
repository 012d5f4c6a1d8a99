#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace klarvik {

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
