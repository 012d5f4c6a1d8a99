#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "platform/date.h"

namespace klarvik {

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
