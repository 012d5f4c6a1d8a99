#pragma once

#include "platform/file_system.h"
#include "platform/linux/unique_fd.h"

namespace klarvik {

/// Walks everything below the opened folder `start`, whose logical path is `startPath`, as
/// `FileSystem::walk` promises. May be called from any thread.
WalkOutcome walkBelow(UniqueFd start, const Path& startPath, WalkOptions options,
                      const WalkVisitor& visit);

}  // namespace klarvik
