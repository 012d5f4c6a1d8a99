#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <stop_token>
#include <vector>

#include "engine/scanner_engine.h"
#include "platform/main_loop/background_tasks.h"
#include "platform/platform.h"
#include "state/last_removal.h"
#include "state/removal_notice.h"

namespace klarvik {

/// The files that `fileOf` names of what was found, for a removal.
template <typename Found, typename FileOf>
[[nodiscard]] std::vector<PickedFile> pickedFiles(const std::vector<Found>& found,
                                                  const FileOf& fileOf) {
  std::vector<PickedFile> picked;
  picked.reserve(found.size());
  for (const Found& one : found) {
    const auto& file = fileOf(one);
    picked.push_back({file.url, file.url.filename().native(), file.size, file.identity});
  }
  return picked;
}

/// Moves files that the user picked to the Trash, for a pane that shows how it goes. One removal at
/// a time. Main thread only. An owner that awaits `trash` begins its destructor with `finish`, so
/// that it need not ask afterwards whether it still lives.
class PickedFilesRemoval : public QObject {
  Q_OBJECT
 public:
  struct Pick {
    std::vector<PickedFile> files;
    /// Asked on the removal's threads, of each file right before it goes.
    ScannerEngine::PickedFileCheck check = {};
  };

  /// Without `lastRemoval` whoever has it tells by other means what was moved.
  PickedFilesRemoval(const Desktop& desktop, RemovalNotice& notice,
                     LastRemoval* lastRemoval = nullptr, QObject* parent = nullptr);
  /// Starts no further file, and waits for those in hand; whoever awaits `trash` is resumed first.
  ~PickedFilesRemoval() override;

  [[nodiscard]] bool isRunning() const { return _isRunning; }
  [[nodiscard]] const std::optional<DeletionProgress>& progress() const { return _progress; }

  /// Moves the files that `pick` answers, `count` of them. It is asked on an engine thread, since a
  /// long list takes long to write; it must not refer to what the main thread changes meanwhile.
  /// What it is given counts what is left alone, and outlives the checks that it answers.
  /// Answers the files that were really moved, also after a cancellation. Must not be called while
  /// one is running; none is running any more when the answer comes.
  QCoro::Task<std::set<Path>> trash(std::size_t count, std::function<Pick(LeftAlone&)> pick);
  void cancel();
  /// For the end of the program: as the destructor does. Nothing may be started afterwards.
  void finish();

 signals:
  void changed();
  /// The user has put back files of the last removal: what was found is no longer all there is.
  void restored();

 private:
  const Desktop& _desktop;
  RemovalNotice& _notice;
  LastRemoval* _lastRemoval;
  bool _isRunning = false;
  std::optional<DeletionProgress> _progress;
  std::stop_source _stop;
  BackgroundTasks _work;
};

}  // namespace klarvik
