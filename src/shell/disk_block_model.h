#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "platform/platform.h"
#include "state/disk_monitor.h"

namespace klarvik {

/// How full the disk is, as the sidebar says it. Main thread only.
class DiskBlockModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The shell makes it.")
  Q_PROPERTY(QString volumeName READ volumeName NOTIFY changed)
  Q_PROPERTY(QString percentFull READ percentFull NOTIFY changed)
  Q_PROPERTY(double usedFraction READ usedFraction NOTIFY changed)
  Q_PROPERTY(bool isNearlyFull READ isNearlyFull NOTIFY changed)
  Q_PROPERTY(QString freeLine READ freeLine NOTIFY changed)

 public:
  DiskBlockModel(const DiskMonitor& monitor, const Platform& platform, QObject* parent = nullptr);

  /// The layout's word for it when the volume has no name or it cannot be read.
  [[nodiscard]] QString volumeName() const;
  [[nodiscard]] QString percentFull() const;
  [[nodiscard]] double usedFraction() const;
  [[nodiscard]] bool isNearlyFull() const;
  [[nodiscard]] QString freeLine() const;

 signals:
  void changed();

 private:
  const DiskMonitor& _monitor;
  const Platform& _platform;
};

}  // namespace klarvik
