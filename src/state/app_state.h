#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <variant>
#include <vector>

#include "core/junk_model.h"
#include "engine/scanner_engine.h"
#include "platform/platform.h"
#include "state/engine_work.h"
#include "state/scan_coordinator.h"
#include "state/scan_history.h"
#include "state/tool_activity.h"

namespace klarvik {

/// The result of a Smart Scan, and the clean that may follow. Main thread only; nothing is kept
/// across restarts. Every signal fires only when its value has really changed. Must not outlive
/// what its constructor is given.
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

  /// Runs a Smart Scan on the calling thread, as `ScannerEngine::scanAll` does.
  using Scan = std::function<std::vector<CleanCategory>(
      std::stop_token, const ScannerEngine::UpdateSink&, const ScannerEngine::CategorySink&)>;

  /// Without a `scan` of its own, each scan is that of a fresh `ScannerEngine`.
  AppState(const Desktop& desktop, ToolActivity& activity, ScanCoordinator& coordinator,
           ScanHistory& history, QObject* parent = nullptr, Scan scan = {});
  /// Asks whatever is running to stop, and waits for the row of the table that a scan is at and for
  /// the items that a removal has in hand; what a clean has removed is put on record first.
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
  /// Bytes and number of the selected items that are in `scanResults`. Both are kept up to date, so
  /// that asking costs nothing.
  [[nodiscard]] std::int64_t selectedSize() const { return _selected.size; }
  [[nodiscard]] std::int64_t selectedCount() const { return _selected.count; }
  /// Whether nothing is selected that asks for a review.
  [[nodiscard]] bool selectionIsAllSafe() const;

  /// Starts anew, also while a scan or a clean is running. A running scan is asked to stop, and
  /// what it still reports until it does is shown like any other report.
  void startScan();
  /// Keeps what has arrived.
  void cancelScan();
  /// Scans when there is nothing yet and it is this tool's turn, and holds the turn until nothing
  /// is left to wait for, or for 900 seconds.
  QCoro::Task<> autoScanIfNeeded(std::stop_token stop = {});
  /// Replaces the selection with every item of every safe category.
  void selectSafeItems();
  void toggleCategoryExpansion(CategoryType type);
  void toggleItem(const Uuid& id);
  void setSelection(const std::vector<JunkItem>& items, bool selected);

  /// Cleans at once, or raises `pendingCleanConfirmation` where the selection asks for a review.
  void requestClean();
  /// Removes what is selected at this moment.
  void performClean();
  /// Starts no further removal; what has gone by then is summarised and recorded like a whole
  /// clean.
  void cancelClean();
  /// For the end of the program: starts no further removal, waits for the items in hand, and puts
  /// what went on record. A scan is not waited for. Nothing may be started afterwards.
  void finishRemovals();
  /// Takes items out of the results; it removes nothing from the disk.
  void removeItems(const std::unordered_set<Uuid>& ids);
  /// Moves what the last clean put into the Trash back to where it was, and scans again if anything
  /// came back. Answers how many items did.
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
  /// A category with what the main thread would otherwise have to put together of its items: there
  /// may be very many, and no frame waits for them.
  struct FoundCategory {
    explicit FoundCategory(CleanCategory found);
    CleanCategory category;
    std::unordered_set<Uuid> safeIds;
  };
  using ScanReport = std::variant<ScanUpdate, FoundCategory>;
  struct Sum {
    std::int64_t size = 0;  ///< bytes
    std::int64_t count = 0;
  };

  QCoro::Task<> runScan(std::stop_token cancelled);
  void apply(ScanReport report);
  void applyUpdate(const ScanUpdate& update);
  void applyCategory(FoundCategory found);
  void finishScan(std::vector<CleanCategory> found);
  [[nodiscard]] bool hasNothingToShow() const;

  /// What a clean is to remove, and which item each path stands for.
  struct CleanPlan {
    struct Target {
      Uuid id;
      CategoryType type;
    };
    std::vector<JunkItem> items;
    std::unordered_map<std::string, Target> targets;  ///< by path
  };

  [[nodiscard]] CleanPlan planClean() const;
  QCoro::Task<> runClean(CleanPlan plan, std::stop_token cancelled);
  void finishClean(const CleanPlan& plan, const std::vector<DeletionOutcome>& outcomes);

  void setScanState(ScanState state);
  void setResults(std::vector<CleanCategory> results);
  void recomputeTotal();
  void setSelectedItems(std::unordered_set<Uuid> ids);
  void recountSelected();
  void addToSelected(const CleanCategory& category);
  /// Nothing when no item of the results has this identifier.
  [[nodiscard]] const JunkItem* itemInResults(const Uuid& id) const;
  void setLastClean(std::optional<CleanSummary> summary);
  void setCleanProgress(std::optional<DeletionProgress> progress);
  void writeTotal();

  const Desktop& _desktop;
  ToolActivity& _activity;
  ScanCoordinator& _coordinator;
  ScanHistory& _history;
  Scan _scan;
  std::vector<CleanCategory> _scanResults;
  ScanState _scanState;
  std::int64_t _totalSpaceFreeable = 0;
  std::unordered_set<Uuid> _selectedItems;
  Sum _selected;
  std::optional<Date> _lastCleanDate;
  /// Nothing but the safe items of what has arrived is selected, and all of those.
  bool _selectionIsAsFound = true;
  bool _pendingCleanConfirmation = false;
  std::set<CategoryType> _expandedCategories;
  std::optional<CleanSummary> _lastClean;
  ScanActivity _scanActivity;
  std::optional<DeletionProgress> _cleanProgress;
  std::stop_source _scanTask{std::nostopstate};
  std::stop_source _cleanTask{std::nostopstate};
  std::stop_source _lifetime;
  EngineWork _scanWork;
  EngineWork _removalWork;
};

}  // namespace klarvik
