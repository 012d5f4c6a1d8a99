#include "shell/klarvik_app.h"

#include <QGuiApplication>

namespace klarvik {

namespace {

/// A pane as the window shows it, with what it starts and finishes by itself, where it does.
template <typename Pane>
LandedPane landed(Section section, const QString& view, Pane& pane) {
  LandedPane landed{section, QUrl("qrc:/Klarvik/" + view), &pane};
  if constexpr (requires { pane.appear(); }) {
    landed.appear = [&pane] { pane.appear(); };
  }
  if constexpr (requires { pane.finishRemovals(); }) {
    landed.finishRemovals = [&pane] { pane.finishRemovals(); };
  }
  return landed;
}

}  // namespace

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
  _duplicatesPane = std::make_unique<DuplicateFinderView>(
      DuplicateFinderView::Sources{_shared.scanCoordinator(), _shared.toolActivity(),
                                   _shared.permissionsManager()},
      _desktop);
  _largeFilesPane = std::make_unique<LargeFileFinderView>(
      LargeFileFinderView::Sources{_shared.scanCoordinator(), _shared.toolActivity(),
                                   _shared.permissionsManager()},
      _desktop);
  _systemDataPane = std::make_unique<SystemDataView>(
      SystemDataView::Sources{_shared.scanCoordinator(), _shared.toolActivity(),
                              _shared.permissionsManager(), _shared.trashMonitor()},
      _desktop);
  _uninstallerPane = std::make_unique<AppUninstallerView>(
      AppUninstallerView::Sources{_shared.scanCoordinator(), _shared.toolActivity(),
                                  _shared.navigator()},
      _desktop);
  _privacyPane = std::make_unique<PrivacyCleanerView>(
      PrivacyCleanerView::Sources{_shared.scanCoordinator(), _shared.toolActivity()}, _desktop);
  return {
      landed(Section::smartScan, "SmartScan/SmartScanPane.qml", *_smartScanPane),
      landed(Section::storage, "Storage/StorageAnalyticsView.qml", *_storagePane),
      landed(Section::duplicates, "Duplicates/DuplicateFinderView.qml", *_duplicatesPane),
      landed(Section::largeFiles, "LargeFiles/LargeFileFinderView.qml", *_largeFilesPane),
      landed(Section::systemData, "SystemData/SystemDataView.qml", *_systemDataPane),
      landed(Section::uninstaller, "Uninstaller/AppUninstallerView.qml", *_uninstallerPane),
      landed(Section::privacy, "Privacy/PrivacyCleanerView.qml", *_privacyPane),
  };
}

QCoro::Task<> KlarvikApp::launch() {
  _shell->access()->askOnce();
  co_await appState().autoScanIfNeeded(_stop.get_token());
}

}  // namespace klarvik
