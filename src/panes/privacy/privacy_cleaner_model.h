#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoro/QCoroTask>
#include <QObject>
#include <QString>
#include <optional>
#include <unordered_set>
#include <vector>

#include "panes/kit/tool_rules.h"
#include "panes/privacy/trail_list_model.h"
#include "panes/tool_pane.h"
#include "platform/main_loop/background_tasks.h"
#include "platform/platform.h"
#include "state/scan_session.h"
#include "state/shared_state.h"
#include "tools/privacy_scanner.h"

namespace klarvik {

/// The pane that shows the trails of use, tells for each what clearing costs,
/// and clears those selected. Main thread only; everything handed in must
/// outlive it, and its destructor waits for a clearing under way.
class PrivacyCleanerModel : public klarvik::ToolPane {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program makes it.")
  Q_PROPERTY(QString subtitle READ subtitle NOTIFY stateChanged)
  Q_PROPERTY(klarvik::Placeholder placeholder READ placeholder NOTIFY stateChanged)
  Q_PROPERTY(bool isScanning READ isScanning NOTIFY stateChanged)
  Q_PROPERTY(bool isCleaning READ isCleaning NOTIFY stateChanged)
  Q_PROPERTY(QString selectionSummary READ selectionSummary NOTIFY selectionChanged)
  Q_PROPERTY(QString selectionHint READ selectionHint NOTIFY selectionChanged)
  Q_PROPERTY(QString clearTitle READ clearTitle NOTIFY selectionChanged)
  Q_PROPERTY(bool canClear READ canClear NOTIFY selectionChanged)
  Q_PROPERTY(bool asksToSignOut READ asksToSignOut NOTIFY asksToSignOutChanged)
  Q_PROPERTY(QString signOutQuestion READ signOutQuestion NOTIFY asksToSignOutChanged)
  Q_PROPERTY(klarvik::TrailListModel* trailList READ trailList CONSTANT)

 public:
  PrivacyCleanerModel(SharedState& shared, const Desktop& desktop, QObject* parent = nullptr);
  ~PrivacyCleanerModel() override;

  [[nodiscard]] const std::vector<PrivacyItem>& items() const { return _trailList.items(); }
  [[nodiscard]] const std::unordered_set<Uuid>& selected() const { return _trailList.selected(); }
  [[nodiscard]] bool isScanning() const { return _scan.isRunning(); }
  [[nodiscard]] bool hasScanned() const { return _scan.hasScanned(); }
  /// A share of 1.
  [[nodiscard]] double progress() const { return _progress; }
  [[nodiscard]] const QString& currentTask() const { return _currentTask; }
  [[nodiscard]] bool isCleaning() const { return _isCleaning; }
  /// What the last clearing did, until the next scan.
  [[nodiscard]] const std::optional<PrivacyClearance>& lastResult() const { return _lastResult; }

  [[nodiscard]] QString subtitle() const;
  [[nodiscard]] Placeholder placeholder() const;
  [[nodiscard]] bool hasItems() const { return !items().empty(); }
  [[nodiscard]] QString selectionSummary() const;
  [[nodiscard]] QString selectionHint() const;
  [[nodiscard]] QString clearTitle() const;
  [[nodiscard]] bool canClear() const;
  /// Whether the user is being asked about the trails without which sites forget who they are.
  [[nodiscard]] bool asksToSignOut() const { return _asksToSignOut; }
  [[nodiscard]] QString signOutQuestion() const;
  [[nodiscard]] TrailListModel* trailList() { return &_trailList; }

  /// Scans when the turn of this tool comes.
  void appear() override;
  /// A clearing cannot be stopped.
  void finishRemovals() override { _clearings.finish(); }

  /// The header's main button: stops a running scan, else starts one.
  Q_INVOKABLE void performAction();
  Q_INVOKABLE void toggle(int row);
  /// Clears what is selected; asks first where that signs the user out.
  Q_INVOKABLE void clear();
  /// The answers to that question.
  Q_INVOKABLE void clearAndSignOut();
  Q_INVOKABLE void staySignedIn();

 signals:
  void stateChanged();
  void selectionChanged();
  void asksToSignOutChanged();

 private:
  struct Report {
    double fraction = 0;
    QString line;
  };

  void startScan();
  void cancelScan();
  void showReport(const Report& report);
  void finishScan(std::vector<PrivacyItem> found);
  [[nodiscard]] std::vector<PrivacyItem> selectedThatSignOut() const;
  void askToSignOut(bool asks);
  QCoro::Task<> clearItems(std::vector<PrivacyItem> items);

  RemovalNotice& _notice;
  const Desktop& _desktop;

  TrailListModel _trailList;
  double _progress = 0;
  QString _currentTask;
  bool _isCleaning = false;
  bool _asksToSignOut = false;
  std::optional<PrivacyClearance> _lastResult;

  ScanSession _scan;
  BackgroundTasks _clearings;
};

}  // namespace klarvik
