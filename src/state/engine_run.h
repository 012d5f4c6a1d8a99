#pragma once

#include <QCoro/QCoroTask>
#include <cstdint>
#include <functional>
#include <stop_token>
#include <utility>

#include "platform/clock.h"
#include "platform/main_loop/background_tasks.h"
#include "platform/main_loop/coalescing_queue.h"

namespace klarvik {

/// A stop that is requested as soon as either of two others is: that of a run, and that of the
/// object the run works for.
class CombinedStopToken {
 public:
  CombinedStopToken(std::stop_token run, std::stop_token owner)
      : _onRunStop(std::move(run), Forward{_source}),
        _onOwnerStop(std::move(owner), Forward{_source}) {}

  CombinedStopToken(const CombinedStopToken&) = delete;
  CombinedStopToken& operator=(const CombinedStopToken&) = delete;

  [[nodiscard]] std::stop_token token() const { return _source.get_token(); }

 private:
  struct Forward {
    std::stop_source target;
    void operator()() {
      // What the request sets off may destroy the callback that this is part of.
      std::stop_source kept = target;
      kept.request_stop();
    }
  };

  std::stop_source _source;
  std::stop_callback<Forward> _onRunStop;
  std::stop_callback<Forward> _onOwnerStop;
};

/// A job that an owner gives to an engine again and again, and of which only the latest counts.
///
/// The one rule of cancelling: once a run was cancelled, another was started, or the owner is at
/// its end, the run is asked to stop, and neither its reports nor its result reach the owner,
/// however long the engine still works. Main thread only. The destructor waits for every run, and
/// calls the owner no more; a job must not refer to what the owner destroys before.
class EngineRun {
 public:
  template <typename Report, typename Result>
  struct Job {
    using Post = std::function<void(Report)>;

    /// Called off the main thread, with the stop token of the run; may post from any thread.
    std::function<Result(std::stop_token, const Post&)> work;
    /// Called on the main thread for what was posted, at the pace of `CoalescingQueue`.
    std::function<void(Report)> report = {};
    /// Called on the main thread, after the last report; the run is no longer running then.
    std::function<void(Result)> finish;
    /// The exception to the rule, for a job that keeps what was found until it was cancelled.
    std::function<void(Result)> finishCancelled = {};
    typename CoalescingQueue<Report>::Replaces replaces = [](const Report&, const Report&) {
      return true;
    };
  };

  explicit EngineRun(Clock& clock) : _clock(clock) {}
  ~EngineRun() {
    drop();
    _work.finish();
  }
  EngineRun(const EngineRun&) = delete;
  EngineRun& operator=(const EngineRun&) = delete;

  [[nodiscard]] bool isRunning() const { return _isRunning; }
  /// Whether a run was ever finished or cancelled.
  [[nodiscard]] bool hasRun() const { return _hasRun; }

  /// In the place of the one that is running, if any.
  template <typename Report, typename Result>
  void start(Job<Report, Result> job) {
    drop();
    _stop = std::stop_source();
    _isRunning = true;
    run(std::move(job), _number, _stop.get_token());
  }
  /// For the user.
  void cancel() {
    _stop.request_stop();
    _isRunning = false;
    _hasRun = true;
  }
  /// For the end of the owner, which is not handed anything any more.
  void drop() {
    _stop.request_stop();
    _isRunning = false;
    ++_number;
  }
  /// As `BackgroundTasks::deleteInBackground`.
  template <typename Garbage>
  void deleteInBackground(Garbage garbage) {
    _work.deleteInBackground(std::move(garbage));
  }

 private:
  template <typename Report, typename Result>
  QCoro::Task<> run(Job<Report, Result> job, std::uint64_t number, std::stop_token stop) {
    CoalescingQueue<Report> reports(
        _clock,
        [&job, stop](Report report) {
          if (!stop.stop_requested()) job.report(std::move(report));
        },
        job.replaces);
    auto work = [&job, &reports, stop] {
      return job.work(stop, [&reports](Report report) { reports.post(std::move(report)); });
    };
    Result result = co_await runInBackground(_work, std::move(work));
    reports.empty();
    if (!stop.stop_requested()) {
      _isRunning = false;
      _hasRun = true;
      job.finish(std::move(result));
    } else if (number == _number && job.finishCancelled) {
      job.finishCancelled(std::move(result));
    } else {
      _work.deleteInBackground(std::move(result));
    }
  }

  Clock& _clock;
  std::stop_source _stop{std::nostopstate};
  std::uint64_t _number = 0;  ///< of the latest run
  bool _isRunning = false;
  bool _hasRun = false;
  BackgroundTasks _work;
};

}  // namespace klarvik
