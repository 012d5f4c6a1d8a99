#pragma once

#include <cstdint>
#include <cstdlib>

namespace klarvik {

/// A sum of sizes. One that no longer fits 64 bits is a fault of the program, and ends it.
[[nodiscard]] inline std::int64_t addBytes(std::int64_t left, std::int64_t right) {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(left, right, &sum)) std::abort();
  return sum;
}

}  // namespace klarvik
