#include "state/app_state.h"

#include <algorithm>
#include <utility>

#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/formatting.h"
#include "state/engine_run.h"
#include "state/section.h"
#include "state/set_if_changed.h"

namespace klarvik {
namespace {

AppState::Scan scanWithFreshEngine(const Platform& platform) {
  return [&platform](std::stop_token stop, const ScannerEngine::UpdateSink& onUpdate,
                     const ScannerEngine::CategorySink& onCategory) {
    std::vector<Uuid> order;
    for (const auto& category :
         ScannerEngine(platform).scanAll(std::move(stop), onUpdate, onCategory)) {
      order.push_back(category.id);
    }
    return order;
  };
}

}  // namespace

AppState::AppState(const Desktop& desktop, ToolActivity& activity, ScanCoordinator& coordinator,
                   ScanHistory& history, RemovalNotice& notice, QObject* parent, Scan scan)
    : QObject(parent),
      _desktop(desktop),
      _coordinator(coordinator),
      _history(history),
      _notice(notice),
      _scan(scan ? std::move(scan) : scanWithFreshEngine(desktop)),
      _session(Section::smartScan, activity, coordinator, desktop.clock) {
  const auto tell = [this] { std::exchange(_somethingElseToShow, {}).request_stop(); };
  connect(this, &AppState::scanStateChanged, this, tell);
  connect(this, &AppState::scanResultsChanged, this, tell);
}

AppState::~AppState() {
  blockSignals(true);
  finishRemovals();
}

const DiskLayout& AppState::layout() const {
  return layoutFor(_desktop.files.home());
}

void AppState::startScan() {
  _session.start(scanJob());
  setScanState(Scanning{0, QT_TRANSLATE_NOOP("Engine", "Starting scan")});
  setResults({}, {});
  if (setIfChanged(_expandedCategories, {})) emit expandedCategoriesChanged();
  if (setIfChanged(_scanActivity, {})) emit scanActivityChanged();
  setLastClean(std::nullopt);
}

AppState::ScanJob AppState::scanJob() {
  auto work = [run = _scan](std::stop_token stop, const auto& post) {
    return run(std::move(stop), post, [&](const CleanCategory& category) {
      post(FoundCategory{category, std::make_shared<const SortedItems>(category.items)});
    });
  };
  return {.work = std::move(work),
          .report = [this](ScanReport report) { apply(std::move(report)); },
          .finish = [this](const std::vector<Uuid>& order) { finishScan(order); },
          .replaces =
              [](const ScanReport& newer, const ScanReport& older) {
                return std::holds_alternative<ScanUpdate>(newer) &&
                       std::holds_alternative<ScanUpdate>(older);
              }};
}

void AppState::apply(ScanReport report) {
  if (const auto* update = std::get_if<ScanUpdate>(&report)) {
    applyUpdate(*update);
  } else {
    applyCategory(std::get<FoundCategory>(std::move(report)));
  }
}

void AppState::applyUpdate(const ScanUpdate& update) {
  setScanState(Scanning{update.fraction, update.categoryName});
  _session.showProgress(update.fraction);
  if (setIfChanged(_scanActivity,
                   {update.categoryName, update.currentPath, update.partialItems,
                    update.partialBytes, update.completedCategories, update.totalCategories})) {
    emit scanActivityChanged();
  }
}

void AppState::applyCategory(FoundCategory found) {
  const bool isSafe = safety(found.category.type) == SafetyLevel::safe;
  _selectedItems.add(found.category, std::move(found.items));
  const bool selects = isSafe && _selectedItems.selectUnused(found.category.id);
  ownResults().push_back(std::move(found.category));
  emit scanResultsChanged();
  recomputeTotal();
  if (selects) emit selectedItemsChanged();
}

void AppState::finishScan(const std::vector<Uuid>& order) {
  sortResults(order);
  selectSafeItems();
  setScanState(Done{});
  _session.showSummary(_desktop.formatting.byteText(_totalSpaceFreeable));
  writeTotal();
  _history.recordScan(*_scanResults);
}

/// What a clean has changed meanwhile has another identity, and comes last.
void AppState::sortResults(const std::vector<Uuid>& order) {
  const auto place = [&order](const CleanCategory& category) {
    return std::ranges::find(order, category.id);
  };
  if (std::ranges::is_sorted(*_scanResults, {}, place)) return;
  std::ranges::stable_sort(ownResults(), {}, place);
  emit scanResultsChanged();
}

/// A clean that was started meanwhile reads the former results on a thread of its own.
std::vector<CleanCategory>& AppState::ownResults() {
  if (_scanResults.use_count() > 1) {
    _scanResults = std::make_shared<std::vector<CleanCategory>>(*_scanResults);
  }
  return *_scanResults;
}

void AppState::cancelScan() {
  _session.cancel();
  recomputeTotal();
  if (_scanResults->empty()) {
    setScanState(Idle{});
  } else {
    setScanState(Done{});
  }
}

QCoro::Task<> AppState::autoScanIfNeeded(std::stop_token stop) {
  if (!hasNothingToShow()) co_return;
  const CombinedStopToken either(std::move(stop), _lifetime.get_token());
  if (!co_await _coordinator.beginAutoScan(_session.key(), either.token())) co_return;
  if (!hasNothingToShow()) {
    _coordinator.finishTurn();
    co_return;
  }
  startScan();
  // A scan that ends with results does not give the turn up before its 900 seconds are over: the
  // other tools do not start by themselves while the user looks at what was found.
  const auto over = [this] { return hasNothingToShow(); };
  co_await holdTurn(_coordinator, _desktop.clock, over, either.token(),
                    [this] { return _somethingElseToShow.get_token(); });
}

bool AppState::hasNothingToShow() const {
  return !std::holds_alternative<Scanning>(_scanState) && _scanResults->empty();
}

void AppState::selectSafeItems() {
  if (setIfChanged(_selectedItems, _selectedItems.safeItems())) emit selectedItemsChanged();
}

void AppState::toggleCategoryExpansion(CategoryType type) {
  if (_expandedCategories.erase(type) == 0) _expandedCategories.insert(type);
  emit expandedCategoriesChanged();
}

void AppState::toggleItem(const Uuid& id) {
  _selectedItems.toggle(id);
  emit selectedItemsChanged();
}

void AppState::setSelection(const std::vector<JunkItem>& items, bool selected) {
  const auto whole = std::ranges::find(
      *_scanResults, &items, [](const CleanCategory& category) { return &category.items; });
  bool changed = false;
  if (whole != _scanResults->end()) {
    changed = _selectedItems.setAll(whole->id, selected);
  } else {
    for (const JunkItem& item : items) changed |= _selectedItems.set(item.id, selected);
  }
  if (changed) emit selectedItemsChanged();
}

void AppState::setScanState(ScanState state) {
  if (setIfChanged(_scanState, std::move(state))) emit scanStateChanged();
}

void AppState::setResults(std::vector<CleanCategory> results, ItemSelection selection) {
  const bool resultsChange = !_scanResults->empty() || !results.empty();
  const bool selectionChanges = _selectedItems != selection;
  auto former =
      std::exchange(_scanResults, std::make_shared<std::vector<CleanCategory>>(std::move(results)));
  if (!former->empty()) _session.deleteInBackground(std::move(former));
  _selectedItems = std::move(selection);
  if (resultsChange) emit scanResultsChanged();
  recomputeTotal();
  if (selectionChanges) emit selectedItemsChanged();
}

void AppState::recomputeTotal() {
  if (setIfChanged(_totalSpaceFreeable, _selectedItems.total().size))
    emit totalSpaceFreeableChanged();
}

void AppState::writeTotal() {
  _session.setTotal(_totalSpaceFreeable, _selectedItems.total().count);
}

}  // namespace klarvik
