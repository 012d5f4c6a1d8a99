#pragma once

#include "base/posix_io.h"
#include "platform/file_system.h"

namespace klarvik {

/// Walks everything below the opened folder `start`, whose logical path is `startPath`, as
/// `FileSystem::walk` promises. May be called from any thread.
WalkOutcome walkBelow(UniqueFd start, const Path& startPath, WalkOptions options,
                      const WalkVisitor& visit);

}  // namespace klarvik
