#include "base/posix_io.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class FolderHandle : public testing::Test {
 protected:
  TemporaryFolder disk;
  const UniqueFd parent{::open(disk.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)};

  [[nodiscard]] UniqueFd open(const char* name, LinkInPlace link = LinkInPlace::refused) const {
    return openFolderHandle(parent.get(), name, link);
  }
  [[nodiscard]] UniqueFd openCreating(const char* name,
                                      LinkInPlace link = LinkInPlace::refused) const {
    return openFolderHandleCreating(parent.get(), name, link);
  }
  [[nodiscard]] mode_t modeOf(const char* name) const {
    struct stat status {};
    EXPECT_EQ(::fstatat(parent.get(), name, &status, AT_SYMLINK_NOFOLLOW), 0);
    return status.st_mode & 07777U;
  }
};

TEST_F(FolderHandle, ReachesWhatIsInTheFolder) {
  disk.makeFile("folder/file", "x");
  const UniqueFd folder = open("folder");
  ASSERT_TRUE(folder);
  EXPECT_EQ(::faccessat(folder.get(), "file", F_OK, 0), 0);
}

TEST_F(FolderHandle, MakesAMissingFolderForTheUserAlone) {
  EXPECT_FALSE(open("folder"));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_TRUE(openCreating("folder"));
  EXPECT_EQ(modeOf("folder"), 0700U);
}

TEST_F(FolderHandle, LeavesAFolderThatIsThereAsItIs) {
  disk.makeFolder("folder");
  ASSERT_EQ(::fchmodat(parent.get(), "folder", 0755, 0), 0);
  EXPECT_TRUE(openCreating("folder"));
  EXPECT_EQ(modeOf("folder"), 0755U);
}

TEST_F(FolderHandle, FollowsALinkOnlyWhereThatIsWanted) {
  disk.makeFolder("target");
  std::filesystem::create_symlink("target", disk.path() / "link");
  EXPECT_FALSE(open("link"));
  EXPECT_FALSE(openCreating("link"));
  EXPECT_TRUE(open("link", LinkInPlace::followed));
  EXPECT_TRUE(openCreating("link", LinkInPlace::followed));
}

TEST_F(FolderHandle, ALinkToNothingIsNotFilledIn) {
  std::filesystem::create_symlink("missing", disk.path() / "link");
  for (const LinkInPlace link : {LinkInPlace::refused, LinkInPlace::followed}) {
    EXPECT_FALSE(openCreating("link", link));
  }
  EXPECT_FALSE(disk.holds("missing"));
}

TEST_F(FolderHandle, AFileIsNoFolder) {
  disk.makeFile("file", "x");
  EXPECT_FALSE(open("file"));
  EXPECT_FALSE(openCreating("file"));
  EXPECT_EQ(disk.contentOf("file"), "x");
}

}  // namespace
}  // namespace klarvik
