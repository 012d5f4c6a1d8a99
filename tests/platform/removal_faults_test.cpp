#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>

#include <thread>

#include "deep_tree.h"
#include "platform/linux/linux_file_system.h"
#include "support/child_process.h"
#include "support/disk_snapshot.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

/// A disk with canaries; whatever a test removes, they are there at its end, and nothing is gone
/// that was not selected.
class RemovalFaultsTest : public testing::Test {
 protected:
  RemovalFaultsTest() {
    disk.makeFile("/Library/canary", "outside");
    disk.makeFile("/chosen/tree/x/file", "one");
    disk.makeFile("/chosen/tree/y/z/file", "two");
    disk.makeFile("/chosen/tree/.hidden", "three");
    disk.makeFile("/chosen/treetop", "beside");
  }
  ~RemovalFaultsTest() override {
    EXPECT_EQ(disk.contentOf("/Library/canary"), "outside");
    EXPECT_EQ(disk.contentOf("/chosen/treetop"), "beside");
  }

  bool remove(const Path& item) const {
    return files.remove(item, [](const Path&, const FileAttributes&) { return true; });
  }
  /// The same; fails the test when anything but the item is gone, or anything has changed.
  bool removeOnly(const Path& item) const {
    const DiskSnapshot before = now();
    const bool isRemoved = remove(item);
    EXPECT_EQ(unexpectedDifferences(before, now(), {item}), "");
    return isRemoved;
  }
  DiskSnapshot now() const { return snapshotOf(disk.path()); }

  TemporaryFolder disk;
  mutable LinuxFileSystem files{disk.path(), "/Users/ann"};
};

TEST_F(RemovalFaultsTest, TheItemIsALinkTheLinkGoesAndItsTargetStays) {
  disk.makeLink("/chosen/link", disk.onDisk("/Library"));
  disk.makeLink("/chosen/dangling", "nowhere");
  disk.makeLink("/chosen/tree/inside", disk.onDisk("/Library"));
  disk.makeLink("/chosen/tree/up", "../..");
  const DiskSnapshot before = now();
  EXPECT_TRUE(remove("/chosen/link"));
  EXPECT_TRUE(remove("/chosen/dangling"));
  EXPECT_TRUE(remove("/chosen/tree"));
  EXPECT_EQ(
      unexpectedDifferences(before, now(), {"/chosen/link", "/chosen/dangling", "/chosen/tree"}),
      "");
  EXPECT_FALSE(disk.holds("/chosen/link"));
  EXPECT_FALSE(disk.holds("/chosen/tree"));
}

TEST_F(RemovalFaultsTest, AMountInsideTheTreeIsKeptAndTheItemCountsAsNotRemoved) {
  disk.makeFolder("/chosen/tree/y/mount");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.onDisk("/chosen/tree/y/mount"));
    disk.makeFile("/chosen/tree/y/mount/inside", "kept");
    EXPECT_FALSE(removeOnly("/chosen/tree"));
    EXPECT_EQ(disk.contentOf("/chosen/tree/y/mount/inside"), "kept");
    EXPECT_FALSE(disk.holds("/chosen/tree/x"));
    EXPECT_FALSE(disk.holds("/chosen/tree/y/z"));
  }));
}

TEST_F(RemovalFaultsTest, ABindMountOfTheSameDeviceInsideTheTreeIsKept) {
  disk.makeFolder("/chosen/tree/y/mount");
  disk.makeFile("/chosen/tree/mounted-file", "under");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountBind(disk.onDisk("/Library"), disk.onDisk("/chosen/tree/y/mount"));
    mountBind(disk.onDisk("/Library/canary"), disk.onDisk("/chosen/tree/mounted-file"));
    EXPECT_FALSE(removeOnly("/chosen/tree"));
    EXPECT_EQ(disk.contentOf("/Library/canary"), "outside");
    EXPECT_TRUE(disk.holds("/chosen/tree/mounted-file"));
    EXPECT_FALSE(disk.holds("/chosen/tree/x"));
  }));
  EXPECT_EQ(disk.contentOf("/Library/canary"), "outside");
}

