#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace klarvik {

/// A moment in time, to the nanosecond where the file system keeps it that finely.
using Date = std::chrono::system_clock::time_point;

/// Time, and waking up later. Main thread only.
class Clock {
 public:
  /// A wake-up that is still to come; destroying it cancels it.
  class Alarm {
   public:
    virtual ~Alarm() = default;
  };

  virtual ~Clock() = default;
  [[nodiscard]] virtual Date now() const = 0;
  /// Calls `wake` once from the main loop, `delay` from now.
  [[nodiscard]] virtual std::unique_ptr<Alarm> wakeAfter(std::chrono::nanoseconds delay,
                                                         std::function<void()> wake) = 0;
};

}  // namespace klarvik
