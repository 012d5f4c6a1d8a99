#include "support/fake_clock.h"

#include <algorithm>

namespace klarvik {

class FakeClock::SetAlarm final : public Clock::Alarm {
 public:
  SetAlarm(std::shared_ptr<Alarms> alarms, Turn turn) : _alarms(std::move(alarms)), _turn(turn) {}
  ~SetAlarm() override { _alarms->erase(_turn); }
  SetAlarm(const SetAlarm&) = delete;
  SetAlarm& operator=(const SetAlarm&) = delete;

 private:
  std::shared_ptr<Alarms> _alarms;
  Turn _turn;
};

FakeClock::FakeClock(Date start) : _now(start) {}

Date FakeClock::now() const {
  return _now;
}

std::unique_ptr<Clock::Alarm> FakeClock::wakeAfter(std::chrono::nanoseconds delay,
                                                   std::function<void()> wake) {
  const Turn turn{_now + delay, _alarmsEverSet++};
  _alarms->emplace(turn, std::move(wake));
  return std::make_unique<SetAlarm>(_alarms, turn);
}

void FakeClock::advance(std::chrono::nanoseconds duration) {
  const Date end = _now + duration;
  while (!_alarms->empty() && _alarms->begin()->first.first <= end) {
    auto due = _alarms->extract(_alarms->begin());
    _now = std::max(_now, due.key().first);
    due.mapped()();
  }
  _now = end;
}

std::size_t FakeClock::pendingAlarms() const {
  return _alarms->size();
}

}  // namespace klarvik
