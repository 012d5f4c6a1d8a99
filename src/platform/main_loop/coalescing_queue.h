#pragma once

#include <QObject>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/clock.h"

namespace klarvik {

/// The way of an engine's reports to the main thread: any thread posts, the main thread applies, in
/// the order of posting and only while the queue lives.
///
/// An engine may report faster than a window can draw. So a report takes the place of the one
/// waiting just before it where `replaces` says that the older one no longer matters; unless told
/// otherwise, only the newest does. The first report is applied at once, and while more keep coming
/// the queue is emptied at most once in `pause`. Made and destroyed on the main thread, and not
/// before the engine's last post.
template <typename Report>
class CoalescingQueue final : public QObject {
 public:
  using Apply = std::function<void(Report)>;
  using Replaces = std::function<bool(const Report& newer, const Report& older)>;

  static constexpr std::chrono::milliseconds pause{16};

  CoalescingQueue(Clock& clock, Apply apply, Replaces replaces)
      : _clock(clock), _apply(std::move(apply)), _replaces(std::move(replaces)) {}
  CoalescingQueue(Clock& clock, Apply apply)
      : CoalescingQueue(clock, std::move(apply),
                        [](const Report&, const Report&) { return true; }) {}

  /// May be called from any thread.
  void post(Report report) {
    {
      const std::scoped_lock lock(_mutex);
      if (!_waiting.empty() && _replaces(report, _waiting.back())) {
        _waiting.back() = std::move(report);
      } else {
        _waiting.push_back(std::move(report));
      }
      if (std::exchange(_willBeEmptied, true)) return;
    }
    QMetaObject::invokeMethod(
        this, [this] { emptyAndPause(); }, Qt::QueuedConnection);
  }

  /// Applies at once what is waiting.
  void empty() {
    std::vector<Report> reports;
    {
      const std::scoped_lock lock(_mutex);
      reports.swap(_waiting);
    }
    for (Report& report : reports) _apply(std::move(report));
  }

 private:
  void emptyAndPause() {
    empty();
    _pause = _clock.wakeAfter(pause, [this] { endPause(); });
  }

  void endPause() {
    {
      const std::scoped_lock lock(_mutex);
      _willBeEmptied = !_waiting.empty();
      if (!_willBeEmptied) return;
    }
    emptyAndPause();
  }

  Clock& _clock;
  Apply _apply;
  Replaces _replaces;
  std::unique_ptr<Clock::Alarm> _pause;
  std::mutex _mutex;
  std::vector<Report> _waiting;
  bool _willBeEmptied = false;
};

}  // namespace klarvik
