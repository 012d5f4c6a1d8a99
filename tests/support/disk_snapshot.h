#pragma once

#include <map>
#include <string>

#include "platform/file_system.h"

namespace klarvik {

/// What lies below a folder on the machine: for each place, counted from the folder, its kind, mode
/// and content (of a link, its target). Two snapshots compare equal when nothing differs in any of
/// these.
using DiskSnapshot = std::map<std::string, std::string>;

[[nodiscard]] DiskSnapshot snapshotOf(const Path& folder);

}  // namespace klarvik
