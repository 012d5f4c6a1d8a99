#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <optional>

#include "panes/kit/stored_switch.h"
#include "platform/platform.h"
#include "state/permissions_manager.h"
#include "state/timers.h"

namespace klarvik {

/// The first run: its pages, and no way back. Nothing of it is kept before its end. Main thread
/// only; everything handed in must outlive it.
class OnboardingModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program makes it.")
  Q_PROPERTY(int step READ step NOTIFY stepChanged)
  Q_PROPERTY(int stepCount READ stepCount CONSTANT)
  Q_PROPERTY(bool isLastStep READ isLastStep NOTIFY stepChanged)
  Q_PROPERTY(bool isGranted READ isGranted NOTIFY isGrantedChanged)
  Q_PROPERTY(QString buttonTitle READ buttonTitle NOTIFY buttonTitleChanged)
  Q_PROPERTY(klarvik::StoredSwitch* showMenuBar READ showMenuBar CONSTANT)

 public:
  OnboardingModel(PermissionsManager& permissions, const Desktop& desktop,
                  QObject* parent = nullptr);

  [[nodiscard]] int step() const { return _step; }
  /// One less where there is no permission to ask for.
  [[nodiscard]] int stepCount() const { return _stepCount; }
  [[nodiscard]] bool isLastStep() const { return _step == _stepCount - 1; }
  [[nodiscard]] bool isGranted() const { return _permissions.hasFullDiskAccess(); }
  [[nodiscard]] QString buttonTitle() const;
  [[nodiscard]] StoredSwitch* showMenuBar() { return &_showMenuBar; }

  /// The main button.
  Q_INVOKABLE void proceed();
  /// Ends the first run without a scan; on the last page only.
  Q_INVOKABLE void later();
  Q_INVOKABLE void openSettings();
  Q_INVOKABLE void reopen();

 signals:
  void stepChanged();
  void isGrantedChanged();
  void buttonTitleChanged();
  /// The first run is over, once; `scans` says whether the user wants to scan now.
  void finished(bool scans);

 private:
  void goOn();
  /// While the page of the permission is shown, as it says.
  void followPermission();
  void finish(bool scans);

  PermissionsManager& _permissions;
  UserDefaults& _defaults;
  const int _stepCount;
  int _step = 0;
  bool _isFinished = false;
  StoredSwitch _showMenuBar;
  Clock& _clock;
  std::optional<RepeatingTimer> _looks;
};

}  // namespace klarvik
