#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <memory>
#include <stop_token>
#include <vector>

#include "panes/smart_scan/smart_scan_pane.h"
#include "panes/storage/storage_analytics_view.h"
#include "panes/system_data/system_data_view.h"
#include "platform/platform.h"
#include "shell/app_shell.h"
#include "shell/main_window.h"
#include "state/app_state.h"
#include "state/shared_state.h"

namespace klarvik {

/// The program: owns the one `AppState` and the main window, and runs what happens unasked after a
/// start. Main thread only; made once, after everything that is handed in.
class KlarvikApp : public QObject {
  Q_OBJECT
 public:
  KlarvikApp(const Desktop& desktop, SharedState& shared, QObject* parent = nullptr);
  ~KlarvikApp() override;

  /// Made at first use, and kept for the life of the process.
  [[nodiscard]] AppState& appState();

  /// Shows the main window; the launch task runs once it is on the screen. False when it cannot be
  /// drawn.
  bool openMainWindow();
  /// Nothing until it has been opened.
  [[nodiscard]] QQuickWindow* mainWindow() const;
  /// For the end of the program: no further item is removed, and those in hand are finished and put
  /// on record. Nothing may be started afterwards.
  void finishRemovals();

 private:
  void removeLeftoverKeys();
  [[nodiscard]] std::vector<LandedPane> landedPanes();
  QCoro::Task<> launch();

  const Desktop& _desktop;
  SharedState& _shared;
  std::stop_source _stop;
  std::unique_ptr<AppState> _appState;
  std::unique_ptr<SmartScanPane> _smartScanPane;
  std::unique_ptr<StorageAnalyticsView> _storagePane;
  std::unique_ptr<SystemDataView> _systemDataPane;
  std::vector<LandedPane> _panes;  ///< in section order
  std::unique_ptr<AppShell> _shell;
  std::unique_ptr<MainWindow> _window;
};

}  // namespace klarvik
