#include "support/disk_snapshot.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class DiskSnapshotTest : public testing::Test {
 protected:
  DiskSnapshotTest() {
    disk.makeFile("/a/file", "one");
    disk.makeFile("/ab/file", "two");
    disk.makeLink("/link", "a");
  }
  DiskSnapshot now() const { return snapshotOf(disk.path()); }

  TemporaryFolder disk;
};

TEST_F(DiskSnapshotTest, TellsWhatIsGoneNewAndChanged) {
  const DiskSnapshot before = now();
  std::filesystem::remove_all(disk.onDisk("/a"));
  disk.makeFile("/b", "new");
  disk.makeFile("/ab/file", "six");
  std::filesystem::remove(disk.onDisk("/link"));
  disk.makeLink("/link", "b");
  EXPECT_EQ(differences(before, now()),
            "gone a\ngone a/file\nchanged ab/file\nchanged link\nnew b\n");
}

TEST_F(DiskSnapshotTest, SeesAChangedMode) {
  const DiskSnapshot before = now();
  ::chmod(disk.onDisk("/a").c_str(), 0700);
  EXPECT_EQ(differences(before, now()), "changed a\n");
}

TEST_F(DiskSnapshotTest, ExpectsOnlyWhatIsSelectedToBeGone) {
  const DiskSnapshot before = now();
  std::filesystem::remove_all(disk.onDisk("/a"));
  EXPECT_EQ(unexpectedDifferences(before, now(), {"/a"}), "");
  std::filesystem::remove_all(disk.onDisk("/ab"));
  EXPECT_EQ(unexpectedDifferences(before, now(), {"/a"}), "gone ab\ngone ab/file\n");
}

}  // namespace
}  // namespace klarvik
