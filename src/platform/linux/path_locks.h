#pragma once

#include <mutex>
#include <set>

#include "platform/path.h"

namespace klarvik {

/// The things that somebody is busy with: each has one user at a time. Any thread.
class PathLocks {
 public:
  /// For as long as it lives, its owner has `thing` alone, unless somebody had it already.
  class Hold {
   public:
    Hold(PathLocks& all, Path thing) : _all(all), _thing(std::move(thing)) {
      const std::scoped_lock lock(_all._mutex);
      _isHeld = _all._things.insert(_thing).second;
    }
    ~Hold() {
      const std::scoped_lock lock(_all._mutex);
      if (_isHeld) _all._things.erase(_thing);
    }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

    explicit operator bool() const { return _isHeld; }

   private:
    PathLocks& _all;
    const Path _thing;
    bool _isHeld = false;
  };

 private:
  std::mutex _mutex;
  std::set<Path> _things;
};

}  // namespace klarvik
