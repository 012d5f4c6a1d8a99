#pragma once

namespace klarvik {

/// From now on the calling thread gets out of the way of all others that have something to do. It
/// still has its small share of a busy machine, so that a lock which it holds, such as one of the
/// allocator's, is given back soon.
void becomeBackgroundThread();

}  // namespace klarvik
