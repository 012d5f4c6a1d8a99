#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <set>

#include "platform/file_system.h"
#include "state/app_state.h"

namespace klarvik {

/// A Smart Scan that reports what a test tells it to, when it is told to: from a thread of its own,
/// like the real one. Runs are counted from 0; what is told to a run waits until the run begins.
///
/// Items have the identity of what stands at their paths when they are told, as a scan finds them.
class FakeScan {
 public:
  explicit FakeScan(const FileSystem& files) : _files(files) {}

  using Step =
      std::function<void(const ScannerEngine::UpdateSink&, const ScannerEngine::CategorySink&)>;

  [[nodiscard]] AppState::Scan scan() {
    return [this](std::stop_token stop, const auto& onUpdate, const auto& onCategory) {
      return run(std::move(stop), onUpdate, onCategory);
    };
  }

  void tell(int run, Step step) {
    const std::scoped_lock lock(_mutex);
    _steps[run].push_back(std::move(step));
    _told.notify_all();
  }
  void update(int run, ScanUpdate update) {
    tell(run, [update](const auto& onUpdate, const auto&) { onUpdate(update); });
  }
  void category(int run, CleanCategory category) {
    identify(category);
    _categoriesTold[run].insert(category.id);
    tell(run, [category](const auto&, const auto& onCategory) { onCategory(category); });
  }
  /// The run ends with `found`, in this order, once it has done all that it was told before. Tells
  /// those categories that it has not told yet.
  void finish(int run, const std::vector<CleanCategory>& found) {
    std::vector<Uuid> order;
    for (const CleanCategory& one : found) {
      if (!_categoriesTold[run].contains(one.id)) category(run, one);
      order.push_back(one.id);
    }
    const std::scoped_lock lock(_mutex);
    _order[run] = std::move(order);
    _told.notify_all();
  }
  /// How many runs have been asked to stop while they were waiting to be told more.
  [[nodiscard]] int runsBegun() const {
    const std::scoped_lock lock(_mutex);
    return _runs;
  }
  [[nodiscard]] int runsEnded() const {
    const std::scoped_lock lock(_mutex);
    return _ended;
  }

  /// A run that is asked to stop comes back at once; set to false, it goes on until `finish`, like
  /// a scan in the middle of a long row.
  bool endsWhenAskedToStop = true;

 private:
  std::vector<Uuid> run(std::stop_token stop, const ScannerEngine::UpdateSink& onUpdate,
                        const ScannerEngine::CategorySink& onCategory) {
    std::unique_lock lock(_mutex);
    const int number = _runs++;
    const std::stop_token heeded = endsWhenAskedToStop ? stop : std::stop_token();
    while (true) {
      _told.wait(lock, heeded, [&] { return !_steps[number].empty() || _order.contains(number); });
      if (_steps[number].empty()) break;
      const Step step = std::move(_steps[number].front());
      _steps[number].pop_front();
      lock.unlock();
      step(onUpdate, onCategory);
      lock.lock();
    }
    ++_ended;
    return _order[number];
  }

  void identify(CleanCategory& category) const {
    for (JunkItem& item : category.items) item.identity = entryIdentity(_files, item.path);
  }

  const FileSystem& _files;
  mutable std::mutex _mutex;
  std::condition_variable_any _told;
  int _runs = 0;
  int _ended = 0;
  std::map<int, std::deque<Step>> _steps;
  std::map<int, std::vector<Uuid>> _order;
  std::map<int, std::set<Uuid>> _categoriesTold;  ///< of each run
};

}  // namespace klarvik
