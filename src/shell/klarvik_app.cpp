#include "shell/klarvik_app.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <algorithm>
#include <utility>

#include "shell/menu_bar/menu_bar_popover.h"
#include "shell/menu_bar/window_activation.h"

#include "translation/translation.h"

namespace klarvik {

namespace {

const WindowFrame settingsFrame = WindowFrame::fixed({600, 420});
/// Its height follows what it has to say, once it is on the screen.
const WindowFrame updateFrame{{460, 0}, {460, 160}, {460, WindowFrame::unbounded.height()}};

}  // namespace

KlarvikApp::KlarvikApp(const Desktop& desktop, SharedState& shared, LoginItem& loginItem,
                       QObject* parent)
    : QObject(parent),
      _desktop(desktop),
      _shared(shared),
      _loginItem(loginItem),
      _onboardingComplete(desktop.defaults.boolean("onboarding_complete", false)),
      _commands(commands()),
      _onboarding(shared.permissionsManager(), desktop),
      _mainWindow(_onboarding, _commands),
      _updateWindow(desktop),
      _windows(desktop),
      _menuBar(desktop, shared.trashMonitor(),
               [this] { return std::make_unique<QuickPopover>(_windows.engine(), _desktop); }) {
  removeLeftoverKeys();
  connect(&_onboarding, &OnboardingModel::finished, this, &KlarvikApp::finishOnboarding);
  connect(&_updateWindow, &UpdateWindowModel::isShownChanged, this, &KlarvikApp::showUpdates);
  connect(&_updateWindow, &UpdateWindowModel::isAskedFor, this,
          [this] { openWindow(updateWindowId); });
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive) {
              _desktop.notifications.post(applicationActiveNotification);
            }
          });
}

KlarvikApp::~KlarvikApp() {
  MenuBarController::openWindowHandler = nullptr;
  _stop.request_stop();
}

AppState& KlarvikApp::appState() {
  if (!_appState) {
    _appState =
        std::make_unique<AppState>(_desktop, _shared.toolActivity(), _shared.scanCoordinator(),
                                   _shared.scanHistory(), _shared.removalNotice());
  }
  return *_appState;
}

/// Two keys that a former feature has left behind.
void KlarvikApp::removeLeftoverKeys() {
  _desktop.defaults.remove("clean_schedule");
  _desktop.defaults.remove("last_auto_clean");
}

std::vector<AppCommand> KlarvikApp::commands() {
  return {
      {translate("Shell", "Check for Updates…"), "",
       [this] { _shared.updateManager().checkForUpdates(); }},
      settingsWindowButton([this] { openWindow(settingsWindowId); }),
      {translate("Kit", "Quit"), "Ctrl+Q", [] { QCoreApplication::quit(); }},
  };
}

bool KlarvikApp::openWindow(const QString& id) {
  QQuickWindow* window = _windows.find(id);
  if (window == nullptr && id == mainWindowId) window = makeMainWindow();
  if (window == nullptr && id == settingsWindowId) window = makeSettingsWindow();
  if (window == nullptr && id == updateWindowId) window = makeUpdateWindow();
  if (window == nullptr) return false;
  bringToFront(*window);
  return true;
}

QQuickWindow* KlarvikApp::makeMainWindow() {
  if (_onboardingComplete) makeShell();
  QQuickWindow* const window =
      _windows.make(mainWindowId, QUrl("qrc:/Klarvik/Shell/MainWindow.qml"),
                    {{"model", QVariant::fromValue(&_mainWindow)}}, _mainWindow.frame());
  if (window != nullptr) launchOnceShown(*window);
  return window;
}

