#include "panes/duplicates/duplicate_finder_model.h"

#include <QPointer>
#include <algorithm>
#include <iterator>
#include <utility>

#include "base/paths.h"
#include "core/shown_folders.h"
#include "platform/desktop_services.h"
#include "platform/notification_center.h"
#include "state/section.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

constexpr std::int64_t bytesPerMegabyte = 1'048'576;

const DuplicateFile& fileOf(const SelectedCopy& copy) {
  return copy.group->files[copy.file];
}

KeptCopies keptCopies(const std::vector<SelectedCopy>& copies) {
  KeptCopies kept;
  const DuplicateGroup* group = nullptr;
  std::shared_ptr<const KeptCopy> keeper;
  for (const SelectedCopy& copy : copies) {
    if (std::exchange(group, copy.group) != copy.group) {
      keeper = std::make_shared<const KeptCopy>(
          KeptCopy{copy.group->files[copy.keeper].url, copy.group->hash});
    }
    kept.try_emplace(fileOf(copy).url.native(), keeper);
  }
  return kept;
}

}  // namespace

DuplicateFinderModel::DuplicateFinderModel(SharedState& shared, const Desktop& desktop,
                                           QObject* parent)
    : ToolPane(parent),
      _permissions(shared.permissionsManager()),
      _desktop(desktop),
      _rows(_choice, desktop),
      _removal(desktop, shared.removalNotice(), &shared.lastRemoval()),
      _scan(Section::duplicates, shared.toolActivity(), shared.scanCoordinator(), desktop.clock) {
  const UserFolders shown = shownFolders(desktop.files);
  _scanDirs =
      withoutNested({shown.documents, shown.downloads, shown.desktop}, desktop.files.home());
  connect(&_removal, &PickedFilesRemoval::changed, this, &DuplicateFinderModel::deletionChanged);
  connect(&_removal, &PickedFilesRemoval::restored, this, &DuplicateFinderModel::startScan);
}

DuplicateFinderModel::~DuplicateFinderModel() {
  _scan.drop();
  finishRemovals();
}

QString DuplicateFinderModel::title() const {
  return duplicates::title(groups().size(), reclaimable(), _desktop.formatting);
}

QString DuplicateFinderModel::subtitle() const {
  if (isScanning()) {
    return duplicates::scanningSubtitle(foundCount(), currentPath(), _desktop.files.home());
  }
  if (_wasStopped) return duplicates::stoppedSubtitle(progress());
  return hasScanned() ? duplicates::foundSubtitle(groups().size(), extraCopies())
                      : duplicates::unscannedSubtitle();
}

QString DuplicateFinderModel::actionTitle() const {
  return translate("Duplicates", "Rescan");
}

Placeholder DuplicateFinderModel::placeholder() const {
  if (!groups().empty()) return {};
  if (isScanning()) return duplicates::hashing();
  if (_wasStopped) return duplicates::stopped(progress());
  return hasScanned() ? duplicates::nothingFound() : duplicates::notScanned(_scanDirs);
}

QStringList DuplicateFinderModel::folderHelps() const {
  return duplicates::folderHelps(_scanDirs, _desktop.files.home());
}

QStringList DuplicateFinderModel::keepRules() const {
  QStringList labels;
  for (const KeepRule rule : DuplicateSelection::allKeepRules) {
    labels << translated(DuplicateSelection::label(rule));
  }
  return labels;
}

int DuplicateFinderModel::keepRuleIndex() const {
  const auto& rules = DuplicateSelection::allKeepRules;
  return static_cast<int>(
      std::distance(rules.begin(), std::ranges::find(rules, _choice.keepRule())));
}

QString DuplicateFinderModel::selectionSummary() const {
  const auto& totals = _choice.totals();
  return duplicates::selectionSummary(totals.selectedBytes, totals.selectedCount,
                                      _desktop.formatting);
}

QString DuplicateFinderModel::deleteButtonTitle() const {
  return duplicates::deleteButtonTitle(_choice.totals().selectedBytes, _desktop.formatting);
}

void DuplicateFinderModel::appear() {
  _scan.startInTurnWithAccess(_permissions, [this] { startScan(); });
}

void DuplicateFinderModel::finishRemovals() {
  stopRemovals();
  _removal.finish();
}

void DuplicateFinderModel::performAction() {
  if (isDeleting()) return;
  if (isScanning()) return cancelScan();
  askAndScan();
}

void DuplicateFinderModel::askAndScan() {
  _permissions.ensureAccess([pane = QPointer(this)] {
    if (pane) pane->startScan();
  });
}

void DuplicateFinderModel::startScan() {
  // The prompt may have ended after a scan or a deletion was started another way.
  if (isScanning() || isDeleting()) return;
  _report = {};
  _remaining = {};
  _wasStopped = false;
  if (std::exchange(_removedFolder, std::nullopt)) emit scanDirsChanged();
  _scan.start<DuplicateProgress, ChosenGroups>(
      {.work =
           [&files = _desktop.files, folders = _scanDirs](std::stop_token, const auto& post) {
             DuplicateScanner scanner(files);
             return unchosen(scanner.scan(
                 folders, static_cast<std::int64_t>(minSizeMB) * bytesPerMegabyte, post));
           },
       .report = [this](DuplicateProgress report) { scanMovedOn(std::move(report)); },
       .finish = [this](ChosenGroups found) { scanFinished(std::move(found)); }});
  scanningChanged();
  setGroups({});
}

/// The search itself cannot be stopped: it works on to its end, unseen.
void DuplicateFinderModel::cancelScan() {
  _wasStopped = true;
  _scan.cancel();
  scanningChanged();
}

