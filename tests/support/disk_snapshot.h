#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace klarvik {

/// What lies below a folder on the machine: for each place, counted from the folder, its kind and
/// mode, and the content and the date of a file (of a link, its target). Two snapshots compare
/// equal when nothing differs in any of these. For trees whose paths the system can take whole.
using DiskSnapshot = std::map<std::string, std::string>;

[[nodiscard]] DiskSnapshot snapshotOf(const Path& folder);
/// The same for disks with gigabytes of nothing in them: of a file, its length and how it begins.
[[nodiscard]] DiskSnapshot outlineOf(const Path& folder);

/// A line for each place that differs: "gone a/b", "new c", "changed d". Empty when none does.
[[nodiscard]] std::string differences(const DiskSnapshot& before, const DiskSnapshot& after);

/// The same without what is gone at and below `selected`: what was lost, made or changed and should
/// not have been.
[[nodiscard]] std::string unexpectedDifferences(const DiskSnapshot& before,
                                                const DiskSnapshot& after,
                                                const std::vector<Path>& selected);

}  // namespace klarvik
