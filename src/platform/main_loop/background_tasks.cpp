#include "platform/main_loop/background_tasks.h"

#include <latch>
#include <system_error>

#include "platform/own_process.h"

namespace klarvik {

struct BackgroundTasks::Work {
  std::function<void()> body;
  // A thread may take a while to give its memory back, so the main thread never waits for that.
  std::vector<std::jthread> toBeJoined;
  std::latch done{1};
};

void BackgroundTasks::start(std::function<void()> body, std::coroutine_handle<> waiter,
                            Priority priority) {
  const std::uint64_t number = _callsEverStarted++;
  const auto work = std::make_shared<Work>();
  work->body = std::move(body);
  work->toBeJoined.swap(_ending);
  Call& call = _calls.emplace(number, Call{{}, work, waiter}).first->second;
  const auto run = [this, number, work] {
    work->body();
    work->body = nullptr;
    work->done.count_down();
    QMetaObject::invokeMethod(
        this, [this, number] { resume(number); }, Qt::QueuedConnection);
    work->toBeJoined.clear();
  };
  try {
    call.thread = std::jthread([run, priority] {
      if (priority == Priority::background) becomeBackgroundThread();
      run();
    });
  } catch (const std::system_error&) {
    // The system has no thread to give. A window that stands still until the work is done is better
    // than one that waits for it for ever.
    run();
  }
}

void BackgroundTasks::finish() {
  while (!_calls.empty()) {
    auto& [number, call] = *_calls.begin();
    if (call.thread.joinable()) call.thread.join();
    resume(number);
  }
  _ending.clear();
}

void BackgroundTasks::resume(std::uint64_t number) {
  auto call = _calls.extract(number);
  // `finish` may have been quicker than the main loop.
  if (call.empty()) return;
  call.mapped().work->done.wait();
  _ending.push_back(std::move(call.mapped().thread));
  call.mapped().waiter.resume();
}

}  // namespace klarvik
