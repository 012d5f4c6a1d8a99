#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "state/scan_history_entry.h"

namespace klarvik {

/// The stored form of the history: a JSON array of objects with the keys "id" (canonical text),
/// "date" (seconds since 1 January 2001, 00:00:00 UTC), "totalJunk" (bytes) and "categories"
/// (bytes by name).
[[nodiscard]] std::string encodeHistory(const std::vector<ScanHistoryEntry>& entries);

/// Nothing when `text` is anything else than a whole list of well-formed entries.
[[nodiscard]] std::optional<std::vector<ScanHistoryEntry>> decodeHistory(std::string_view text);

}  // namespace klarvik
