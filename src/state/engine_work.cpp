#include "state/engine_work.h"

#include <system_error>

#include "platform/background_thread.h"

namespace klarvik {

void EngineWork::start(std::function<void()> body, std::coroutine_handle<> waiter,
                       Priority priority) {
  const std::uint64_t number = _callsEverStarted++;
  Call& call = _calls.emplace(number, Call{{}, waiter}).first->second;
  const auto work = std::make_shared<const std::function<void()>>(std::move(body));
  const auto run = [this, number, work] {
    (*work)();
    QMetaObject::invokeMethod(
        this, [this, number] { resume(number); }, Qt::QueuedConnection);
  };
  try {
    call.thread = std::thread([run, priority] {
      if (priority == Priority::background) becomeBackgroundThread();
      run();
    });
  } catch (const std::system_error&) {
    // The system has no thread to give. A window that stands still until the work is done is better
    // than one that waits for it for ever.
    run();
  }
}

void EngineWork::finish() {
  while (!_calls.empty()) resume(_calls.begin()->first);
}

void EngineWork::resume(std::uint64_t number) {
  auto call = _calls.extract(number);
  // `finish` may have been quicker than the main loop.
  if (call.empty()) return;
  if (call.mapped().thread.joinable()) call.mapped().thread.join();
  call.mapped().waiter.resume();
}

}  // namespace klarvik
