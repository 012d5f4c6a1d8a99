#pragma once

#include <cstddef>
#include <functional>
#include <stop_token>

namespace klarvik {

/// Calls `perform(0)` to `perform(count - 1)` on threads of its own, at most `width` at once, and
/// waits for them. Each that is over goes, in order of finishing and on the calling thread, to
/// `finished`; only when that has returned is another one started, in order of number. After a stop
/// request none is started any more, and those under way still go to `finished`.
///
/// If the system gives no thread at all, nothing is performed.
void parallelFor(std::size_t count, std::size_t width, const std::stop_token& stop,
                 const std::function<void(std::size_t)>& perform,
                 const std::function<void(std::size_t)>& finished);

}  // namespace klarvik
