#include <utility>

#include "state/app_state.h"
#include "state/change_to.h"
#include "state/linked_stop.h"
#include "state/report_mailbox.h"
#include "state/section.h"

namespace klarvik {

void AppState::setPendingCleanConfirmation(bool pending) {
  if (changeTo(_pendingCleanConfirmation, pending)) emit pendingCleanConfirmationChanged();
}

void AppState::dismissLastClean() {
  setLastClean(std::nullopt);
}

void AppState::requestClean() {
  if (!_desktop.defaults.boolean("confirmDelete", true) || selectionIsAllSafe()) {
    performClean();
  } else {
    setPendingCleanConfirmation(true);
  }
}

void AppState::performClean() {
  setScanState(Cleaning{});
  CleanPlan plan = planClean();
  setCleanProgress(
      DeletionProgress{.total = static_cast<std::int64_t>(plan.items.size()), .currentName = ""});
  _cleanTask = std::stop_source();
  runClean(std::move(plan), _cleanTask.get_token());
}

AppState::CleanPlan AppState::planClean() const {
  CleanPlan plan;
  for (const CleanCategory& category : _scanResults) {
    for (const JunkItem& item : category.items) {
      if (!_selectedItems.contains(item.id)) continue;
      plan.items.push_back(item);
      plan.targets.try_emplace(item.path.native(), item.id, category.type);
    }
  }
  return plan;
}

QCoro::Task<> AppState::runClean(CleanPlan plan, std::stop_token cancelled) {
  const LinkedStop stop(std::move(cancelled), _lifetime.get_token());
  ScannerEngine engine(_desktop);
  ReportMailbox<DeletionProgress> reports(
      _desktop.clock, [this](DeletionProgress progress) { setCleanProgress(std::move(progress)); },
      [](const DeletionProgress&, const DeletionProgress&) { return true; });
  const bool useTrash = _desktop.defaults.boolean("useTrash", true);
  auto clean = [&engine, &reports, &plan, useTrash, token = stop.token()] {
    return engine.deleteItems(plan.items, useTrash, token,
                              [&](const DeletionProgress& progress) { reports.post(progress); });
  };
  const std::vector<DeletionOutcome> outcomes =
      co_await onEngineThread(_removalWork, std::move(clean));
  reports.empty();
  finishClean(plan, outcomes);
}

void AppState::finishClean(const CleanPlan& plan, const std::vector<DeletionOutcome>& outcomes) {
  CleanSummary summary;
  std::unordered_set<Uuid> removed;
  for (const DeletionOutcome& outcome : outcomes) {
    if (outcome.reclaimed < 1) continue;
    const auto target = plan.targets.find(outcome.originalURL.native());
    if (target == plan.targets.end()) continue;
    const auto& [id, type] = target->second;
    summary.freed = addBytes(summary.freed, outcome.reclaimed);
    removed.insert(id);
    if (outcome.trashedURL) {
      summary.restorable.emplace_back(outcome.originalURL, *outcome.trashedURL);
    }
    std::int64_t& cleaned = summary.cleanedCategories[type];
    cleaned = addBytes(cleaned, outcome.reclaimed);
  }
  summary.itemCount = static_cast<std::int64_t>(removed.size());

  setLastClean(summary);
  _history.recordClean(summary.freed, summary.cleanedCategories);
  removeItems(removed);
  _desktop.notifications.post(diskChangedNotification);
  if (changeTo(_lastCleanDate, _desktop.clock.now())) emit lastCleanDateChanged();
  setCleanProgress(std::nullopt);
  setScanState(CleanDone{summary.freed});
}

void AppState::cancelClean() {
  _cleanTask.request_stop();
}

void AppState::finishRemovals() {
  _lifetime.request_stop();
  _removalWork.finish();
}

void AppState::removeItems(const std::unordered_set<Uuid>& ids) {
  if (ids.empty()) return;
  std::vector<CleanCategory> remaining;
  for (const CleanCategory& category : _scanResults) {
    CleanCategory kept{.type = category.type, .items = {}};
    for (const JunkItem& item : category.items) {
      if (!ids.contains(item.id)) kept.items.push_back(item);
    }
    if (!kept.items.empty()) remaining.push_back(std::move(kept));
  }
  std::unordered_set<Uuid> stillSelected = _selectedItems;
  for (const Uuid& id : ids) stillSelected.erase(id);
  setResults(std::move(remaining));
  setSelectedItems(std::move(stillSelected));
  recomputeTotal();
  writeTotal();
}

QCoro::Task<std::int64_t> AppState::restoreLastClean() {
  if (!_lastClean) co_return std::int64_t{0};
  const auto restorable = _lastClean->restorable;
  std::int64_t restored = 0;
  if (!restorable.empty()) {
    ScannerEngine engine(_desktop);
    auto restore = [&engine, &restorable, stop = _lifetime.get_token()] {
      std::int64_t count = 0;
      for (const auto& [original, trashed] : restorable) {
        if (stop.stop_requested()) break;
        if (engine.restoreItem(trashed, original)) ++count;
      }
      return count;
    };
    restored = co_await onEngineThread(_removalWork, std::move(restore));
  }
  setLastClean(std::nullopt);
  _desktop.notifications.post(diskChangedNotification);
  if (restored > 0 && !_lifetime.stop_requested()) startScan();
  co_return restored;
}

void AppState::setLastClean(std::optional<CleanSummary> summary) {
  if (changeTo(_lastClean, std::move(summary))) emit lastCleanChanged();
}

void AppState::setCleanProgress(std::optional<DeletionProgress> progress) {
  if (changeTo(_cleanProgress, std::move(progress))) emit cleanProgressChanged();
}

}  // namespace klarvik
