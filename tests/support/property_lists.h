#pragma once

#include <string>
#include <utility>
#include <vector>

namespace klarvik {

/// Texts under keys, in this order.
using PropertyListTexts = std::vector<std::pair<std::string, std::string>>;

/// A property list such as applications bring along: `texts`, and numbers, dates and lists beside
/// them. Bytes are written as they stand, so that a text may be spoilt on purpose.
[[nodiscard]] std::string xmlPropertyList(const PropertyListTexts& texts);

/// The same in the binary form.
[[nodiscard]] std::string binaryPropertyList(const PropertyListTexts& texts);

}  // namespace klarvik
