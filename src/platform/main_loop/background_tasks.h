#pragma once

#include <QObject>
#include <coroutine>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace klarvik {

/// The calls that one owner has under way off the main thread.
///
/// Kept as a member by whoever starts such calls, and used on the main thread only. Every call has
/// a thread of its own, so a long scan never keeps a clean waiting. A coroutine that waits for a
/// call is resumed on the main thread, by the main loop or by `finish`, and never later than that:
/// an owner whose destructor asks its calls to stop and then begins with `finish` need not ask,
/// after a `co_await runInBackground(...)`, whether it still lives.
class BackgroundTasks final : public QObject {
 public:
  enum class Priority {
    normal,
    background,  ///< gets out of the way of everything else that the machine has to do
  };

  BackgroundTasks() = default;
  ~BackgroundTasks() override { finish(); }

  /// Waits for every call under way, also for those started meanwhile, and resumes who waits for
  /// them.
  void finish();

  /// Frees `garbage` off the main thread, where freeing very much of it would hold up a frame. Not
  /// in the background: a thread that is kept waiting while it frees keeps waiting whoever else
  /// needs the allocator's lock, such as the main thread.
  template <typename Garbage>
  void deleteInBackground(Garbage garbage) {
    auto release = [kept = std::make_shared<Garbage>(std::move(garbage))]() mutable {
      kept.reset();
    };
    start(std::move(release), std::noop_coroutine(), Priority::normal);
  }

  /// For `runInBackground`: runs `body` on a thread of its own, or on the caller's where the system
  /// has none to give, then resumes `waiter`.
  void start(std::function<void()> body, std::coroutine_handle<> waiter, Priority priority);

 private:
  struct Work;
  struct Call {
    std::jthread thread;
    std::shared_ptr<Work> work;
    std::coroutine_handle<> waiter;
  };

  void resume(std::uint64_t number);

  std::uint64_t _callsEverStarted = 0;
  std::map<std::uint64_t, Call> _calls;
  std::vector<std::jthread> _ending;  ///< their calls came back
};

/// What `runInBackground` answers; it is only good for being awaited at once. Compilers may
/// move it into the coroutine's frame, so the state of the other thread is allocated separately.
template <typename Function>
class EngineCall {
 public:
  using Result = std::invoke_result_t<Function&>;

  EngineCall(BackgroundTasks& work, Function function, BackgroundTasks::Priority priority)
      : _work(work), _priority(priority), _call(std::make_unique<Call>(std::move(function))) {}

  [[nodiscard]] bool await_ready() const noexcept { return false; }
  void await_suspend(std::coroutine_handle<> waiter) {
    _work.start([&call = *_call] { call.result.emplace(call.function()); }, waiter, _priority);
  }
  Result await_resume() { return std::move(*_call->result); }

 private:
  struct Call {
    explicit Call(Function toBeCalled) : function(std::move(toBeCalled)) {}

    Function function;
    std::optional<Result> result;
  };

  BackgroundTasks& _work;
  BackgroundTasks::Priority _priority;
  std::unique_ptr<Call> _call;
};

/// `co_await runInBackground(work, function)` runs a synchronous call off the main thread, and goes
/// on with what it answers on the main thread. The main loop keeps running meanwhile.
template <typename Function>
[[nodiscard]] EngineCall<Function> runInBackground(
    BackgroundTasks& work, Function function,
    BackgroundTasks::Priority priority = BackgroundTasks::Priority::normal) {
  return EngineCall<Function>(work, std::move(function), priority);
}

}  // namespace klarvik
