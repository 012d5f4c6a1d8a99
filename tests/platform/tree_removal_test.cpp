#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/linux_file_system.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class TreeRemovalTest : public testing::Test {
 protected:
  bool remove(const Path& item) {
    return files.remove(item, [](const Path&, const FileAttributes&) { return true; });
  }

  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
};

TEST_F(TreeRemovalTest, RemovesAFile) {
  disk.makeFile("/a/file", "x");
  disk.makeFile("/a/other", "x");
  EXPECT_TRUE(remove("/a/file"));
  EXPECT_FALSE(disk.holds("/a/file"));
  EXPECT_TRUE(disk.holds("/a/other"));
}

TEST_F(TreeRemovalTest, RemovesAFolderWithAllItHolds) {
  disk.makeFile("/a/tree/x/y/file", "x");
  disk.makeFile("/a/tree/.hidden/file", "x");
  disk.makeFolder("/a/tree/empty/empty");
  disk.makeFile("/a/tree2", "kept");
  EXPECT_TRUE(remove("/a/tree"));
  EXPECT_FALSE(disk.holds("/a/tree"));
  EXPECT_TRUE(disk.holds("/a/tree2"));
}

TEST_F(TreeRemovalTest, AsksOnceWithTheRealPlaceBeforeAnythingChanges) {
  disk.makeFile("/real/tree/file", "x");
  disk.makeLink("/link", "real");
  std::vector<Path> asked;
  EXPECT_TRUE(files.remove("/link/tree", [&](const Path& place, const FileAttributes&) {
    asked.push_back(place);
    EXPECT_TRUE(disk.holds("/real/tree/file"));
    return true;
  }));
  EXPECT_THAT(asked, testing::ElementsAre(Path("/real/tree")));
}

TEST_F(TreeRemovalTest, LeavesEverythingWhenThePlaceIsRefused) {
  disk.makeFile("/a/tree/file", "kept");
  EXPECT_FALSE(files.remove("/a/tree", [](const Path&, const FileAttributes&) { return false; }));
  EXPECT_FALSE(files.remove("/a/tree", nullptr));
  EXPECT_EQ(disk.contentOf("/a/tree/file"), "kept");
}

TEST_F(TreeRemovalTest, RefusesWhatDoesNotEndInAName) {
  disk.makeFile("/a/file", "kept");
  for (const char* item : {"", "/", ".", "..", "/a/", "/a/.", "/a/..", "/a/b/..", "a/file"}) {
    EXPECT_FALSE(remove(item)) << item;
  }
  EXPECT_FALSE(remove(Path(std::string("/a/file\0x", 9))));
  EXPECT_EQ(disk.contentOf("/a/file"), "kept");
}

}  // namespace
}  // namespace klarvik
