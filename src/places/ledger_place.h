#pragma once

#include <cstdint>
#include <string_view>

#include "places/place.h"
#include "places/system_data_sub_category.h"

namespace klarvik {

/// What of a place is one row.
enum class LedgerUnit {
  whole,            ///< each thing that the pattern stands for
  children,         ///< each thing in it
  visibleChildren,  ///< the same without those whose name begins with a dot
  hiddenChildren,   ///< and these
};

/// A part of the volume that is told of in rows of its own. A thing that lies in several places
/// counts where it lies deepest; of two patterns that end alike, for the one without a "*", and
/// then for the first of the table.
struct LedgerPlace {
  SystemDataSubCategory kind;
  Base base;
  std::string_view pattern;  ///< empty: the base itself
  LedgerUnit unit;
  std::int64_t above;  ///< bytes; rows that take less are told of together, in one of their kind
  /// "*" is the file name; where empty, what an application of that file name is called.
  std::string_view name;
  std::string_view sentence;  ///< what it is, and what one can do about it
  /// Whether it may be removed if the rules let it go; else it is only shown.
  bool mayBeOffered = false;
};

}  // namespace klarvik
