#include "systemdata/snapshot_listing.h"

#include <gmock/gmock.h>

#include "engine/local_snapshots.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SnapshotListing, KeepsTheLinesWithADotAndDropsTheVendorsPrefix) {
  EXPECT_THAT(
      listedSnapshots("Snapshots for disk /:\ncom.apple.TimeMachine.2026-03-01-101530.local\n"
                      " \tcom.apple.os.update-ABC\t\n"),
      ElementsAre("2026-03-01-101530.local", "com.apple.os.update-ABC"));
}

TEST(SnapshotListing, ALineWithoutADotIsIgnored) {
  EXPECT_THAT(listedSnapshots("2026-03-01-101530\n\nSnapshots for volume group:\n"), IsEmpty());
}

TEST(SnapshotListing, DropsEveryOccurrenceOfThePrefix) {
  EXPECT_THAT(
      listedSnapshots("com.apple.TimeMachine.com.apple.TimeMachine.a com.apple.TimeMachine.b"),
      ElementsAre("a b"));
  EXPECT_THAT(listedSnapshots("com.apple.Timcom.apple.TimeMachine.eMachine."),
              ElementsAre("com.apple.TimeMachine."));
}

TEST(SnapshotListing, ALineThatIsAllPrefixNamesNothing) {
  EXPECT_THAT(listedSnapshots("  com.apple.TimeMachine. \n"), IsEmpty());
}

TEST(SnapshotListing, FindsNothingInNothing) {
  EXPECT_THAT(listedSnapshots(""), IsEmpty());
}

TEST(SnapshotListing, LeavesOutALineThatClimbsOutOfTheSnapshotFolder) {
  EXPECT_THAT(listedSnapshots("../Users/ann/Documents/a.txt\n.\n..\ncom.apple.TimeMachine.../x\n"
                              "a/../../etc/b.c\n...\n"),
              ElementsAre("..."));
}

TEST(SnapshotListing, PutsTheTextIntoTheCommandAsItStands) {
  EXPECT_EQ(listedSnapshotSizeCommand("2026-03-01-101530.local"),
            "diskutil apfs listSnapshots / 2>/dev/null | grep -A5 '2026-03-01-101530.local' | "
            "grep -i size | head -1 | awk -F'[()]' '{print $2}' | awk '{print $1}'");
}

TEST(SnapshotListing, ASnapshotNameWithAnythingAShellActsOnIsNeverPutOnACommandLine) {
  for (const char* const text : {"", "-rf.x", "a.b'; rm -rf /; '", "$(id).x", "`id`.x", "a.b\"c",
                                 "a.b\nc", "a b.c", "a.b\\", "a.b*", "a.b|c", "a.b>c"}) {
    EXPECT_EQ(listedSnapshotSizeCommand(text), std::nullopt) << text;
  }
}

TEST(SnapshotListing, ReadsASizeAsAWholeNumber) {
  EXPECT_EQ(listedSnapshotBytes(" 123456789\n"), 123'456'789);
  EXPECT_EQ(listedSnapshotBytes("0"), 0);
}

TEST(SnapshotListing, ASnapshotWithNoSizeReadsOneBillion) {
  for (const char* const output :
       {"", " \n", "unknown", "1.5", "12 34", "0x10", "9223372036854775808"}) {
    EXPECT_EQ(listedSnapshotBytes(output), 1'000'000'000) << output;
  }
}

}  // namespace
}  // namespace klarvik
