#pragma once

#include "platform/clock.h"

namespace klarvik {

/// The clock of the machine, and alarms on Qt's main loop.
class QtClock final : public Clock {
 public:
  [[nodiscard]] Date now() const override;
  /// To the millisecond, and never early. A delay of more than 24 days is cut to that.
  [[nodiscard]] std::unique_ptr<Alarm> wakeAfter(std::chrono::nanoseconds delay,
                                                 std::function<void()> wake) override;
};

}  // namespace klarvik
