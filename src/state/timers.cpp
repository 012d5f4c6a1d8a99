#include "state/timers.h"

#include <utility>

namespace klarvik {

RepeatingTimer::RepeatingTimer(Clock& clock, std::chrono::nanoseconds interval,
                               std::function<void()> tick)
    : _clock(clock), _interval(interval), _tick(std::move(tick)) {
  setAlarm();
}

void RepeatingTimer::setAlarm() {
  _alarm = _clock.wakeAfter(_interval, [this] {
    setAlarm();
    // A copy, since the tick may end the timer.
    const auto tick = _tick;
    tick();
  });
}

Sleep::Sleep(Clock& clock, std::chrono::nanoseconds duration, std::stop_token stop)
    : _clock(clock), _duration(duration), _stop(std::move(stop)) {}

bool Sleep::await_ready() const noexcept {
  return _stop.stop_requested();
}

void Sleep::await_suspend(std::coroutine_handle<> sleeper) {
  const auto wake = [sleeper] { sleeper.resume(); };
  _alarm = _clock.wakeAfter(_duration, wake);
  _onStop = std::make_unique<std::stop_callback<std::function<void()>>>(_stop, wake);
}

void Sleep::await_resume() {
  _alarm.reset();
  _onStop.reset();
}

Sleep sleepFor(Clock& clock, std::chrono::nanoseconds duration, std::stop_token stop) {
  return {clock, duration, std::move(stop)};
}

}  // namespace klarvik
