#include "panes/smart_scan/smart_scan_texts.h"

#include <gtest/gtest.h>

#include "places/tool.h"

namespace klarvik::smart_scan {
namespace {

const Formatting& english() {
  static const Formatting formatting("en_US");
  return formatting;
}

CleanCategory categoryOf(CategoryType type, std::size_t items) {
  CleanCategory category;
  category.type = type;
  for (std::size_t at = 0; at < items; ++at) {
    category.items.push_back({.name = "item", .path = "/x", .size = 1, .modifiedDate = {}});
  }
  return category;
}

TEST(PaneTitle, SaysScanningWhileAScanRuns) {
  EXPECT_EQ(paneTitle(AppState::Scanning{0.5, "Docker"}, 5'000, english()), "Scanning");
}

TEST(PaneTitle, IsTheNameOfTheToolWhenIdle) {
  EXPECT_EQ(paneTitle(AppState::Idle{}, 5'000, english()), "Smart Scan");
}

TEST(PaneTitle, SaysWhatWasFoundInEveryStateAfterAScan) {
  for (const AppState::ScanState& state :
       {AppState::ScanState(AppState::Done{}), AppState::ScanState(AppState::Cleaning{}),
        AppState::ScanState(AppState::CleanDone{3})}) {
    EXPECT_EQ(paneTitle(state, 5'000, english()), "5 KB found");
    EXPECT_EQ(paneTitle(state, 1, english()), "1 byte found");
    EXPECT_EQ(paneTitle(state, 0, english()), "Smart Scan");
  }
}

TEST(ScanningSubtitle, IsTheCategoryAloneWithoutAPath) {
  EXPECT_EQ(scanningSubtitle({.categoryName = "Docker", .currentPath = {}}, "/Users/ann"),
            "Docker");
}

TEST(ScanningSubtitle, ShowsEveryHomeInThePathAsATilde) {
  EXPECT_EQ(
      scanningSubtitle({.categoryName = "App Caches", .currentPath = "/Users/ann/Library/Caches/x"},
                       "/Users/ann"),
      "App Caches · ~/Library/Caches/x");
  EXPECT_EQ(scanningSubtitle({.categoryName = "Trash", .currentPath = "/Users/ann/a/Users/ann/b"},
                             "/Users/ann"),
            "Trash · ~/a~/b");
}

TEST(ScanningSubtitle, MakesAPathThatIsNotUtf8Printable) {
  EXPECT_EQ(scanningSubtitle({.categoryName = "Trash", .currentPath = "/tmp/a\xff"}, "/home/a"),
            "Trash · /tmp/a\uFFFD");
}

TEST(IdleSubtitle, SaysThatNothingWasScannedYet) {
  EXPECT_EQ(idleSubtitle(std::nullopt, Date{}, english()), "Nothing scanned yet");
}

TEST(IdleSubtitle, SaysHowLongTheLastCleanIsAgo) {
  const Date now{std::chrono::hours(1000)};
  EXPECT_EQ(idleSubtitle(now - std::chrono::minutes(3), now, english()),
            "Last clean 3 minutes ago");
}

TEST(ResultSubtitle, CountsCategoriesAndItemsWithFixedPlurals) {
  EXPECT_EQ(resultSubtitle({}), "0 categories · 0 items");
  EXPECT_EQ(resultSubtitle({categoryOf(CategoryType::appCaches, 1)}), "1 categories · 1 items");
  EXPECT_EQ(resultSubtitle(
                {categoryOf(CategoryType::appCaches, 3), categoryOf(CategoryType::dockerData, 4)}),
            "2 categories · 7 items");
}

TEST(ScanningHeadline, SaysStartingUntilTheNumberOfCategoriesIsKnown) {
  EXPECT_EQ(scanningHeadline({}), "Starting scan");
}

TEST(ScanningHeadline, CountsTheRunningCategoryAndStopsAtTheLast) {
  const auto headline = [](std::int64_t completed) {
    AppState::ScanActivity activity;
    activity.completedCategories = completed;
    activity.totalCategories = 11;
    return scanningHeadline(activity);
  };
  EXPECT_EQ(headline(0), "Scanning 1 of 11 categories");
  EXPECT_EQ(headline(10), "Scanning 11 of 11 categories");
  EXPECT_EQ(headline(11), "Scanning 11 of 11 categories");
}

TEST(ShowMoreTitle, SaysHowManyMoreThereAre) {
  EXPECT_EQ(showMoreTitle(1), "Show 1 more");
  EXPECT_EQ(showMoreTitle(999'992), "Show 999992 more");
}

TEST(SelectionSummary, TellsSizeAndCount) {
  EXPECT_EQ(selectionSummary(0, 0, english()), "Zero KB selected · 0 items");
  EXPECT_EQ(selectionSummary(1'500'000, 1, english()), "1.5 MB selected · 1 items");
}

TEST(SelectionHint, AsksForASelectionWhenThereIsNone) {
  EXPECT_EQ(selectionHint(0, true, ""), "Select something to clean.");
}

TEST(SelectionHint, SaysWhatTheSelectionIsMarkedAs) {
  EXPECT_EQ(selectionHint(2, true, "Items move."),
            "Everything selected is marked Safe. Items move.");
  EXPECT_EQ(selectionHint(2, false, "Items move."),
            "Your selection includes Review items. Items move.");
}

TEST(FateOfASelection, TellsApartWhatGoesToTheTrashAndWhatForGood) {
  EXPECT_EQ(fateOf({.size = 3'000'000, .count = 2, .forGood = 0}, true, english()),
            "Items move to the Trash.");
  EXPECT_EQ(fateOf({.size = 3'000'000, .count = 2, .forGood = 1'000'000}, true, english()),
            "2 MB moves to the Trash, 1 MB is removed for good.");
  EXPECT_EQ(fateOf({.size = 3'000'000, .count = 2, .forGood = 3'000'000}, true, english()),
            "Items are removed for good.");
  EXPECT_EQ(fateOf({.size = 3'000'000, .count = 2, .forGood = 0}, false, english()),
            "Items are removed for good.");
}

TEST(ItemNote, GivesTheReasonAndSaysWhatToCloseFirst) {
  EXPECT_EQ(itemNote({.name = "npm", .path = "/x"}, english()), "");
  EXPECT_EQ(itemNote({.name = "npm", .path = "/x", .reason = "It comes back."}, english()),
            "It comes back.");
  EXPECT_EQ(
      itemNote({.name = "f", .path = "/x", .reason = "It comes back.", .closeFirst = "Firefox"},
               english()),
      "Close Firefox first. It comes back.");
}

TEST(ItemNote, SaysWhichToolRemovesItForGood) {
  const CleaningTool go{.id = "go", .name = "Go"};
  EXPECT_EQ(
      itemNote({.name = "m", .path = "/x", .reason = "It comes back.", .tool = &go}, english()),
      "Go removes it for good. It comes back.");
}

TEST(ItemNote, SaysHowMuchComesBackWhereThatIsLess) {
  EXPECT_EQ(
      itemNote({.name = "m", .path = "/x", .size = 3'000'000, .taken = 40'000'000}, english()),
      "Frees about 3 MB of 40 MB: other files share the rest. ");
  EXPECT_EQ(itemNote({.name = "m", .path = "/x", .size = 3'000'000, .taken = 3'000'100}, english()),
            "");
}

TEST(CleanTitle, NamesTheSizeOfTheSelection) {
  EXPECT_EQ(cleanTitle(2'250'000'000, english()), "Clean 2.25 GB");
}

TEST(RemovingLine, CountsWhatIsDoneAndNotWhatIsUnderWay) {
  EXPECT_EQ(removingLine({.completed = 0, .total = 10, .currentName = "", .freed = 0}, english()),
            "Removing 0 of 10 · Zero KB so far");
  EXPECT_EQ(
      removingLine({.completed = 10, .total = 10, .currentName = "x", .freed = 12'000}, english()),
      "Removing 10 of 10 · 12 KB so far");
}

AppState::CleanSummary summaryOf(bool restorable) {
  AppState::CleanSummary summary;
  summary.freed = 3'000'000;
  summary.itemCount = 1;
  if (restorable) {
    summary.restorable.push_back({"/Users/ann/x", "/Users/ann/.Trash/x", {}});
  }
  return summary;
}

TEST(CleanedBannerTexts, TellOfTheTrashWhenItemsAreThere) {
  EXPECT_EQ(cleanedHeadline(summaryOf(true), english()), "3 MB · 1 items moved to Trash");
  EXPECT_EQ(cleanedDetail(summaryOf(true), 200'000'000'000, english()),
            "200 GB free on disk — the Trash still holds this space until you empty it");
}

TEST(CleanedBannerTexts, TellApartWhatWentToTheTrashAndWhatForGood) {
  AppState::CleanSummary summary = summaryOf(true);
  summary.itemCount = 4;
  EXPECT_EQ(cleanedApartHeadline(summary, english()),
            "3 MB · 1 items moved to Trash, 3 removed for good");
}

TEST(CleanedBannerTexts, SayRemovedWhenNothingCanComeBack) {
  EXPECT_EQ(cleanedHeadline(summaryOf(false), english()), "3 MB · 1 items removed");
  EXPECT_EQ(cleanedDetail(summaryOf(false), 200'000'000'000, english()), "200 GB free on disk");
}

}  // namespace
}  // namespace klarvik::smart_scan
