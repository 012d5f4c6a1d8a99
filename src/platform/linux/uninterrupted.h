#pragma once

#include <cerrno>

namespace klarvik {

/// Makes a system call again for as long as signals interrupt it.
template <typename Call>
auto uninterrupted(const Call& call) {
  for (;;) {
    const auto result = call();
    if (result != -1 || errno != EINTR) return result;
  }
}

}  // namespace klarvik
