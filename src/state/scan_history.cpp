#include "state/scan_history.h"

#include <algorithm>

#include "base/bytes.h"
#include "platform/clock.h"
#include "platform/user_defaults.h"
#include "state/scan_history_json.h"

namespace klarvik {

namespace {

std::vector<ScanHistoryEntry> load(const UserDefaults& defaults, const char* key) {
  const auto stored = defaults.object(key);
  const Bytes* bytes = stored ? std::get_if<Bytes>(&*stored) : nullptr;
  if (bytes == nullptr) return {};
  return decodeHistory(bytes->content).value_or(std::vector<ScanHistoryEntry>{});
}

void putInFront(std::vector<ScanHistoryEntry>& entries, ScanHistoryEntry entry) {
  entries.insert(entries.begin(), std::move(entry));
  if (entries.size() > ScanHistory::limit) entries.resize(ScanHistory::limit);
}

}  // namespace

ScanHistory::ScanHistory(UserDefaults& defaults, const Clock& clock, QObject* parent)
    : QObject(parent),
      _defaults(defaults),
      _clock(clock),
      _scans(load(defaults, scansKey)),
      _cleans(load(defaults, cleansKey)) {}

void ScanHistory::recordScan(const std::vector<CleanCategory>& categories) {
  if (std::ranges::none_of(categories, &CleanCategory::hasItems)) return;
  ScanHistoryEntry entry;
  entry.date = _clock.now();
  for (const CleanCategory& category : categories) {
    const std::int64_t size = category.totalSize();
    entry.totalJunk = addBytes(entry.totalJunk, size);
    entry.categories.emplace(rawValue(category.type), size);
  }
  putInFront(_scans, std::move(entry));
  emit scansChanged();
  save(scansKey, _scans);
}

void ScanHistory::recordClean(std::int64_t freed,
                              const std::map<CategoryType, std::int64_t>& categories) {
  if (freed < 1) return;
  ScanHistoryEntry entry;
  entry.date = _clock.now();
  entry.totalJunk = freed;
  for (const auto& [type, bytes] : categories) entry.categories.emplace(rawValue(type), bytes);
  putInFront(_cleans, std::move(entry));
  emit cleansChanged();
  save(cleansKey, _cleans);
}

void ScanHistory::save(const char* key, const std::vector<ScanHistoryEntry>& entries) {
  _defaults.set(key, Bytes{encodeHistory(entries)});
}

}  // namespace klarvik
