#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
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
#include "platform/main_loop/background_tasks.h"
#include "platform/platform.h"
#include "state/item_selection.h"
#include "state/removal_notice.h"
#include "state/scan_coordinator.h"
#include "state/scan_history.h"
#include "state/scan_session.h"
#include "state/tool_activity.h"

namespace klarvik {

struct DiskLayout;

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
    std::vector<TrashedItem> restorable;
    std::map<CategoryType, std::int64_t> cleanedCategories;
    bool operator==(const CleanSummary&) const = default;
  };

  /// Runs a Smart Scan on the calling thread, as `ScannerEngine::scanAll` does. It tells each
  /// category once, and answers the order in which they are to stand.
  using Scan = std::function<std::vector<Uuid>(std::stop_token, const ScannerEngine::UpdateSink&,
                                               const ScannerEngine::CategorySink&)>;

  /// Without a `scan` of its own, each scan is that of a fresh `ScannerEngine`.
  AppState(const Desktop& desktop, ToolActivity& activity, ScanCoordinator& coordinator,
           ScanHistory& history, RemovalNotice& notice, QObject* parent = nullptr, Scan scan = {});
  /// Asks whatever is running to stop, and waits for the row of the table that a scan is at and for
  /// the items that a removal has in hand; what a clean has removed is put on record first.
  ~AppState() override;

  /// Of the disk that is scanned.
  [[nodiscard]] const DiskLayout& layout() const;
  [[nodiscard]] const std::vector<CleanCategory>& scanResults() const { return *_scanResults; }
  [[nodiscard]] const ScanState& scanState() const { return _scanState; }
  [[nodiscard]] std::int64_t totalSpaceFreeable() const { return _totalSpaceFreeable; }
  [[nodiscard]] const ItemSelection& selectedItems() const { return _selectedItems; }
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
  /// Bytes and number of the selected items that are in `scanResults`.
  [[nodiscard]] std::int64_t selectedSize() const { return _selectedItems.selected().size; }
  [[nodiscard]] std::int64_t selectedCount() const { return _selectedItems.selected().count; }
  /// Whether nothing is selected that asks for a review.
  [[nodiscard]] bool selectionIsAllSafe() const { return _selectedItems.isAllSafe(); }

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
  /// The items of a whole category of `scanResults` are selected at once, however many.
  void setSelection(const std::vector<JunkItem>& items, bool selected);

  /// Cleans at once, or raises `pendingCleanConfirmation` where the selection asks for a review.
  void requestClean();
  /// Removes what is selected at this moment.
  void performClean();
  /// Starts no further removal; what has gone by then is summarised and recorded like a whole
  /// clean.
  void cancelClean();
  /// For the end of the program: starts no further removal, and drops a running scan. Nothing may
  /// be started afterwards.
  void stopRemovals();
  /// The same, and waits for the items in hand, and puts what went on record. A scan is not waited
  /// for.
  void finishRemovals();
  /// Takes items out of the results; it removes nothing from the disk.
  void removeItems(const std::unordered_set<Uuid>& ids);
  /// Measures what the hints tell of anew, for a user who may have run something: those that
  /// nothing is left of go. Not while a scan or a clean runs.
  QCoro::Task<> measureHintsAgain();
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
  /// As they were when they were last replaced, for whoever works on them off the main thread; only
  /// a running scan adds to them and sorts them in place.
  using Results = std::shared_ptr<std::vector<CleanCategory>>;

  struct FoundCategory {
    CleanCategory category;
    ItemSelection::Items items;
  };
  using ScanReport = std::variant<ScanUpdate, FoundCategory>;

  using ScanJob = EngineRun::Job<ScanReport, std::vector<Uuid>>;

  [[nodiscard]] ScanJob scanJob();
  void apply(ScanReport report);
  void applyUpdate(const ScanUpdate& update);
  void applyCategory(FoundCategory found);
  void finishScan(const std::vector<Uuid>& order);
  void sortResults(const std::vector<Uuid>& order);
  [[nodiscard]] std::vector<CleanCategory>& ownResults();
  [[nodiscard]] bool hasNothingToShow() const;

  struct CleanPlan;
  /// What a clean did.
  struct Cleaned {
    CleanSummary summary;
    std::unordered_set<Uuid> removed;
    Results results;  ///< that it was of
    std::vector<ItemSelection::RemainingCategory> left;
  };

  QCoro::Task<> runClean(Results results, ItemSelection selection, std::stop_token cancelled);
  [[nodiscard]] static CleanPlan planClean(const std::vector<CleanCategory>& results,
                                           const ItemSelection& selection);
  [[nodiscard]] static Cleaned sumUp(const CleanPlan& plan,
                                     const std::vector<DeletionOutcome>& outcomes, Results results);
  void finishClean(Cleaned cleaned);
  void keepOnly(std::vector<ItemSelection::RemainingCategory> left,
                const std::unordered_set<Uuid>& removed);

  void setScanState(ScanState state);
  void setResults(std::vector<CleanCategory> results, ItemSelection selection);
  void recomputeTotal();
  void setLastClean(std::optional<CleanSummary> summary);
  void setCleanProgress(std::optional<DeletionProgress> progress);
  void writeTotal();

  const Desktop& _desktop;
  ScanCoordinator& _coordinator;
  ScanHistory& _history;
  RemovalNotice& _notice;
  Scan _scan;
  Results _scanResults = std::make_shared<std::vector<CleanCategory>>();
  ScanState _scanState;
  std::int64_t _totalSpaceFreeable = 0;
  ItemSelection _selectedItems;
  std::optional<Date> _lastCleanDate;
  bool _pendingCleanConfirmation = false;
  std::set<CategoryType> _expandedCategories;
  std::optional<CleanSummary> _lastClean;
  ScanActivity _scanActivity;
  std::optional<DeletionProgress> _cleanProgress;
  std::stop_source _cleanTask{std::nostopstate};
  std::stop_source _lifetime;
  std::stop_source _somethingElseToShow;  ///< another one after each change
  ScanSession _session;
  BackgroundTasks _removalWork;
};

}  // namespace klarvik
