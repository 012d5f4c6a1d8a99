#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/linux/linux_trash.h"
#include "support/disk_snapshot.h"
#include "support/temporary_folder.h"

namespace klarvik {

inline bool anywhere(const Path&, const FileAttributes&) {
  return true;
}

inline bool nowhere(const Path&, const FileAttributes&) {
  return false;
}

/// A disk of its own with a home, a canary outside of it, and the Trash of that home.
class TrashFixture : public testing::Test {
 protected:
  static constexpr const char* kHome = "/Users/ann";
  static constexpr const char* kFiles = "/Users/ann/.local/share/Trash/files";
  static constexpr const char* kInfo = "/Users/ann/.local/share/Trash/info";

  TrashFixture() {
    disk.makeFolder(kHome);
    disk.makeFile("/Library/canary", "outside");
  }

  ~TrashFixture() override { EXPECT_EQ(disk.contentOf("/Library/canary"), "outside"); }

  static Path inFiles(const std::string& name) { return Path(kFiles) / name; }
  static Path recordOf(const std::string& name) { return Path(kInfo) / (name + ".trashinfo"); }

  [[nodiscard]] DiskSnapshot snapshot(const Path& place = "/") const {
    return snapshotOf(disk.onDisk(place));
  }

  /// How many things wait in the home Trash, and how many records it has.
  [[nodiscard]] std::size_t countIn(const Path& place) const {
    return disk.holds(place) ? snapshotOf(disk.onDisk(place)).size() : 0;
  }

  TemporaryFolder disk;
  LinuxTrash trash{disk.path(), kHome};
};

}  // namespace klarvik
