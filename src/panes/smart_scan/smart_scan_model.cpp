#include "panes/smart_scan/smart_scan_model.h"

#include <algorithm>
#include <utility>

#include "panes/smart_scan/smart_scan_texts.h"
#include "platform/file_system.h"
#include "translation/translation.h"

namespace klarvik {

SmartScanModel::SmartScanModel(AppState& appState, SharedState& shared, const Desktop& desktop,
                               QObject* parent)
    : ToolPane(parent),
      _appState(appState),
      _desktop(desktop),
      _preview(appState.layout()),
      _scanningTable(appState, desktop.formatting),
      _reviewTable(appState, desktop.formatting, desktop.pasteboard),
      _footer(appState, desktop),
      _banner(appState, shared.diskMonitor(), shared.trashMonitor(), desktop.formatting),
      _elsewhere(shared.scanCoordinator(), shared.toolActivity(), shared.navigator(),
                 desktop.formatting),
      _rootRun(desktop.tools, [this] { _appState.measureHintsAgain(); }) {
  connect(&_reviewTable, &ReviewTableModel::runAsked, &_rootRun, &RootRunModel::ask);
  connect(&_appState, &AppState::scanStateChanged, this, &SmartScanModel::stateChanged);
  connect(&_appState, &AppState::scanResultsChanged, this, &SmartScanModel::resultsChanged);
  connect(&_appState, &AppState::totalSpaceFreeableChanged, this, &SmartScanModel::resultsChanged);
  connect(&_appState, &AppState::scanActivityChanged, this, &SmartScanModel::progressMoved);
  connect(&_appState, &AppState::lastCleanDateChanged, this, &SmartScanModel::progressMoved);
  connect(&_appState, &AppState::pendingCleanConfirmationChanged, this,
          &SmartScanModel::isConfirmingChanged);
  _wasScanning = isScanning();
  keepRelativeDateFresh();
}

QString SmartScanModel::title() const {
  return QString::fromStdString(smart_scan::paneTitle(
      _appState.scanState(), _appState.totalSpaceFreeable(), _desktop.formatting));
}

QString SmartScanModel::subtitle() const {
  const auto text = [this]() -> std::string {
    switch (body()) {
      case Body::Scanning:
        return smart_scan::scanningSubtitle(_appState.scanActivity(), _desktop.files.home());
      case Body::Preview:
        return smart_scan::idleSubtitle(_appState.lastCleanDate(), _desktop.clock.now(),
                                        _desktop.formatting);
      case Body::Review:
      case Body::NothingFound:
        return smart_scan::resultSubtitle(_appState.scanResults());
    }
    return {};
  };
  return QString::fromStdString(text());
}

QString SmartScanModel::actionTitle() const {
  if (isScanning()) {
    return translate("SmartScan", "Stop");
  }
  return _appState.scanResults().empty() ? translate("SmartScan", "Scan")
                                         : translate("SmartScan", "Rescan");
}

bool SmartScanModel::offersSafeOnly() const {
  return std::holds_alternative<AppState::Done>(_appState.scanState()) &&
         std::ranges::any_of(_appState.scanResults(), &CleanCategory::hasItems);
}

SmartScanModel::Body SmartScanModel::body() const {
  if (isScanning()) {
    return Body::Scanning;
  }
  if (std::holds_alternative<AppState::Idle>(_appState.scanState())) {
    return Body::Preview;
  }
  return _appState.scanResults().empty() ? Body::NothingFound : Body::Review;
}

QString SmartScanModel::scanningHeadline() const {
  return QString::fromStdString(smart_scan::scanningHeadline(_appState.scanActivity()));
}

double SmartScanModel::progress() const {
  const auto* scanning = std::get_if<AppState::Scanning>(&_appState.scanState());
  return scanning != nullptr ? scanning->progress : 0;
}

bool SmartScanModel::isMeasuring() const {
  return isScanning() && !_appState.scanActivity().categoryName.empty();
}

bool SmartScanModel::isConfirming() const {
  return _appState.pendingCleanConfirmation();
}

void SmartScanModel::performAction() {
  if (isScanning()) {
    _appState.cancelScan();
    return;
  }
  _appState.dismissLastClean();
  _appState.startScan();
}

void SmartScanModel::selectSafeOnly() {
  _appState.selectSafeItems();
}

void SmartScanModel::confirmClean() {
  _appState.setPendingCleanConfirmation(false);
  _appState.performClean();
}

void SmartScanModel::cancelConfirmation() {
  _appState.setPendingCleanConfirmation(false);
}

void SmartScanModel::stateChanged() {
  const bool wasScanning = std::exchange(_wasScanning, isScanning());
  // A scan can begin elsewhere. The user was asked about a selection that is gone then.
  if (!wasScanning && isScanning()) _appState.setPendingCleanConfirmation(false);
  if (!wasScanning || !isScanning()) {
    keepRelativeDateFresh();
    emit headerChanged();
  }
  progressMoved();
}

void SmartScanModel::resultsChanged() {
  if (!isScanning()) {
    emit headerChanged();
  }
  progressMoved();
}

void SmartScanModel::progressMoved() {
  _scanningTable.update();
  emit progressChanged();
}

/// "Last clean 3 minutes ago" would otherwise stand still.
void SmartScanModel::keepRelativeDateFresh() {
  const bool isNeeded = body() == Body::Preview && _appState.lastCleanDate().has_value();
  if (!isNeeded) {
    _minute.reset();
    return;
  }
  _minute = _desktop.clock.wakeAfter(std::chrono::minutes(1), [this] {
    emit progressChanged();
    keepRelativeDateFresh();
  });
}

bool SmartScanModel::isScanning() const {
  return std::holds_alternative<AppState::Scanning>(_appState.scanState());
}

}  // namespace klarvik
