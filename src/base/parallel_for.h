#pragma once

#include <cstddef>
#include <functional>
#include <stop_token>

namespace klarvik {

/// How the calls of a `parallelFor` follow each other.
enum class ParallelOrder {
  /// Whichever has ended is finished next, and only then is another one begun.
  asTheyEnd,
  /// Finished by number, as if one thread did it all, several at a time where they are short: each
  /// within a few milliseconds after its turn has come. A thread that is free begins the next one
  /// without waiting for the caller.
  byNumber,
};

struct ParallelPlan {
  std::size_t count = 0;  ///< calls in all
  std::size_t width = 1;  ///< threads at most, each performing one call at a time
  ParallelOrder order = ParallelOrder::asTheyEnd;
  std::stop_token stop{};
};

/// Calls `perform(number, thread)` for every number below `count`, in order of number, on threads
/// of its own; `thread` is below `width` and never in two calls at once, so that each thread can
/// have state of its own. `finished(number)` follows each on the calling thread, which waits for
/// all. After a stop request none is begun any more, and those under way are still finished.
///
/// Where the system gives fewer threads, these do all the work; where it gives none, the caller's
/// thread does. Neither function may throw.
void parallelFor(const ParallelPlan& plan,
                 const std::function<void(std::size_t number, std::size_t thread)>& perform,
                 const std::function<void(std::size_t number)>& finished);

}  // namespace klarvik
