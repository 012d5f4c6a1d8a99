#pragma once

#include <chrono>
#include <cstdint>
#include <fstream>

namespace klarvik {

/// Nanoseconds that the calling thread has spent ready to run while others ran.
inline std::int64_t waitedForProcessor() {
  std::ifstream statistics("/proc/thread-self/schedstat");
  std::int64_t ran = 0;
  std::int64_t waited = 0;
  statistics >> ran >> waited;
  return waited;
}

/// A moment of the calling thread. The time since another one leaves out what the thread waited for
/// a processor that others had.
struct OwnMoment {
  std::chrono::steady_clock::time_point time = std::chrono::steady_clock::now();
  std::int64_t waited = waitedForProcessor();

  /// In milliseconds.
  [[nodiscard]] double since(const OwnMoment& before) const {
    const std::chrono::duration<double, std::milli> gap = time - before.time;
    return gap.count() - static_cast<double>(waited - before.waited) / 1e6;
  }
};

}  // namespace klarvik
