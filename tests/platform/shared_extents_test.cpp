#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <string>

#include "platform/linux/linux_file_system.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

constexpr std::int64_t megabyte = 1'048'576;

/// On a file system of each kind that has copies which share their content.
class SharedExtents : public testing::TestWithParam<const char*> {};

TEST_P(SharedExtents, AreToldOfCopiesAndOfNothingElse) {
  const std::string kind = GetParam();
  if (!canMountImage(kind)) GTEST_SKIP() << "no " << kind << " can be mounted here";
  const TemporaryFolder store;
  const TemporaryFolder disk;
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    ASSERT_TRUE(mountImage(kind, store.path(), disk.path()));
    const LinuxFileSystem files(disk.path(), UserFolders::in("/home/ann"));
    disk.makeFile("/home/ann/own", 4 * megabyte);
    disk.makeFile("/home/ann/file", 4 * megabyte);
    ASSERT_TRUE(shareContent(disk.onDisk("/home/ann/file"), disk.onDisk("/home/ann/copy")));
    // Longer by a piece of its own.
    std::ofstream(disk.onDisk("/home/ann/copy"), std::ios::app)
        << std::string(static_cast<std::size_t>(2 * megabyte), 'y');
    ::sync();
    EXPECT_TRUE(files.mayShareContent("/home/ann"));
    EXPECT_EQ(files.openForReading("/home/ann/own")->sharedBytes(), 0);
    EXPECT_EQ(files.openForReading("/home/ann/file")->sharedBytes(), 4 * megabyte);
    EXPECT_EQ(files.openForReading("/home/ann/copy")->sharedBytes(), 4 * megabyte);
    EXPECT_EQ(files.attributes("/home/ann/copy")->allocatedBytes, 6 * megabyte);
  }));
}

INSTANTIATE_TEST_SUITE_P(Of, SharedExtents, testing::Values("btrfs", "xfs"),
                         [](const auto& kind) { return std::string(kind.param); });

TEST(SharedExtentsElsewhere, AreNotAskedFor) {
  const TemporaryFolder disk;
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.path());
    disk.makeFile("/home/ann/file", megabyte);
    const LinuxFileSystem files(disk.path(), UserFolders::in("/home/ann"));
    EXPECT_FALSE(files.mayShareContent("/home/ann"));
    EXPECT_FALSE(files.mayShareContent("/nowhere"));
    EXPECT_EQ(files.openForReading("/home/ann/file")->sharedBytes(), 0);
  }));
}

}  // namespace
}  // namespace klarvik
