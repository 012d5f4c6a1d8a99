#pragma once

#include <cstddef>
#include <optional>

#include "base/posix_io.h"
#include "platform/file_system.h"
#include "platform/linux/read_ahead.h"

namespace klarvik {

/// Who reads folders for a walk.
struct WalkThreads {
  std::size_t entriesAlone = 256;           ///< as many are visited before threads are started
  std::optional<HelpfulThreads> helpful{};  ///< nothing: what helps where the walk begins
};

/// Walks everything below the opened folder `start`, whose logical path is `startPath`, as
/// `FileSystem::walk` promises. May be called from any thread.
///
/// A large walk reads folders ahead on threads of its own, but only those that it is going to
/// enter: what the visitor lets it skip is not touched. All else is as if the caller's thread did
/// it alone.
WalkOutcome walkBelow(UniqueFd start, const Path& startPath, WalkOptions options,
                      const WalkVisitor& visit, WalkThreads threads = {});

}  // namespace klarvik
