#include "platform/linux/disk_threads.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "base/posix_io.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

const Path kDevices = "/sys/dev/block";
constexpr const char* kDevice = "/dev/null";  // stands for a disk: every machine has it

std::string numberOf(dev_t device) {
  return std::to_string(major(device)) + ':' + std::to_string(minor(device));
}

std::string numberOfDevice() {
  struct stat status {};
  EXPECT_EQ(::stat(kDevice, &status), 0);
  return numberOf(status.st_rdev);
}

/// What the system tells of the device of that number.
void tell(const std::string& number, const std::string& turns, const std::string& driver) {
  std::filesystem::create_directories(kDevices / number / "queue");
  std::filesystem::create_directories(kDevices / number / "device");
  std::ofstream(kDevices / number / "queue/rotational") << turns << '\n';
  std::filesystem::create_symlink("../../" + driver, kDevices / number / "device/driver");
}

/// The same of a partition: it is told of the disk around it.
void tellOfPartition(const std::string& number, const std::string& turns) {
  std::filesystem::create_directories(kDevices / "disk/queue");
  std::filesystem::create_directories(kDevices / "disk/partition");
  std::ofstream(kDevices / "disk/queue/rotational") << turns << '\n';
  std::filesystem::create_symlink("disk/partition", kDevices / number);
}

/// Of a folder with a file system of its own, whose number is no device's and which was mounted
/// from `kDevice`; `told` lays out what the system tells of devices.
void expectHeads(bool hasHeads, const std::function<void()>& told) {
  const TemporaryFolder disk;
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.path(), "", kDevice);
    mountTmpfs(kDevices);
    told();
    const UniqueFd folder(::open(disk.path().c_str(), O_PATH | O_DIRECTORY));
    EXPECT_EQ(filesReadAtOnce(folder.get()) == 1, hasHeads);
    if (!hasHeads) return;
    EXPECT_EQ(helpfulThreads(folder.get()).helpers, 0U);
    EXPECT_EQ(helpfulThreads(folder.get()).whileDiskIsRead, 0U);
  }));
}

TEST(DiskThatTurns, IsReadByOneAlone) {
  expectHeads(true, [] { tell(numberOfDevice(), "1", "sd"); });
  expectHeads(true, [] { tellOfPartition(numberOfDevice(), "1"); });
}

TEST(DiskThatTurns, IsNoneOfThoseThatHaveNoHeads) {
  expectHeads(false, [] { tell(numberOfDevice(), "0", "nvme"); });
  // It says so because nobody has told it otherwise.
  expectHeads(false, [] { tell(numberOfDevice(), "1", "virtio_blk"); });
  expectHeads(false, [] {});
}

TEST(DiskThatTurns, IsKnownByTheNumberOfItsFolders) {
  const TemporaryFolder disk;
  struct stat status {};
  ASSERT_EQ(::stat(disk.path().c_str(), &status), 0);
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(kDevices);
    tell(numberOf(status.st_dev), "1", "sd");
    const UniqueFd folder(::open(disk.path().c_str(), O_PATH | O_DIRECTORY));
    // A number that begins with 0 is no device's.
    EXPECT_EQ(filesReadAtOnce(folder.get()) == 1, major(status.st_dev) != 0);
  }));
}

}  // namespace
}  // namespace klarvik
