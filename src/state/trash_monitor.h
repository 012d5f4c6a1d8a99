#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <cstdint>
#include <optional>

#include "engine/scanner_engine.h"
#include "platform/platform.h"

namespace klarvik {

/// What the user's Trash holds, and how to empty it. Main thread only.
class TrashMonitor : public QObject {
  Q_OBJECT
 public:
  [[nodiscard]] static TrashMonitor& shared();

  explicit TrashMonitor(const Desktop& desktop, QObject* parent = nullptr);

  [[nodiscard]] std::int64_t bytes() const { return _bytes; }
  [[nodiscard]] std::int64_t itemCount() const { return _itemCount; }
  [[nodiscard]] bool isEmptying() const { return _isEmptying; }
  [[nodiscard]] const std::optional<DeletionProgress>& emptyProgress() const {
    return _emptyProgress;
  }
  [[nodiscard]] bool isReadable() const { return _isReadable; }
  [[nodiscard]] bool isMeasuring() const { return _isMeasuring; }

  void refresh(bool force);
  /// Bytes reclaimed; 0 at once while an emptying is under way.
  QCoro::Task<std::int64_t> emptyTrash();

 signals:
  void changed();

 private:
  const Desktop& _desktop;
  std::int64_t _bytes = 0;
  std::int64_t _itemCount = 0;
  bool _isEmptying = false;
  std::optional<DeletionProgress> _emptyProgress;
  bool _isReadable = true;
  bool _isMeasuring = false;
};

}  // namespace klarvik
