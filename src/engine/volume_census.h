#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

#include "base/paths.h"
#include "places/system_data_places.h"
#include "platform/file_attributes.h"

namespace klarvik {

class FileSystem;

/// Things of the disk that are counted together, or child by child.
struct CensusPlace {
  std::string pattern{};  ///< from the root, "*" as in `nameMatches`
  LedgerUnit unit = LedgerUnit::whole;
  std::int64_t above = 0;  ///< bytes; a plain file that takes no more is no child of its own
};

/// What one match of a place takes, or one child of it. The rows of a census have nothing in
/// common.
struct CensusRow {
  std::size_t place = 0;  ///< among those asked for
  Path path{};            ///< empty for the small plain files of a place that counts child by child
  std::int64_t bytes = 0;
  /// As it was met, before it was measured.
  std::optional<EntryIdentity> identity = std::nullopt;
  /// Whether parts of what lies in it count in other rows.
  bool isPartly = false;
};

struct Census {
  std::vector<CensusRow> rows{};  ///< in the order in which they were met
  std::int64_t bytes = 0;         ///< all rows, and what belongs to none
};

/// Sees that the walk has come to a place, with the bytes counted until then.
using CensusProgress = std::function<void(std::size_t place, std::int64_t bytes)>;

/// Counts what the volume of the home holds, by one walk over all of it that leaves it nowhere and
/// waits for no server. A thing counts in the deepest of the places that it lies in, a file with
/// several names where the first is met, and a folder with what its own list of names takes. What
/// may not be read is not counted. Any thread; ends early at a stop, with what it has.
[[nodiscard]] Census takeCensus(const FileSystem& files, std::span<const CensusPlace> places,
                                const std::stop_token& stop, const CensusProgress& progress = {});

}  // namespace klarvik
