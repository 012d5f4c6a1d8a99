#include "engine/local_snapshots.h"

#include <gmock/gmock.h>

#include "engine/shell.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LocalSnapshots, KeepsTheLinesThatHoldADateAndDropsTheHeader) {
  EXPECT_THAT(
      snapshotTexts("Snapshot dates for disk /:\n2026-03-01-101530\n  2026-03-02-110000\t\n"),
      ElementsAre("2026-03-01-101530", "2026-03-02-110000"));
}

TEST(LocalSnapshots, AsksForAHyphenAndMoreThanEightCharacters) {
  EXPECT_THAT(snapshotTexts("1234-678\n1234-6789\n123456789\n"), ElementsAre("1234-6789"));
  EXPECT_THAT(snapshotTexts("ä-äöüäöü\n"), IsEmpty());
}

TEST(LocalSnapshots, MeasuresALineBeforeItsBlanksAreTakenOff) {
  EXPECT_THAT(snapshotTexts("  a-b     \n"), ElementsAre("a-b"));
}

TEST(LocalSnapshots, KeepsALineThatHoldsMoreThanADate) {
  EXPECT_THAT(snapshotTexts("com.apple.TimeMachine.2026-03-01-101530.local"),
              ElementsAre("com.apple.TimeMachine.2026-03-01-101530.local"));
}

TEST(LocalSnapshots, FindsNothingInNothing) {
  EXPECT_THAT(snapshotTexts(""), IsEmpty());
}

TEST(LocalSnapshots, LeavesOutALineThatClimbsOutOfTheSnapshotFolder) {
  EXPECT_THAT(snapshotTexts("../Users/ann/Library/Caches/com.acme-tool\n..-and-more\n"),
              ElementsAre("..-and-more"));
}

TEST(LocalSnapshots, StandUnderAPathOfTheirOwn) {
  EXPECT_EQ(snapshotPath("2026-03-01-101530"), Path("/.MobileBackups/2026-03-01-101530"));
  EXPECT_TRUE(isSnapshotPath("/.MobileBackups/2026-03-01-101530"));
  EXPECT_FALSE(isSnapshotPath("/.MobileBackups"));
  EXPECT_FALSE(isSnapshotPath("/.MobileBackups/../Users/ann/x"));
  EXPECT_FALSE(isSnapshotPath("/Users/ann/.MobileBackups/x"));
}

TEST(LocalSnapshots, PutTheTextIntoTheCommandsAsItStands) {
  EXPECT_EQ(snapshotSizeCommand("2026-03-01-101530"),
            "diskutil apfs listSnapshots / 2>/dev/null | grep -A3 2026-03-01-101530 | grep Size | "
            "awk '{print $2}'");
  EXPECT_EQ(snapshotRemovalCommand("/.MobileBackups/2026-03-01-101530"),
            "tmutil deletelocalsnapshots 2026-03-01-101530 2>/dev/null");
}

TEST(LocalSnapshots, ASnapshotNameWithAnythingAShellActsOnIsNeverPutOnACommandLine) {
  for (const char* const text : {"",
                                 "-rf",
                                 "2026;rm",
                                 "$(id)-123456",
                                 "`id`-12345",
                                 "a'b",
                                 "a\"b",
                                 "a\nb",
                                 "a b",
                                 "a\tb",
                                 "a|b",
                                 "a&b",
                                 "a>b",
                                 "a<b",
                                 "a*b",
                                 "a?b",
                                 "a[b]",
                                 "a{b}",
                                 "a\\b",
                                 "a#b",
                                 "~a",
                                 "a!b",
                                 "a=b",
                                 "a%b",
                                 "a(b",
                                 "a\rb",
                                 "a\x7f"
                                 "b",
                                 "a^b"}) {
    EXPECT_FALSE(isShellSafe(text)) << text;
    EXPECT_EQ(snapshotSizeCommand(text), std::nullopt) << text;
    EXPECT_EQ(snapshotRemovalCommand(snapshotPath(text)), std::nullopt) << text;
  }
  EXPECT_FALSE(isShellSafe(std::string_view("a\0b", 3)));
  EXPECT_TRUE(isShellSafe("aZ09._:+,@/-größe"));
}

TEST(LocalSnapshots, ARemovalNeverNamesAnotherSnapshotThanTheListing) {
  for (const char* const text : {"a;touch /tmp/2026-03-01-101530", "2026-03/-rf", "x y/b"}) {
    EXPECT_EQ(snapshotRemovalCommand(snapshotPath(text)), std::nullopt) << text;
  }
}

TEST(LocalSnapshots, ReadTheirSizeAsAWholeNumber) {
  EXPECT_EQ(snapshotBytes("123456789"), 123'456'789);
  EXPECT_EQ(snapshotBytes(" \n+5\n"), 5);
  EXPECT_EQ(snapshotBytes("-5"), -5);
}

TEST(LocalSnapshots, HaveAnEstimateWhereNoSizeWasPrinted) {
  for (const char* const output : {"", "unknown", "1.5", "12 34", "9223372036854775808"}) {
    EXPECT_EQ(snapshotBytes(output), 524'288'000) << output;
  }
}

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
