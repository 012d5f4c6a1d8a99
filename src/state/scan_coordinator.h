#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <cstdint>
#include <map>
#include <set>
#include <stop_token>
#include <string>

#include "platform/date.h"
#include "platform/user_defaults.h"

namespace klarvik {

/// Lets the tools that scan by themselves do so one at a time, and keeps the last total of each
/// tool. Main thread only. Scans that the user starts take no turn.
class ScanCoordinator : public QObject {
  Q_OBJECT
 public:
  struct Total {
    std::int64_t bytes = 0;
    std::int64_t items = 0;
    Date measuredAt;
    bool operator==(const Total&) const = default;
  };

  [[nodiscard]] static ScanCoordinator& shared();

  explicit ScanCoordinator(const UserDefaults& defaults, QObject* parent = nullptr);

  [[nodiscard]] const std::map<std::string, Total>& totals() const { return _totals; }
  void setTotal(const std::string& key, const Total& total);
  [[nodiscard]] bool busy() const { return _busy; }
  [[nodiscard]] const std::set<std::string>& completedAutoScans() const {
    return _completedAutoScans;
  }

  /// Waits for the turn of the tool. True: the caller holds the turn, and gives it up with
  /// `finishTurn`. False: automatic scans are off, the tool had its own already, or the caller was
  /// asked to stop while it waited.
  QCoro::Task<bool> beginAutoScan(std::string key, std::stop_token stop = {});
  QCoro::Task<> waitForTurn(std::string key);
  void finishTurn();

 signals:
  void totalsChanged();

 private:
  const UserDefaults& _defaults;
  std::map<std::string, Total> _totals;
  bool _busy = false;
  std::set<std::string> _completedAutoScans;
};

}  // namespace klarvik
