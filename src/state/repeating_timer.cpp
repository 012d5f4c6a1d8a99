#include "state/repeating_timer.h"

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

}  // namespace klarvik
