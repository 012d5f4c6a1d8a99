#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/large_file_walker.h"

namespace klarvik {

/// Which of the files the user wants to look at, and in what order.
struct FileView {
  std::optional<std::string> kind = std::nullopt;  ///< only files of this kind; all when absent
  LargeFileSort sort = LargeFileSort::size;

  bool operator==(const FileView&) const = default;
};

/// Rows that become others: `before` of them, from the row `at` on, counted in the list as it was;
/// in their place come `after` ones, from the row `from` on of the list as it will be.
struct RowReplacement {
  std::size_t at = 0;
  std::size_t before = 0;
  std::size_t from = 0;
  std::size_t after = 0;

  bool operator==(const RowReplacement&) const = default;
};

/// How a list of rows is brought in line with the files.
struct RowArrangement {
  LargeFileList rows;
  std::vector<RowReplacement> replacements;  ///< in ascending order, none touching another
  std::vector<std::string_view> kinds;       ///< the first few kinds there are, in text order
};

/// Kinds that are offered to filter by.
constexpr std::size_t mostKinds = 4;

/// Which rows the user looks at: those that must be moved, inserted and removed one by one. Others
/// may be written over where they stand, which costs less than thousands of moves.
struct RowsInSight {
  std::size_t first = 0;
  std::size_t count = 0;
  std::optional<std::size_t> current = std::nullopt;  ///< the row that keys act on
};

/// From the files, largest first, and the rows as they are. Cheap where nothing is to be sorted;
/// may be called on any thread.
[[nodiscard]] RowArrangement arrange(const LargeFileList& files, const FileView& view,
                                     const LargeFileList& rows, const RowsInSight& inSight,
                                     const Formatting& formatting);

/// Rows in sight that are in both lists keep their place among each other.
[[nodiscard]] std::vector<RowReplacement> replacements(const LargeFileList& before,
                                                       const LargeFileList& after,
                                                       const RowsInSight& inSight);

}  // namespace klarvik
