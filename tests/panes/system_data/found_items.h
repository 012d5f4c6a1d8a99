#pragma once

#include <optional>
#include <string>

#include "systemdata/system_data_item.h"

namespace klarvik {

/// A finding in the caches of the user.
inline SystemDataItem found(SystemDataSubCategory kind, const std::string& name, std::int64_t size,
                            std::optional<ItemSafety> safetyOverride = std::nullopt) {
  return {.name = name,
          .path = Path("/Users/ann/Library/Caches") / name,
          .size = size,
          .subCategory = kind,
          .safetyOverride = safetyOverride};
}

}  // namespace klarvik
