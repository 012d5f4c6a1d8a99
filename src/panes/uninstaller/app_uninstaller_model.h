#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoro/QCoroTask>
#include <QObject>
#include <QString>
#include <optional>
#include <set>
#include <stop_token>
#include <unordered_set>
#include <vector>

#include "panes/kit/tool_rules.h"
#include "panes/tool_pane.h"
#include "panes/uninstaller/app_list_model.h"
#include "panes/uninstaller/leftover_list_model.h"
#include "platform/platform.h"
#include "state/engine_run.h"
#include "state/scan_session.h"
#include "state/shared_state.h"
#include "tools/package_removal.h"

namespace klarvik {

/// The pane that removes applications together with what they leave behind. It has two levels: the
/// list of all applications, and one of them with its leftovers. Main thread only; everything
/// handed in must outlive it, and its destructor waits for a removal under way.
class AppUninstallerModel : public klarvik::ToolPane {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program makes it.")
  Q_PROPERTY(bool isDetail READ isDetail NOTIFY levelChanged)
  Q_PROPERTY(QString title READ title NOTIFY levelChanged)
  Q_PROPERTY(QString subtitle READ subtitle NOTIFY stateChanged)
  Q_PROPERTY(klarvik::Placeholder placeholder READ placeholder NOTIFY stateChanged)
  Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
  Q_PROPERTY(bool isUninstalling READ isUninstalling NOTIFY stateChanged)
  Q_PROPERTY(bool canUninstall READ canUninstall NOTIFY stateChanged)
  Q_PROPERTY(QString actionTitle READ actionTitle NOTIFY levelChanged)
  Q_PROPERTY(QString removalCommand READ removalCommand NOTIFY stateChanged)
  Q_PROPERTY(QString removalExplanation READ removalExplanation NOTIFY stateChanged)
  Q_PROPERTY(QString alsoRemoved READ alsoRemoved NOTIFY stateChanged)
  Q_PROPERTY(QString selectionSummary READ selectionSummary NOTIFY selectionChanged)
  Q_PROPERTY(QString selectionHint READ selectionHint NOTIFY selectionChanged)
  Q_PROPERTY(klarvik::AppListModel* appList READ appList CONSTANT)
  Q_PROPERTY(klarvik::LeftoverListModel* leftoverList READ leftoverList CONSTANT)

 public:
  AppUninstallerModel(SharedState& shared, const Desktop& desktop, QObject* parent = nullptr);
  ~AppUninstallerModel() override;

  [[nodiscard]] const std::vector<AppInfo>& apps() const { return _appList.apps(); }
  [[nodiscard]] bool isLoading() const { return _reading.isRunning(); }
  [[nodiscard]] bool hasLoaded() const { return _reading.hasScanned(); }
  [[nodiscard]] const QString& searchText() const { return _appList.searchText(); }
  void setSearchText(const QString& searchText);
  /// The application that the detail level is about.
  [[nodiscard]] const std::optional<AppInfo>& selectedApp() const { return _selectedApp; }
  [[nodiscard]] const std::vector<ResidualFile>& residuals() const {
    return _leftoverList.residuals();
  }
  [[nodiscard]] bool isFindingResiduals() const { return _residualSearch.isRunning(); }
  [[nodiscard]] const std::unordered_set<Uuid>& selectedResiduals() const {
    return _leftoverList.selected();
  }
  [[nodiscard]] bool isUninstalling() const { return _isUninstalling; }
  /// The pane is queued behind another tool.
  [[nodiscard]] bool isWaitingForTurn() const { return _isWaitingForTurn; }
  [[nodiscard]] std::optional<Date> loadedAt() const { return _loadedAt; }

  [[nodiscard]] bool isDetail() const { return _selectedApp.has_value(); }
  [[nodiscard]] QString title() const;
  [[nodiscard]] QString subtitle() const;
  [[nodiscard]] Placeholder placeholder() const;
  [[nodiscard]] bool canUninstall() const;
  /// Of the button: what becomes of the opened application.
  [[nodiscard]] QString actionTitle() const;
  /// What the user may run where Klarvik does not remove the opened application; empty for none.
  [[nodiscard]] QString removalCommand() const;
  /// Why Klarvik does not remove it; empty where it does.
  [[nodiscard]] QString removalExplanation() const;
  [[nodiscard]] QString alsoRemoved() const;
  [[nodiscard]] QString selectionSummary() const;
  [[nodiscard]] QString selectionHint() const;
  [[nodiscard]] AppListModel* appList() { return &_appList; }
  [[nodiscard]] LeftoverListModel* leftoverList() { return &_leftoverList; }

  /// Reads the applications when the turn of this tool comes.
  void appear() override { readInTurn(); }
  /// A removal cannot be stopped.
  void stopRemovals() override { _stop.request_stop(); }
  void finishRemovals() override { _removals.finish(); }

  /// Opens the application of a row of the list.
  Q_INVOKABLE void open(int row);
  /// Back to the list.
  Q_INVOKABLE void showAllApps();
  Q_INVOKABLE void toggleLeftover(int row);
  /// Removes the opened application and its selected leftovers.
  Q_INVOKABLE void uninstall();

 signals:
  void levelChanged();
  void stateChanged();
  void searchTextChanged();
  void selectionChanged();

 private:
  [[nodiscard]] Placeholder listPlaceholder() const;
  [[nodiscard]] Placeholder detailPlaceholder() const;
  [[nodiscard]] bool needsReading() const { return !hasLoaded() && !isLoading(); }
  QCoro::Task<> readInTurn();
  void sectionChanged();
  void setIsWaitingForTurn(bool isWaiting);
  void readApps();
  void finishReading(std::vector<AppInfo> read);
  void findResiduals(AppInfo app);
  QCoro::Task<> remove(AppInfo app, std::vector<ResidualFile> residuals);
  [[nodiscard]] bool appGoes() const;
  void readAgain();
  void setTotal();
  void closeDetail();

  ScanCoordinator& _coordinator;
  Navigator& _navigator;
  RemovalNotice& _notice;
  LastRemoval& _lastRemoval;
  const Desktop& _desktop;

  AppListModel _appList;
  LeftoverListModel _leftoverList;
  std::optional<AppInfo> _selectedApp;
  RemovalPlan _plan;       ///< of that application
  QString _whyItStayed{};  ///< after a removal that failed
  bool _isUninstalling = false;
  bool _isWaitingForTurn = false;
  std::optional<Date> _loadedAt;

  std::set<Path> _removedWhileReading;  ///< which the reading may have seen before
  ScanSession _reading;
  EngineRun _residualSearch;
  std::stop_source _stop;  ///< at the end of the program
  BackgroundTasks _removals;
};

}  // namespace klarvik
