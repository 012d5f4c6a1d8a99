#include "panes/large_files/row_arrangement.h"
#include "platform/formatting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace klarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RowArrangementTest : public ::testing::Test {
 protected:
  static LargeFileList::value_type file(const Path& name, std::int64_t size = 1,
                                        std::optional<Date> lastOpened = std::nullopt) {
    return std::make_shared<const LargeFile>(
        LargeFile{.url = "/Users/ann/Documents" / name, .size = size, .lastOpened = lastOpened});
  }
  static LargeFileList numbered(std::size_t count) {
    LargeFileList files;
    for (std::size_t number = 0; number < count; ++number) {
      files.push_back(file(std::to_string(number)));
    }
    return files;
  }
  [[nodiscard]] RowArrangement arranged(const LargeFileList& files, const FileView& view) const {
    return arrange(files, view, {}, {}, formatting);
  }
  static std::vector<std::string> names(const LargeFileList& files) {
    std::vector<std::string> all;
    for (const auto& each : files) all.push_back(each->url.filename());
    return all;
  }
  static constexpr RowsInSight everything{.first = 0, .count = 1'000'000};

  Formatting formatting{"en_US"};
};

TEST_F(RowArrangementTest, WithoutAFilterAllFilesStandInTheirOrder) {
  const LargeFileList files{file("b", 9), file("a", 5)};
  EXPECT_EQ(arranged(files, {}).rows, files);
}

TEST_F(RowArrangementTest, AFilterKeepsTheFilesOfItsKind) {
  const LargeFileList files{file("a.mov", 9), file("b.zip", 8), file("c.MP4", 7)};
  EXPECT_THAT(names(arranged(files, {.kind = "Video"}).rows), ElementsAre("a.mov", "c.MP4"));
}

TEST_F(RowArrangementTest, AFilterThatMatchesNothingLeavesNoRows) {
  EXPECT_THAT(arranged({file("a.mov")}, {.kind = "Archive"}).rows, IsEmpty());
}

TEST_F(RowArrangementTest, ByDateFilesWithoutAnAccessDateComeFirst) {
  const Date day{std::chrono::hours(24)};
  const LargeFileList files{file("new", 9, day + std::chrono::hours(1)), file("never", 8),
                            file("old", 7, day)};
  EXPECT_THAT(names(arranged(files, {.sort = LargeFileSort::date}).rows),
              ElementsAre("never", "old", "new"));
}

TEST_F(RowArrangementTest, ByNameCaseDoesNotMatterAndEqualNamesStayLargestFirst) {
  const LargeFileList files{file("zebra", 9), file("x/Apple", 8), file("y/apple", 7),
                            file("Mango", 6)};
  const RowArrangement byName = arranged(files, {.sort = LargeFileSort::name});
  EXPECT_THAT(byName.rows, ElementsAre(files[1], files[2], files[3], files[0]));
}

TEST_F(RowArrangementTest, KindsAreInTextOrderEachOnce) {
  const LargeFileList files{file("a.mov"), file("b.zip"), file("c.mov")};
  EXPECT_THAT(arranged(files, {}).kinds, ElementsAre("Archive", "Video"));
}

TEST_F(RowArrangementTest, WithFiveKindsOnlyTheFirstFourInTextOrderGetChips) {
  const LargeFileList files{file("a.mov"), file("b.zip"), file("c.mp3"), file("d.pdf"),
                            file("e.dmg")};
  EXPECT_THAT(arranged(files, {}).kinds, ElementsAre("Archive", "Audio", "Disk image", "Document"));
}

TEST_F(RowArrangementTest, KindsAreThoseOfAllFilesWhateverTheFilter) {
  const LargeFileList files{file("a.mov"), file("b.zip")};
  EXPECT_THAT(arranged(files, {.kind = "Video"}).kinds, ElementsAre("Archive", "Video"));
}

TEST_F(RowArrangementTest, NothingIsReplacedWhereNothingChanged) {
  const LargeFileList files = numbered(5);
  EXPECT_THAT(replacements(files, files, everything), IsEmpty());
  EXPECT_THAT(replacements({}, {}, everything), IsEmpty());
}

TEST_F(RowArrangementTest, NewFilesInARowComeInAsOneRun) {
  const LargeFileList after = numbered(9);
  LargeFileList before = after;
  before.erase(before.begin() + 3, before.begin() + 7);
  const RowReplacement run{.at = 3, .before = 0, .from = 3, .after = 4};
  EXPECT_THAT(replacements(before, after, everything), ElementsAre(run));
  EXPECT_THAT(replacements(before, after, {}), ElementsAre(run)) << "out of sight as well";
}

TEST_F(RowArrangementTest, InSightEveryRunComesAndGoesByItself) {
  const LargeFileList all = numbered(7);
  const LargeFileList before{all[1], all[2], all[3], all[4]};
  const LargeFileList after{all[0], all[1], all[3], all[4], all[5], all[6]};
  EXPECT_THAT(replacements(before, after, everything),
              ElementsAre(RowReplacement{0, 0, 0, 1}, RowReplacement{1, 1, 2, 0},
                          RowReplacement{4, 0, 4, 2}));
}

TEST_F(RowArrangementTest, OutOfSightThousandsOfChangesAreAFewReplacements) {
  const LargeFileList after = numbered(10'000);
  LargeFileList before;
  for (std::size_t row = 0; row < after.size(); row += 2) before.push_back(after[row]);
  const RowsInSight inSight{.first = 2'000, .count = 10, .current = 4'000};
  const std::vector<RowReplacement> found = replacements(before, after, inSight);
  // Above, between each two of the ten rows, up to the current one, and below it.
  EXPECT_EQ(found.size(), 12U);
  EXPECT_EQ(found[1], (RowReplacement{2'001, 0, 4'001, 1}));
  EXPECT_EQ(found.back(), (RowReplacement{4'001, 999, 8'001, 1'999}));
}

TEST_F(RowArrangementTest, RowsInSightThatPassOneAnotherAreWrittenOver) {
  const LargeFileList before = numbered(4);
  const LargeFileList after{before[3], before[2], before[1], before[0]};
  EXPECT_THAT(replacements(before, after, {}), ElementsAre(RowReplacement{0, 4, 0, 4}));
  EXPECT_THAT(replacements(before, after, everything),
              ElementsAre(RowReplacement{0, 3, 0, 0}, RowReplacement{4, 0, 1, 3}));
}

}  // namespace
}  // namespace klarvik
