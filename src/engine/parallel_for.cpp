#include "engine/parallel_for.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace klarvik {

namespace {

/// Numbers on their way from one thread to another, until the sender closes it.
template <typename Value>
class Channel {
 public:
  void send(Value value) {
    {
      const std::scoped_lock lock(_mutex);
      _waiting.push_back(value);
    }
    _changed.notify_one();
  }

  void close() {
    {
      const std::scoped_lock lock(_mutex);
      _closed = true;
    }
    _changed.notify_all();
  }

  /// Nothing once the channel is closed and empty.
  std::optional<Value> receive() {
    std::unique_lock lock(_mutex);
    _changed.wait(lock, [this] { return _closed || !_waiting.empty(); });
    if (_waiting.empty()) return std::nullopt;
    const Value value = _waiting.front();
    _waiting.pop_front();
    return value;
  }

 private:
  std::mutex _mutex;
  std::condition_variable _changed;
  std::deque<Value> _waiting;
  bool _closed = false;
};

struct Report {
  std::size_t number;
  bool performed;
};

template <typename Work>
std::vector<std::jthread> startThreads(std::size_t count, const Work& work) {
  std::vector<std::jthread> threads;
  try {
    while (threads.size() < count) threads.emplace_back(work);
  } catch (const std::system_error&) {
    // Those that could be had do all the work.
  }
  return threads;
}

}  // namespace

void parallelFor(std::size_t count, std::size_t width, const std::stop_token& stop,
                 const std::function<void(std::size_t)>& perform,
                 const std::function<void(std::size_t)>& finished) {
  const std::size_t atOnce = std::min(count, width);
  Channel<std::size_t> handedOut;
  Channel<Report> reports;
  const auto threads = startThreads(atOnce, [&] {
    while (const auto number = handedOut.receive()) {
      const bool performed = !stop.stop_requested();
      if (performed) perform(*number);
      reports.send({*number, performed});
    }
  });
  if (threads.empty()) return;

  std::size_t next = 0;
  while (next < atOnce) handedOut.send(next++);
  for (std::size_t underWay = atOnce; underWay > 0; --underWay) {
    const auto report = reports.receive();
    if (report->performed) finished(report->number);
    if (next < count && !stop.stop_requested()) {
      handedOut.send(next++);
      ++underWay;
    }
  }
  handedOut.close();
}

}  // namespace klarvik
