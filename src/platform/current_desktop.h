#pragma once

#include <string>
#include <vector>

namespace klarvik {

/// The names that the desktop around this program goes by; none where there is no desktop. Reads
/// the environment: while no thread changes it.
[[nodiscard]] std::vector<std::string> currentDesktops();

}  // namespace klarvik
