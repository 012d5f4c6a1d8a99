#include "support/hand_moved_clock.h"

#include <algorithm>

namespace klarvik {

class HandMovedClock::SetAlarm final : public Clock::Alarm {
 public:
  SetAlarm(std::shared_ptr<Alarms> alarms, Turn turn) : _alarms(std::move(alarms)), _turn(turn) {}
  ~SetAlarm() override { _alarms->erase(_turn); }
  SetAlarm(const SetAlarm&) = delete;
  SetAlarm& operator=(const SetAlarm&) = delete;

 private:
  std::shared_ptr<Alarms> _alarms;
  Turn _turn;
};

HandMovedClock::HandMovedClock(Date start) : _now(start) {}

Date HandMovedClock::now() const {
  return _now;
}

std::unique_ptr<Clock::Alarm> HandMovedClock::wakeAfter(std::chrono::nanoseconds delay,
                                                        std::function<void()> wake) {
  const Turn turn{_now + delay, _alarmsEverSet++};
  _alarms->emplace(turn, std::move(wake));
  return std::make_unique<SetAlarm>(_alarms, turn);
}

void HandMovedClock::advance(std::chrono::nanoseconds duration) {
  const Date end = _now + duration;
  while (!_alarms->empty() && _alarms->begin()->first.first <= end) {
    auto due = _alarms->extract(_alarms->begin());
    _now = std::max(_now, due.key().first);
    due.mapped()();
  }
  _now = end;
}

std::size_t HandMovedClock::pendingAlarms() const {
  return _alarms->size();
}

}  // namespace klarvik
