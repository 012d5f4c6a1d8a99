#include "panes/smart_scan/clean_footer.h"

#include "panes/smart_scan/smart_scan_texts.h"

namespace klarvik {

CleanFooter::CleanFooter(AppState& appState, const Formatting& formatting, QObject* parent)
    : QObject(parent), _appState(appState), _formatting(formatting) {
  connect(&appState, &AppState::selectedItemsChanged, this, &CleanFooter::readSelection);
  connect(&appState, &AppState::scanResultsChanged, this, &CleanFooter::readSelection);
  connect(&appState, &AppState::scanStateChanged, this, &CleanFooter::readState);
  connect(&appState, &AppState::cleanProgressChanged, this, &CleanFooter::progressChanged);
  readState();
  readSelection();
}

QString CleanFooter::buttonTitle() const {
  return _isBusy ? QStringLiteral("Cleaning…") : _cleanTitle;
}

bool CleanFooter::isEnabled() const {
  return _hasSelection && !_isBusy;
}

bool CleanFooter::isBusy() const {
  return _isBusy;
}

/// A late report may leave a progress behind after the clean has ended: the state decides.
bool CleanFooter::hasProgress() const {
  return _isBusy && _appState.cleanProgress().has_value();
}

QString CleanFooter::progressLine() const {
  return QString::fromStdString(smart_scan::removingLine(progress(), _formatting));
}

QString CleanFooter::progressName() const {
  return QString::fromStdString(smart_scan::removingName(progress()));
}

double CleanFooter::progressFraction() const {
  return smart_scan::removingFraction(progress());
}

void CleanFooter::clean() {
  if (isEnabled()) {
    _appState.requestClean();
  }
}

void CleanFooter::stop() {
  _appState.cancelClean();
}

/// While a scan runs nothing of this is on the screen, and the selection grows with every category.
void CleanFooter::readSelection() {
  if (std::holds_alternative<AppState::Scanning>(_appState.scanState())) {
    return;
  }
  const std::int64_t count = _appState.selectedCount();
  const std::int64_t size = _appState.selectedSize();
  _hasSelection = count > 0;
  _selectionSummary =
      QString::fromStdString(smart_scan::selectionSummary(size, count, _formatting));
  _hint = QString::fromStdString(
      smart_scan::selectionHint(count, _appState.selectionIsAllSafe()));
  _cleanTitle = QString::fromStdString(smart_scan::cleanTitle(size, _formatting));
  emit changed();
}

void CleanFooter::readState() {
  const bool wasBusy = _isBusy;
  _isBusy = std::holds_alternative<AppState::Cleaning>(_appState.scanState());
  if (_isBusy != wasBusy) {
    emit changed();
    emit progressChanged();
  }
  readSelection();
}

DeletionProgress CleanFooter::progress() const {
  return _appState.cleanProgress().value_or(DeletionProgress{});
}

}  // namespace klarvik
