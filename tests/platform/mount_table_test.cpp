#include "platform/linux/mounts.h"

#include <fcntl.h>
#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(MountTable, TellsIdAndPlaceOfEachLine) {
  const auto mounts = mountTableFrom(
      "22 1 254:0 / / rw,relatime - ext4 /dev/vda rw\n"
      "36 22 0:31 / /media/USB\\040stick\\134\\012 rw shared:5 - vfat /dev/sdb1 rw\n");
  ASSERT_EQ(mounts.size(), 2u);
  EXPECT_EQ(mounts[0].id, 22u);
  EXPECT_EQ(mounts[0].place, "/");
  EXPECT_EQ(mounts[1].id, 36u);
  EXPECT_EQ(mounts[1].place, "/media/USB stick\\\n");
  EXPECT_EQ(mounts[1].source, "/dev/sdb1");
}

TEST(MountTable, TellsWhichFileSystemsNeedNoServer) {
  const auto mounts = mountTableFrom(
      "22 1 254:0 / / rw,relatime - ext4 /dev/vda rw\n"
      "36 22 0:31 / /media/stick rw shared:5 master:1 - vfat /dev/sdb1 rw\n"
      "37 22 0:32 / /mnt/server rw - nfs4 server:/export rw\n"
      "38 22 0:33 / /mnt/other rw - fuse.sshfs server: rw\n"
      "39 22 0:34 / /mnt/ext4 rw\n"
      "40 22 0:35 / /mnt/unknown rw - \n");
  ASSERT_EQ(mounts.size(), 6u);
  for (const MountPoint& mount : mounts) {
    EXPECT_EQ(mount.isLocal, mount.place == "/" || mount.place == "/media/stick") << mount.place;
  }
}

TEST(MountTable, TellsWhereSomethingIsMountedOnceSomebodyEnters) {
  const auto mounts = mountTableFrom(
      "22 1 254:0 / / rw,relatime - ext4 /dev/vda rw\n"
      "36 22 0:31 / /boot/efi rw shared:5 - autofs systemd-1 rw,fd=52,direct\n"
      "37 22 0:32 / /autofs rw - tmpfs autofs rw\n");
  ASSERT_EQ(mounts.size(), 3u);
  for (const MountPoint& mount : mounts) {
    EXPECT_EQ(mount.mountsOnEntry, mount.place == "/boot/efi") << mount.place;
  }
}

TEST(MountTable, LeavesOutLinesOfAnotherForm) {
  EXPECT_TRUE(mountTableFrom("").empty());
  EXPECT_TRUE(mountTableFrom("\n\nx 1 0:1 / /mnt rw\n22 1 254:0 /\n22 1 254:0 / mnt\n").empty());
}

TEST(MountTable, TakesABackslashWithoutDigitsAsItself) {
  const auto mounts = mountTableFrom("1 1 0:1 / /a\\9 rw\n2 1 0:1 / /b\\ rw\n3 1 0:1 / /c\\777 rw");
  ASSERT_EQ(mounts.size(), 3u);
  EXPECT_EQ(mounts[0].place, "/a\\9");
  EXPECT_EQ(mounts[1].place, "/b\\");
  EXPECT_EQ(mounts[2].place, "/c\\777");
}

TEST(MountTable, ABackslashWithTooFewDigitsAtTheEndOfAPlaceReadsNothingBeyondIt) {
  const auto mounts = mountTableFrom("1 1 0:1 / /a\\51\n2 1 0:1 / /b\\7 rw\n");
  ASSERT_EQ(mounts.size(), 2u);
  EXPECT_EQ(mounts[0].place, "/a\\51");
  EXPECT_EQ(mounts[1].place, "/b\\7");
}

TEST(MountTable, AgreesWithWhatTheSystemTellsOfTheRoot) {
  const auto mounts = readMountTable();
  const auto root = mountOfEntry(AT_FDCWD, "/");
  ASSERT_TRUE(mounts && root);
  EXPECT_TRUE(root->isDirectory);
  EXPECT_TRUE(root->isMountPoint);
  bool found = false;
  for (const MountPoint& mount : *mounts) found |= mount.id == root->id && mount.place == "/";
  EXPECT_TRUE(found);
}

TEST(MountTable, TellsNothingOfAMissingEntry) {
  EXPECT_EQ(mountOfEntry(AT_FDCWD, "/no such entry").has_value(), false);
}

}  // namespace
}  // namespace klarvik
