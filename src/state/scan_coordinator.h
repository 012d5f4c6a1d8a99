#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <coroutine>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <stop_token>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "state/permissions_manager.h"

namespace klarvik {

class Clock;
class UserDefaults;

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

  explicit ScanCoordinator(const UserDefaults& defaults, QObject* parent = nullptr);
  /// Ends the wait of whoever is still in the queue: `beginAutoScan` answers false.
  ~ScanCoordinator() override;

  [[nodiscard]] const std::map<std::string, Total>& totals() const { return _totals; }
  void setTotal(const std::string& key, const Total& total);
  [[nodiscard]] bool busy() const { return _busy; }
  [[nodiscard]] const std::set<std::string>& completedAutoScans() const {
    return _completedAutoScans;
  }

  /// Waits for the turn of the tool. True: the caller holds the turn, and gives it up with
  /// `finishTurn`. False: automatic scans are off, the tool had its own already, or the caller was
  /// asked to stop while it waited. A caller that was asked to stop keeps its place in the queue
  /// until its turn comes, and must not call `finishTurn` for that one.
  QCoro::Task<bool> beginAutoScan(std::string key, std::stop_token stop = {});
  QCoro::Task<> waitForTurn(std::string key);
  /// Passes the turn to the most urgent tool that waits, the older of two equals first. Does
  /// nothing when nobody has the turn.
  void finishTurn();

 signals:
  void totalsChanged();

 private:
  struct Waiter {
    std::string key;
    std::coroutine_handle<> resume;
  };
  struct Turn;

  const UserDefaults& _defaults;
  std::map<std::string, Total> _totals;
  bool _busy = false;
  bool _ending = false;
  std::vector<Waiter> _waiting;
  std::set<std::string> _completedAutoScans;
};

/// Keeps the turn that the caller holds until `over` answers true, which is asked every 250
/// milliseconds, until 900 seconds have passed or until a stop is requested; then gives it up. Once
/// a stop has been requested, neither `over` nor the clock is touched any more.
///
/// What may last for minutes hands in `change`: a token that is stopped when `over` may answer
/// something else. It is asked for one each time, and nothing happens until that is stopped.
QCoro::Task<> holdTurn(ScanCoordinator& coordinator, Clock& clock, std::function<bool()> over,
                       std::stop_token stop, std::function<std::stop_token()> change = {});

/// The scan that a tool makes by itself, once, when its turn comes.
struct AutoScan {
  std::string key;
  std::function<bool()> isNeeded;  ///< asked before the wait for the turn, and again after it
  std::function<void()> start;
  std::function<bool()> isRunning;
};

/// From the wait for the turn to giving it up. None of the functions is called once a stop has been
/// requested.
QCoro::Task<> runAutoScan(ScanCoordinator& coordinator, Clock& clock, AutoScan scan,
                          std::stop_token stop);

/// The same, of a tool that reads protected places: without Full Disk Access, as it is now, it
/// waits for its user.
QCoro::Task<> runAutoScanWithAccess(PermissionsManager& permissions, ScanCoordinator& coordinator,
                                    Clock& clock, AutoScan scan, std::stop_token stop);

}  // namespace klarvik
