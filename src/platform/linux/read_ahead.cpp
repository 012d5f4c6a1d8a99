#include "platform/linux/read_ahead.h"

#include <pthread.h>
#include <signal.h>
#include <algorithm>
#include <chrono>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

namespace klarvik {
namespace {

// More would be read in vain where a walk is stopped, and wait for long where it goes elsewhere.
constexpr std::size_t kFoldersAheadOfAThread = 16;
constexpr std::size_t kMostFoldersOfOne = 64;
// What waits at a time. The folders that the walk comes to last are given up beyond that.
constexpr std::size_t kMostTasks = 512;
constexpr std::size_t kMostBytes = std::size_t{2} * 1024 * 1024;
constexpr std::size_t kMostHandles = 64;

// To sleep and be woken takes a thread as long as a few folders do.
constexpr int kTurnsBeforeSleep = 1000;
constexpr std::size_t kWorthWaking = 8;
constexpr std::size_t kMostChangesUntold = 16;

// A folder takes longer than this only where the disk is read, or the thread lost its processor.
constexpr std::chrono::microseconds kLongestFolder{40};
constexpr std::chrono::microseconds kLongestAnswer{4};
constexpr int kMostSlowness = 16;

// Memory that the next listings take.
constexpr std::size_t kMostSpare = 32;
constexpr std::size_t kLargestSpare = std::size_t{32} * 1024;

constexpr std::size_t kNotShown = std::numeric_limits<std::size_t>::max();

void relax() {
#if defined(__x86_64__) || defined(__i386__)
  __builtin_ia32_pause();
#elif defined(__aarch64__)
  asm volatile("yield");
#endif
}

/// While it lives, threads that are started leave all signals to the others.
class BlockedSignals {
 public:
  BlockedSignals() {
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &_before);
  }
  ~BlockedSignals() { ::pthread_sigmask(SIG_SETMASK, &_before, nullptr); }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;

 private:
  sigset_t _before;
};

}  // namespace

ReadAhead::ReadAhead(const HelpfulThreads& threads, const WalkRules& rules)
    : _rules(rules),
      _ownReader(rules, _isOver),
      _window(kFoldersAheadOfAThread * (threads.helpers + threads.whileDiskIsRead + 1)),
      _whileDiskIsRead(threads.whileDiskIsRead) {
  startThreads(threads.helpers, Helps::always);
}

void ReadAhead::startThreads(std::size_t count, Helps helps) {
  const BlockedSignals blocked;
  for (; count > 0; --count) {
    try {
      _threads.emplace_back([this, helps] { work(helps); });
    } catch (const std::system_error&) {
      return;
    }
  }
}

ReadAhead::~ReadAhead() {
  {
    const Lock lock(_mutex);
    _isOver = true;
    ++_changes;
  }
  _changed.notify_all();
  _diskIsRead.notify_all();
  _threads.clear();
}

bool ReadAhead::knowsFrom(std::size_t position) {
  const Lock lock(_mutex);
  return endsFrom(position);
}

void ReadAhead::offer(std::vector<Folder> folders) {
  if (_whileDiskIsRead > 0 && isDiskRead()) {
    startThreads(std::exchange(_whileDiskIsRead, 0), Helps::whileDiskIsRead);
  }
  const Lock lock(_mutex);
  for (Folder& folder : folders) {
    _tasks.push_back(std::make_shared<Task>());
    _tasks.back()->folder = std::move(folder);
  }
  keepWithinBounds();
  tellThreads();
}

bool ReadAhead::take(std::size_t position, FolderListing& into) {
  Lock lock(_mutex);
  if (!endsFrom(position)) return false;
  const TaskPtr task = std::move(_tasks.back());
  _tasks.pop_back();
  task->isTaken = true;
  tellThreads();
  if (task->state == State::waiting) return false;
  while (task->state != State::ended) {
    if (const TaskPtr other = nextWaiting()) {
      perform(lock, other, _ownReader);
    } else if (!endsSoon(lock, *task)) {
      task->isForgotten = true;
      return false;
    }
  }
  drop(task->listing);
  std::swap(into, task->listing);
  keepForReuse(task->listing);
  _taken = task;
  _shown = 0;
  return into.state != FolderListing::State::unread;
}

