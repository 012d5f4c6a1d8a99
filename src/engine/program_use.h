#pragma once

#include <string>
#include <string_view>

#include "core/catalogue.h"
#include "platform/platform.h"

namespace klarvik {

/// How the user calls `program`, while a process of theirs is it or holds the lock of one of its
/// profiles; empty while it does not run. Looks anew at each call; any thread.
[[nodiscard]] std::string nameIfRunning(const Platform& platform, const Catalogue& catalogue,
                                        std::string_view program);

}  // namespace klarvik
