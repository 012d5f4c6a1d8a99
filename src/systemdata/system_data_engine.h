#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <stop_token>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "systemdata/system_data_item.h"

namespace klarvik {

/// Finds out where the space went that the system's own storage report lumps together. Reads sizes
/// only, and removes nothing.
///
/// Owned by whoever started the work; cheap to make, and made afresh for each run. Operations are
/// synchronous and are meant to be called off the main thread; analyses of one engine run one after
/// the other. Nothing throws: what cannot be read is not found.
class SystemDataEngine {
 public:
  /// Comes on the calling thread, and must not call back into the engine. `fraction` is of the
  /// whole analysis, from 0 to 1.
  using ProgressSink = std::function<void(const std::string& label, double fraction)>;

  explicit SystemDataEngine(const Platform& platform) : _platform(platform) {}

  /// Goes through all passes, each of which is reported before it begins. Only the walk of a ledger
  /// ends early at a stop; what comes of it then is worth nothing. The free bytes of the result are
  /// left at 0 for the caller to fill in. Items come shortest path first, and none lies inside
  /// another; those of a layout with a ledger come as `makeLedger` says.
  [[nodiscard]] SystemDataResult analyse(const ProgressSink& progress,
                                         const std::stop_token& stop = {});

  /// Bytes allocated on the disk for a path and all it holds, hidden files and the contents of
  /// packages included. 0 for a link and for what cannot be read.
  [[nodiscard]] std::int64_t measure(const Path& url) const;
  /// Of the volume, for the user; 0 where it does not tell.
  [[nodiscard]] std::int64_t freeBytes() const;

 private:
  const Platform& _platform;
  std::mutex _analysing;
};

}  // namespace klarvik
