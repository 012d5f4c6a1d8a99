#include "panes/storage/growth.h"

#include <algorithm>
#include <limits>

namespace klarvik {
namespace {

constexpr std::size_t mostRows = 5;

/// The history is a file that anybody can write to: a difference that 64 bits do not hold must not
/// end the program.
std::int64_t difference(std::int64_t current, std::int64_t earlier) {
  using Limits = std::numeric_limits<std::int64_t>;
  std::int64_t delta = 0;
  if (!__builtin_sub_overflow(current, earlier, &delta)) return delta;
  return current > earlier ? Limits::max() : Limits::min();
}

std::int64_t bytesOf(const ScanHistoryEntry& entry, const std::string& category) {
  const auto found = entry.categories.find(category);
  return found != entry.categories.end() ? found->second : 0;
}

}  // namespace

std::vector<Growth> fastestGrowing(const std::vector<ScanHistoryEntry>& scans) {
  if (scans.size() < 2) return {};
  const ScanHistoryEntry& latest = scans.front();
  const ScanHistoryEntry& earliest = scans.back();
  if (latest.id == earliest.id) return {};

  std::vector<Growth> grown;
  for (const auto& [name, current] : latest.categories) {
    const std::int64_t delta = difference(current, bytesOf(earliest, name));
    if (delta >= 1) grown.push_back({.name = name, .delta = delta, .current = current});
  }
  std::ranges::stable_sort(grown, std::ranges::greater{}, &Growth::delta);
  if (grown.size() > mostRows) grown.resize(mostRows);
  return grown;
}

}  // namespace klarvik
