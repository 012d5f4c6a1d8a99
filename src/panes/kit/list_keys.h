#pragma once

#include <optional>

namespace klarvik {

/// A list as its keys know it.
struct ListPlace {
  int row = -1;  ///< the current one; -1: none
  int rowCount = 0;
  int rowsInSight = 0;
};

/// The row that `key` (a `Qt::Key`) leads to, for those that move by more than one row. Absent for
/// other keys, and in a list without rows. Any thread.
[[nodiscard]] std::optional<int> rowReachedBy(int key, const ListPlace& place);

}  // namespace klarvik
