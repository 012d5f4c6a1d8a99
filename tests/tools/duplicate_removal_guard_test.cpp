#include "tools/duplicate_removal_guard.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "content_hash.h"
#include "support/fake_desktop.h"
#include "support/system_call_faults.h"
#include "tools/duplicate_scanner.h"

namespace klarvik {
namespace {

class KeeperCheckTest : public testing::Test {
 protected:
  KeeperCheckTest() {
    world.disk.makeFile(keeper, "the same");
    world.disk.makeFile(copy, "the same");
    hash = *contentHash(files, keeper);
  }

  void keeps(const Path& stays, const Path& goes) {
    kept[goes.native()] = std::make_shared<const KeptCopy>(KeptCopy{stays, hash});
  }
  [[nodiscard]] bool mayGo(const Path& goes) {
    return duplicateRemovalGuard(files, world.trash, kept, stop.get_token(),
                                 &leftAlone)({goes, "name", 8, entryIdentity(files, goes)});
  }
  [[nodiscard]] Path onDisk(const Path& place) const { return world.disk.onDisk(place); }

  const Path keeper = "/Users/ann/Documents/f";
  const Path copy = "/Users/ann/Downloads/f";
  FakeDesktopOnDisk world;
  FaultInjectingFileSystem& files = world.files;
  std::string hash;
  KeptCopies kept;
  std::stop_source stop;
  LeftAlone leftAlone;
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

TEST_F(KeeperCheckTest, ASecondNameOfTheKeptFileStaysAndIsCounted) {
  std::filesystem::remove(onDisk(copy));
  std::filesystem::create_hard_link(onDisk(keeper), onDisk(copy));
  keeps(keeper, copy);
  EXPECT_FALSE(mayGo(copy));
  EXPECT_EQ(leftAlone.keptCopies, 1);
}

TEST_F(KeeperCheckTest, ACopyThatIsAnotherFileSinceTheScanStaysThoughItIsEqual) {
  keeps(keeper, copy);
  const PickedFile picked{copy, "name", 8, entryIdentity(files, copy)};
  std::filesystem::rename(onDisk(copy), onDisk("/Users/ann/first"));
  world.disk.makeFile(copy, "the same");
  EXPECT_FALSE(duplicateRemovalGuard(files, world.trash, kept, stop.get_token())(picked));
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

/// A copy on its way to the Trash while another file, equal in all, comes to its name or to that of
/// the kept one: at each system call in turn.
TEST_F(KeeperCheckTest, OnlyTheCopyThatWasShownGoesWhateverStepAnEqualOneTakesItsPlaceAtSweep) {
  const Path folders[] = {keeper.parent_path(), copy.parent_path()};
  for (const Path& swapped : folders) {
    bool reached = true;
    for (int at = 1; reached && !HasFailure(); ++at) {
      SCOPED_TRACE(swapped.native() + " at call " + std::to_string(at));
      FakeDesktopOnDisk desk;
      const Path unseen = "/Users/ann/Projects/f";
      for (const Path& place : {keeper, copy, unseen}) desk.disk.makeFile(place, "the same");
      const PickedFile picked{copy, "f", 8, entryIdentity(desk.files, copy)};
      kept.clear();
      keeps(keeper, copy);
      const auto swap = [&] {
        const Path folder = desk.disk.onDisk(swapped);
        std::error_code failed;
        std::filesystem::rename(folder, folder.native() + " aside", failed);
        const Path other = swapped == copy.parent_path() ? unseen : copy;
        std::filesystem::create_symlink(desk.disk.onDisk(other.parent_path()), folder, failed);
      };
      const FaultyRun run = runWithFault({SystemCallFault::Kind::disturbed, at, 0, swap}, [&] {
        const auto check = duplicateRemovalGuard(desk.files, desk.trash, kept, {});
        return ScannerEngine(desk.desktop).trashFile(picked, check).moved;
      });
      EXPECT_TRUE(desk.disk.holds(unseen));
      const bool keeperIsThere = desk.disk.holds("/Users/ann/Documents aside/f") ||
                                 (swapped != keeper.parent_path() && desk.disk.holds(keeper));
      EXPECT_TRUE(keeperIsThere || !run.reached);
      reached = run.reached;
      if (!reached) {
        EXPECT_TRUE(run.answer);
      }
    }
  }
}

}  // namespace
}  // namespace klarvik
