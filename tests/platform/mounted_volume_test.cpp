#include "platform/linux/mounted_volume.h"

#include <gtest/gtest.h>
#include <sys/mount.h>

#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

TEST(MountedVolume, TellsItsFiguresInBytes) {
  const TemporaryFolder folder;
  EXPECT_TRUE(inChildThatMayMount([&] {
    if (::mount("tmpfs", folder.path().c_str(), "tmpfs", 0, "size=1m") != 0) return false;
    const MountedVolume volume(folder.path());
    const auto empty = volume.availableBytes();
    folder.makeFile("/file", 512 * 1024);
    return volume.totalBytes() == 1024 * 1024 && empty == 1024 * 1024 &&
           volume.availableBytes() == 512 * 1024;
  }));
}

TEST(MountedVolume, HasNoNameWhereTheFileSystemHasNoLabel) {
  EXPECT_EQ(MountedVolume("/proc").name(), std::nullopt);
}

TEST(MountedVolume, TellsNothingOfAPlaceThatIsNotThere) {
  const MountedVolume volume("/nowhere/at/all");
  EXPECT_EQ(volume.totalBytes(), std::nullopt);
  EXPECT_EQ(volume.availableBytes(), std::nullopt);
  EXPECT_EQ(volume.name(), std::nullopt);
}

}  // namespace
}  // namespace klarvik
