#include "panes/uninstaller/app_uninstaller_model.h"

#include <QPointer>
#include <chrono>
#include <string>
#include <utility>
#include <variant>

#include "base/bytes.h"
#include "panes/kit/row_text.h"
#include "panes/uninstaller/uninstaller_texts.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/notification_center.h"
#include "state/last_removal.h"
#include "state/section.h"
#include "tools/uninstaller_engine.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

/// After this long the list is read anew when the user comes back to it.
constexpr auto freshness = 300s;

}  // namespace

AppUninstallerModel::AppUninstallerModel(SharedState& shared, const Desktop& desktop,
                                         QObject* parent)
    : ToolPane(parent),
      _coordinator(shared.scanCoordinator()),
      _navigator(shared.navigator()),
      _notice(shared.removalNotice()),
      _lastRemoval(shared.lastRemoval()),
      _desktop(desktop),
      _appList(desktop.formatting),
      _leftoverList(desktop.formatting),
      _reading(Section::uninstaller, shared.toolActivity(), _coordinator, desktop.clock),
      _residualSearch(desktop.clock) {
  connect(&_navigator, &Navigator::sectionChanged, this, &AppUninstallerModel::sectionChanged);
  connect(&_leftoverList, &LeftoverListModel::selectionChanged, this,
          &AppUninstallerModel::selectionChanged);
  connect(&_leftoverList, &LeftoverListModel::selectionChanged, this,
          &AppUninstallerModel::stateChanged);
}

AppUninstallerModel::~AppUninstallerModel() {
  _reading.drop();
  _residualSearch.drop();
  stopRemovals();
  finishRemovals();
}

void AppUninstallerModel::setSearchText(const QString& searchText) {
  if (_appList.searchText() == searchText) return;
  _appList.setSearchText(searchText);
  emit searchTextChanged();
  emit stateChanged();
}

QString AppUninstallerModel::title() const {
  return _selectedApp ? uninstaller::uninstallTitle(_selectedApp->name)
                      : translate("Uninstaller", "Uninstaller");
}

QString AppUninstallerModel::subtitle() const {
  if (!_selectedApp) {
    return uninstaller::listSubtitle(_isWaitingForTurn, isLoading(), apps().size(),
                                     layoutFor(_desktop.files.home()).words);
  }
  return uninstaller::detailSubtitle(residuals().size(),
                                     addBytes(_selectedApp->appSize, _leftoverList.totalSize()),
                                     _desktop.formatting);
}

Placeholder AppUninstallerModel::placeholder() const {
  return _selectedApp ? detailPlaceholder() : listPlaceholder();
}

Placeholder AppUninstallerModel::listPlaceholder() const {
  if (_isWaitingForTurn) {
    return Placeholder::busy(
        translate("Uninstaller", "Waiting for the disk"),
        translate("Uninstaller",
                  "Another tool is measuring. Open this pane and Klarvik reads your "
                  "applications straight away."));
  }
  if (isLoading()) {
    return Placeholder::busy(
        translate("Uninstaller", "Reading applications"),
        programText(layoutFor(_desktop.files.home()).words.measuringApplications));
  }
  if (!hasLoaded() || _appList.rowCount() > 0) return {};
  if (apps().empty()) {
    return Placeholder::idle(QStringLiteral("square.dashed"), translate("Uninstaller", "No apps"),
                             programText(layoutFor(_desktop.files.home()).words.noApplications));
  }
  return Placeholder::idle(QStringLiteral("magnifyingglass"),
                           translate("Uninstaller", "No apps match"),
                           uninstaller::noMatch(searchText()));
}

Placeholder AppUninstallerModel::detailPlaceholder() const {
  if (isFindingResiduals()) {
    return Placeholder::busy(
        translate("Uninstaller", "Looking for leftovers"),
        programText(layoutFor(_desktop.files.home()).words.lookingForLeftovers));
  }
  if (!residuals().empty()) return {};
  return Placeholder::idle(QStringLiteral("checkmark.circle"),
                           translate("Uninstaller", "No leftovers"),
                           uninstaller::noLeftovers(_selectedApp->name));
}

bool AppUninstallerModel::canUninstall() const {
  if (!_selectedApp || isFindingResiduals() || _isUninstalling) return false;
  return appGoes() || !selectedResiduals().empty();
}

/// Whether the application itself goes, and not its leftovers alone.
bool AppUninstallerModel::appGoes() const {
  return _selectedApp && (_selectedApp->goesToTrash() || isRemovedByTool(*_selectedApp));
}

QString AppUninstallerModel::actionTitle() const {
  return _selectedApp ? uninstaller::actionTitle(*_selectedApp) : QString();
}

QString AppUninstallerModel::removalCommand() const {
  return appGoes() ? QString() : printableText(_plan.command);
}

QString AppUninstallerModel::removalExplanation() const {
  if (!_selectedApp || appGoes()) return {};
  return uninstaller::planExplanation(*_selectedApp, _plan);
}

QString AppUninstallerModel::alsoRemoved() const {
  return uninstaller::alsoRemoved(_plan);
}

QString AppUninstallerModel::selectionSummary() const {
  return uninstaller::selectionSummary(_leftoverList.selectedSize(), selectedResiduals().size(),
                                       residuals().size(), _desktop.formatting);
}

QString AppUninstallerModel::selectionHint() const {
  if (!_whyItStayed.isEmpty()) return _whyItStayed;
  if (_selectedApp && _selectedApp->kind != AppKind::bundle) {
    return uninstaller::removalHint(*_selectedApp);
  }
  return uninstaller::selectionHint(selectedResiduals().size(), residuals().size());
}

