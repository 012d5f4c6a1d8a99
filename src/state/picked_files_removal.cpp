#include "state/picked_files_removal.h"

#include <utility>

#include "platform/main_loop/coalescing_queue.h"

namespace klarvik {

PickedFilesRemoval::PickedFilesRemoval(const Desktop& desktop, RemovalNotice& notice,
                                       QObject* parent)
    : QObject(parent), _desktop(desktop), _notice(notice) {}

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
  auto move = [&engine, &reports, &pick, &leftAlone, stop = _stop.get_token()] {
    const Pick picked = pick(leftAlone);
    return engine.trashFiles(
        picked.files, stop, [&](const DeletionProgress& progress) { reports.post(progress); },
        picked.check);
  };
  std::set<Path> moved = co_await runInBackground(_work, std::move(move));
  reports.empty();
  _notice.tell(leftAlone);

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
