#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

#include "platform/path.h"

namespace klarvik {

/// The text of a `.trashinfo`, which tells where a trashed thing was and when it went. `place` is
/// written as percent-encoded bytes, so a name of any bytes stays on its line; `deleted` is written
/// in local time.
[[nodiscard]] std::string trashRecordText(const Path& place, std::time_t deleted);

/// The place that such a text names. Nothing when it is not a whole record: another heading, no
/// place, a broken percent sign or a NUL in it, or a ".." among its components.
[[nodiscard]] std::optional<Path> placeInTrashRecord(std::string_view text);

}  // namespace klarvik
