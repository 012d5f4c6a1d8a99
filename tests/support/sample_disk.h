#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

#include "core/junk_model.h"
#include "platform/file_system.h"

namespace klarvik {

struct SampleDiskOptions {
  /// How many times as many small files, and how many times the size of what is big. At 1 the disk
  /// takes about 160 MB.
  std::int64_t scale = 1;
  Path home = "/Users/ann";  ///< logical
};

/// A disk shaped like a Mac's, made for tests and for trying the program out. The same options make
/// the same files with the same content and dates.
struct SampleDisk {
  Path root;  ///< on the machine
  Path home;  ///< logical

  /// How many items a Smart Scan finds, category by category, when no outside tool answers. Up to a
  /// scale of 10; above, more of the leftovers are large enough for a row.
  std::map<CategoryType, std::size_t> smartScanItems;
  /// What `xcrun simctl list devices unavailable --json` would print here, and how many of the
  /// devices in it are worth a row.
  std::string simulatorListing;
  std::size_t simulatorRows = 0;

  std::size_t trashEntries = 0;  ///< in both of the home's Trash folders, hidden ones included
  std::size_t applications = 0;  ///< with a bundle identifier, in both Applications folders
  std::size_t residuals = 0;     ///< of com.acme.writer, in all twelve folders where it is sought
  std::size_t duplicateGroups = 0;  ///< files of the same content in Documents, Downloads, Pictures
  std::size_t duplicateCopies = 0;  ///< files in these groups
  std::size_t largeFiles = 0;       ///< of 100 MiB and more where the large file finder looks
  std::size_t files = 0;            ///< regular files in all
};

/// Builds the disk below `root`, a folder that is missing or empty. Throws std::system_error when a
/// file cannot be made, and std::invalid_argument when the folder holds something already.
SampleDisk buildSampleDisk(const Path& root, const SampleDiskOptions& options = {});

}  // namespace klarvik
