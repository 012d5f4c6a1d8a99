#include "state/app_state.h"

#include <algorithm>
#include <utility>

#include "state/change_to.h"
#include "state/linked_stop.h"
#include "state/report_mailbox.h"
#include "state/section.h"

namespace klarvik {

namespace {

const std::string& smartScanKey() {
  static const std::string key(rawValue(Section::smartScan));
  return key;
}

std::int64_t itemCount(const std::vector<CleanCategory>& categories) {
  std::size_t count = 0;
  for (const CleanCategory& category : categories) count += category.items.size();
  return static_cast<std::int64_t>(count);
}

bool isSafe(const CleanCategory& category) {
  return safety(category.type) == SafetyLevel::safe;
}

/// A category never changes once it is made, so its identity stands for its content.
bool sameCategories(const std::vector<CleanCategory>& left,
                    const std::vector<CleanCategory>& right) {
  return std::ranges::equal(left, right, {}, &CleanCategory::id, &CleanCategory::id);
}

bool sameCategoriesInAnyOrder(const std::vector<CleanCategory>& left,
                              const std::vector<CleanCategory>& right) {
  return std::ranges::is_permutation(left, right, {}, &CleanCategory::id, &CleanCategory::id);
}

AppState::Scan scanWithFreshEngine(const Platform& platform) {
  return [&platform](std::stop_token stop, const ScannerEngine::UpdateSink& onUpdate,
                     const ScannerEngine::CategorySink& onCategory) {
    return ScannerEngine(platform).scanAll(std::move(stop), onUpdate, onCategory);
  };
}

}  // namespace

AppState::AppState(const Desktop& desktop, ToolActivity& activity, ScanCoordinator& coordinator,
                   ScanHistory& history, QObject* parent, Scan scan)
    : QObject(parent),
      _desktop(desktop),
      _activity(activity),
      _coordinator(coordinator),
      _history(history),
      _scan(scan ? std::move(scan) : scanWithFreshEngine(desktop)) {}

AppState::~AppState() {
  blockSignals(true);
  finishRemovals();
  _scanWork.finish();
}

bool AppState::selectionIsAllSafe() const {
  return std::ranges::all_of(_scanResults, [&](const CleanCategory& category) {
    return isSafe(category) || std::ranges::none_of(category.items, [&](const JunkItem& item) {
             return _selectedItems.contains(item.id);
           });
  });
}

void AppState::startScan() {
  _scanTask.request_stop();
  setScanState(Scanning{0, "Starting scan"});
  setResults({});
  setSelectedItems({});
  _selectionIsAsFound = true;
  if (changeTo(_expandedCategories, {})) emit expandedCategoriesChanged();
  recomputeTotal();
  if (changeTo(_scanActivity, {})) emit scanActivityChanged();
  setLastClean(std::nullopt);
  _activity.start(smartScanKey());
  _scanTask = std::stop_source();
  runScan(_scanTask.get_token());
}

QCoro::Task<> AppState::runScan(std::stop_token cancelled) {
  const LinkedStop stop(std::move(cancelled), _lifetime.get_token());
  ReportMailbox<ScanReport> reports(
      _desktop.clock, [this](ScanReport report) { apply(std::move(report)); },
      [](const ScanReport& newer, const ScanReport& older) {
        return std::holds_alternative<ScanUpdate>(newer) &&
               std::holds_alternative<ScanUpdate>(older);
      });
  auto scan = [&run = _scan, &reports, token = stop.token()] {
    return run(
        token, [&](const ScanUpdate& update) { reports.post(update); },
        [&](const CleanCategory& category) { reports.post(FoundCategory(category)); });
  };
  std::vector<CleanCategory> found = co_await onEngineThread(_scanWork, std::move(scan));
  reports.empty();
  if (!stop.token().stop_requested()) finishScan(std::move(found));
}

void AppState::apply(ScanReport report) {
  // A scan that was stopped still ends the row in hand; what it says of that must not bring back a
  // state that the user has left.
  if (_lifetime.stop_requested() || !std::holds_alternative<Scanning>(_scanState)) return;
  if (const auto* update = std::get_if<ScanUpdate>(&report)) {
    applyUpdate(*update);
  } else {
    applyCategory(std::get<FoundCategory>(std::move(report)));
  }
}

void AppState::applyUpdate(const ScanUpdate& update) {
  setScanState(Scanning{update.fraction, update.categoryName});
  _activity.setProgress(smartScanKey(), update.fraction);
  if (changeTo(_scanActivity,
               {update.categoryName, update.currentPath, update.partialItems, update.partialBytes,
                update.completedCategories, update.totalCategories})) {
    emit scanActivityChanged();
  }
}

AppState::FoundCategory::FoundCategory(CleanCategory found) : category(std::move(found)) {
  if (!isSafe(category)) return;
  safeIds.reserve(category.items.size());
  for (const JunkItem& item : category.items) safeIds.insert(item.id);
}

void AppState::applyCategory(FoundCategory found) {
  const std::size_t selectedBefore = _selectedItems.size();
  if (found.safeIds.size() > _selectedItems.size()) _selectedItems.swap(found.safeIds);
  _selectedItems.merge(found.safeIds);
  addToSelected(found.category);
  _scanResults.push_back(std::move(found.category));
  emit scanResultsChanged();
  recomputeTotal();
  if (_selectedItems.size() != selectedBefore) emit selectedItemsChanged();
}

void AppState::finishScan(std::vector<CleanCategory> found) {
  const bool sameAsArrived = sameCategoriesInAnyOrder(_scanResults, found);
  setResults(std::move(found));
  recomputeTotal();
  if (!sameAsArrived || !_selectionIsAsFound) selectSafeItems();
  setScanState(Done{});
  _activity.finish(smartScanKey(), _desktop.formatting.byteText(_totalSpaceFreeable));
  writeTotal();
  _history.recordScan(_scanResults);
}

void AppState::cancelScan() {
  _scanTask.request_stop();
  _activity.clear(smartScanKey());
  recomputeTotal();
  if (_scanResults.empty()) {
    setScanState(Idle{});
  } else {
    setScanState(Done{});
  }
}

QCoro::Task<> AppState::autoScanIfNeeded(std::stop_token stop) {
  if (!hasNothingToShow()) co_return;
  const LinkedStop either(std::move(stop), _lifetime.get_token());
  if (!co_await _coordinator.beginAutoScan(smartScanKey(), either.token())) co_return;
  if (!hasNothingToShow()) {
    _coordinator.finishTurn();
    co_return;
  }
  startScan();
  // A scan that ends with results does not give the turn up before its 900 seconds are over: the
  // other tools do not start by themselves while the user looks at what was found.
  const auto over = [this] { return hasNothingToShow(); };
  co_await holdTurn(_coordinator, _desktop.clock, over, either.token());
}

bool AppState::hasNothingToShow() const {
  return !std::holds_alternative<Scanning>(_scanState) && _scanResults.empty();
}

void AppState::selectSafeItems() {
  std::unordered_set<Uuid> ids;
  ids.reserve(static_cast<std::size_t>(itemCount(_scanResults)));
  for (const CleanCategory& category : _scanResults) {
    if (!isSafe(category)) continue;
    for (const JunkItem& item : category.items) ids.insert(item.id);
  }
  setSelectedItems(std::move(ids));
}

void AppState::toggleCategoryExpansion(CategoryType type) {
  if (_expandedCategories.erase(type) == 0) _expandedCategories.insert(type);
  emit expandedCategoriesChanged();
}

void AppState::toggleItem(const Uuid& id) {
  _selectionIsAsFound = false;
  const bool select = _selectedItems.erase(id) == 0;
  if (select) _selectedItems.insert(id);
  if (const JunkItem* item = itemInResults(id)) {
    _selected.size = addBytes(_selected.size, select ? item->size : -item->size);
    _selected.count += select ? 1 : -1;
  }
  emit selectedItemsChanged();
}

void AppState::setSelection(const std::vector<JunkItem>& items, bool selected) {
  _selectionIsAsFound = false;
  const std::size_t before = _selectedItems.size();
  for (const JunkItem& item : items) {
    if (selected) {
      _selectedItems.insert(item.id);
    } else {
      _selectedItems.erase(item.id);
    }
  }
  if (_selectedItems.size() == before) return;
  recountSelected();
  emit selectedItemsChanged();
}

void AppState::setScanState(ScanState state) {
  if (changeTo(_scanState, std::move(state))) emit scanStateChanged();
}

void AppState::setResults(std::vector<CleanCategory> results) {
  const bool changed = !sameCategories(_scanResults, results);
  // Sorting what has arrived changes no count, however many items there are.
  const bool recount = !sameCategoriesInAnyOrder(_scanResults, results);
  _scanWork.discard(std::exchange(_scanResults, std::move(results)));
  if (recount) recountSelected();
  if (changed) emit scanResultsChanged();
}

void AppState::recomputeTotal() {
  std::int64_t total = 0;
  for (const CleanCategory& category : _scanResults) total = addBytes(total, category.totalSize());
  if (changeTo(_totalSpaceFreeable, total)) emit totalSpaceFreeableChanged();
}

void AppState::setSelectedItems(std::unordered_set<Uuid> ids) {
  if (_selectedItems == ids) return;
  _scanWork.discard(std::exchange(_selectedItems, std::move(ids)));
  recountSelected();
  emit selectedItemsChanged();
}

const JunkItem* AppState::itemInResults(const Uuid& id) const {
  for (const CleanCategory& category : _scanResults) {
    const auto found = std::ranges::find(category.items, id, &JunkItem::id);
    if (found != category.items.end()) return &*found;
  }
  return nullptr;
}

void AppState::recountSelected() {
  _selected = {};
  if (_selectedItems.empty()) return;
  for (const CleanCategory& category : _scanResults) addToSelected(category);
}

void AppState::addToSelected(const CleanCategory& category) {
  for (const JunkItem& item : category.items) {
    if (!_selectedItems.contains(item.id)) continue;
    _selected.size = addBytes(_selected.size, item.size);
    ++_selected.count;
  }
}

void AppState::writeTotal() {
  _coordinator.setTotal(smartScanKey(),
                        {_totalSpaceFreeable, itemCount(_scanResults), _desktop.clock.now()});
}

}  // namespace klarvik
