#pragma once

#include <vector>

#include "systemdata/system_data_item.h"

namespace klarvik {

/// Without the items that lie inside another one, or where an earlier one lies, so that nothing is
/// counted twice. The items with the fewest characters in their path come first; those with as many
/// keep their order.
[[nodiscard]] std::vector<SystemDataItem> withoutOverlaps(std::vector<SystemDataItem> items);

}  // namespace klarvik
