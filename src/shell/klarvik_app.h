#pragma once

#include <QObject>
#include <memory>
#include <stop_token>
#include <vector>

#include "platform/desktop_services.h"
#include "platform/platform.h"
#include "shell/app_commands_model.h"
#include "shell/app_shell_model.h"
#include "shell/main_window_model.h"
#include "shell/menu_bar/menu_bar_controller.h"
#include "shell/onboarding/onboarding_model.h"
#include "shell/settings/general_settings_model.h"
#include "shell/settings/settings_model.h"
#include "shell/tool_panes.h"
#include "shell/updates/update_settings_model.h"
#include "shell/updates/update_window_model.h"
#include "shell/windows.h"
#include "state/app_state.h"
#include "state/shared_state.h"

class QQmlComponent;

namespace klarvik {

/// The program: owns the one `AppState` and the windows, and runs what happens unasked after a
/// start. Nothing is scanned before the first run is through. Main thread only; made once, after
/// everything that is handed in.
class KlarvikApp : public QObject {
  Q_OBJECT
 public:
  KlarvikApp(const Desktop& desktop, SharedState& shared, LoginItem& loginItem,
             QObject* parent = nullptr);
  ~KlarvikApp() override;

  /// Made at first use, and kept for the life of the process.
  [[nodiscard]] AppState& appState();
  /// Whether the first run is finished.
  [[nodiscard]] bool onboardingComplete() const { return _onboardingComplete; }

  /// Shows the window of that identifier (windows.h) in front of all others, making it where it is
  /// not there. The launch task runs once the main window is on the screen for the first time.
  /// False when it cannot be drawn, and for any other identifier.
  bool openWindow(const QString& id);
  /// Nothing until it has been opened. The main window is kept when it is closed.
  [[nodiscard]] QQuickWindow* window(const QString& id) const { return _windows.find(id); }
  /// For the end of the program: no further item is removed, and those in hand are finished and put
  /// on record. Nothing may be started afterwards.
  void finishRemovals();

 private:
  void removeLeftoverKeys();
  [[nodiscard]] std::vector<AppCommand> commands();
  QQuickWindow* makeMainWindow();
  QQuickWindow* makeSettingsWindow();
  void discardClosedSettings();
  QQuickWindow* makeUpdateWindow();
  void showUpdates();
  [[nodiscard]] std::vector<SettingsTab> settingsTabs();

  void launchOnceShown(QQuickWindow& window);
  void launch();
  void finishOnboarding(bool scans);
  void makeShell();
  void readViews();
  void letPanesAppear();

  const Desktop& _desktop;
  SharedState& _shared;
  LoginItem& _loginItem;
  std::stop_source _stop;
  std::unique_ptr<AppState> _appState;
  bool _onboardingComplete;
  std::vector<PaneEntry> _panes;  ///< none before the first run is through
  AppCommandsModel _commands;
  OnboardingModel _onboarding;
  std::unique_ptr<AppShellModel> _shell;
  MainWindowModel _mainWindow;
  std::unique_ptr<GeneralSettingsModel> _generalSettings;
  std::unique_ptr<UpdateSettingsModel> _updateSettings;
  std::unique_ptr<SettingsModel> _settings;
  UpdateWindowModel _updateWindow;
  Windows _windows;
  std::vector<std::unique_ptr<QQmlComponent>> _views;  ///< keep the panes' types
  MenuBarController _menuBar;
  QuitPolicy _backgroundLife{_menuBar};
  bool _isLaunched = false;
  std::unique_ptr<Clock::Alarm> _latestLaunch;
};

}  // namespace klarvik
