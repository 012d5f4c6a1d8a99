#include "support/faulting_file_system.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "platform/linux/linux_file_system.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using Operation = FaultingFileSystem::Operation;

class FaultingFileSystemTest : public testing::Test {
 protected:
  FaultingFileSystemTest() {
    disk.makeFile("/a/one", "one");
    disk.makeFile("/a/b/two", "two");
  }
  static bool allow(const Path&) { return true; }
  std::int64_t sumOf(const Path& folder) {
    std::int64_t sum = 0;
    files.walk(folder, {}, [&](WalkEntry& entry) {
      sum += entry.allocatedBytes();
      return WalkStep::proceed;
    });
    return sum;
  }

  TemporaryFolder disk;
  LinuxFileSystem realFiles{disk.path(), "/Users/ann"};
  FaultingFileSystem files{realFiles};
};

TEST_F(FaultingFileSystemTest, ChangesNothingWithoutAFault) {
  EXPECT_TRUE(files.exists("/a/one"));
  EXPECT_EQ(files.list("/a")->size(), 2U);
  EXPECT_EQ(sumOf("/a"), 8192);
  EXPECT_TRUE(files.move("/a/one", "/a/three"));
  EXPECT_TRUE(files.remove("/a/b", allow));
  EXPECT_FALSE(disk.holds("/a/b"));
}

TEST_F(FaultingFileSystemTest, RecordsRemovalsAndMoves) {
  files.fail(Operation::remove, "/a/one");
  files.remove("/a/one", allow);
  files.remove("/a/b", allow);
  files.move("/a/one", "/a/two");
  ASSERT_EQ(files.removals().size(), 2U);
  EXPECT_EQ(files.removals()[0].item, "/a/one");
  EXPECT_FALSE(files.removals()[0].done);
  EXPECT_TRUE(files.removals()[1].done);
  ASSERT_EQ(files.moves().size(), 1U);
  EXPECT_TRUE(files.moves()[0].done);
}

TEST_F(FaultingFileSystemTest, FailsUntilHealed) {
  files.fail(Operation::list, "/a");
  EXPECT_FALSE(files.list("/a"));
  EXPECT_TRUE(files.list("/a/b"));
  files.heal(Operation::list, "/a");
  EXPECT_TRUE(files.list("/a"));
}

TEST_F(FaultingFileSystemTest, PassesOverAFolderInAWalk) {
  files.fail(Operation::walk, "/a/b");
  EXPECT_EQ(sumOf("/a"), 4096);
}

TEST_F(FaultingFileSystemTest, OverlaysASizeSeenByEveryone) {
  files.overlaySize("/a/one", 1'000'000'007);
  EXPECT_EQ(files.attributes("/a/one")->logicalBytes, 1'000'000'007);
  EXPECT_EQ(sumOf("/a"), 1'000'000'007 + 4096);
}

TEST_F(FaultingFileSystemTest, OverlaysAModificationDate) {
  const Date date{std::chrono::seconds(1)};
  files.overlayModified("/a/one", date);
  EXPECT_EQ(files.attributes("/a/one")->modified, date);
  EXPECT_NE(files.attributes("/a/b/two")->modified, date);
}

TEST_F(FaultingFileSystemTest, LetsReadingFailHalfWay) {
  files.failReadingAfter(2, "/a/one");
  const auto reader = files.openForReading("/a/one");
  std::array<std::byte, 8> buffer;
  EXPECT_EQ(reader->read(buffer), std::optional<std::size_t>(2));
  EXPECT_EQ(reader->read(buffer), std::nullopt);
}

TEST_F(FaultingFileSystemTest, LetsAPathVanishJustBeforeAnOperation) {
  files.vanishBefore(Operation::remove, "/a/one");
  EXPECT_TRUE(files.exists("/a/one"));
  EXPECT_FALSE(files.remove("/a/one", allow));
  EXPECT_FALSE(disk.holds("/a/one"));
}

TEST_F(FaultingFileSystemTest, TurnsAFolderIntoALinkJustBeforeAnOperation) {
  disk.makeFile("/outside/canary", "kept");
  files.becomeLinkBefore(Operation::remove, "/a/b", disk.onDisk("/outside"));
  EXPECT_TRUE(files.remove("/a/b", allow));
  EXPECT_EQ(disk.contentOf("/outside/canary"), "kept");
}

}  // namespace
}  // namespace klarvik
