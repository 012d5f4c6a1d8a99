#include "shell/menu_bar/menu_bar_rules.h"

#include <gtest/gtest.h>

#include "places/disk_layout.h"

namespace klarvik::menu_bar {
namespace {

const Formatting& english() {
  static const Formatting formatting("en_US");
  return formatting;
}

void expectPill(const StatusItem::Pill& pill, const StatusItem::Pill& expected) {
  EXPECT_NEAR(pill.x, expected.x, 1e-9);
  EXPECT_NEAR(pill.y, expected.y, 1e-9);
  EXPECT_NEAR(pill.width, expected.width, 1e-9);
  EXPECT_NEAR(pill.height, expected.height, 1e-9);
  EXPECT_NEAR(pill.radius, expected.radius, 1e-9);
  EXPECT_EQ(pill.opacity, expected.opacity);
}

TEST(StatusIcon, IsThreePillsInTheMiddleOf18Points) {
  const auto pills = statusIcon(18, 18);
  ASSERT_EQ(pills.size(), 3U);
  expectPill(pills[0], {1.5, 2.1, 15, 3, 1.5, 0.55});
  expectPill(pills[1], {1.5, 7.5, 15, 3, 1.5, 1});
  expectPill(pills[2], {1.5, 12.9, 15, 3, 1.5, 1});
}

TEST(StatusIcon, GrowsWithItsWidthAndStaysInTheMiddleOfItsHeight) {
  const auto pills = statusIcon(36, 60);
  ASSERT_EQ(pills.size(), 3U);
  expectPill(pills[0], {3, 16.2, 30, 6, 3, 0.55});
  expectPill(pills[2], {3, 37.8, 30, 6, 3, 1});
}

TEST(StatusTitle, IsWhatACleanReclaimedAfterABlank) {
  EXPECT_EQ(title(AppState::CleanDone{1'234'000'000}, english()), " 1.23 GB");
  EXPECT_EQ(title(AppState::CleanDone{1}, english()), " 1 byte");
}

TEST(StatusTitle, ACleanThatFreed0BytesLeavesTheTitleEmpty) {
  EXPECT_EQ(title(AppState::CleanDone{0}, english()), "");
}

TEST(StatusTitle, IsEmptyInEveryOtherState) {
  for (const AppState::ScanState& state :
       {AppState::ScanState(AppState::Idle{}),
        AppState::ScanState(AppState::Scanning{0.5, "Docker"}),
        AppState::ScanState(AppState::Done{}), AppState::ScanState(AppState::Cleaning{})}) {
    EXPECT_EQ(title(state, english()), "") << state.index();
  }
}

TEST(MoreCategories, ExactlyFourHaveNoSuchLineAndFiveHaveItWith1) {
  EXPECT_EQ(moreCategories(0), "");
  EXPECT_EQ(moreCategories(4), "");
  EXPECT_EQ(moreCategories(5), "1 more categories");
  EXPECT_EQ(moreCategories(11), "7 more categories");
}

TEST(TrashRow, SaysWhatCanBeDone) {
  struct Row {
    TrashMonitor::Figures trash;
    const char* label;
    const char* symbol;
    bool canEmpty;
  };
  const Row rows[] = {
      {{}, "Trash is empty", "trash", false},
      {{.bytes = 2'000'000, .itemCount = 1}, "Empty Trash · 2 MB", "trash.fill", true},
      {{.bytes = 0, .itemCount = 3}, "Empty Trash · Zero KB", "trash.fill", true},
      {{.bytes = 5, .isReadable = false}, "Trash · needs Full Disk Access", "trash", false},
      {{.bytes = 5, .itemCount = 2, .isReadable = false},
       "Trash · needs Full Disk Access",
       "trash",
       false},
      {{.bytes = 5, .itemCount = 2, .isEmptying = true}, "Emptying Trash…", "trash.fill", false},
      {{.isEmptying = true}, "Emptying Trash…", "trash", false},
      {{.itemCount = 2, .isEmptying = true, .isReadable = false},
       "Emptying Trash…",
       "trash",
       false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(trashLabel(row.trash, layoutFor("/Users/ann").words, english()), row.label);
    EXPECT_EQ(trashSymbol(row.trash), row.symbol) << row.label;
    EXPECT_EQ(canEmpty(row.trash), row.canEmpty) << row.label;
  }
}

TEST(TrashRow, AsksForNoPermissionOnALinuxDisk) {
  const TrashMonitor::Figures trash{.bytes = 5, .isReadable = false};
  EXPECT_EQ(trashLabel(trash, layoutFor("/home/ann").words, english()), "Trash · cannot be read");
}

}  // namespace
}  // namespace klarvik::menu_bar
