#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "base/bytes.h"
#include "engine/place_conditions.h"
#include "platform/main_loop/coalescing_queue.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "state/app_state.h"
#include "state/engine_run.h"
#include "state/section.h"
#include "state/set_if_changed.h"

namespace klarvik {
namespace {

/// Every category that keeps an item, under a new identity.
std::vector<ItemSelection::RemainingCategory> leftWithout(
    const std::unordered_set<Uuid>& removed, const std::vector<CleanCategory>& results) {
  std::vector<ItemSelection::RemainingCategory> left;
  for (const CleanCategory& category : results) {
    CleanCategory kept{.type = category.type, .items = {}, .hints = category.hints};
    std::ranges::copy_if(category.items, std::back_inserter(kept.items),
                         [&](const JunkItem& item) { return !removed.contains(item.id); });
    if (!kept.hasItems() && kept.hints.empty()) continue;
    auto items = std::make_shared<const SortedItems>(kept.items);
    left.push_back({category.id, std::move(kept), std::move(items)});
  }
  return left;
}

}  // namespace

/// What a clean is to remove.
struct AppState::CleanPlan {
  std::vector<JunkItem> items;
  std::vector<CategoryType> types;  ///< of the items' categories
};

void AppState::setPendingCleanConfirmation(bool pending) {
  if (setIfChanged(_pendingCleanConfirmation, pending)) emit pendingCleanConfirmationChanged();
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
  setCleanProgress(DeletionProgress{.total = selectedCount(), .currentName = ""});
  _cleanTask = std::stop_source();
  runClean(_scanResults, _selectedItems, _cleanTask.get_token());
}

QCoro::Task<> AppState::runClean(Results results, ItemSelection selection,
                                 std::stop_token cancelled) {
  const CombinedStopToken stop(std::move(cancelled), _lifetime.get_token());
  LeftAlone leftAlone;
  ScannerEngine engine(_desktop, &leftAlone);
  CoalescingQueue<DeletionProgress> reports(
      _desktop.clock, [this](DeletionProgress progress) { setCleanProgress(std::move(progress)); });
  const bool useTrash = _desktop.defaults.boolean("useTrash", true);
  auto clean = [&engine, &reports, &selection, useTrash, results = std::move(results),
                token = stop.token()] {
    const CleanPlan plan = planClean(*results, selection);
    const auto outcomes =
        engine.deleteItems(plan.items, useTrash, token,
                           [&](const DeletionProgress& progress) { reports.post(progress); });
    return sumUp(plan, outcomes, results);
  };
  Cleaned cleaned = co_await runInBackground(_removalWork, std::move(clean));
  reports.empty();
  _notice.tell(leftAlone);
  finishClean(std::move(cleaned));
  _removalWork.deleteInBackground(std::move(selection));
}

AppState::CleanPlan AppState::planClean(const std::vector<CleanCategory>& results,
                                        const ItemSelection& selection) {
  CleanPlan plan;
  for (const CleanCategory& category : results) {
    for (const JunkItem& item : category.items) {
      if (!selection.contains(item.id)) continue;
      plan.items.push_back(item);
      plan.types.push_back(category.type);
    }
  }
  return plan;
}

AppState::Cleaned AppState::sumUp(const CleanPlan& plan,
                                  const std::vector<DeletionOutcome>& outcomes, Results results) {
  Cleaned cleaned;
  CleanSummary& summary = cleaned.summary;
  for (const DeletionOutcome& outcome : outcomes) {
    if (outcome.reclaimed < 1) continue;
    const JunkItem& item = plan.items[outcome.item];
    summary.freed = addBytes(summary.freed, outcome.reclaimed);
    cleaned.removed.insert(item.id);
    if (outcome.trashedURL) {
      summary.restorable.push_back(
          {item.path, *outcome.trashedURL, item.identity, outcome.reclaimed});
    }
    std::int64_t& ofCategory = summary.cleanedCategories[plan.types[outcome.item]];
    ofCategory = addBytes(ofCategory, outcome.reclaimed);
  }
  summary.itemCount = static_cast<std::int64_t>(cleaned.removed.size());
  cleaned.left = leftWithout(cleaned.removed, *results);
  cleaned.results = std::move(results);
  return cleaned;
}

void AppState::finishClean(Cleaned cleaned) {
  const std::int64_t freed = cleaned.summary.freed;
  const auto cleanedCategories = cleaned.summary.cleanedCategories;
  setLastClean(std::move(cleaned.summary));
  _history.recordClean(freed, cleanedCategories);
  if (cleaned.results != _scanResults) {
    removeItems(cleaned.removed);
  } else if (!cleaned.removed.empty()) {
    keepOnly(std::exchange(cleaned.left, {}), cleaned.removed);
  }
  _removalWork.deleteInBackground(std::move(cleaned));
  _desktop.notifications.post(diskChangedNotification);
  if (setIfChanged(_lastCleanDate, _desktop.clock.now())) emit lastCleanDateChanged();
  setCleanProgress(std::nullopt);
  setScanState(CleanDone{freed});
}

void AppState::cancelClean() {
  _cleanTask.request_stop();
}

void AppState::stopRemovals() {
  _lifetime.request_stop();
  _session.drop();
}

void AppState::finishRemovals() {
  stopRemovals();
  _removalWork.finish();
}

void AppState::removeItems(const std::unordered_set<Uuid>& ids) {
  if (!ids.empty()) keepOnly(leftWithout(ids, *_scanResults), ids);
}

void AppState::keepOnly(std::vector<ItemSelection::RemainingCategory> left,
                        const std::unordered_set<Uuid>& removed) {
  ItemSelection selection = _selectedItems.without(removed, left);
  std::vector<CleanCategory> remaining;
  for (ItemSelection::RemainingCategory& remainder : left) {
    remaining.push_back(std::move(remainder.category));
  }
  setResults(std::move(remaining), std::move(selection));
  writeTotal();
}

QCoro::Task<> AppState::measureHintsAgain() {
  const auto isAtRest = [this] {
    return std::holds_alternative<Done>(_scanState) ||
           std::holds_alternative<CleanDone>(_scanState);
  };
  if (!isAtRest() || _lifetime.stop_requested()) co_return;
  std::map<Path, std::int64_t> sizes;
  for (const CleanCategory& category : *_scanResults) {
    for (const Hint& hint : category.hints) sizes[hint.path] = hint.size;
  }
  if (sizes.empty()) co_return;
  auto measure = [&files = _desktop.files, stop = _lifetime.get_token(),
                  sizes = std::move(sizes)]() mutable {
    for (auto& [path, size] : sizes) size = measureWhole(files, path, stop).bytes;
    return std::move(sizes);
  };
  const auto measured = co_await runInBackground(_removalWork, std::move(measure));
  if (!isAtRest() || _lifetime.stop_requested()) co_return;
  bool changed = false;
  for (CleanCategory& category : ownResults()) {
    for (Hint& hint : category.hints) {
      const auto found = measured.find(hint.path);
      if (found != measured.end() && setIfChanged(hint.size, found->second)) changed = true;
    }
    changed |= std::erase_if(category.hints, [](const Hint& hint) { return hint.size < 1; }) > 0;
  }
  changed |= std::erase_if(ownResults(), [](const CleanCategory& category) {
               return !category.hasItems() && category.hints.empty();
             }) > 0;
  if (changed) emit scanResultsChanged();
}

QCoro::Task<std::int64_t> AppState::restoreLastClean() {
  if (!_lastClean) co_return std::int64_t{0};
  const auto restorable = _lastClean->restorable;
  std::int64_t restored = 0;
  if (!restorable.empty()) {
    LeftAlone leftAlone;
    ScannerEngine engine(_desktop, &leftAlone);
    auto restore = [&engine, &restorable, stop = _lifetime.get_token()] {
      return engine.restoreItems(restorable, stop);
    };
    restored = co_await runInBackground(_removalWork, std::move(restore));
    _notice.tell(leftAlone);
  }
  setLastClean(std::nullopt);
  _desktop.notifications.post(diskChangedNotification);
  if (restored > 0 && !_lifetime.stop_requested()) startScan();
  co_return restored;
}

void AppState::setLastClean(std::optional<CleanSummary> summary) {
  if (_lastClean == summary) return;
  auto former = std::exchange(_lastClean, std::move(summary));
  if (former) _removalWork.deleteInBackground(std::move(former));
  emit lastCleanChanged();
}

void AppState::setCleanProgress(std::optional<DeletionProgress> progress) {
  if (setIfChanged(_cleanProgress, std::move(progress))) emit cleanProgressChanged();
}

}  // namespace klarvik
