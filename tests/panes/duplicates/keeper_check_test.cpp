#include "panes/duplicates/keeper_check.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/fake_desktop.h"
#include "tools/duplicate_scanner.h"

namespace klarvik {
namespace {

class KeeperCheckTest : public testing::Test {
 protected:
  KeeperCheckTest() {
    world.disk.makeFile(keeper, "the same");
    world.disk.makeFile(copy, "the same");
    hash = *DuplicateScanner(files).hashFile(keeper);
  }

  void keeps(const Path& stays, const Path& goes) {
    kept[goes.native()] = std::make_shared<const KeptCopy>(KeptCopy{stays, hash});
  }
  [[nodiscard]] bool mayGo(const Path& goes) const {
    return keeperCheck(files, world.trash, kept, stop.get_token())({goes, "name", 8});
  }
  [[nodiscard]] Path onDisk(const Path& place) const { return world.disk.onDisk(place); }

  const Path keeper = "/Users/ann/Documents/f";
  const Path copy = "/Users/ann/Downloads/f";
  FakeDesktopOnDisk world;
  FaultInjectingFileSystem& files = world.files;
  std::string hash;
  KeptCopies kept;
  std::stop_source stop;
};

TEST_F(KeeperCheckTest, ACopyMayGoWhileTheOtherStays) {
  keeps(keeper, copy);
  EXPECT_TRUE(mayGo(copy));
}

TEST_F(KeeperCheckTest, AFileThatNobodyPickedStays) {
  keeps(keeper, copy);
  EXPECT_FALSE(mayGo("/Users/ann/other"));
}

TEST_F(KeeperCheckTest, TheKeptCopyIsGoneAtTheMomentOfDeletionSoTheOthersStay) {
  keeps(keeper, copy);
  std::filesystem::remove(onDisk(keeper));
  EXPECT_FALSE(mayGo(copy));
}

TEST_F(KeeperCheckTest, WhatWaitsInTheTrashKeepsNothing) {
  for (const char* trash : {"/Users/ann/.local/share/Trash/files/f", "/Users/ann/.Trash/f"}) {
    world.disk.makeFile(trash, "the same");
    keeps(trash, copy);
    EXPECT_FALSE(mayGo(copy)) << trash;
  }
}

TEST_F(KeeperCheckTest, TheKeptCopyHasChangedAtTheMomentOfDeletionSoTheOthersStay) {
  keeps(keeper, copy);
  world.disk.makeFile(keeper, "another!");
  EXPECT_FALSE(mayGo(copy));
}

TEST_F(KeeperCheckTest, TheKeptCopyCannotBeReadWholeSoTheOthersStay) {
  keeps(keeper, copy);
  files.failReadingAfter(4, keeper);
  EXPECT_FALSE(mayGo(copy));
}

TEST_F(KeeperCheckTest, BothHaveChangedAlikeSinceTheScanSoBothStay) {
  keeps(keeper, copy);
  world.disk.makeFile(keeper, "another!");
  world.disk.makeFile(copy, "another!");
  EXPECT_FALSE(mayGo(copy));
}

TEST_F(KeeperCheckTest, NothingGoesAfterAStopRequest) {
  keeps(keeper, copy);
  stop.request_stop();
  EXPECT_FALSE(mayGo(copy));
}

TEST_F(KeeperCheckTest, AFileIsNoCopyOfItself) {
  keeps(keeper, keeper);
  EXPECT_FALSE(mayGo(keeper));
}

TEST_F(KeeperCheckTest, WhatStaysForOneCopyDoesNotGoAsAnother) {
  keeps(keeper, copy);
  keeps(copy, keeper);
  EXPECT_FALSE(mayGo(copy));
  EXPECT_FALSE(mayGo(keeper));
}

TEST_F(KeeperCheckTest, OneFileUnderTwoPathsStays) {
  std::filesystem::remove_all(onDisk("/Users/ann/Downloads"));
  world.disk.makeLink("/Users/ann/Downloads", "Documents");
  keeps(keeper, copy);
  EXPECT_FALSE(mayGo(copy));
}

TEST_F(KeeperCheckTest, OneOfTwoNamesUnderTwoPathsStays) {
  std::filesystem::create_hard_link(onDisk(keeper), onDisk("/Users/ann/elsewhere"));
  std::filesystem::remove_all(onDisk("/Users/ann/Downloads"));
  world.disk.makeLink("/Users/ann/Downloads", "Documents");
  keeps(keeper, copy);
  EXPECT_FALSE(mayGo(copy));
}

TEST_F(KeeperCheckTest, ASecondNameOfTheSameFileMayGo) {
  std::filesystem::remove(onDisk(copy));
  std::filesystem::create_hard_link(onDisk(keeper), onDisk(copy));
  keeps(keeper, copy);
  EXPECT_TRUE(mayGo(copy));
}

TEST_F(KeeperCheckTest, ALinkInThePlaceOfTheKeptCopyKeepsNothing) {
  keeps(keeper, copy);
  std::filesystem::remove(onDisk(keeper));
  world.disk.makeLink(keeper, "../Downloads/f");
  EXPECT_FALSE(mayGo(copy));
}

TEST_F(KeeperCheckTest, AFolderInThePlaceOfACopyStays) {
  keeps(keeper, copy);
  std::filesystem::remove(onDisk(copy));
  world.disk.makeFile(copy / "inside", "the same");
  EXPECT_FALSE(mayGo(copy));
}

}  // namespace
}  // namespace klarvik
