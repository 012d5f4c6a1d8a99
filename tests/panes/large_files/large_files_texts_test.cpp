#include "panes/large_files/large_files_texts.h"

#include <gtest/gtest.h>

#include "places/disk_layout.h"

namespace klarvik {
namespace {

using namespace large_files;

constexpr std::int64_t megabyte = 1'000'000;

class LargeFilesTexts : public ::testing::Test {
 protected:
  Formatting formatting{"en_US"};
  Date now{std::chrono::hours(500'000)};
};

TEST_F(LargeFilesTexts, TheSubtitleOfAScanNamesWhatIsLookedAt) {
  EXPECT_EQ(scanningSubtitle("film.mov"), "Scanning your home folder · film.mov");
  EXPECT_EQ(scanningSubtitle(""), "Scanning your home folder · ");
  EXPECT_EQ(scanningSubtitle("a\xff\nb"),
            QStringLiteral("Scanning your home folder · a\uFFFD\uFFFDb"));
}

TEST_F(LargeFilesTexts, TheSubtitleOfAResultCountsWithAFixedPlural) {
  EXPECT_EQ(foundSubtitle(0, 100), "0 files over 100 MB in your home folder");
  EXPECT_EQ(foundSubtitle(1, 1000), "1 files over 1000 MB in your home folder");
  EXPECT_EQ(foundSubtitle(12'345, 99.9), "12345 files over 99 MB in your home folder");
}

TEST_F(LargeFilesTexts, BeforeAScanTheSubtitleSaysWhatThePaneIsFor) {
  EXPECT_EQ(unscannedSubtitle(),
            "Finds the biggest files in your home folder. Nothing is pre-selected.");
}

TEST_F(LargeFilesTexts, EveryPlaceholderHasItsWords) {
  EXPECT_EQ(measuring(layoutFor("/Users/ann").words),
            Placeholder::busy("Measuring",
                              "Walking Documents, Downloads, Desktop, Movies and Music. "
                              "Photo and music libraries are skipped."));
  EXPECT_EQ(notScanned(true),
            Placeholder::idle("doc.text.magnifyingglass", "No scan yet",
                              "Rescan to list the biggest files in your home folder."));
  EXPECT_EQ(
      notScanned(false),
      Placeholder::idle(
          "doc.text.magnifyingglass", "No scan yet",
          "Reading Documents, Desktop and Downloads needs Full Disk Access, so this one waits "
          "until you ask. Rescan and Klarvik will explain what macOS is about to request."));
  EXPECT_EQ(nothingFound(250), Placeholder::idle("checkmark.circle", "Nothing that big",
                                                 "No files over 250 MB matched."));
}

TEST_F(LargeFilesTexts, TheFooterCountsOneFileWithoutAPlural) {
  EXPECT_EQ(selectionSummary(0, 0, formatting), "Zero KB selected · 0 files");
  EXPECT_EQ(selectionSummary(700 * megabyte, 1, formatting), "700 MB selected · 1 file");
  EXPECT_EQ(selectionSummary(1'500 * megabyte, 2, formatting), "1.5 GB selected · 2 files");
}

TEST_F(LargeFilesTexts, TheFooterSaysWhatItsButtonDoes) {
  EXPECT_EQ(trashButtonTitle(0, formatting), "Move Zero KB to Trash");
  EXPECT_EQ(trashButtonTitle(700 * megabyte, formatting), "Move 700 MB to Trash");
  EXPECT_EQ(footerHint(), "These are your own files, not junk. Klarvik never pre-selects them.");
}

TEST_F(LargeFilesTexts, AThresholdIsShownInWholeMegabytes) {
  EXPECT_EQ(thresholdText(50), "50 MB");
  EXPECT_EQ(thresholdText(1000), "1000 MB");
}

TEST_F(LargeFilesTexts, TheSidebarIsToldHowManyFilesThereAre) {
  EXPECT_EQ(finishedSummary(1), "1 files");
  EXPECT_EQ(finishedSummary(4), "4 files");
}

TEST_F(LargeFilesTexts, ARowIsSpokenWithNameSizeKindAndWhenItWasLastOpened) {
  const LargeFile film{.url = "/Users/ann/Movies/film.mov",
                       .size = 700 * megabyte,
                       .lastOpened = now - std::chrono::hours(72)};
  EXPECT_EQ(description(film, formatting, now), "film.mov, 700 MB, Video, last opened 3 days ago");
  const LargeFile other{.url = "/Users/ann/Movies/film", .size = 1};
  EXPECT_EQ(description(other, formatting, now), "film, 1 byte, Other, last opened never");
}

}  // namespace
}  // namespace klarvik
