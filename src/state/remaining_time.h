#pragma once

#include <chrono>
#include <deque>
#include <optional>

#include "platform/clock.h"

namespace klarvik {

/// How long a work will take yet, by how fast it went until now. Says nothing rather than something
/// that nobody can know. A plain value; one thread at a time.
class RemainingTime {
 public:
  /// `share`: how much of the work is done, 0 to 1, in a measure that the time it takes follows.
  /// Starts anew where there is less done than before, or the clock was set back.
  void report(Date now, double share);

  /// Nothing until the work has gone on for some seconds, and while it goes much faster or slower
  /// than it did on the whole.
  [[nodiscard]] std::optional<std::chrono::seconds> estimate() const;

 private:
  struct Sample {
    Date when;
    double share = 0;
  };

  std::optional<Sample> _first;
  Sample _last;
  std::deque<Sample> _recent;  ///< one for each of the last seconds
};

}  // namespace klarvik
