#include "platform/user_folders.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace klarvik {
namespace {

class UserFoldersTest : public testing::Test {
 protected:
  UserFoldersTest() {
    ::setenv("HOME", "/home/ann", 1);
    ::unsetenv("XDG_DATA_HOME");
    ::unsetenv("XDG_CONFIG_HOME");
    ::unsetenv("XDG_CACHE_HOME");
    ::unsetenv("XDG_STATE_HOME");
  }
};

TEST_F(UserFoldersTest, LieInTheHomeUnlessTheEnvironmentSaysOtherwise) {
  const UserFolders folders = UserFolders::ofThisUser().value();
  EXPECT_EQ(folders.home, "/home/ann");
  EXPECT_EQ(folders.data, "/home/ann/.local/share");
  EXPECT_EQ(folders.configuration, "/home/ann/.config");
  EXPECT_EQ(folders.cache, "/home/ann/.cache");
  EXPECT_EQ(folders.state, "/home/ann/.local/state");
  EXPECT_EQ(folders.videos, "/home/ann/Videos");
}

TEST_F(UserFoldersTest, LieWhereTheEnvironmentSays) {
  ::setenv("XDG_DATA_HOME", "/data//ann/", 1);
  ::setenv("XDG_CONFIG_HOME", "/etc/ann", 1);
  ::setenv("XDG_CACHE_HOME", "/data/cache", 1);
  ::setenv("XDG_STATE_HOME", "relative", 1);
  const UserFolders folders = UserFolders::ofThisUser().value();
  EXPECT_EQ(folders.data, "/data/ann");
  EXPECT_EQ(folders.configuration, "/etc/ann");
  EXPECT_EQ(folders.cache, "/data/cache");
  EXPECT_EQ(folders.state, "/home/ann/.local/state");
}

TEST_F(UserFoldersTest, IgnoreARelativePathInTheEnvironment) {
  ::setenv("XDG_DATA_HOME", "data", 1);
  ::setenv("XDG_CONFIG_HOME", "", 1);
  const UserFolders folders = UserFolders::ofThisUser().value();
  EXPECT_EQ(folders.data, "/home/ann/.local/share");
  EXPECT_EQ(folders.configuration, "/home/ann/.config");
}

TEST_F(UserFoldersTest, NameTheHomeWithoutNeedlessParts) {
  ::setenv("HOME", "/home//./ann/", 1);
  EXPECT_EQ(UserFolders::ofThisUser().value().home, "/home/ann");
}

TEST_F(UserFoldersTest, AreThoseOfTheUserDatabaseWhereTheEnvironmentNamesNoHome) {
  ::unsetenv("HOME");
  const auto folders = UserFolders::ofThisUser();
  ASSERT_TRUE(folders);
  EXPECT_TRUE(folders->home.is_absolute());
  EXPECT_NE(folders->home, "/home/ann");
}

TEST_F(UserFoldersTest, AHomeThatIsEmptyRootOrRelativeIsNone) {
  for (const auto* home : {"", "/", "//", "/./", "/home/..", "home/ann", "."}) {
    ::setenv("HOME", home, 1);
    EXPECT_FALSE(UserFolders::ofThisUser()) << home;
  }
}

UserFolders namedBy(std::string_view userDirs) {
  return UserFolders::in("/home/ann").withVisibleFolders(userDirs);
}

TEST(VisibleFolders, AreThoseThatTheDesktopNames) {
  const UserFolders folders = namedBy(
      "# written by the desktop\n"
      "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"
      "  XDG_DOWNLOAD_DIR = \"$HOME/T\303\251l\303\251chargements/\" \r\n"
      "XDG_MUSIC_DIR=\"/data/music\"\n"
      "XDG_VIDEOS_DIR=\"$HOME/my \\\"films\\\"\"");
  EXPECT_EQ(folders.documents, "/home/ann/Dokumente");
  EXPECT_EQ(folders.downloads, "/home/ann/T\303\251l\303\251chargements");
  EXPECT_EQ(folders.music, "/data/music");
  EXPECT_EQ(folders.videos, "/home/ann/my \"films\"");
  EXPECT_EQ(folders.pictures, "/home/ann/Pictures");
}

TEST(VisibleFolders, AreTheHomeItselfWhereTheUserHasNoneOfTheKind) {
  EXPECT_EQ(namedBy("XDG_MUSIC_DIR=\"$HOME/\"\n").music, "/home/ann");
  EXPECT_EQ(namedBy("XDG_MUSIC_DIR=\"$HOME\"\n").music, "/home/ann");
}

TEST(VisibleFolders, AreTheUsualOnesWhereTheirLineIsNoAssignmentOfAPath) {
  for (const char* line : {"XDG_MUSIC_DIR=$HOME/x", "XDG_MUSIC_DIR=\"relative\"", "XDG_MUSIC_DIR=",
                           "XDG_MUSIC_DIR=\"", "XDG_MUSIC_DIR", "XDG_MUSIC_DIR=\"$HOMEs/x\"",
                           "XDG_music_DIR=\"$HOME/x\"", "=\"$HOME/x\"", "\\", ""}) {
    EXPECT_EQ(namedBy(line).music, "/home/ann/Music") << line;
  }
}

TEST(UserFolders, MoveWithTheHomeButForThoseOutsideOfIt) {
  UserFolders folders = UserFolders::in("/home/ann");
  folders.music = "/data/music";
  folders.pictures = "/home/ann";
  const UserFolders moved = folders.movedTo("/data/home/ann");
  EXPECT_EQ(moved.home, "/data/home/ann");
  EXPECT_EQ(moved.cache, "/data/home/ann/.cache");
  EXPECT_EQ(moved.music, "/data/music");
  EXPECT_EQ(moved.pictures, "/data/home/ann");
}

}  // namespace
}  // namespace klarvik
