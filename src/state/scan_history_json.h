#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/uuid.h"
#include "platform/clock.h"

namespace klarvik {

/// One scan or clean on record. The field names and forms are a file format.
struct ScanHistoryEntry {
  Uuid id = Uuid::random();
  Date date;
  std::int64_t totalJunk = 0;                      ///< bytes
  std::map<std::string, std::int64_t> categories;  ///< bytes by raw value of `CategoryType`
  bool operator==(const ScanHistoryEntry&) const = default;
};

/// The stored form of the history: a JSON array of objects with the keys "id" (canonical text),
/// "date" (seconds since 1 January 2001, 00:00:00 UTC), "totalJunk" (bytes) and "categories"
/// (bytes by name).
[[nodiscard]] std::string encodeHistory(const std::vector<ScanHistoryEntry>& entries);

/// Nothing when `text` is anything else than a whole list of well-formed entries.
[[nodiscard]] std::optional<std::vector<ScanHistoryEntry>> decodeHistory(std::string_view text);

}  // namespace klarvik
