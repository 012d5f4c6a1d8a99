#pragma once

#include <optional>
#include <string_view>

#include "platform/property_list.h"

namespace klarvik {

/// The texts of a property list as they were written before XML: `{ key = "value"; }`, with lists
/// in parentheses, data in angle brackets, and comments. Nothing when `content` is no such
/// dictionary from its first to its last brace. Any thread.
[[nodiscard]] std::optional<PropertyList::Texts> readOldStylePropertyList(std::string_view content);

}  // namespace klarvik
