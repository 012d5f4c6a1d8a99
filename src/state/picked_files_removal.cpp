#include "state/picked_files_removal.h"

#include <QPointer>
#include <utility>

#include "platform/main_loop/coalescing_queue.h"

namespace klarvik {

PickedFilesRemoval::PickedFilesRemoval(const Desktop& desktop, RemovalNotice& notice,
                                       LastRemoval* lastRemoval, QObject* parent)
    : QObject(parent), _desktop(desktop), _notice(notice), _lastRemoval(lastRemoval) {}

PickedFilesRemoval::~PickedFilesRemoval() {
  finish();
}

QCoro::Task<std::set<Path>> PickedFilesRemoval::trash(std::size_t count,
                                                      std::function<Pick(LeftAlone&)> pick) {
  _isRunning = true;
  _progress = DeletionProgress{.total = static_cast<std::int64_t>(count), .currentName = ""};
  _stop = std::stop_source();
  emit changed();

  LeftAlone leftAlone;
  ScannerEngine engine(_desktop, &leftAlone);
  CoalescingQueue<DeletionProgress> reports(_desktop.clock, [this](DeletionProgress progress) {
    _progress = std::move(progress);
    emit changed();
  });
  std::vector<TrashedItem> trashed;
  auto move = [&engine, &reports, &pick, &leftAlone, &trashed, stop = _stop.get_token()] {
    const Pick picked = pick(leftAlone);
    return engine.trashFiles(
        picked.files, stop, [&](const DeletionProgress& progress) { reports.post(progress); },
        picked.check, [&](TrashedItem item) { trashed.push_back(std::move(item)); });
  };
  std::set<Path> moved = co_await runInBackground(_work, std::move(move));
  reports.empty();
  _notice.tell(leftAlone);
  if (_lastRemoval != nullptr) {
    _lastRemoval->tell(std::move(trashed), [removal = QPointer(this)] {
      if (removal) emit removal->restored();
    });
  }

  _isRunning = false;
  _progress.reset();
  emit changed();
  co_return moved;
}

void PickedFilesRemoval::cancel() {
  _stop.request_stop();
}

void PickedFilesRemoval::finish() {
  _stop.request_stop();
  _work.finish();
}

}  // namespace klarvik
