#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>

#include "platform/platform.h"
#include "state/timers.h"
#include "state/update_manager.h"

namespace klarvik {

/// The Updates page of the settings. Main thread only; everything handed in must outlive it.
class UpdateSettingsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The settings make it.")
  Q_PROPERTY(QString version READ version CONSTANT)
  Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
  Q_PROPERTY(QColor symbolColor READ symbolColor NOTIFY changed)
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString detail READ detail NOTIFY changed)
  Q_PROPERTY(QString buttonTitle READ buttonTitle NOTIFY changed)
  Q_PROPERTY(bool isChecking READ isChecking NOTIFY changed)
  Q_PROPERTY(bool autoCheck READ autoCheck NOTIFY autoCheckChanged)
  Q_PROPERTY(bool hasReleaseNotes READ hasReleaseNotes CONSTANT)

 public:
  UpdateSettingsModel(UpdateManager& updateManager, const Desktop& desktop,
                      QObject* parent = nullptr);

  [[nodiscard]] QString version() const;
  [[nodiscard]] QString symbol() const;
  [[nodiscard]] QColor symbolColor() const;
  [[nodiscard]] QString title() const;
  [[nodiscard]] QString detail() const;
  [[nodiscard]] QString buttonTitle() const;
  [[nodiscard]] bool isChecking() const;
  [[nodiscard]] bool autoCheck() const { return _autoCheck; }
  /// Whether there is a website that has them.
  [[nodiscard]] bool hasReleaseNotes() const;

  Q_INVOKABLE void checkForUpdates();
  /// Writes through at once; a change that cannot be kept snaps back.
  Q_INVOKABLE void toggleAutoCheck();
  Q_INVOKABLE void openReleaseNotes();

 signals:
  void changed();
  void autoCheckChanged();

 private:
  UpdateManager& _updateManager;
  const Desktop& _desktop;
  bool _autoCheck;
  RepeatingTimer _timePasses;
};

}  // namespace klarvik
