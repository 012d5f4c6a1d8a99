#include "panes/large_files/large_file_finder_model.h"

#include <QPointer>
#include <algorithm>
#include <chrono>
#include <iterator>
#include <numeric>
#include <utility>

#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/notification_center.h"
#include "state/section.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

constexpr std::int64_t bytesPerMegabyte = 1'048'576;

constexpr std::array sortOrders{LargeFileSort::size, LargeFileSort::date, LargeFileSort::name};

template <typename Choices, typename Choice>
int indexIn(const Choices& choices, const Choice& choice) {
  return static_cast<int>(
      std::distance(choices.begin(), std::find(choices.begin(), choices.end(), choice)));
}

}  // namespace

LargeFileFinderModel::LargeFileFinderModel(SharedState& shared, const Desktop& desktop,
                                           QObject* parent)
    : ToolPane(parent),
      _permissions(shared.permissionsManager()),
      _desktop(desktop),
      _rows(_selected, desktop),
      _removal(desktop, shared.removalNotice(), &shared.lastRemoval()),
      _scan(Section::largeFiles, shared.toolActivity(), shared.scanCoordinator(), desktop.clock) {
  connect(&_permissions, &PermissionsManager::hasFullDiskAccessChanged, this,
          &LargeFileFinderModel::placeholderChanged);
  connect(&_removal, &PickedFilesRemoval::changed, this, &LargeFileFinderModel::deletionChanged);
  connect(&_removal, &PickedFilesRemoval::restored, this, &LargeFileFinderModel::startScan);
}

LargeFileFinderModel::~LargeFileFinderModel() {
  _scan.drop();
  finishRemovals();
  _arranging.finish();
}

LargeFileList LargeFileFinderModel::selectedFiles() const {
  LargeFileList files;
  std::ranges::copy_if(*_files, std::back_inserter(files),
                       [this](const auto& file) { return _selected.contains(file->id); });
  return files;
}

QString LargeFileFinderModel::title() const {
  return translated("Large Files");
}

QString LargeFileFinderModel::subtitle() const {
  if (isScanning()) return large_files::scanningSubtitle(_currentPath);
  return hasScanned() ? large_files::foundSubtitle(_files->size(), _thresholdMB)
                      : large_files::unscannedSubtitle();
}

QString LargeFileFinderModel::actionTitle() const {
  return translate("LargeFiles", "Rescan");
}

Placeholder LargeFileFinderModel::placeholder() const {
  if (!_files->empty()) return {};
  if (isScanning()) return large_files::measuring(layoutFor(_desktop.files.home()).words);
  return hasScanned() ? large_files::nothingFound(_thresholdMB)
                      : large_files::notScanned(_permissions.hasFullDiskAccess());
}

QStringList LargeFileFinderModel::thresholds() const {
  QStringList texts;
  for (const double step : thresholdSteps) texts << large_files::thresholdText(step);
  return texts;
}

int LargeFileFinderModel::thresholdIndex() const {
  return indexIn(thresholdSteps, _thresholdMB);
}

QStringList LargeFileFinderModel::sorts() const {
  QStringList labels;
  for (const Sort sort : sortOrders) labels << translated(label(sort));
  return labels;
}

int LargeFileFinderModel::sortIndex() const {
  return indexIn(sortOrders, _view.sort);
}

QStringList LargeFileFinderModel::kindNames() const {
  QStringList names;
  for (const QString& kind : _kinds) names << translated(kind.toStdString());
  return names;
}

QString LargeFileFinderModel::activeKind() const {
  return QString::fromStdString(_view.kind.value_or(""));
}

QString LargeFileFinderModel::selectionSummary() const {
  return large_files::selectionSummary(_selectedBytes, _selected.size(), _desktop.formatting);
}

QString LargeFileFinderModel::trashButtonTitle() const {
  return large_files::trashButtonTitle(_selectedBytes, _desktop.formatting);
}

QString LargeFileFinderModel::footerHint() const {
  return large_files::footerHint();
}

void LargeFileFinderModel::appear() {
  _scan.startInTurnWithAccess(_permissions, [this] { startScan(); });
}

void LargeFileFinderModel::performAction() {
  if (isScanning()) return stopScan();
  _permissions.ensureAccess([pane = QPointer(this)] {
    if (pane) pane->startScan();
  });
}

void LargeFileFinderModel::startScan() {
  // The prompt may have ended after a scan was started another way.
  if (isScanning()) return;
  _currentPath.clear();
  _scan.start<LargeFileUpdate, LargeFileList>(
      {.work = [&files = _desktop.files,
                threshold = static_cast<std::int64_t>(_thresholdMB) * bytesPerMegabyte](
                   std::stop_token stop,
                   const auto& post) { return LargeFileWalker(files).walk(threshold, stop, post); },
       .report = [this](LargeFileUpdate update) { scanMovedOn(std::move(update)); },
       .finish = [this](LargeFileList found) { scanFinished(std::move(found), false); },
       .finishCancelled = [this](LargeFileList found) { scanFinished(std::move(found), true); }});
  scanningChanged();
  setFiles({});
  clearSelection();
  _trashed.clear();
  _progress = 0;
}

/// The walk ends at its next look at the stop, and still brings what it found.
void LargeFileFinderModel::stopScan() {
  _scan.cancel();
  scanningChanged();
}

void LargeFileFinderModel::scanMovedOn(LargeFileUpdate update) {
  _progress = update.fraction;
  _currentPath = std::move(update.currentName);
  setFiles(std::move(update.files));
  _scan.showProgress(_progress);
  emit subtitleChanged();
}

