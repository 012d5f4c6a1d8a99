// Whatever the preferences hold as a history: what is taken for one is stored and read again as the
// same entries. A date may come back rounded, as a fraction of a second.

#include "state/scan_history_json.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

using klarvik::ScanHistoryEntry;

bool isSame(const ScanHistoryEntry& one, ScanHistoryEntry other) {
  const auto apart = std::chrono::abs(one.date - other.date);
  other.date = one.date;
  return one == other && apart < std::chrono::milliseconds(1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto entries =
      klarvik::decodeHistory(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!entries) return 0;
  const auto again = klarvik::decodeHistory(klarvik::encodeHistory(*entries));
  if (!again || again->size() != entries->size()) std::abort();
  for (std::size_t at = 0; at < entries->size(); ++at) {
    if (!isSame((*entries)[at], (*again)[at])) std::abort();
  }
  return 0;
}
