#include "base/parallel_for.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace klarvik {
namespace {

using Perform = std::function<void(std::size_t, std::size_t)>;

/// From `first` up to `end`, which is not one of them.
struct Numbers {
  std::size_t first = 0;
  std::size_t end = 0;
};

/// What the threads and the caller share. Numbers below `_begun` have been begun, and `_finished`
/// of them have been finished.
class Loop {
 public:
  explicit Loop(const ParallelPlan& plan) : _plan(plan) {
    if (isByNumber()) _hasEnded.resize(plan.count);
  }

  /// For each thread before it starts.
  void enter() {
    const std::scoped_lock lock(_mutex);
    ++_threads;
  }

  void leave() {
    const std::scoped_lock lock(_mutex);
    if (--_threads == 0) _ended.notify_one();
  }

  /// The next number for a thread, once it may begin it. Nothing: there is no more for it to do.
  [[nodiscard]] std::optional<std::size_t> begin() {
    std::unique_lock lock(_mutex);
    _mayBegin.wait(lock, [this] { return isOver() || hasRoom(); });
    if (isOver()) return std::nullopt;
    return _begun++;
  }

  void end(std::size_t number) {
    const std::scoped_lock lock(_mutex);
    if (isByNumber()) {
      _hasEnded[number] = true;
      if (number != _finished || _callerRests) return;
    } else {
      _waiting.push_back(number);
    }
    _ended.notify_one();
  }

  /// The next numbers for the caller to finish; all of them once every thread has left. None: there
  /// are no more.
  [[nodiscard]] Numbers nextToFinish() {
    std::unique_lock lock(_mutex);
    if (isByNumber() && _finished > 0) rest(lock);
    _ended.wait(lock, [this] { return hasOneToFinish() || _threads == 0; });
    if (!hasOneToFinish()) return {};
    if (!isByNumber()) {
      const std::size_t number = _waiting.front();
      _waiting.pop_front();
      return {number, number + 1};
    }
    Numbers numbers{_finished, _finished};
    while (numbers.end < _plan.count && _hasEnded[numbers.end]) ++numbers.end;
    return numbers;
  }

  void wereFinished(Numbers numbers) {
    const std::scoped_lock lock(_mutex);
    _finished += numbers.end - numbers.first;
    if (!isByNumber()) _mayBegin.notify_all();
  }

 private:
  /// A caller that is woken for each of many short calls takes a processor from the threads as
  /// often.
  void rest(std::unique_lock<std::mutex>& lock) {
    constexpr std::chrono::milliseconds restingTime{5};
    _callerRests = true;
    _ended.wait_for(lock, restingTime, [this] { return _threads == 0; });
    _callerRests = false;
  }

  [[nodiscard]] bool isByNumber() const { return _plan.order == ParallelOrder::byNumber; }
  [[nodiscard]] bool isOver() const { return _begun == _plan.count || _plan.stop.stop_requested(); }
  [[nodiscard]] bool hasRoom() const { return isByNumber() || _begun - _finished < _plan.width; }
  [[nodiscard]] bool hasOneToFinish() const {
    return isByNumber() ? _finished < _plan.count && _hasEnded[_finished] : !_waiting.empty();
  }

  const ParallelPlan& _plan;
  std::mutex _mutex;  // guards all that follows
  std::condition_variable _mayBegin;
  std::condition_variable _ended;
  std::size_t _begun = 0;
  std::size_t _finished = 0;
  std::size_t _threads = 0;
  bool _callerRests = false;
  std::deque<std::size_t> _waiting;  ///< in order of ending
  std::vector<bool> _hasEnded;       ///< by number
};

void work(Loop& loop, const Perform& perform, std::size_t thread) {
  while (const auto number = loop.begin()) {
    perform(*number, thread);
    loop.end(*number);
  }
  loop.leave();
}

std::vector<std::jthread> startThreads(std::size_t count, Loop& loop, const Perform& perform) {
  std::vector<std::jthread> threads;
  while (threads.size() < count) {
    loop.enter();
    try {
      threads.emplace_back(
          [&loop, &perform, thread = threads.size()] { work(loop, perform, thread); });
    } catch (const std::system_error&) {
      loop.leave();
      break;
    }
  }
  return threads;
}

}  // namespace

void parallelFor(const ParallelPlan& plan, const Perform& perform,
                 const std::function<void(std::size_t)>& finished) {
  Loop loop(plan);
  const auto threads = startThreads(std::min(plan.count, plan.width), loop, perform);
  if (threads.empty()) {
    while (const auto number = loop.begin()) {
      perform(*number, 0);
      finished(*number);
      loop.wereFinished({*number, *number + 1});
    }
  }
  for (;;) {
    const Numbers numbers = loop.nextToFinish();
    if (numbers.first == numbers.end) break;
    for (std::size_t number = numbers.first; number < numbers.end; ++number) finished(number);
    loop.wereFinished(numbers);
  }
}

}  // namespace klarvik