/// Scans, the tray and the updater would compete with the first picture. A window that starts
/// hidden may have none for long.
void KlarvikApp::launchOnceShown(QQuickWindow& window) {
  connect(&window, &QQuickWindow::frameSwapped, this, &KlarvikApp::launch,
          static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
  _latestLaunch = _desktop.clock.wakeAfter(std::chrono::seconds(1), [this] { launch(); });
}

/// Made anew each time it is opened, so that it begins on its first tab and with what holds then.
QQuickWindow* KlarvikApp::makeSettingsWindow() {
  _settings = std::make_unique<SettingsModel>(settingsTabs());
  QQuickWindow* const window =
      _windows.make(settingsWindowId, QUrl("qrc:/Klarvik/Shell/SettingsWindow.qml"),
                    {{"model", QVariant::fromValue(_settings.get())}}, settingsFrame);
  if (window != nullptr) {
    connect(window, &QWindow::visibleChanged, this, &KlarvikApp::discardClosedSettings,
            Qt::QueuedConnection);
  }
  return window;
}

void KlarvikApp::discardClosedSettings() {
  const QQuickWindow* const settings = window(settingsWindowId);
  if (settings != nullptr && !settings->isVisible()) _windows.discard(settingsWindowId);
}

QQuickWindow* KlarvikApp::makeUpdateWindow() {
  return _windows.make(updateWindowId, QUrl("qrc:/Klarvik/Shell/UpdateWindow.qml"),
                       {{"model", QVariant::fromValue(&_updateWindow)}}, updateFrame);
}

/// Without taking the keyboard from whatever the user is doing: nobody may have asked.
void KlarvikApp::showUpdates() {
  QQuickWindow* window = _windows.find(updateWindowId);
  if (window == nullptr && _updateWindow.isShown()) window = makeUpdateWindow();
  if (window != nullptr) window->setVisible(_updateWindow.isShown());
  // It may have outlived all other windows, and Qt ends no program for one that is only hidden.
  const bool isLast = !_updateWindow.isShown() && !hasOpenWindow();
  if (isLast && QGuiApplication::quitOnLastWindowClosed()) QCoreApplication::quit();
}

std::vector<SettingsTab> KlarvikApp::settingsTabs() {
  _generalSettings =
      std::make_unique<GeneralSettingsModel>(_shared.permissionsManager(), _loginItem, _desktop);
  _updateSettings = std::make_unique<UpdateSettingsModel>(_shared.updateManager(), _desktop);
  return {{translate("Settings", "General"), QUrl("qrc:/Klarvik/Shell/GeneralSettingsSection.qml"),
           _generalSettings.get()},
          {translate("Settings", "Updates"), QUrl("qrc:/Klarvik/Shell/UpdateSettingsView.qml"),
           _updateSettings.get()}};
}

/// What happens unasked, once the main window is on the screen for the first time.
void KlarvikApp::launch() {
  if (std::exchange(_isLaunched, true)) return;
  readViews();
  MenuBarController::openWindowHandler = [this](const QString& id) { openWindow(id); };
  _menuBar.setup(appState());
  _shared.updateManager();
  if (!_onboardingComplete) return;
  _shell->access()->askOnce();
  appState().autoScanIfNeeded(_stop.get_token());
  letPanesAppear();
}

/// Each is made when its pane is first looked at; by then it is compiled.
void KlarvikApp::readViews() {
  for (const PaneEntry& pane : _panes) {
    _views.push_back(std::make_unique<QQmlComponent>(&_windows.engine(), pane.view,
                                                     QQmlComponent::Asynchronous));
  }
}

/// A user who puts the first scan off has nothing scanned at all before the next start.
void KlarvikApp::finishOnboarding(bool scans) {
  _onboardingComplete = true;
  makeShell();
  readViews();
  fit(*window(mainWindowId), _mainWindow.frame());
  if (!scans) return;
  appState().startScan();
  letPanesAppear();
}

void KlarvikApp::makeShell() {
  _panes = makePanes(appState(), _shared, _desktop);
  _shell = std::make_unique<AppShellModel>(_panes, appState(), _shared, _commands, _desktop);
  connect(_shell.get(), &AppShellModel::settingsAsked, this,
          [this] { openWindow(settingsWindowId); });
  _mainWindow.setShell(*_shell);
}

/// In the order of their turns, since whoever asks first while nobody has it is given the turn.
void KlarvikApp::letPanesAppear() {
  std::vector<PaneEntry> inTurn = _panes;
  std::ranges::sort(inTurn, {}, [](const PaneEntry& pane) { return tool(pane.section).turn; });
  for (const PaneEntry& pane : inTurn) pane.model->appear();
}

/// All are stopped before one is waited for: else the others would go on removing meanwhile.
void KlarvikApp::finishRemovals() {
  appState().stopRemovals();
  _shared.trashMonitor().stopEmptying();
  for (const PaneEntry& pane : _panes) pane.model->stopRemovals();
  appState().finishRemovals();
  for (const PaneEntry& pane : _panes) pane.model->finishRemovals();
  _shared.trashMonitor().finishEmptying();
}

}  // namespace klarvik
