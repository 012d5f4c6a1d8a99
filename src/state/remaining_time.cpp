#include "state/remaining_time.h"

#include <algorithm>
#include <cmath>

namespace klarvik {
namespace {

using std::chrono::seconds;
using Seconds = std::chrono::duration<double>;

constexpr seconds shortestWatch{5};
constexpr seconds window{15};
constexpr double leastProgress = 0.02;
/// The two speeds that have to agree may be this far apart.
constexpr double tolerance = 1.5;

}  // namespace

void RemainingTime::report(Date now, double share) {
  const bool isAnother = _first && (share < _last.share || now < _last.when);
  if (isAnother) *this = RemainingTime();
  _last = {now, share};
  if (!_first) _first = _last;
  if (_recent.empty() || now - _recent.back().when >= seconds(1)) _recent.push_back(_last);
  while (now - _recent.front().when > window) _recent.pop_front();
}

std::optional<seconds> RemainingTime::estimate() const {
  if (!_first || _last.when - _first->when < shortestWatch) return std::nullopt;
  if (_last.share - _first->share < leastProgress) return std::nullopt;
  const auto speedSince = [&](const Sample& sample) {
    const double elapsed = Seconds(_last.when - sample.when).count();
    return elapsed > 0 ? (_last.share - sample.share) / elapsed : 0;
  };
  const double onTheWhole = speedSince(*_first);
  const double lately = speedSince(_recent.front());
  if (lately <= 0 || std::max(onTheWhole, lately) > tolerance * std::min(onTheWhole, lately)) {
    return std::nullopt;
  }
  constexpr double longest = 100.0 * 60 * 60;
  const double left = (1 - _last.share) / lately;
  if (left > longest) return std::nullopt;
  return seconds(static_cast<std::int64_t>(std::ceil(left)));
}

}  // namespace klarvik
