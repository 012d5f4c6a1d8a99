#include "panes/smart_scan/clean_footer_model.h"

#include "panes/smart_scan/smart_scan_texts.h"
#include "places/disk_layout.h"
#include "platform/user_defaults.h"
#include "translation/translation.h"

namespace klarvik {

CleanFooterModel::CleanFooterModel(AppState& appState, const Desktop& desktop, QObject* parent)
    : QObject(parent), _appState(appState), _desktop(desktop), _formatting(desktop.formatting) {
  connect(&appState, &AppState::selectedItemsChanged, this, &CleanFooterModel::readSelection);
  connect(&appState, &AppState::scanResultsChanged, this, &CleanFooterModel::readSelection);
  connect(&appState, &AppState::scanStateChanged, this, &CleanFooterModel::readSelection);
  connect(&appState, &AppState::cleanProgressChanged, this, &CleanFooterModel::changed);
  readSelection();
}

ToolFooterState CleanFooterModel::shown() const {
  ToolFooterState state;
  state.firstLine = _selectionSummary;
  state.lastLine = _hint;
  state.buttonLabel = isBusy() ? translate("SmartScan", "Cleaning…") : _cleanTitle;
  state.buttonEnabled = isEnabled();
  state.showsStop = isBusy();
  // A late report may leave a progress behind after the clean has ended: the state decides.
  const std::optional<DeletionProgress>& progress = _appState.cleanProgress();
  state.showsProgress = isBusy() && progress.has_value();
  if (state.showsProgress) {
    state.firstLine = QString::fromStdString(smart_scan::removingLine(*progress, _formatting));
    state.fraction = removalFraction(*progress);
    state.lastLine = removalName(*progress);
  }
  return state;
}

void CleanFooterModel::clean() {
  if (isEnabled()) {
    _appState.requestClean();
  }
}

void CleanFooterModel::stop() {
  _appState.cancelClean();
}

/// While a scan runs nothing of this is on the screen, and the selection grows with every category.
void CleanFooterModel::readSelection() {
  if (std::holds_alternative<AppState::Scanning>(_appState.scanState())) {
    return;
  }
  const ItemSum selected = _appState.selectedItems().selected();
  const std::int64_t count = selected.count;
  const std::int64_t size = selected.size;
  _hasSelection = count > 0;
  _selectionSummary =
      QString::fromStdString(smart_scan::selectionSummary(size, count, _formatting));
  _hint = QString::fromStdString(
      smart_scan::selectionHint(count, _appState.selectionIsAllSafe(), fate(selected)));
  _cleanTitle = QString::fromStdString(smart_scan::cleanTitle(size, _formatting));
  emit changed();
}

std::string CleanFooterModel::fate(const ItemSum& selected) const {
  const bool tells = _appState.layout().tellsWhatGoesForGood;
  return smart_scan::fateOf(tells ? selected : ItemSum{},
                            _desktop.defaults.boolean("useTrash", true), _desktop.formatting);
}

/// What a scan has found so far is not to be cleaned yet.
bool CleanFooterModel::isEnabled() const {
  const bool isScanning = std::holds_alternative<AppState::Scanning>(_appState.scanState());
  return _hasSelection && !isScanning && !isBusy();
}

bool CleanFooterModel::isBusy() const {
  return std::holds_alternative<AppState::Cleaning>(_appState.scanState());
}

}  // namespace klarvik
