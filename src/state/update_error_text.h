#pragma once

#include <string>

#include "platform/updater.h"

namespace klarvik {

/// What the user reads about an updater's error: what the network's code means, where the network
/// is behind it, else what the updater says itself.
[[nodiscard]] std::string updateErrorText(const UpdaterError& error);

}  // namespace klarvik
