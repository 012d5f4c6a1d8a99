#include "panes/system_data/system_data_model.h"

#include <QStringList>
#include <algorithm>
#include <iterator>
#include <utility>

#include "base/bytes.h"
#include "panes/kit/palette.h"
#include "panes/kit/row_text.h"
#include "panes/system_data/system_data_texts.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "state/section.h"
#include "state/set_if_changed.h"

namespace klarvik {
namespace {

SystemDataModel::Analyse analyseWithFreshEngine(const Platform& platform) {
  return [&platform](const SystemDataEngine::ProgressSink& progress, const std::stop_token& stop) {
    SystemDataEngine engine(platform);
    SystemDataResult result = engine.analyse(progress, stop);
    result.freeBytesAtMeasurement = engine.freeBytes();
    return result;
  };
}

std::vector<PickedFile> pickedFiles(const std::vector<SystemDataItem>& items) {
  std::vector<PickedFile> files;
  files.reserve(items.size());
  for (const SystemDataItem& item : items) {
    files.push_back({item.path, item.name, item.size, item.identity});
  }
  return files;
}

}  // namespace

SystemDataModel::SystemDataModel(SharedState& shared, const Desktop& desktop, QObject* parent,
                                 Analyse analyse)
    : ToolPane(parent),
      _permissions(shared.permissionsManager()),
      _trash(shared.trashMonitor()),
      _desktop(desktop),
      _analyse(analyse ? std::move(analyse) : analyseWithFreshEngine(desktop)),
      _table(_findings, desktop.formatting, desktop.files.home()),
      _removal(desktop, shared.removalNotice()),
      _scan(Section::systemData, shared.toolActivity(), shared.scanCoordinator(), desktop.clock) {
  connect(&_table, &SystemDataTableModel::selectionToggled, this,
          &SystemDataModel::selectionToggled);
  connect(&_permissions, &PermissionsManager::hasFullDiskAccessChanged, this,
          &SystemDataModel::hasFullDiskAccessChanged);
  connect(&_trash, &TrashMonitor::changed, this, [this] {
    if (isBannerShown()) emit bannerChanged();
  });
  connect(&_removal, &PickedFilesRemoval::changed, this, &SystemDataModel::removalChanged);
}

SystemDataModel::~SystemDataModel() {
  blockSignals(true);
  _scan.drop();
  finishRemovals();
}

QString SystemDataModel::title() const {
  const auto total =
      _findings.result() ? std::optional(_findings.totalBytes()) : std::optional<std::int64_t>();
  return QString::fromStdString(system_data::paneTitle(total, _desktop.formatting));
}

QString SystemDataModel::subtitle() const {
  const auto removable = _findings.result() ? std::optional(_findings.removable().bytes)
                                            : std::optional<std::int64_t>();
  return QString::fromStdString(
      system_data::subtitle(removable, layout().words, _desktop.formatting));
}

QString SystemDataModel::actionTitle() const {
  return QString::fromStdString(
      system_data::actionTitle(isScanning(), _findings.result().has_value()));
}

SystemDataModel::Body SystemDataModel::body() const {
  if (_findings.result()) return Body::Result;
  return isScanning() ? Body::Analysing : Body::Empty;
}

QList<DonutSlice> SystemDataModel::slices() const {
  QList<DonutSlice> slices;
  for (const SystemDataKind& kind : _findings.kinds()) {
    if (!isCounted(kind.kind)) continue;
    const QString name = programText(label(kind.kind, layout()));
    slices.append({.id = name,
                   .label = name,
                   .value = kind.bytes,
                   .color = Palette::color(color(kind.kind))});
  }
  return slices;
}

QString SystemDataModel::totalText() const {
  return byteText(_findings.totalBytes(), _desktop.formatting);
}

QString SystemDataModel::removableSummary() const {
  return QString::fromStdString(
      system_data::removableSummary(_findings.removable().bytes, _desktop.formatting));
}

QString SystemDataModel::protectedSummary() const {
  return QString::fromStdString(
      system_data::protectedSummary(_findings.protectedBytes(), _desktop.formatting));
}

QString SystemDataModel::ledgerNote() const {
  const auto& result = _findings.result();
  if (!result || !result->ledger) return {};
  return QString::fromStdString(
      system_data::ledgerNote(*result->ledger, layout().words, _desktop.formatting));
}

bool SystemDataModel::isLedger() const {
  return !layout().ledger.empty();
}

QString SystemDataModel::selectionSummary() const {
  return QString::fromStdString(system_data::selectionSummary(_findings.selected().count));
}

QString SystemDataModel::removalTitle() const {
  return QString::fromStdString(
      system_data::removalTitle(_findings.selected().bytes, _desktop.formatting));
}

QString SystemDataModel::confirmationTitle() const {
  return QString::fromStdString(system_data::confirmationTitle(_findings.selected().count));
}

QString SystemDataModel::confirmationMessage() const {
  return QString::fromStdString(
      system_data::confirmationMessage(_findings.selected().bytes, _desktop.formatting));
}

QString SystemDataModel::bannerHeadline() const {
  const Removal removal = _lastRemoval.value_or(Removal{});
  return QString::fromStdString(
      system_data::removedHeadline(removal.itemCount, removal.bytes, _desktop.formatting));
}

QString SystemDataModel::bannerDetail() const {
  return QString::fromStdString(system_data::removedDetail(trashHoldsIt()));
}

QString SystemDataModel::bannerHelp() const {
  const auto count = _lastRemoval ? _lastRemoval->itemCount : 0;
  QStringList names;
  for (auto item = _removedItems.end() - count; item != _removedItems.end(); ++item) {
    names << shownName(item->name, item->nameText);
  }
  return names.join('\n');
}

/// While the Trash is being measured its size is that of before, and must not be told as nothing.
bool SystemDataModel::trashHoldsIt() const {
  return _trash.bytes() != 0 || _trash.isMeasuring();
}

void SystemDataModel::performAction() {
  if (isScanning()) {
    stopAnalysis();
  } else {
    startAnalysis();
  }
}

void SystemDataModel::hover(const QString& kind, bool inside) {
  if (inside) {
    setHighlighted(kind);
  } else if (_highlighted == kind) {
    setHighlighted({});
  }
}

void SystemDataModel::requestRemoval() {
  if (canRemove() && !isDeleting()) setConfirmDelete(true);
}

void SystemDataModel::confirmRemoval() {
  if (!_confirmDelete) return;
  setConfirmDelete(false);
  remove(_findings.selectable());
}

void SystemDataModel::cancelConfirmation() {
  setConfirmDelete(false);
}

void SystemDataModel::stopRemoval() {
  _removal.cancel();
}

void SystemDataModel::emptyTrash() {
  _trash.requestEmptying();
}

QString SystemDataModel::safetyText(int safety) const {
  return QString::fromStdString(system_data::safetyText(static_cast<ItemSafety>(safety)));
}

const DiskLayout& SystemDataModel::layout() const {
  return layoutFor(_desktop.files.home());
}

void SystemDataModel::startAnalysis() {
  _scanLabel.clear();
  _scanProgress = 0;
  _movedWhileScanning.clear();
  _scan.start<ScanReport, SystemDataResult>(
      {.work =
           [analyse = _analyse](const std::stop_token& stop, const auto& post) {
             return analyse(
                 [&post](const std::string& label, double fraction) {
                   post({label, fraction});
                 },
                 stop);
           },
       .report = [this](const ScanReport& report) { apply(report); },
       .finish = [this](const SystemDataResult& result) { finishAnalysis(result); }});
  emit scanProgressChanged();
  emit stateChanged();
}

/// A pass under way may run on: what it still finds is dropped.
void SystemDataModel::stopAnalysis() {
  _scan.cancel();
  emit stateChanged();
}

void SystemDataModel::apply(const ScanReport& report) {
  _scanLabel = report.label;
  _scanProgress = report.fraction;
  _scan.showProgress(report.fraction);
  emit scanProgressChanged();
}

void SystemDataModel::finishAnalysis(const SystemDataResult& result) {
  // A place may have been measured before it went to the Trash.
  _findings.setResult(without(result, _movedWhileScanning));
  _removedItems.clear();
  _lastRemoval.reset();
  findingsChanged();
  emit stateChanged();
  emit bannerChanged();
  writeTotal();
  _scan.showSummary(_desktop.formatting.byteText(_findings.removable().bytes));
}

QCoro::Task<> SystemDataModel::remove(std::vector<SystemDataItem> items) {
  auto pick = [&items](LeftAlone&) { return PickedFilesRemoval::Pick{pickedFiles(items)}; };
  const std::set<Path> moved = co_await _removal.trash(items.size(), std::move(pick));
  finishRemoval(items, moved);
}

/// By path, since an analysis may have come in between and named everything anew.
void SystemDataModel::finishRemoval(const std::vector<SystemDataItem>& items,
                                    const std::set<Path>& moved) {
  std::vector<SystemDataItem> removed;
  std::ranges::copy_if(items, std::back_inserter(removed),
                       [&](const SystemDataItem& item) { return moved.contains(item.path); });
  if (isScanning()) _movedWhileScanning.insert(moved.begin(), moved.end());

  Removal removal;
  for (const SystemDataItem& item : removed) {
    removal.bytes = addBytes(removal.bytes, item.size);
    ++removal.itemCount;
  }
  _findings.removePaths(moved, SystemDataEngine(_desktop).freeBytes());
  _findings.deselect(removed);
  std::ranges::move(removed, std::back_inserter(_removedItems));
  _lastRemoval = removal;
  findingsChanged();
  writeTotal();
  _desktop.notifications.post(diskChangedNotification);
  emit bannerChanged();
}

void SystemDataModel::dismissBanner() {
  _lastRemoval.reset();
  emit bannerChanged();
}

void SystemDataModel::findingsChanged() {
  _table.syncRows();
  const bool isStillThere = std::ranges::any_of(_findings.kinds(), [this](const auto& kind) {
    return _highlighted == programText(label(kind.kind, layout()));
  });
  if (!isStillThere) setHighlighted({});
  emit resultChanged();
  selectionToggled();
}

void SystemDataModel::selectionToggled() {
  emit selectionChanged();
  // Nothing is left of what the question was about.
  if (!canRemove()) setConfirmDelete(false);
}

void SystemDataModel::writeTotal() {
  const SystemDataFindings::Sum& removable = _findings.removable();
  _scan.setTotal(removable.bytes, removable.count);
}

void SystemDataModel::setHighlighted(const QString& kind) {
  if (setIfChanged(_highlighted, kind)) emit highlightedChanged();
}

void SystemDataModel::setConfirmDelete(bool confirm) {
  if (setIfChanged(_confirmDelete, confirm)) emit confirmDeleteChanged();
}

}  // namespace klarvik
