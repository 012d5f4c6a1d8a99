#include "state/picked_files_removal.h"

#include <utility>

#include "state/report_mailbox.h"

namespace klarvik {

PickedFilesRemoval::PickedFilesRemoval(const Desktop& desktop, QObject* parent)
    : QObject(parent), _desktop(desktop) {}

PickedFilesRemoval::~PickedFilesRemoval() {
  finish();
}

QCoro::Task<std::set<Path>> PickedFilesRemoval::trash(std::vector<PickedFile> files,
                                                      ScannerEngine::PickedFileCheck check) {
  _isRunning = true;
  _progress = DeletionProgress{.total = static_cast<std::int64_t>(files.size()), .currentName = ""};
  _stop = std::stop_source();
  emit changed();

  ScannerEngine engine(_desktop);
  ReportMailbox<DeletionProgress> reports(
      _desktop.clock,
      [this](DeletionProgress progress) {
        _progress = std::move(progress);
        emit changed();
      },
      [](const DeletionProgress&, const DeletionProgress&) { return true; });
  auto move = [&engine, &reports, &files, &check, stop = _stop.get_token()] {
    return engine.trashFiles(
        files, stop, [&](const DeletionProgress& progress) { reports.post(progress); }, check);
  };
  std::set<Path> moved = co_await onEngineThread(_work, std::move(move));
  reports.empty();

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