TEST_F(RemovalFaultsTest, AFolderBoundOntoItselfInsideTheTreeIsKept) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountBind(disk.onDisk("/chosen/tree/x"), disk.onDisk("/chosen/tree/x"));
    EXPECT_FALSE(removeOnly("/chosen/tree"));
    EXPECT_EQ(disk.contentOf("/chosen/tree/x/file"), "one");
    EXPECT_FALSE(disk.holds("/chosen/tree/y"));
  }));
}

TEST_F(RemovalFaultsTest, AnItemThatIsItselfAMountIsKept) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountBind(disk.onDisk("/Library"), disk.onDisk("/chosen/tree"));
    EXPECT_FALSE(removeOnly("/chosen/tree"));
    EXPECT_EQ(disk.contentOf("/chosen/tree/canary"), "outside");
  }));
  EXPECT_EQ(disk.contentOf("/Library/canary"), "outside");
  EXPECT_EQ(disk.contentOf("/chosen/tree/x/file"), "one");
}

/// Nothing below `folder` can be removed until `release`: by the flag of the file system where that
/// may be set, else by the mode of the folder.
class Protection {
 public:
  Protection(Path folder, Path file) : _folder(std::move(folder)), _file(std::move(file)) {
    _flagged = setImmutable(true);
    if (!_flagged) setMode(0555);
  }
  ~Protection() {
    if (_flagged)
      setImmutable(false);
    else
      setMode(0755);
  }
  Protection(const Protection&) = delete;
  Protection& operator=(const Protection&) = delete;

 private:
  bool setImmutable(bool on) const {
    const UniqueFd file(::open(_file.c_str(), O_RDONLY));
    long flags = 0;
    if (::ioctl(file.get(), FS_IOC_GETFLAGS, &flags) != 0) return false;
    flags = on ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    return ::ioctl(file.get(), FS_IOC_SETFLAGS, &flags) == 0;
  }
  void setMode(unsigned mode) const {
    std::filesystem::permissions(_folder, std::filesystem::perms(mode));
  }

  Path _folder;
  Path _file;
  bool _flagged = false;
};

TEST_F(RemovalFaultsTest, AnImmutableFileInsideStaysWhileItsSiblingsGo) {
  const Protection protection(disk.onDisk("/chosen/tree/y/z"),
                              disk.onDisk("/chosen/tree/y/z/file"));
  const DiskSnapshot before = now();
  EXPECT_FALSE(remove("/chosen/tree"));
  EXPECT_EQ(unexpectedDifferences(before, now(), {"/chosen/tree"}), "");
  EXPECT_EQ(disk.contentOf("/chosen/tree/y/z/file"), "two");
  EXPECT_FALSE(disk.holds("/chosen/tree/x"));
  EXPECT_FALSE(disk.holds("/chosen/tree/.hidden"));
}

TEST_F(RemovalFaultsTest, AParentThatMayNotBeWrittenCountsAsNotRemovedAndNoModeChanges) {
  using std::filesystem::perms;
  std::filesystem::permissions(disk.path(), perms(0755));
  std::filesystem::permissions(disk.onDisk("/chosen"), perms(0555));
  std::filesystem::permissions(disk.onDisk("/chosen/tree/x"), perms(0555));
  const DiskSnapshot before = now();
  EXPECT_TRUE(inChildWithoutPrivileges(
      [&] { return !remove("/chosen/treetop") && !remove("/chosen/tree/x"); }));
  EXPECT_EQ(differences(before, now()), "");
  std::filesystem::permissions(disk.onDisk("/chosen"), perms(0755));
  std::filesystem::permissions(disk.onDisk("/chosen/tree/x"), perms(0755));
}

TEST_F(RemovalFaultsTest, AReadOnlyFileSystemCountsAsNotRemoved) {
  disk.makeFolder("/volume");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.onDisk("/volume"));
    disk.makeFile("/volume/tree/file", "kept");
    ASSERT_EQ(
        ::mount(nullptr, disk.onDisk("/volume").c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr),
        0);
    EXPECT_FALSE(removeOnly("/volume/tree"));
    EXPECT_FALSE(removeOnly("/volume/tree/file"));
    EXPECT_EQ(disk.contentOf("/volume/tree/file"), "kept");
  }));
}

