#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "platform/platform.h"
#include "state/permissions_manager.h"
#include "state/trash_monitor.h"

namespace klarvik {

struct DiskLayout;

/// What the Trash holds, and how to look into it or empty it. Main thread only.
class TrashBlockModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The shell makes it.")
  Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
  Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
  Q_PROPERTY(Control control READ control NOTIFY changed)
  Q_PROPERTY(QString controlTitle READ controlTitle NOTIFY changed)
  Q_PROPERTY(QString controlHelp READ controlHelp NOTIFY changed)
  Q_PROPERTY(bool isConfirming READ isConfirming NOTIFY isConfirmingChanged)
  Q_PROPERTY(QString confirmationMessage READ confirmationMessage NOTIFY changed)

 public:
  enum class Control { None, Progress, Grant, Empty };
  Q_ENUM(Control)

  TrashBlockModel(TrashMonitor& monitor, PermissionsManager& permissions, const Desktop& desktop,
                  QObject* parent = nullptr);

  [[nodiscard]] QString symbol() const;
  [[nodiscard]] QString subtitle() const;
  [[nodiscard]] Control control() const;
  /// Empty when the control is no button.
  [[nodiscard]] QString controlTitle() const;
  [[nodiscard]] QString controlHelp() const;
  /// The confirmation is up.
  [[nodiscard]] bool isConfirming() const { return _isConfirming; }
  [[nodiscard]] QString confirmationMessage() const;

  /// Shows the Trash in the file manager.
  Q_INVOKABLE void open();
  Q_INVOKABLE void pressControl();
  Q_INVOKABLE void confirmEmpty();
  Q_INVOKABLE void cancelConfirmation();

 signals:
  void changed();
  void isConfirmingChanged();

 private:
  [[nodiscard]] const DiskLayout& layout() const;
  void setConfirming(bool confirming);

  TrashMonitor& _monitor;
  PermissionsManager& _permissions;
  const Desktop& _desktop;
  bool _isConfirming = false;
};

}  // namespace klarvik
