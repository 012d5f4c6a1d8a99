#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "base/message.h"
#include "platform/file_system.h"
#include "tools/duplicate_group.h"

namespace klarvik {

/// What a running scan reports.
struct DuplicateProgress {
  double fraction = 0;           ///< 0 to 1
  std::int64_t groupsFound = 0;  ///< so far; 0 again while the result is being built
  Message line;                  ///< a sentence, or the name of a file in bytes of the disk
  double readShare = 0;          ///< of the bytes that have to be read, 0 to 1

  bool operator==(const DuplicateProgress&) const = default;
};

/// Finds files of the same content. Only the SHA-256 of the whole content decides, never a name or
/// a date. It reads and reports; what goes is decided and done elsewhere.
///
/// Cheap to make, and made afresh for each scan. Operations are synchronous, meant to be called off
/// the main thread, and run one after the other. Nothing throws and nothing fails as a whole: what
/// cannot be read drops out.
class DuplicateScanner {
 public:
  using ProgressSink = std::function<void(const DuplicateProgress&)>;

  /// `hashedAtOnce`: how many files are read at a time; nothing: as many as the disks of the
  /// folders are best asked for. It decides how long a scan takes, and neither what it answers nor
  /// what it reports.
  explicit DuplicateScanner(const FileSystem& files,
                            std::optional<std::size_t> hashedAtOnce = std::nullopt);

  /// All groups of two and more among the regular files of `minimumSize` bytes and more below the
  /// folders, the most reclaimable first; of equal ones the larger files first, then those that
  /// were found first. Hidden things, what is in packages, and links are left out. A folder that is
  /// reached twice, by whatever name, is searched once, since a file is no copy of itself. Two
  /// names of one file are two copies. `progress` is called on the calling thread, in the order of
  /// a scan that hashes one file after the other. There is no stopping: whoever has lost interest
  /// ignores the answer.
  [[nodiscard]] std::vector<DuplicateGroup> scan(const std::vector<Path>& directories,
                                                 std::int64_t minimumSize,
                                                 const ProgressSink& progress);

 private:
  const FileSystem& _files;
  const std::optional<std::size_t> _hashedAtOnce;
  std::mutex _scanning;
};

}  // namespace klarvik