void ReadAhead::willEnter(std::string_view name, std::size_t position) {
  const auto& folders = _taken->folders;
  for (std::size_t at = _shown; at < folders.size(); ++at) {
    if (folders[at]->folder.name != name) continue;
    folders[at]->folder.position = position;
    _shown = at + 1;
    return;
  }
}

void ReadAhead::endFolder() {
  const auto isEntered = [](const TaskPtr& task) { return task->folder.position != kNotShown; };
  const auto folders = std::exchange(_taken, nullptr)->folders;
  if (std::ranges::all_of(folders, isEntered)) return;
  const Lock lock(_mutex);
  for (const TaskPtr& task : folders) {
    if (!isEntered(task)) forget(*task);
  }
  std::erase_if(_tasks, [](const TaskPtr& task) { return task->isForgotten; });
}

void ReadAhead::forgetFrom(std::size_t position) {
  const Lock lock(_mutex);
  while (endsFrom(position)) {
    forget(*_tasks.back());
    _tasks.pop_back();
  }
}

void ReadAhead::work(Helps helps) {
  const auto mayWork = [&] { return helps == Helps::always || isDiskRead() || _isOver; };
  FolderReader reader(_rules, _isOver);
  Lock lock(_mutex);
  while (!_isOver) {
    if (!mayWork()) {
      ++_resting;
      _diskIsRead.wait(lock, mayWork);
      --_resting;
    } else if (const TaskPtr task = nextWaiting()) {
      tellThreads();
      perform(lock, task, reader);
    } else {
      waitForFolders(lock);
    }
  }
}

/// Those that the walk comes to first.
std::span<const ReadAhead::TaskPtr> ReadAhead::withinReach() const {
  constexpr std::size_t withoutMemory = 2;
  const std::size_t most = _bytes < kMostBytes ? _window : withoutMemory;
  return std::span(_tasks).last(std::min(most, _tasks.size()));
}

ReadAhead::TaskPtr ReadAhead::nextWaiting() {
  const std::span<const TaskPtr> reach = withinReach();
  const auto task = std::find_if(reach.rbegin(), reach.rend(), isWaiting);
  if (task == reach.rend()) return nullptr;
  (*task)->state = State::begun;
  return *task;
}

void ReadAhead::perform(Lock& lock, const TaskPtr& task, FolderReader& reader) {
  if (!_spare.empty()) {
    task->listing = std::move(_spare.back());
    _spare.pop_back();
  }
  lock.unlock();
  read(*task, reader);
  lock.lock();
  task->state = State::ended;
  if (task->isForgotten) return release(*task);
  hold(task->listing);
  if (!task->folders.empty()) addFoldersOf(task);
}

void ReadAhead::read(Task& task, FolderReader& reader) {
  FolderListing& listing = task.listing;
  const auto above = task.folder.above.lock();
  if (!above) {
    listing.state = FolderListing::State::unread;
    return;
  }
  const auto begun = std::chrono::steady_clock::now();
  reader.read(above->get(), task.folder.name.c_str(), _kinds.load(std::memory_order_relaxed),
              listing);
  noteTime(std::chrono::steady_clock::now() - begun, listing.answers());
  const bool isWhole = listing.state == FolderListing::State::whole;
  if (isWhole && !listing.hasFolders()) listing.folder.reset();
  if (listing.folder && _handles.load(std::memory_order_relaxed) >= kMostHandles) {
    if (!isWhole) listing.state = FolderListing::State::unread;
    listing.folder.reset();
  }
  if (!isWhole || !listing.folder || !_goesDeeper.load(std::memory_order_relaxed)) return;
  const std::span<const std::string> names = listing.folders();
  for (const std::string& name : names.last(std::min(names.size(), kMostFoldersOfOne))) {
    task.folders.push_back(std::make_shared<Task>());
    task.folders.back()->folder = {.position = kNotShown, .name = name, .above = listing.folder};
  }
}