void DuplicateFinderModel::scanMovedOn(DuplicateProgress report) {
  _report = std::move(report);
  if (_report.readShare > 0) _remaining.report(_desktop.clock.now(), _report.readShare);
  _scan.showProgress(_report.fraction);
  emit subtitleChanged();
}

void DuplicateFinderModel::scanFinished(ChosenGroups groups) {
  setGroups(std::move(groups));
  scanningChanged();
  _scan.showSummary(duplicates::finishedSummary(_choice.groups().size()));
  writeTotal();
}

void DuplicateFinderModel::scanningChanged() {
  emit isScanningChanged();
  emit subtitleChanged();
  emit placeholderChanged();
}

void DuplicateFinderModel::setGroups(ChosenGroups groups) {
  const Placeholder before = placeholder();
  _rows.removeAll();
  _scan.deleteInBackground(_choice.replace(std::move(groups)));
  _rows.insertAll();
  if (placeholder() != before) emit placeholderChanged();
  emit totalsChanged();
}

void DuplicateFinderModel::chooseFolders() {
  _desktop.openPanel.chooseFolders(
      {translate("Duplicates", "Scan This Folder").toStdString(),
       translate("Duplicates", "Klarvik reads only the folders listed here.").toStdString(),
       _desktop.files.home()},
      [pane = QPointer(this)](const std::vector<Path>& folders) {
        if (pane && !folders.empty()) pane->addFolders(folders);
      });
}

void DuplicateFinderModel::addFolders(const std::vector<Path>& folders) {
  _removedFolder.reset();
  for (const Path& chosen : folders) {
    const Path folder = standardizedPath(chosen);
    const bool isListed = std::ranges::find(_scanDirs, folder) != _scanDirs.end();
    if (!isListed) _scanDirs.push_back(folder);
  }
  emit scanDirsChanged();
  emit placeholderChanged();
  if (!isScanning() && !isDeleting()) askAndScan();
}

void DuplicateFinderModel::removeFolder(int index) {
  if (_scanDirs.size() < 2 || index < 0 || static_cast<std::size_t>(index) >= _scanDirs.size()) {
    return;
  }
  _removedFolder = {index, _scanDirs[static_cast<std::size_t>(index)]};
  _scanDirs.erase(_scanDirs.begin() + index);
  emit scanDirsChanged();
  emit placeholderChanged();
}

QString DuplicateFinderModel::removedFolder() const {
  return _removedFolder ? duplicates::folderNames({_removedFolder->path}).front() : QString();
}

void DuplicateFinderModel::putFolderBack() {
  if (!_removedFolder) return;
  _scanDirs.insert(_scanDirs.begin() + _removedFolder->index, _removedFolder->path);
  _removedFolder.reset();
  emit scanDirsChanged();
  emit placeholderChanged();
}

void DuplicateFinderModel::chooseKeepRule(int index) {
  const KeepRule rule = DuplicateSelection::allKeepRules.at(static_cast<std::size_t>(index));
  if (rule == _choice.keepRule()) return;
  _choice.setKeepRule(rule);
  _rows.allChanged();
  emit keepRuleChanged();
  emit totalsChanged();
}

void DuplicateFinderModel::activate(int row) {
  if (!holds(row)) return;
  if (_rows.at(row).isGroup()) {
    _rows.toggleExpanded(row);
  } else {
    toggleSelection(row);
  }
}

void DuplicateFinderModel::toggleSelection(int row) {
  if (!holds(row)) return;
  const DuplicateRowsModel::Row& pressed = _rows.at(row);
  if (pressed.isGroup()) {
    _choice.toggle(*pressed.group);
  } else {
    _choice.toggle(*pressed.group, pressed.file);
  }
  _rows.groupChanged(row);
  emit totalsChanged();
}

void DuplicateFinderModel::keepInstead(int row) {
  if (!holds(row)) return;
  const DuplicateRowsModel::Row& pressed = _rows.at(row);
  if (pressed.isGroup() || pressed.file == pressed.group->keeper) return;
  _choice.keepInstead(*pressed.group, pressed.file);
  _rows.groupChanged(row);
  emit totalsChanged();
}

void DuplicateFinderModel::deleteSelected() {
  if (canDelete() && !isDeleting() && !isScanning()) moveSelectedToTrash();
}

void DuplicateFinderModel::stopDeleting() {
  _deleteTask.request_stop();
  _removal.cancel();
}

QCoro::Task<> DuplicateFinderModel::moveSelectedToTrash() {
  _deleteTask = std::stop_source();
  auto pick = [&desktop = _desktop, selection = _choice.selection(),
               stop = _deleteTask.get_token()](LeftAlone& leftAlone) {
    const std::vector<SelectedCopy> copies = selection.list();
    return PickedFilesRemoval::Pick{
        pickedFiles(copies, fileOf),
        duplicateRemovalGuard(desktop.files, desktop.trash, keptCopies(copies), stop, &leftAlone)};
  };
  std::set<Path> trashed = co_await _removal.trash(_choice.totals().selectedCount, std::move(pick));
  forget(trashed);
  _scan.deleteInBackground(std::move(trashed));
  writeTotal();
  _desktop.notifications.post(diskChangedNotification);
}

void DuplicateFinderModel::forget(const std::set<Path>& trashed) {
  DuplicateChoice::Paths gone;
  for (const Path& url : trashed) gone.insert(url);
  const Placeholder before = placeholder();
  const DuplicateChoice::GroupSet dissolved = _choice.dissolvedBy(gone);
  _rows.removeFiles(gone, dissolved);
  _scan.deleteInBackground(_choice.remove(gone, dissolved));
  _rows.allChanged();
  if (placeholder() != before) emit placeholderChanged();
  emit subtitleChanged();
  emit totalsChanged();
}

void DuplicateFinderModel::writeTotal() {
  _scan.setTotal(reclaimable(), extraCopies());
}

}  // namespace klarvik
