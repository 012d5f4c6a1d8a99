#include "shell/klarvik_app.h"

#include <QGuiApplication>

namespace klarvik {

KlarvikApp::KlarvikApp(const Desktop& desktop, SharedState& shared, QObject* parent)
    : QObject(parent), _desktop(desktop), _shared(shared) {
  removeLeftoverKeys();
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive) {
              _desktop.notifications.post(applicationActiveNotification);
            }
          });
}

KlarvikApp::~KlarvikApp() {
  _stop.request_stop();
}

AppState& KlarvikApp::appState() {
  if (!_appState) {
    _appState = std::make_unique<AppState>(_desktop, _shared.toolActivity(),
                                           _shared.scanCoordinator(), _shared.scanHistory());
  }
  return *_appState;
}

bool KlarvikApp::openMainWindow() {
  _panes = landedPanes();
  _shell = std::make_unique<AppShell>(_panes, appState(), _shared, _desktop);
  _window = MainWindow::open(*_shell, _desktop);
  if (!_window) {
    return false;
  }
  QMetaObject::invokeMethod(
      this,
      [this] {
        launch();
        for (const LandedPane& pane : _panes) {
          if (pane.appear) {
            pane.appear();
          }
        }
      },
      Qt::QueuedConnection);
  return true;
}

void KlarvikApp::finishRemovals() {
  appState().finishRemovals();
  for (const LandedPane& pane : _panes) {
    if (pane.finishRemovals) {
      pane.finishRemovals();
    }
  }
  _shared.trashMonitor().finishEmptying();
}

QQuickWindow* KlarvikApp::mainWindow() const {
  return _window ? _window->window() : nullptr;
}

/// Two keys that a former feature has left behind.
void KlarvikApp::removeLeftoverKeys() {
  _desktop.defaults.remove("clean_schedule");
  _desktop.defaults.remove("last_auto_clean");
}

std::vector<LandedPane> KlarvikApp::landedPanes() {
  _smartScanPane = std::make_unique<SmartScanPane>(
      SmartScanPane::Sources{appState(), _shared.diskMonitor(), _shared.trashMonitor(),
                             _shared.scanCoordinator(), _shared.toolActivity(),
                             _shared.navigator()},
      _desktop);
  _storagePane = std::make_unique<StorageAnalyticsView>(
      StorageAnalyticsView::Sources{_shared.scanHistory(), _shared.diskMonitor(),
                                    _shared.permissionsManager()},
      _desktop);
  _systemDataPane = std::make_unique<SystemDataView>(
      SystemDataView::Sources{_shared.scanCoordinator(), _shared.toolActivity(),
                              _shared.permissionsManager(), _shared.trashMonitor()},
      _desktop);
  return {
      {Section::smartScan, QUrl("qrc:/Klarvik/SmartScan/SmartScanPane.qml"), _smartScanPane.get()},
      {Section::storage, QUrl("qrc:/Klarvik/Storage/StorageAnalyticsView.qml"), _storagePane.get()},
      {.section = Section::systemData,
       .view = QUrl("qrc:/Klarvik/SystemData/SystemDataView.qml"),
       .model = _systemDataPane.get(),
       .finishRemovals = [pane = _systemDataPane.get()] { pane->finishRemovals(); }}};
}

QCoro::Task<> KlarvikApp::launch() {
  _shell->access()->askOnce();
  co_await appState().autoScanIfNeeded(_stop.get_token());
}

}  // namespace klarvik
