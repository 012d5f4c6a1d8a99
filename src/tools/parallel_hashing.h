#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "platform/file_system.h"
#include "tools/content_digest.h"

namespace klarvik {

/// Hashes a list of files on threads of its own, and hands the digests out in order of the list, as
/// if one thread did it. A file is begun as soon as a thread is free, however far the caller has
/// come. Belongs to one thread; at its end nothing is read any more.
class ParallelHashing {
 public:
  /// Opens a file of the list; none when that failed. Made for each thread, and used by it alone.
  using Open = std::function<std::unique_ptr<FileReader>(std::size_t number)>;
  using MakeOpen = std::function<Open()>;

  /// Files 0 to `count - 1`, with at most `width` of them open at once. `makeOpen` is called from
  /// any thread; what it refers to outlives this object.
  ParallelHashing(std::size_t count, MakeOpen makeOpen, std::size_t width);
  ~ParallelHashing();
  ParallelHashing(const ParallelHashing&) = delete;
  ParallelHashing& operator=(const ParallelHashing&) = delete;

  /// Waits for the next file of the list. Nothing when it could not be opened. At most `count`
  /// calls.
  [[nodiscard]] std::optional<Digest> next();

 private:
  struct Result {
    bool isThere = false;
    std::optional<Digest> digest;
  };

  void startThreads(std::size_t width);
  void work();
  [[nodiscard]] std::optional<std::size_t> takeFile();
  void put(std::size_t number, const std::optional<Digest>& digest);

  const MakeOpen _makeOpen;
  std::mutex _mutex;  // guards all that follows
  std::condition_variable _arrived;
  std::vector<Result> _results;
  std::size_t _nextToHash = 0;
  std::size_t _nextToHandOut = 0;
  std::vector<std::jthread> _threads;  // last, so that they end first
};

}  // namespace klarvik
