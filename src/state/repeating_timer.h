#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "platform/clock.h"

namespace klarvik {

/// Calls `tick` again and again, first one interval from now, until it is destroyed, which `tick`
/// may do itself. Main thread only.
class RepeatingTimer {
 public:
  RepeatingTimer(Clock& clock, std::chrono::nanoseconds interval, std::function<void()> tick);
  RepeatingTimer(const RepeatingTimer&) = delete;
  RepeatingTimer& operator=(const RepeatingTimer&) = delete;

 private:
  void setAlarm();

  Clock& _clock;
  std::chrono::nanoseconds _interval;
  std::function<void()> _tick;
  std::unique_ptr<Clock::Alarm> _alarm;
};

}  // namespace klarvik
