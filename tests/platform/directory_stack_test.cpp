#include "platform/linux/directory_stack.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "deep_tree.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class DirectoryStackTest : public testing::Test {
 protected:
  static constexpr int kLevels = 100;  // far more than handles are kept open

  DirectoryStackTest() { makeDeepTree(disk.makeFolder("start"), kLevels); }

  void descend(DirectoryStack& trail, int levels) {
    for (int i = 0; i < levels; ++i) {
      UniqueFd next = trail.open("d");
      ASSERT_TRUE(next);
      trail.enter(std::move(next), "d");
    }
  }
  DirectoryStack trailFromStart() const {
    return DirectoryStack(UniqueFd(::open(disk.onDisk("start").c_str(), O_RDONLY | O_DIRECTORY)));
  }
  /// Where the current folder of a trail is to be found, counted from the start.
  static bool standsAt(const DirectoryStack& trail, const Path& place) {
    struct stat here {};
    struct stat there {};
    return ::fstat(trail.current(), &here) == 0 && ::stat(place.c_str(), &there) == 0 &&
           here.st_ino == there.st_ino;
  }

  TemporaryFolder disk;
};

TEST_F(DirectoryStackTest, KeepsAccountOfWhereItIs) {
  DirectoryStack trail = trailFromStart();
  EXPECT_EQ(trail.depth(), 0U);
  EXPECT_EQ(trail.path(), "");
  descend(trail, 3);
  EXPECT_EQ(trail.depth(), 3U);
  EXPECT_EQ(trail.path(), "d/d/d");
  EXPECT_EQ(trail.currentName(), "d");
  trail.leave();
  EXPECT_EQ(trail.path(), "d/d");
}

TEST_F(DirectoryStackTest, FindsTheWayBackOnceHandlesWereClosed) {
  DirectoryStack trail = trailFromStart();
  descend(trail, kLevels);
  Path place = disk.onDisk("start");
  for (int i = 0; i < kLevels; ++i) place /= "d";
  for (int i = kLevels; i > 0; --i) {
    ASSERT_TRUE(standsAt(trail, place)) << i;
    trail.leave();
    place = place.parent_path();
  }
  EXPECT_EQ(trail.depth(), 0U);
  EXPECT_TRUE(standsAt(trail, place));
}

TEST_F(DirectoryStackTest, GoesBackToTheLastFolderThatIsWhereItWas) {
  DirectoryStack trail = trailFromStart();
  descend(trail, kLevels);
  std::filesystem::rename(disk.onDisk("start/d/d/d"), disk.onDisk("away"));
  std::size_t last = trail.depth();
  while (trail.depth() > 2) {
    trail.leave();
    ASSERT_LT(trail.depth(), last);
    last = trail.depth();
  }
  EXPECT_EQ(trail.depth(), 2U);
  EXPECT_EQ(trail.path(), "d/d");
  EXPECT_TRUE(standsAt(trail, disk.onDisk("start/d/d")));
  trail.leave();
  EXPECT_TRUE(standsAt(trail, disk.onDisk("start/d")));
}

TEST_F(DirectoryStackTest, OpensNeitherALinkNorAFile) {
  disk.makeLink("start/link", "d");
  disk.makeFile("start/file");
  DirectoryStack trail = trailFromStart();
  EXPECT_FALSE(trail.open("link"));
  EXPECT_FALSE(trail.open("file"));
  EXPECT_FALSE(trail.open("missing"));
}

}  // namespace
}  // namespace klarvik
