#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "support/disk_writer.h"

namespace klarvik {

struct LinuxSampleDiskOptions {
  /// How many times as many small files, and how many times the size of what is big. At 1 the disk
  /// takes about 1.5 GB, most of it allocated and never written.
  std::int64_t scale = 1;
  Path home = "/home/ann";  ///< logical
  /// The date of what is fresh in the folders for temporary files, in seconds since 1970.
  std::int64_t now = newestSecond;
};

/// Something that a Smart Scan has to offer.
struct LinuxSamplePlace {
  std::string id;      ///< of its row in the tables
  Path path;           ///< logical
  std::int64_t bytes;  ///< allocated, hidden content included
};

/// A disk shaped like a developer's Linux machine, made for tests and for trying the program out.
/// The same options make the same files with the same content and dates.
struct LinuxSampleDisk {
  Path root;  ///< on the machine
  Path home;  ///< logical

  std::vector<LinuxSamplePlace> places;
  /// What the rules let nobody remove, in any way: keys and passwords. Logical, as all of these.
  std::vector<Path> secrets;
  /// What outlives every clean by the rules for its path: the secrets, what people own, what
  /// programs need, other people's and the system's files.
  std::vector<Path> keep;
  /// What outlives every clean although the rules would let its path go: no scan offers it, for
  /// what it is or for what lies beside it.
  std::vector<Path> passedOver;

  std::size_t files = 0;  ///< regular files in all
};

/// Builds the disk below `root`, a folder that is missing or empty. Throws std::system_error when a
/// file cannot be made, and std::invalid_argument when the folder holds something already.
[[nodiscard]] LinuxSampleDisk buildLinuxSampleDisk(const Path& root,
                                                   const LinuxSampleDiskOptions& options = {});

}  // namespace klarvik
