#pragma once

namespace klarvik {

/// For the beginning of a program that shows a window: from now on, freed memory is put together
/// piece by piece. Otherwise the allocator keeps small pieces apart, and at some moment puts all of
/// them together under a lock that every other thread may need; after very much was freed, that
/// holds up the main thread for several frames. A program that only computes is quicker without.
void disableFastBins();

/// From now on the calling thread gets out of the way of all others that have something to do. It
/// still has its small share of a busy machine, so that a lock which it holds, such as one of the
/// allocator's, is given back soon.
void becomeBackgroundThread();

}  // namespace klarvik
