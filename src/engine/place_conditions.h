#pragma once

#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "core/catalogue.h"
#include "places/place.h"
#include "platform/clock.h"
#include "platform/platform.h"

namespace klarvik {

/// How the user calls `program`, while a process of theirs is it or holds the lock of one of its
/// profiles; empty while it does not run. Looks anew at each call; any thread.
[[nodiscard]] std::string nameIfRunning(const Platform& platform, const Catalogue& catalogue,
                                        std::string_view program);

/// What a walk through a thing tells of it.
struct Measure {
  std::int64_t bytes = 0;            ///< all that a removal gives back
  std::int64_t taken = 0;            ///< all that it takes of the disk, which may be more
  std::optional<Date> used;          ///< when something in it was last changed or read
  bool isOwn = true;                 ///< all of it belongs to the user
  bool holdsMountPoint = false;      ///< other volumes are mounted in it: it cannot be moved
  bool holdsReadOnlyFolder = false;  ///< what lies in such a folder cannot be removed file by file
};

/// Of all of `path`, links not followed, on its own volume only. Any thread; takes as long as the
/// tree is large. Ends early at a stop, with what it has.
[[nodiscard]] Measure measureWhole(const FileSystem& files, const Path& path,
                                   const std::stop_token& stop = {});

/// Whether the condition of `place` holds for the thing at `path`, whose pattern's "*" stand for
/// `stars`. When it cannot be told, it does not.
[[nodiscard]] bool conditionHolds(const Platform& platform, const Catalogue& catalogue,
                                  const Place& place, const Path& path,
                                  const std::vector<std::string_view>& stars,
                                  const Measure& measure, Date now);

}  // namespace klarvik
