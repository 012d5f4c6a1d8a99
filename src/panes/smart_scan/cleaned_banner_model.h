#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoro/QCoroTask>
#include <QObject>
#include <QString>

#include "state/app_state.h"
#include "state/disk_monitor.h"
#include "state/trash_monitor.h"

namespace klarvik {

class Formatting;

/// The result of the last clean, and the way back from it. Main thread only.
class CleanedBannerModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
  Q_PROPERTY(QString headline READ headline NOTIFY changed)
  Q_PROPERTY(QString detail READ detail NOTIFY changed)
  Q_PROPERTY(bool isRestorable READ isRestorable NOTIFY changed)
  Q_PROPERTY(bool isRestoring READ isRestoring NOTIFY changed)

 public:
  CleanedBannerModel(AppState& appState, DiskMonitor& diskMonitor, TrashMonitor& trashMonitor,
                     const Formatting& formatting, QObject* parent = nullptr);

  [[nodiscard]] bool isShown() const;
  [[nodiscard]] QString headline() const;
  [[nodiscard]] QString detail() const;
  [[nodiscard]] bool isRestorable() const;
  [[nodiscard]] bool isRestoring() const { return _isRestoring; }

  Q_INVOKABLE void emptyTrash();
  Q_INVOKABLE void restore();
  Q_INVOKABLE void dismiss();

 signals:
  void changed();

 private:
  QCoro::Task<> restoreLastClean();
  void setRestoring(bool restoring);
  [[nodiscard]] bool tellsApart() const;
  [[nodiscard]] const AppState::CleanSummary& summary() const;

  AppState& _appState;
  DiskMonitor& _diskMonitor;
  TrashMonitor& _trashMonitor;
  const Formatting& _formatting;
  bool _isRestoring = false;
};

}  // namespace klarvik
