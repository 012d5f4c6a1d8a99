#include "platform/linux/user_folders.h"

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
  }
};

TEST_F(UserFoldersTest, LieInTheHomeUnlessTheEnvironmentSaysOtherwise) {
  const UserFolders folders = UserFolders::ofThisUser().value();
  EXPECT_EQ(folders.home, "/home/ann");
  EXPECT_EQ(folders.data, "/home/ann/.local/share");
  EXPECT_EQ(folders.configuration, "/home/ann/.config");
}

TEST_F(UserFoldersTest, LieWhereTheEnvironmentSays) {
  ::setenv("XDG_DATA_HOME", "/data//ann/", 1);
  ::setenv("XDG_CONFIG_HOME", "/etc/ann", 1);
  const UserFolders folders = UserFolders::ofThisUser().value();
  EXPECT_EQ(folders.data, "/data/ann");
  EXPECT_EQ(folders.configuration, "/etc/ann");
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

}  // namespace
}  // namespace klarvik
