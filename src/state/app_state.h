#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <unordered_set>
#include <utility>
#include <variant>
#include <vector>

#include "core/junk_model.h"
#include "engine/scanner_engine.h"
#include "platform/platform.h"
#include "state/scan_coordinator.h"
#include "state/scan_history.h"
#include "state/tool_activity.h"

namespace klarvik {

/// The result of a Smart Scan, and the clean that may follow. Main thread only; nothing is kept
/// across restarts. Every signal fires only when its value has really changed.
class AppState : public QObject {
  Q_OBJECT
 public:
  struct Idle {
    bool operator==(const Idle&) const = default;
  };
  struct Scanning {
    double progress = 0;
    std::string currentTask;
    bool operator==(const Scanning&) const = default;
  };
  struct Done {
    bool operator==(const Done&) const = default;
  };
  struct Cleaning {
    bool operator==(const Cleaning&) const = default;
  };
  struct CleanDone {
    std::int64_t freed = 0;
    bool operator==(const CleanDone&) const = default;
  };
  using ScanState = std::variant<Idle, Scanning, Done, Cleaning, CleanDone>;

  /// Live detail of the running scan.
  struct ScanActivity {
    std::string categoryName;
    std::optional<std::string> currentPath;
    std::int64_t partialItems = 0;
    std::int64_t partialBytes = 0;
    std::int64_t completedCategories = 0;
    std::int64_t totalCategories = 0;
    bool operator==(const ScanActivity&) const = default;
  };

  struct CleanSummary {
    std::int64_t freed = 0;
    std::int64_t itemCount = 0;
    std::vector<std::pair<Path, Path>> restorable;  ///< original, trashed
    std::map<CategoryType, std::int64_t> cleanedCategories;
    bool operator==(const CleanSummary&) const = default;
  };

  AppState(const Desktop& desktop, ToolActivity& activity, ScanCoordinator& coordinator,
           ScanHistory& history, QObject* parent = nullptr);
  ~AppState() override;

  [[nodiscard]] const std::vector<CleanCategory>& scanResults() const { return _scanResults; }
  [[nodiscard]] const ScanState& scanState() const { return _scanState; }
  [[nodiscard]] std::int64_t totalSpaceFreeable() const { return _totalSpaceFreeable; }
  [[nodiscard]] const std::unordered_set<Uuid>& selectedItems() const { return _selectedItems; }
  [[nodiscard]] std::optional<Date> lastCleanDate() const { return _lastCleanDate; }
  [[nodiscard]] bool pendingCleanConfirmation() const { return _pendingCleanConfirmation; }
  void setPendingCleanConfirmation(bool pending);
  [[nodiscard]] const std::set<CategoryType>& expandedCategories() const {
    return _expandedCategories;
  }
  [[nodiscard]] const std::optional<CleanSummary>& lastClean() const { return _lastClean; }
  void dismissLastClean();
  [[nodiscard]] const ScanActivity& scanActivity() const { return _scanActivity; }
  [[nodiscard]] const std::optional<DeletionProgress>& cleanProgress() const {
    return _cleanProgress;
  }
  [[nodiscard]] std::int64_t selectedSize() const;
  [[nodiscard]] std::int64_t selectedCount() const;
  [[nodiscard]] bool selectionIsAllSafe() const;

  void startScan();
  void cancelScan();
  QCoro::Task<> autoScanIfNeeded(std::stop_token stop = {});
  void selectSafeItems();
  void toggleCategoryExpansion(CategoryType type);
  void toggleItem(const Uuid& id);
  void setSelection(const std::vector<JunkItem>& items, bool selected);

  void requestClean();
  void performClean();
  void cancelClean();
  void removeItems(const std::unordered_set<Uuid>& ids);
  /// How many items came back.
  QCoro::Task<std::int64_t> restoreLastClean();

 signals:
  void scanResultsChanged();
  void scanStateChanged();
  void totalSpaceFreeableChanged();
  void selectedItemsChanged();
  void lastCleanDateChanged();
  void pendingCleanConfirmationChanged();
  void expandedCategoriesChanged();
  void lastCleanChanged();
  void scanActivityChanged();
  void cleanProgressChanged();

 private:
  const Desktop& _desktop;
  ToolActivity& _activity;
  ScanCoordinator& _coordinator;
  ScanHistory& _history;
  std::vector<CleanCategory> _scanResults;
  ScanState _scanState;
  std::int64_t _totalSpaceFreeable = 0;
  std::unordered_set<Uuid> _selectedItems;
  std::optional<Date> _lastCleanDate;
  bool _pendingCleanConfirmation = false;
  std::set<CategoryType> _expandedCategories;
  std::optional<CleanSummary> _lastClean;
  ScanActivity _scanActivity;
  std::optional<DeletionProgress> _cleanProgress;
};

}  // namespace klarvik
