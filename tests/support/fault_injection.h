#pragma once

#include <atomic>
#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <utility>

#include "platform/file_system.h"
#include "support/gate.h"

namespace klarvik {

/// What a test puts before the operations of a double: a failure, something that is done first, or
/// a gate to wait at. Paths are logical; what is put before an operation on a path concerns exactly
/// that path. May be used from any thread.
template <typename Operation>
class FaultInjection {
 public:
  /// From now on, until `heal`.
  void fail(Operation operation, const Path& path) {
    const std::scoped_lock lock(_mutex);
    _failing.emplace(operation, path);
    markInjected(operation);
  }
  void heal(Operation operation, const Path& path) {
    const std::scoped_lock lock(_mutex);
    _failing.erase({operation, path});
  }

  /// Done once, just before the next such operation on `path`, whether that is to fail or not.
  void before(Operation operation, const Path& path, std::function<void()> act) {
    const std::scoped_lock lock(_mutex);
    _acts[{operation, path}] = std::move(act);
    markInjected(operation);
  }
  /// Done before each such operation from now on, by whoever wants it.
  void beforeEach(Operation operation, std::function<void(const Path& path)> act) {
    const std::scoped_lock lock(_mutex);
    _standing[operation] = std::move(act);
    markInjected(operation);
  }
  /// From now on whoever wants such an operation waits at `gate` first.
  void holdAt(Operation operation, Gate& gate) {
    const std::scoped_lock lock(_mutex);
    _gates[operation] = &gate;
    markInjected(operation);
  }

 protected:
  /// Whether anything was ever put before such an operation. Costs next to nothing.
  [[nodiscard]] bool isInjected(Operation operation) const {
    return (_injected.load() & bit(operation)) != 0;
  }

  /// Waits, and does what was to be done before; then tells whether the operation goes ahead.
  [[nodiscard]] bool goesAhead(Operation operation, const Path& path) const {
    if (!isInjected(operation)) return true;
    Gate* gate = nullptr;
    std::function<void(const Path&)> standing;
    std::function<void()> act;
    {
      const std::scoped_lock lock(_mutex);
      if (const auto found = _gates.find(operation); found != _gates.end()) gate = found->second;
      if (const auto found = _standing.find(operation); found != _standing.end()) {
        standing = found->second;
      }
      if (auto found = _acts.extract({operation, path})) act = std::move(found.mapped());
    }
    if (gate != nullptr) gate->pass();
    if (standing) standing(path);
    if (act) act();
    const std::scoped_lock lock(_mutex);
    return !_failing.contains({operation, path});
  }

 private:
  using Occasion = std::pair<Operation, Path>;

  static unsigned bit(Operation operation) { return 1U << static_cast<unsigned>(operation); }
  void markInjected(Operation operation) { _injected |= bit(operation); }

  std::atomic<unsigned> _injected = 0;
  mutable std::mutex _mutex;  // guards all below
  std::set<Occasion> _failing;
  mutable std::map<Occasion, std::function<void()>> _acts;
  std::map<Operation, std::function<void(const Path&)>> _standing;
  std::map<Operation, Gate*> _gates;
};

}  // namespace klarvik
