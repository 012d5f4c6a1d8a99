#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <cstdint>
#include <optional>
#include <stop_token>
#include <vector>

#include "engine/scanner_engine.h"
#include "platform/main_loop/background_tasks.h"
#include "platform/notification_center.h"
#include "platform/platform.h"
#include "state/removal_notice.h"
#include "state/timers.h"

namespace klarvik {

/// What the user's Trash holds, and how to empty it. Main thread only.
class TrashMonitor : public QObject {
  Q_OBJECT
 public:
  /// All that it publishes.
  struct Figures {
    std::int64_t bytes = 0;
    std::int64_t itemCount = 0;
    bool isEmptying = false;
    std::optional<DeletionProgress> emptyProgress{};
    bool isReadable = true;
    bool isMeasuring = false;
  };

  TrashMonitor(const Desktop& desktop, RemovalNotice& notice, QObject* parent = nullptr);
  /// Waits for the entry that is being measured, and for those that are being removed.
  ~TrashMonitor() override;

  [[nodiscard]] const Figures& figures() const { return _figures; }
  [[nodiscard]] std::int64_t bytes() const { return _figures.bytes; }
  [[nodiscard]] std::int64_t itemCount() const { return _figures.itemCount; }
  [[nodiscard]] bool isEmptying() const { return _figures.isEmptying; }
  [[nodiscard]] const std::optional<DeletionProgress>& emptyProgress() const {
    return _figures.emptyProgress;
  }
  [[nodiscard]] bool isReadable() const { return _figures.isReadable; }
  [[nodiscard]] bool isMeasuring() const { return _figures.isMeasuring; }

  /// Reads the Trash anew when it has changed since the last reading, or in any case with `force`.
  /// While its size is being measured, nothing happens.
  void refresh(bool force);
  /// What a button that empties the Trash does: a layout that tells what goes for good has the user
  /// asked first, by whoever hears `confirmationWanted`; on any other the Trash is emptied.
  void requestEmptying();
  [[nodiscard]] bool asksBeforeEmptying() const;
  /// Bytes reclaimed; 0 at once while an emptying is under way.
  QCoro::Task<std::int64_t> emptyTrash();
  /// For the end of the program: removes no further entry. Nothing may be started afterwards.
  void stopEmptying();
  /// The same, and waits for the entries in hand.
  void finishEmptying();

 signals:
  void changed();
  void confirmationWanted();

 private:
  QCoro::Task<> measure(std::vector<Path> entries, std::optional<Date> stamp);
  void setMeasuring(bool measuring);
  void setEmptying(bool emptying);
  void setEmptyProgress(std::optional<DeletionProgress> progress);
  void setContents(bool readable, std::int64_t itemCount);
  void setBytes(std::int64_t bytes);

  const Desktop& _desktop;
  RemovalNotice& _notice;
  Figures _figures;
  std::optional<Date> _lastStamp;
  NotificationCenter::Subscription _onDiskChanged;
  NotificationCenter::Subscription _onActive;
  RepeatingTimer _timer;
  std::stop_source _lifetime;
  BackgroundTasks _measuringWork;
  BackgroundTasks _emptyingWork;
};

}  // namespace klarvik
