#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace klarvik {

/// All that can still be read from the opened file. Nothing when reading fails or when it would be
/// more than `most` bytes.
[[nodiscard]] std::optional<std::string> readToEnd(int file, std::size_t most);

}  // namespace klarvik