void LargeFileFinderModel::scanFinished(LargeFileList files, bool wasStopped) {
  _progress = 1;
  const bool isOther = setFiles(std::move(files));
  if (!wasStopped) {
    scanningChanged();
  } else if (isOther) {
    emit subtitleChanged();
  }
  _scan.showSummary(large_files::finishedSummary(_files->size()));
  writeTotal();
}

void LargeFileFinderModel::scanningChanged() {
  emit isScanningChanged();
  emit subtitleChanged();
  emit placeholderChanged();
}

bool LargeFileFinderModel::setFiles(LargeFileList files) {
  std::erase_if(files, [this](const auto& file) {
    return !_trashed.empty() && _trashed.contains(file->url.native());
  });
  if (files == *_files) return false;
  const Placeholder before = placeholder();
  _files = std::make_shared<const LargeFileList>(std::move(files));
  if (placeholder() != before) emit placeholderChanged();
  if (!_minute) keepDatesFresh();
  arrangeRows();
  return true;
}

void LargeFileFinderModel::setView(FileView view) {
  _view = std::move(view);
  arrangeRows();
}

QCoro::Task<> LargeFileFinderModel::arrangeRows() {
  _areRowsStale = true;
  if (std::exchange(_isArranging, true)) co_return;
  while (std::exchange(_areRowsStale, false)) {
    const bool isOtherView = _arrangedView != _view;
    _arrangedView = _view;
    auto work = [files = _files, view = _view, &rows = _rows.files(),
                 inSight = isOtherView ? RowsInSight{} : _rows.inSight(),
                 &formatting = _desktop.formatting] {
      return arrange(*files, view, rows, inSight, formatting);
    };
    RowArrangement arrangement = co_await runInBackground(_arranging, std::move(work));
    setKinds(arrangement.kinds);
    _arranging.deleteInBackground(_rows.apply(std::move(arrangement)));
    if (isOtherView) emit viewChanged();
  }
  _isArranging = false;
}

void LargeFileFinderModel::setKinds(const std::vector<std::string_view>& kinds) {
  QStringList names;
  for (const std::string_view kind : kinds) names << QString::fromStdString(std::string(kind));
  if (setIfChanged(_kinds, names)) emit kindsChanged();
}

void LargeFileFinderModel::keepDatesFresh() {
  if (_files->empty()) return _minute.reset();
  _minute = _desktop.clock.wakeAfter(std::chrono::minutes(1), [this] {
    _rows.refreshDates();
    keepDatesFresh();
  });
}

void LargeFileFinderModel::chooseThreshold(int index) {
  if (setIfChanged(_thresholdMB, thresholdSteps.at(static_cast<std::size_t>(index)))) {
    emit thresholdChanged();
    emit subtitleChanged();
    emit placeholderChanged();
  }
}

void LargeFileFinderModel::chooseSort(int index) {
  const Sort sort = sortOrders.at(static_cast<std::size_t>(index));
  if (sort == _view.sort) return;
  setView({_view.kind, sort});
  emit sortChanged();
}

void LargeFileFinderModel::toggleKind(const QString& kind) {
  if (kind == activeKind()) return showAllKinds();
  setView({kind.toStdString(), _view.sort});
  emit kindFilterChanged();
}

void LargeFileFinderModel::showAllKinds() {
  if (!_view.kind) return;
  setView({std::nullopt, _view.sort});
  emit kindFilterChanged();
}

void LargeFileFinderModel::toggleSelection(int row) {
  if (row < 0 || row >= _rows.rowCount()) return;
  const auto& file = _rows.files()[static_cast<std::size_t>(row)];
  // The rows come a moment after the files, and may still show one that is gone.
  if (std::ranges::find(*_files, file) == _files->end()) return;
  if (_selected.insert(file->id).second) {
    _selectedBytes += file->size;
  } else {
    _selected.erase(file->id);
    _selectedBytes -= file->size;
  }
  _rows.selectionChanged(row);
  emit selectionChanged();
}

void LargeFileFinderModel::clearSelection() {
  if (_selected.empty()) return;
  _selected.clear();
  _selectedBytes = 0;
  emit selectionChanged();
}

void LargeFileFinderModel::trashSelected() {
  if (!_selected.empty() && !isDeleting()) moveSelectedToTrash();
}

void LargeFileFinderModel::stopTrashing() {
  _removal.cancel();
}

QCoro::Task<> LargeFileFinderModel::moveSelectedToTrash() {
  auto pick = [files = selectedFiles()](LeftAlone&) {
    return PickedFilesRemoval::Pick{
        pickedFiles(files, [](const auto& file) -> const LargeFile& { return *file; })};
  };
  const std::set<Path> trashed = co_await _removal.trash(_selected.size(), std::move(pick));
  forget(trashed);
  writeTotal();
  _desktop.notifications.post(diskChangedNotification);
}

void LargeFileFinderModel::forget(const std::set<Path>& trashed) {
  for (const Path& url : trashed) _trashed.insert(url.native());
  for (const auto& file : *_files) {
    if (!_trashed.contains(file->url.native())) continue;
    if (_selected.erase(file->id) > 0) _selectedBytes -= file->size;
  }
  if (setFiles(*_files) && !isScanning()) emit subtitleChanged();
  emit selectionChanged();
}

void LargeFileFinderModel::writeTotal() {
  const std::int64_t bytes =
      std::accumulate(_files->begin(), _files->end(), std::int64_t{0},
                      [](std::int64_t sum, const auto& file) { return sum + file->size; });
  _scan.setTotal(bytes, static_cast<std::int64_t>(_files->size()));
}

}  // namespace klarvik
