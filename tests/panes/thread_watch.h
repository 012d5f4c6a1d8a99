#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <vector>

namespace klarvik {

/// Sees the end of other threads: what they had to hand over has been handed over by then. May be
/// used from any thread.
class ThreadWatch {
 public:
  /// From now on the calling thread is watched.
  void watchThisThread() {
    ++*_running;
    thread_local std::vector<std::shared_ptr<void>> releasedAtTheEnd;
    releasedAtTheEnd.emplace_back(nullptr, [running = _running](std::nullptr_t) { --*running; });
  }

  [[nodiscard]] bool allHaveEnded() const { return *_running == 0; }

 private:
  std::shared_ptr<std::atomic<int>> _running = std::make_shared<std::atomic<int>>(0);
};

}  // namespace klarvik
