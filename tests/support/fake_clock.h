#pragma once

#include <cstdint>
#include <map>
#include <utility>

#include "platform/clock.h"

namespace klarvik {

/// A clock that stands still until a test moves it.
class FakeClock final : public Clock {
 public:
  /// Starts at 2026-03-04 17:06:40 UTC unless told otherwise.
  explicit FakeClock(Date start = Date(std::chrono::seconds(1'772'644'000)));

  [[nodiscard]] Date now() const override;
  [[nodiscard]] std::unique_ptr<Alarm> wakeAfter(std::chrono::nanoseconds delay,
                                                 std::function<void()> wake) override;

  /// Moves on by `duration`, or back by a negative one. Every alarm that comes due on the way goes
  /// off at its own moment, in order, also those that are set by an alarm.
  void advance(std::chrono::nanoseconds duration);
  /// How many alarms are still to go off.
  [[nodiscard]] std::size_t pendingAlarms() const;

 private:
  class SetAlarm;
  /// When an alarm goes off, and its number: of two for one moment, the first to be set goes first.
  using Turn = std::pair<Date, std::uint64_t>;
  using Alarms = std::map<Turn, std::function<void()>>;

  Date _now;
  std::uint64_t _alarmsEverSet = 0;
  std::shared_ptr<Alarms> _alarms = std::make_shared<Alarms>();
};

}  // namespace klarvik
