#include "platform/desktop/qt_clock.h"

#include <QTimer>
#include <algorithm>
#include <limits>

namespace klarvik {
namespace {

class TimerAlarm final : public Clock::Alarm {
 public:
  TimerAlarm(std::chrono::milliseconds delay, std::function<void()> wake) : _timer(new QTimer) {
    _timer->setSingleShot(true);
    _timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(_timer, &QTimer::timeout, std::move(wake));
    _timer->start(delay);
  }
  // The alarm may go while its own timer is calling: the timer itself goes a little later.
  ~TimerAlarm() override {
    _timer->stop();
    _timer->deleteLater();
  }
  TimerAlarm(const TimerAlarm&) = delete;
  TimerAlarm& operator=(const TimerAlarm&) = delete;

 private:
  QTimer* _timer;
};

}  // namespace

Date QtClock::now() const {
  return std::chrono::system_clock::now();
}

std::unique_ptr<Clock::Alarm> QtClock::wakeAfter(std::chrono::nanoseconds delay,
                                                 std::function<void()> wake) {
  using std::chrono::milliseconds;
  constexpr milliseconds longest{std::numeric_limits<int>::max()};
  const auto wanted = std::chrono::ceil<milliseconds>(delay);
  return std::make_unique<TimerAlarm>(std::clamp(wanted, milliseconds(0), longest),
                                      std::move(wake));
}

}  // namespace klarvik
