#include "platform/linux/disk_threads.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "base/posix_io.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

/// A file system of each kind, in a file that is mounted as a disk of its own.
class DiskThatTurns : public testing::TestWithParam<const char*> {
 protected:
  /// Has the system tell of the disk that it turns, or that it does not. Answers whether it does.
  [[nodiscard]] bool tellThatDiskTurns(bool turns) const {
    const std::string command = "for disk in $(losetup -n -O NAME -j '" +
                                (store.path() / "image").native() + "'); do echo " +
                                (turns ? "1" : "0") +
                                " > /sys/block/${disk#/dev/}/queue/rotational || exit 1; done";
    return std::system(("{ " + command + "; } 2>/dev/null").c_str()) == 0;
  }

  const TemporaryFolder store;
  const TemporaryFolder disk;
};

TEST_P(DiskThatTurns, IsReadByOneAlone) {
  const std::string kind = GetParam();
  if (!canMountImage(kind)) GTEST_SKIP() << "no " << kind << " can be mounted here";
  if (::access("/sys/block", W_OK) != 0) GTEST_SKIP() << "no disk can be told to turn here";
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    ASSERT_TRUE(mountImage(kind, store.path(), disk.path()));
    disk.makeFile("/home/ann/file", "content");
    const UniqueFd folder(::open(disk.onDisk("/home/ann").c_str(), O_PATH | O_DIRECTORY));
    ASSERT_TRUE(folder);

    ASSERT_TRUE(tellThatDiskTurns(true));
    EXPECT_EQ(filesReadAtOnce(folder.get()), 1U);
    EXPECT_EQ(helpfulThreads(folder.get()).helpers, 0U);
    EXPECT_EQ(helpfulThreads(folder.get()).whileDiskIsRead, 0U);

    ASSERT_TRUE(tellThatDiskTurns(false));
    EXPECT_GT(filesReadAtOnce(folder.get()), 1U);
  }));
}

INSTANTIATE_TEST_SUITE_P(Of, DiskThatTurns, testing::Values("btrfs", "xfs"),
                         [](const auto& kind) { return std::string(kind.param); });

}  // namespace
}  // namespace klarvik
