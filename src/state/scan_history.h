#pragma once

#include <QObject>
#include <cstdint>
#include <map>
#include <vector>

#include "core/junk_model.h"
#include "state/scan_history_json.h"

namespace klarvik {

class Clock;
class UserDefaults;

/// The last 30 scans and the last 30 cleans, newest first, kept across restarts. Main thread only;
/// an entry is saved before the recording call returns.
class ScanHistory : public QObject {
  Q_OBJECT
 public:
  static constexpr const char* scansKey = "scan_history";
  static constexpr const char* cleansKey = "clean_history";
  static constexpr std::size_t limit = 30;

  ScanHistory(UserDefaults& defaults, const Clock& clock, QObject* parent = nullptr);

  [[nodiscard]] const std::vector<ScanHistoryEntry>& scans() const { return _scans; }
  [[nodiscard]] const std::vector<ScanHistoryEntry>& cleans() const { return _cleans; }

  /// A scan that found nothing leaves no entry.
  void recordScan(const std::vector<CleanCategory>& categories);
  /// A clean that freed nothing leaves no entry.
  void recordClean(std::int64_t freed, const std::map<CategoryType, std::int64_t>& categories);

 signals:
  void scansChanged();
  void cleansChanged();

 private:
  void save(const char* key, const std::vector<ScanHistoryEntry>& entries);

  UserDefaults& _defaults;
  const Clock& _clock;
  std::vector<ScanHistoryEntry> _scans;
  std::vector<ScanHistoryEntry> _cleans;
};

}  // namespace klarvik
