#pragma once

#include <condition_variable>
#include <cstddef>
#include <mutex>

namespace klarvik {

/// Holds other threads up at a place until a test lets them go on. Open at first.
class Gate {
 public:
  void close() {
    const std::scoped_lock lock(_mutex);
    _isOpen = false;
  }

  void open() {
    {
      const std::scoped_lock lock(_mutex);
      _isOpen = true;
    }
    _changed.notify_all();
  }

  /// Waits while the gate is closed.
  void pass() {
    std::unique_lock lock(_mutex);
    ++_waiting;
    _changed.wait(lock, [this] { return _isOpen; });
    --_waiting;
  }

  /// How many threads stand before it.
  [[nodiscard]] std::size_t waiting() const {
    const std::scoped_lock lock(_mutex);
    return _isOpen ? 0 : _waiting;
  }

 private:
  mutable std::mutex _mutex;
  std::condition_variable _changed;
  bool _isOpen = true;
  std::size_t _waiting = 0;
};

}  // namespace klarvik
