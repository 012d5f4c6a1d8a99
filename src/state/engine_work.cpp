#include "state/engine_work.h"

#include "platform/background_thread.h"

namespace klarvik {

void EngineWork::start(std::function<void()> body, std::coroutine_handle<> waiter,
                       Priority priority) {
  const std::uint64_t number = _callsEverStarted++;
  std::thread thread([this, number, priority, body = std::move(body)] {
    if (priority == Priority::background) becomeBackgroundThread();
    body();
    QMetaObject::invokeMethod(
        this, [this, number] { resume(number); }, Qt::QueuedConnection);
  });
  _calls.emplace(number, Call{std::move(thread), waiter});
}

void EngineWork::finish() {
  while (!_calls.empty()) resume(_calls.begin()->first);
}

void EngineWork::resume(std::uint64_t number) {
  auto call = _calls.extract(number);
  // `finish` may have been quicker than the main loop.
  if (call.empty()) return;
  call.mapped().thread.join();
  call.mapped().waiter.resume();
}

}  // namespace klarvik
