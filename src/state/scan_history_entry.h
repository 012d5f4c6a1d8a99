#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "core/uuid.h"
#include "platform/date.h"

namespace klarvik {

/// One scan or clean on record. The field names and forms are a file format.
struct ScanHistoryEntry {
  Uuid id = Uuid::random();
  Date date;
  std::int64_t totalJunk = 0;                      ///< bytes
  std::map<std::string, std::int64_t> categories;  ///< bytes by raw value of `CategoryType`
  bool operator==(const ScanHistoryEntry&) const = default;
};

}  // namespace klarvik
