#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/linux/disk_threads.h"
#include "platform/linux/folder_listing.h"

namespace klarvik {

/// Reads folders that a walk is going to enter on threads of its own, while the walk is still
/// elsewhere: those first that it comes to next, and no more than a few ahead of it, so that what
/// waits is little. Folders in a folder that was read are read too, before the walk has shown them;
/// what its visitor does not let it enter is forgotten.
///
/// All members are called by the thread of the walk. The folders that it has shown and not entered
/// yet are known by a position, which grows from the last that it will enter to the next one.
class ReadAhead {
 public:
  /// Starts no more than `threads`; `rules` must outlive it.
  ReadAhead(const HelpfulThreads& threads, const WalkRules& rules);
  /// Waits for what is being read just now, which is not for long.
  ~ReadAhead();
  ReadAhead(const ReadAhead&) = delete;
  ReadAhead& operator=(const ReadAhead&) = delete;

  [[nodiscard]] bool hasThreads() const { return !_threads.empty(); }

  /// The kinds of entries that the walk will probably be asked about.
  void setKinds(unsigned kinds) { _kinds.store(kinds, std::memory_order_relaxed); }
  /// Whether folders are read before the walk has shown them.
  void setGoesDeeper(bool deeper) { _goesDeeper.store(deeper, std::memory_order_relaxed); }

  struct Folder {
    std::size_t position = 0;
    std::string name{};
    std::weak_ptr<const UniqueFd> above{};
  };
  /// Whether some folder from `position` on is known.
  [[nodiscard]] bool knowsFrom(std::size_t position);
  /// More folders that will be entered, the next one last; all come before those known already.
  void offer(std::vector<Folder> folders);

  /// Gives out what the folder at `position` holds, which the walk enters now. False when it has
  /// not been begun. Must be asked for each folder that was offered or is entered later, in turn.
  [[nodiscard]] bool take(std::size_t position, FolderListing& into);
  /// Of the folder that was taken last, when the walk shows its folder `name` and will enter it.
  void willEnter(std::string_view name, std::size_t position);
  /// All of the folder that was taken last has been shown: what else lies in it is not entered.
  void endFolder();

  /// Folders from `position` on will not be entered after all.
  void forgetFrom(std::size_t position);

 private:
  enum class Helps { always, whileDiskIsRead };
  enum class State { waiting, begun, ended };
  struct Task;
  using TaskPtr = std::shared_ptr<Task>;
  struct Task {
    Folder folder;
    std::atomic<State> state = State::waiting;
    bool isTaken = false;
    bool isForgotten = false;
    FolderListing listing{};
    std::vector<TaskPtr> folders{};  // in the order of the listing
  };
  using Lock = std::unique_lock<std::mutex>;

  [[nodiscard]] bool endsFrom(std::size_t position) const {
    return !_tasks.empty() && _tasks.back()->folder.position >= position;
  }
  [[nodiscard]] bool isDiskRead() const;
  void startThreads(std::size_t count, Helps helps);
  void work(Helps helps);
  [[nodiscard]] std::span<const TaskPtr> withinReach() const;
  [[nodiscard]] static bool isWaiting(const TaskPtr& task) { return task->state == State::waiting; }
  [[nodiscard]] TaskPtr nextWaiting();
  void perform(Lock& lock, const TaskPtr& task, FolderReader& reader);
  void read(Task& task, FolderReader& reader);
  void noteTime(std::chrono::nanoseconds taken, std::size_t answers);
  void addFoldersOf(const TaskPtr& task);
  void hold(const FolderListing& listing);
  void drop(const FolderListing& listing);
  void forget(Task& task);
  static void release(Task& task);
  void keepForReuse(FolderListing& listing);
  void keepWithinBounds();
  void tellThreads();
  void waitForFolders(Lock& lock);
  [[nodiscard]] static bool endsSoon(Lock& lock, const Task& task);

  const WalkRules& _rules;
  std::atomic<unsigned> _kinds = 0;
  std::atomic<bool> _goesDeeper = false;
  std::atomic<bool> _isOver = false;
  std::atomic<std::uint64_t> _changes = 0;  // counts what may give a thread something to do
  std::atomic<std::size_t> _handles = 0;    // held by listings that wait
  std::atomic<int> _slowness = 0;           // grows with each folder that took long
  FolderReader _ownReader;

  // The folder that was taken last, and how many of its folders have been gone through.
  TaskPtr _taken;
  std::size_t _shown = 0;

  std::mutex _mutex;  // guards all below
  std::condition_variable _changed;
  std::condition_variable _diskIsRead;
  std::vector<TaskPtr> _tasks;  // as the walk enters them, the next one last
  std::vector<FolderListing> _spare;
  std::size_t _bytes = 0;  // of listings that wait
  std::size_t _asleep = 0;
  std::size_t _resting = 0;  // threads that help while the disk is read only
  const std::size_t _window;
  std::size_t _changesUntold = 0;  // while a thread sleeps
  bool _mayWake = false;

  std::size_t _whileDiskIsRead;  // threads that have not been started yet
  std::vector<std::jthread> _threads;
};

}  // namespace klarvik
