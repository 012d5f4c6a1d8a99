#pragma once

#include <cstdint>
#include <string_view>

namespace klarvik {

/// The sum of the reclaimable column of what `docker system df` prints. The column is found by its
/// place, last but one, and the headers are not read. 0 when the sum is beyond 64 bits.
[[nodiscard]] std::int64_t dockerReclaimableBytes(std::string_view table);

/// A size such as "1.5GB" or "800kB": decimal units, case-sensitive, a comma read as a point. 0 for
/// everything else, and for a size beyond 64 bits.
[[nodiscard]] std::int64_t dockerSizeBytes(std::string_view size);

}  // namespace klarvik
