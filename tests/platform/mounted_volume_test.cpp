#include "platform/linux/mounts.h"

#include <gtest/gtest.h>
#include <sys/statvfs.h>

#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

TEST(MountedVolume, TellsItsFiguresInBytes) {
  const TemporaryFolder folder;
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(folder.path(), "size=1m");
    const MountedVolume volume(folder.path());
    EXPECT_EQ(volume.totalBytes(), 1024 * 1024);
    EXPECT_EQ(volume.availableBytes(), 1024 * 1024);
    folder.makeFile("/file", 512 * 1024);
    EXPECT_EQ(volume.availableBytes(), 512 * 1024);
    EXPECT_EQ(volume.keptForRootBytes(), 0);
  }));
}

TEST(MountedVolume, TellsWhatOnlyRootCouldWrite) {
  struct ::statvfs status {};
  ASSERT_EQ(::statvfs("/", &status), 0);
  const auto kept = static_cast<std::int64_t>((status.f_bfree - status.f_bavail) * status.f_frsize);
  EXPECT_EQ(MountedVolume("/").keptForRootBytes(), kept);
}

TEST(MountedVolume, HasNoNameWhereTheFileSystemHasNoLabel) {
  EXPECT_EQ(MountedVolume("/proc").name(), std::nullopt);
}

TEST(MountedVolume, TellsNothingOfAPlaceThatIsNotThere) {
  const MountedVolume volume("/nowhere/at/all");
  EXPECT_EQ(volume.totalBytes(), std::nullopt);
  EXPECT_EQ(volume.availableBytes(), std::nullopt);
  EXPECT_EQ(volume.keptForRootBytes(), std::nullopt);
  EXPECT_EQ(volume.name(), std::nullopt);
}

}  // namespace
}  // namespace klarvik
