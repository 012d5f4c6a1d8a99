#include "tools/parallel_hashing.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace klarvik {

ParallelHashing::ParallelHashing(std::size_t count, MakeOpen makeOpen, std::size_t width)
    : _makeOpen(std::move(makeOpen)), _results(count) {
  startThreads(std::min(count, width));
}

ParallelHashing::~ParallelHashing() {
  const std::scoped_lock lock(_mutex);
  _nextToHash = _results.size();
}

std::optional<Digest> ParallelHashing::next() {
  // Where the system gives no thread at all, the caller's does the work.
  if (_threads.empty()) work();
  std::unique_lock lock(_mutex);
  Result& result = _results.at(_nextToHandOut);
  _arrived.wait(lock, [&] { return result.isThere; });
  ++_nextToHandOut;
  return result.digest;
}

void ParallelHashing::startThreads(std::size_t width) {
  try {
    while (_threads.size() < width) _threads.emplace_back([this] { work(); });
  } catch (const std::system_error&) {
    // Those that could be had do all the work.
  }
}

void ParallelHashing::work() {
  ContentHasher hasher;
  const Open open = _makeOpen();
  while (const auto number = takeFile()) put(*number, hasher.digest(open(*number)));
}

std::optional<std::size_t> ParallelHashing::takeFile() {
  const std::scoped_lock lock(_mutex);
  if (_nextToHash == _results.size()) return std::nullopt;
  return _nextToHash++;
}

void ParallelHashing::put(std::size_t number, const std::optional<Digest>& digest) {
  bool isAwaited = false;
  {
    const std::scoped_lock lock(_mutex);
    _results[number] = {.isThere = true, .digest = digest};
    isAwaited = number == _nextToHandOut;
  }
  if (isAwaited) _arrived.notify_one();
}

}  // namespace klarvik
