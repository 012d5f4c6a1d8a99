#pragma once

#include <string_view>

namespace klarvik {

/// Writes all of `bytes` to the opened file. False when that failed; the file may have taken some
/// of them then.
[[nodiscard]] bool writeWhole(int file, std::string_view bytes);

}  // namespace klarvik
