#pragma once

#include <cmath>
#include <cstdint>
#include <string>

namespace klarvik::sidebar {

/// A fraction in whole percent; what is over is left out.
[[nodiscard]] inline std::string percentText(double fraction) {
  return std::to_string(static_cast<std::int64_t>(std::trunc(fraction * 100))) + "%";
}

}  // namespace klarvik::sidebar
