#pragma once

#include <chrono>
#include <coroutine>
#include <functional>
#include <memory>
#include <stop_token>

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

/// What `sleepFor` answers; it is only good for being awaited at once. Compilers may move it
/// into the coroutine's frame, so the state of the timer is allocated separately.
class Sleep {
 public:
  Sleep(Clock& clock, std::chrono::nanoseconds duration, std::stop_token stop);

  [[nodiscard]] bool await_ready() const noexcept;
  void await_suspend(std::coroutine_handle<> sleeper);
  void await_resume();

 private:
  Clock& _clock;
  std::chrono::nanoseconds _duration;
  std::stop_token _stop;
  std::unique_ptr<Clock::Alarm> _alarm;
  std::unique_ptr<std::stop_callback<std::function<void()>>> _onStop;
};

/// `co_await sleepFor(clock, duration, stop)` goes on after `duration`, or as soon as a stop is
/// requested: then before `request_stop` returns. Which of the two it was, `stop` tells. Main
/// thread only, and that is also where the stop must be requested.
[[nodiscard]] Sleep sleepFor(Clock& clock, std::chrono::nanoseconds duration, std::stop_token stop);

}  // namespace klarvik