void ReadAhead::noteTime(std::chrono::nanoseconds taken, std::size_t answers) {
  const int before = _slowness.load(std::memory_order_relaxed);
  const int change = taken > kLongestFolder + kLongestAnswer * answers ? 1 : -1;
  _slowness.store(std::clamp(before + change, 0, kMostSlowness), std::memory_order_relaxed);
}

bool ReadAhead::isDiskRead() const {
  return _slowness.load(std::memory_order_relaxed) > kMostSlowness / 2;
}

void ReadAhead::addFoldersOf(const TaskPtr& task) {
  auto place = _tasks.end();
  if (!task->isTaken) {
    place = std::find(_tasks.rbegin(), _tasks.rend(), task).base() - 1;
  }
  _tasks.insert(place, task->folders.begin(), task->folders.end());
  keepWithinBounds();
  tellThreads();
}

void ReadAhead::hold(const FolderListing& listing) {
  _bytes += listing.bytes();
  if (listing.folder) ++_handles;
}

void ReadAhead::drop(const FolderListing& listing) {
  _bytes -= listing.bytes();
  if (listing.folder) --_handles;
}

/// With all that lies in it.
void ReadAhead::forget(Task& task) {
  if (task.isForgotten) return;
  task.isForgotten = true;
  if (task.state != State::ended) return;
  drop(task.listing);
  for (const TaskPtr& folder : task.folders) forget(*folder);
  release(task);
}

void ReadAhead::release(Task& task) {
  task.listing = {};
  task.folders.clear();
}

void ReadAhead::keepForReuse(FolderListing& listing) {
  if (_spare.size() < kMostSpare && listing.bytes() <= kLargestSpare) {
    _spare.push_back(std::move(listing));
  }
}

/// Gives up those that the walk comes to last.
void ReadAhead::keepWithinBounds() {
  std::size_t farthest = 0;
  for (; farthest + 1 < _tasks.size(); ++farthest) {
    if (_tasks.size() - farthest <= kMostTasks && _bytes <= kMostBytes) break;
    forget(*_tasks[farthest]);
  }
  _tasks.erase(_tasks.begin(), _tasks.begin() + static_cast<std::ptrdiff_t>(farthest));
}

/// To be woken costs a thread as much as a few folders do.
void ReadAhead::tellThreads() {
  ++_changes;
  if (_resting > 0 && isDiskRead()) _diskIsRead.notify_all();
  if (_asleep == 0) return;
  const auto waiting = static_cast<std::size_t>(std::ranges::count_if(withinReach(), isWaiting));
  ++_changesUntold;
  if (waiting < kWorthWaking && (waiting == 0 || _changesUntold < kMostChangesUntold)) return;
  _changesUntold = 0;
  _mayWake = true;
  _changed.notify_one();
}

void ReadAhead::waitForFolders(Lock& lock) {
  const std::uint64_t seen = _changes;
  lock.unlock();
  for (int turn = 0; turn < kTurnsBeforeSleep && _changes == seen; ++turn) relax();
  lock.lock();
  if (_changes != seen) return;
  ++_asleep;
  _changed.wait(lock, [&] { return _mayWake || _isOver; });
  _mayWake = false;
  --_asleep;
}

/// Its thread may have lost its processor: reading the folder once more does not take long then.
bool ReadAhead::endsSoon(Lock& lock, const Task& task) {
  lock.unlock();
  for (int turn = 0; turn < kTurnsBeforeSleep && task.state != State::ended; ++turn) relax();
  lock.lock();
  return task.state == State::ended;
}

}  // namespace klarvik
