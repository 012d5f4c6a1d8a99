#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "base/paths.h"
#include "places/colors.h"
#include "platform/clock.h"
#include "platform/platform.h"

namespace klarvik {

/// What fills the disk, in the coarse terms that a person thinks in.
struct DiskComposition {
  /// One share of the disk.
  struct Bucket {
    std::string id;
    std::string label;
    std::int64_t bytes = 0;
    RgbColor color{};
    std::optional<Path> url = std::nullopt;  ///< the folder; nothing for what is no one folder
    /// What can be looked into, largest first; none on a disk of whose places only some are
    /// measured.
    std::vector<Path> places{};

    bool operator==(const Bucket&) const = default;
  };

  std::vector<Bucket> buckets{};  ///< measured places in a fixed order, then the remainder
  std::int64_t usedBytes = 0;     ///< of the volume, when it was measured
  std::int64_t freeBytes = 0;
  Date measuredAt{};  ///< when the result was finished

  /// What to draw: the buckets by size, largest first, and last one bucket for all those below
  /// `smallestShare` (0 to 1) of the used bytes together.
  [[nodiscard]] std::vector<Bucket> displayBuckets(double smallestShare) const;
};

/// Measures the places that people keep things in, and sets their sum against what the volume says
/// is used. Reads sizes only.
///
/// Owned by whoever started the work; cheap to make, and made afresh for each run. Operations are
/// synchronous and are meant to be called off the main thread; measurements of one engine run one
/// after the other. Nothing throws: what cannot be read counts among the remainder.
class DiskCompositionEngine {
 public:
  /// Comes on the calling thread, and must not call back into the engine. `fraction` is from 0 to
  /// 1.
  using ProgressSink = std::function<void(const std::string& label, double fraction)>;
  using PresentTime = std::function<Date()>;

  explicit DiskCompositionEngine(const Platform& platform,
                                 PresentTime now = std::chrono::system_clock::now);

  /// A stop is seen between the places and inside them, at each entry. The answer then holds what
  /// was measured until the stop, and its remainder all the rest.
  [[nodiscard]] DiskComposition measureDisk(std::stop_token stop, const ProgressSink& progress);

  /// Bytes allocated on the disk for a path and all it holds, hidden files and the contents of
  /// packages included. 0 for a link and for what cannot be read. Ends early at a stop, with what
  /// it has.
  [[nodiscard]] std::int64_t measure(const Path& url, std::stop_token stop = {}) const;

 private:
  /// By one walk over the whole volume: a thing counts once, in the share in which it lies deepest.
  [[nodiscard]] DiskComposition measureVolume(const std::stop_token& stop,
                                              const ProgressSink& progress);
  void addRemainder(DiskComposition& disk, std::int64_t measured);

  const Platform& _platform;
  PresentTime _now;
  std::mutex _measuring;
};

}  // namespace klarvik
