#pragma once

#include <QObject>
#include <cstdint>

#include "platform/platform.h"

namespace klarvik {

struct DiskStats {
  std::int64_t totalBytes = 0;
  std::int64_t usedBytes = 0;
  std::int64_t freeBytes = 0;
  bool operator==(const DiskStats&) const = default;
};

/// How full the volume is. Reads every 5 seconds, when the application becomes active, and several
/// times after "klarvik.diskChanged". Main thread only.
class DiskMonitor : public QObject {
  Q_OBJECT
 public:
  [[nodiscard]] static DiskMonitor& shared();

  explicit DiskMonitor(const Desktop& desktop, QObject* parent = nullptr);

  [[nodiscard]] const DiskStats& stats() const { return _stats; }
  void refreshNow();

 signals:
  void statsChanged();

 private:
  void diskChanged();

  const Desktop& _desktop;
  DiskStats _stats;
};

}  // namespace klarvik
