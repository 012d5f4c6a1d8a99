#pragma once

#include <type_traits>
#include <utility>

namespace klarvik {

/// Stores `value` in `field`. True when that changed it, so that a signal is due.
template <typename Value>
[[nodiscard]] bool setIfChanged(Value& field, std::type_identity_t<Value> value) {
  if (field == value) return false;
  field = std::move(value);
  return true;
}

}  // namespace klarvik