QCoro::Task<> AppUninstallerModel::readInTurn() {
  if (!needsReading()) co_return;
  const std::stop_token stop = _reading.dropped();
  setIsWaitingForTurn(true);
  const bool hasTurn = co_await _coordinator.beginAutoScan(_reading.key(), stop);
  // Whoever waits for a turn may outlive the pane.
  if (stop.stop_requested()) co_return;
  setIsWaitingForTurn(false);
  if (!hasTurn) co_return;
  if (needsReading()) readApps();
  co_await holdTurn(
      _coordinator, _desktop.clock, [this] { return !isLoading(); }, stop);
}

/// Whoever looks at the pane is not kept waiting for a turn.
void AppUninstallerModel::sectionChanged() {
  if (_navigator.section() != Section::uninstaller || isLoading()) return;
  const bool isStale = _loadedAt && _desktop.clock.now() - *_loadedAt > freshness;
  if (hasLoaded() && !isStale) return;
  setIsWaitingForTurn(false);
  readApps();
}

void AppUninstallerModel::setIsWaitingForTurn(bool isWaiting) {
  if (std::exchange(_isWaitingForTurn, isWaiting) != isWaiting) emit stateChanged();
}

void AppUninstallerModel::readApps() {
  _removedWhileReading.clear();
  _reading.start<std::monostate, std::vector<AppInfo>>(
      {.work = [&desktop = _desktop](std::stop_token,
                                     const auto&) { return UninstallerEngine(desktop).listApps(); },
       .finish = [this](std::vector<AppInfo> read) { finishReading(std::move(read)); }});
  emit stateChanged();
}

void AppUninstallerModel::finishReading(std::vector<AppInfo> read) {
  std::erase_if(read,
                [this](const AppInfo& app) { return _removedWhileReading.contains(app.appURL); });
  _appList.setApps(std::move(read));
  _loadedAt = _desktop.clock.now();
  emit stateChanged();
  _reading.showSummary(
      translate("Uninstaller", "%n apps", nullptr, plural(apps().size())).toStdString());
  setTotal();
}

void AppUninstallerModel::setTotal() {
  std::int64_t bytes = 0;
  for (const AppInfo& app : apps()) bytes = addBytes(bytes, app.appSize);
  _reading.setTotal(bytes, static_cast<std::int64_t>(apps().size()));
}

void AppUninstallerModel::open(int row) {
  const AppInfo* app = _appList.appAt(row);
  if (app == nullptr || _isUninstalling) return;
  _leftoverList.clear();
  _selectedApp = *app;
  _whyItStayed.clear();
  findResiduals(*app);
  emit levelChanged();
}

void AppUninstallerModel::findResiduals(AppInfo app) {
  struct Found {
    std::vector<ResidualFile> residuals;
    RemovalPlan plan;
  };
  _residualSearch.start<std::monostate, Found>(
      {.work =
           [&desktop = _desktop, app = std::move(app)](std::stop_token, const auto&) {
             UninstallerEngine engine(desktop);
             return Found{engine.findResiduals(app), engine.plan(app)};
           },
       .finish =
           [this](Found found) {
             _plan = std::move(found.plan);
             _leftoverList.show(std::move(found.residuals));
             emit stateChanged();
             emit selectionChanged();
           }});
  emit stateChanged();
}

void AppUninstallerModel::showAllApps() {
  if (!_selectedApp || _isUninstalling) return;
  closeDetail();
}

void AppUninstallerModel::toggleLeftover(int row) {
  if (!_isUninstalling) _leftoverList.toggle(row);
}

void AppUninstallerModel::uninstall() {
  if (canUninstall()) remove(*_selectedApp, _leftoverList.selectedResiduals());
}

QCoro::Task<> AppUninstallerModel::remove(AppInfo app, std::vector<ResidualFile> residuals) {
  _isUninstalling = true;
  emit stateChanged();

  LeftAlone leftAlone;
  UninstallerEngine engine(_desktop, &leftAlone);
  UninstallOutcome outcome;
  co_await runInBackground(_removals, [&] {
    outcome = engine.remove(app, residuals, _stop.get_token());
    return outcome.isGone;
  });
  _notice.tell(leftAlone);
  auto readAgain = [pane = QPointer(this)] {
    if (pane) pane->readAgain();
  };
  if (outcome.isGone) {
    _lastRemoval.tellUninstalled(app.name, std::move(outcome.trashed), std::move(readAgain));
  } else {
    _lastRemoval.tell(std::move(outcome.trashed), std::move(readAgain));
  }

  _isUninstalling = false;
  const bool isListed = app.kind != AppKind::bundle && !outcome.isGone;
  if (!isListed) {
    _appList.remove(app.appURL);
    if (isLoading()) _removedWhileReading.insert(app.appURL);
    if (app.kind != AppKind::bundle) setTotal();
    closeDetail();
  } else {
    // The application is still there, and so may some of its leftovers be.
    _whyItStayed = translated(outcome.whyItStayed);
    _leftoverList.clear();
    findResiduals(app);
    emit selectionChanged();
  }
  _desktop.notifications.post(diskChangedNotification);
}

/// After something of a removal was put back.
void AppUninstallerModel::readAgain() {
  readApps();
  if (_selectedApp && !_isUninstalling) findResiduals(*_selectedApp);
}

void AppUninstallerModel::closeDetail() {
  _residualSearch.cancel();
  _leftoverList.clear();
  _selectedApp.reset();
  _plan = {};
  _whyItStayed.clear();
  emit levelChanged();
  emit selectionChanged();
  emit stateChanged();
}

}  // namespace klarvik
