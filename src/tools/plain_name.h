#pragma once

#include <string_view>

namespace klarvik {

/// Whether `name` holds letters, digits and `marks` alone, and begins with a letter or a digit: a
/// program takes what begins with "-" for an option.
[[nodiscard]] bool isPlainName(std::string_view name, std::string_view marks);

}  // namespace klarvik
