#pragma once

#include <cstddef>
#include <vector>

namespace klarvik {

/// Rows of a list that stand one after the other.
struct RowRange {
  std::size_t first = 0;
  std::size_t count = 0;

  bool operator==(const RowRange&) const = default;
};

/// With more separate runs than this, a view takes too long to follow each of them.
inline constexpr std::size_t mostRuns = 64;

/// Of a list of `count` rows, those that go. `goes` is asked once for each row, in their order.
template <typename Goes>
[[nodiscard]] std::vector<RowRange> rangesOf(std::size_t count, const Goes& goes) {
  std::vector<RowRange> runs;
  bool before = false;
  for (std::size_t row = 0; row < count; ++row) {
    const bool now = goes(row);
    if (now && !before) runs.push_back({.first = row});
    if (now) ++runs.back().count;
    before = now;
  }
  return runs;
}

}  // namespace klarvik