TEST_F(RemovalFaultsTest, AnItemThatIsGoneAlreadyCountsAsNotRemoved) {
  const DiskSnapshot before = now();
  EXPECT_FALSE(remove("/chosen/gone"));
  EXPECT_FALSE(remove("/chosen/gone/deeper"));
  EXPECT_EQ(differences(before, now()), "");
}

TEST_F(RemovalFaultsTest, ASelectionThatHoldsAFolderAndSomethingInsideItRemovesEachOnce) {
  const DiskSnapshot before = now();
  EXPECT_TRUE(remove("/chosen/tree/x"));
  EXPECT_TRUE(remove("/chosen/tree"));
  EXPECT_FALSE(remove("/chosen/tree/y"));
  EXPECT_EQ(unexpectedDifferences(before, now(), {"/chosen/tree"}), "");
}

TEST_F(RemovalFaultsTest, AFolderAndWhatIsInsideItMayGoAtTheSameTime) {
  for (int i = 0; i < 300; ++i) {
    disk.makeFile("/chosen/tree/n/" + std::to_string(i % 10) + "/" + std::to_string(i), "x");
  }
  const DiskSnapshot before = now();
  {
    std::vector<std::jthread> threads;
    for (const char* item : {"/chosen/tree", "/chosen/tree/n", "/chosen/tree/n/1",
                             "/chosen/tree/n/9", "/chosen/tree/y/z", "/chosen/tree/n"}) {
      threads.emplace_back([this, item] { remove(item); });
    }
  }
  remove("/chosen/tree");
  EXPECT_EQ(unexpectedDifferences(before, now(), {"/chosen/tree"}), "");
  EXPECT_FALSE(disk.holds("/chosen/tree"));
}

TEST_F(RemovalFaultsTest, NamesOfAnyBytesAreRemovedAsTheyStand) {
  const std::vector<std::string> names = {"\xff\xfe", "two\nlines", "-rf", "$(id)", "..."};
  for (const std::string& name : names) disk.makeFile("/odd" / Path(name) / name, "x");
  for (const std::string& name : names) EXPECT_TRUE(remove("/odd" / Path(name))) << name;
  EXPECT_TRUE(std::filesystem::is_empty(disk.onDisk("/odd")));
}

TEST_F(RemovalFaultsTest, AnEmptyFolderThatMayNotBeListedGoes) {
  std::filesystem::permissions(disk.path(), std::filesystem::perms(0755));
  const Path open = disk.makeFolder("/open");
  std::filesystem::permissions(open, std::filesystem::perms(0777));
  EXPECT_TRUE(inChildWithoutPrivileges([&] {
    for (const char* folder : {"/open/alone", "/open/tree/closed"}) {
      std::filesystem::permissions(disk.makeFolder(folder), std::filesystem::perms::none);
    }
    return remove("/open/alone") && remove("/open/tree");
  }));
  EXPECT_TRUE(std::filesystem::is_empty(open));
}

TEST(DeepRemovalTest, AHundredThousandLevelsDeepWithFewFileHandlesCompletes) {
  const TemporaryFolder disk(memoryFolder());
  makeDeepTree(disk.makeFolder("/tree"), 100'000);
  EXPECT_TRUE(inChild([&] {
    LinuxFileSystem files(disk.path(), "/Users/ann");
    return limitHandles(64) &&
           files.remove("/tree", [](const Path&, const FileAttributes&) { return true; });
  }));
  EXPECT_FALSE(disk.holds("/tree"));
}

TEST(DeepRemovalTest, APathLongerThanPathMaxIsRemoved) {
  const TemporaryFolder disk(memoryFolder());
  LinuxFileSystem files(disk.path(), "/Users/ann");
  const std::string name(200, 'd');
  makeDeepTree(disk.makeFolder("/tree"), 50, name);
  Path deep = "/tree";
  for (int i = 0; i < 49; ++i) deep /= name;
  EXPECT_TRUE(files.remove(deep, [](const Path&, const FileAttributes&) { return true; }));
  EXPECT_FALSE(files.exists(deep));
  EXPECT_TRUE(files.exists(deep.parent_path()));
  EXPECT_TRUE(files.remove("/tree", [](const Path&, const FileAttributes&) { return true; }));
}

}  // namespace
}  // namespace klarvik
