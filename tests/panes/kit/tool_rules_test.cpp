#include "panes/kit/tool_rules.h"

#include <QtCore/qnamespace.h>
#include <gtest/gtest.h>
#include <limits>
#include <optional>

#include "platform/formatting.h"

namespace klarvik {
namespace {

const Formatting english{"en_US"};

ToolFooterInput removing(std::int64_t completed, std::int64_t total, std::string name = {},
                         std::int64_t freed = 0) {
  return {.selectionSummary = "summary",
          .explanation = "explanation",
          .buttonTitle = "Clean",
          .isEnabled = true,
          .isBusy = true,
          .progress = DeletionProgress{.completed = completed,
                                       .total = total,
                                       .currentName = std::move(name),
                                       .freed = freed},
          .canStop = true};
}

TEST(ToolPaneState, WithoutAnActionTitleHasNoButtonBusyOrNot) {
  EXPECT_FALSE(toolPaneState("", true, false, false).showsButton);
  EXPECT_FALSE(toolPaneState("", true, true, false).showsButton);
}

TEST(ToolPaneState, WithoutAnActionHasNoButton) {
  EXPECT_FALSE(toolPaneState("Rescan", false, false, false).showsButton);
}

TEST(ToolPaneState, IdleShowsItsActionTitleAndNoBar) {
  EXPECT_EQ(toolPaneState("Rescan", true, false, false),
            (ToolPaneState{.showsButton = true, .buttonLabel = "Rescan", .showsBar = false}));
}

TEST(ToolPaneState, BusyShowsStopAndTheBar) {
  EXPECT_EQ(toolPaneState("Rescan", true, true, false),
            (ToolPaneState{.showsButton = true, .buttonLabel = "Stop", .showsBar = true}));
}

TEST(ToolPaneState, BusyWithALoaderInTheRowsShowsStopAndNoBar) {
  EXPECT_EQ(toolPaneState("Rescan", true, true, true),
            (ToolPaneState{.showsButton = true, .buttonLabel = "Stop", .showsBar = false}));
}

TEST(ToolFooterState, IdleShowsSummaryExplanationAndButton) {
  ToolFooterInput input = removing(1, 2);
  input.isBusy = false;
  EXPECT_EQ(toolFooterState(input, english), (ToolFooterState{.showsProgress = false,
                                                              .firstLine = "summary",
                                                              .fraction = 0,
                                                              .lastLine = "explanation",
                                                              .showsStop = false,
                                                              .buttonLabel = "Clean",
                                                              .buttonEnabled = true}));
}

TEST(ToolFooterState, IdleAndNotEnabledDisablesTheButton) {
  ToolFooterInput input = removing(0, 0);
  input.isBusy = false;
  input.isEnabled = false;
  EXPECT_FALSE(toolFooterState(input, english).buttonEnabled);
}

TEST(ToolFooterState, BusyWithoutProgressShowsTheSummaryStopAndWorkingDisabled) {
  ToolFooterInput input = removing(0, 0);
  input.progress.reset();
  EXPECT_EQ(toolFooterState(input, english), (ToolFooterState{.showsProgress = false,
                                                              .firstLine = "summary",
                                                              .fraction = 0,
                                                              .lastLine = "explanation",
                                                              .showsStop = true,
                                                              .buttonLabel = "Working…",
                                                              .buttonEnabled = false}));
  input.canStop = false;
  EXPECT_FALSE(toolFooterState(input, english).showsStop);
}

TEST(ToolFooterState, BusyWithProgressCountsTheItemUnderWay) {
  const auto state = toolFooterState(removing(2, 10, "a.log", 1'200'000), english);
  EXPECT_TRUE(state.showsProgress);
  EXPECT_EQ(state.firstLine, "Removing 3 of 10 · 1.2 MB so far");
  EXPECT_DOUBLE_EQ(state.fraction, 0.2);
  EXPECT_EQ(state.lastLine, "a.log");
}

TEST(ToolFooterState, TenOfTenDoneReadsTenOfTenNeverEleven) {
  const auto state = toolFooterState(removing(10, 10), english);
  EXPECT_EQ(state.firstLine, "Removing 10 of 10 · Zero KB so far");
  EXPECT_EQ(state.fraction, 1);
}

TEST(ToolFooterState, ATotalOfZeroGivesAnEmptyBar) {
  EXPECT_EQ(toolFooterState(removing(0, 0), english).fraction, 0);
}

TEST(ToolFooterState, MoreDoneThanThereWasFillsTheBarAndNoMore) {
  EXPECT_EQ(toolFooterState(removing(12, 10), english).fraction, 1);
}

TEST(ToolFooterState, AnEmptyNameReadsStarting) {
  EXPECT_EQ(toolFooterState(removing(0, 10), english).lastLine, "Starting…");
}

TEST(ToolFooterState, LargeNumbersAreWrittenWithoutGrouping) {
  const auto state = toolFooterState(removing(1234566, 12345678), english);
  EXPECT_EQ(state.firstLine, "Removing 1234567 of 12345678 · Zero KB so far");
}

TEST(ToolFooterState, ANameThatIsNotUtf8IsMadePrintable) {
  const auto state = toolFooterState(removing(0, 1, "a\xff"), english);
  EXPECT_EQ(state.lastLine, QString::fromUtf8("a\uFFFD"));
}

TEST(PlaceholderTop, ProgressGoesBeforeTheLoaderAndTheLoaderBeforeTheIcon) {
  EXPECT_EQ(placeholderTop(0, true), PlaceholderTop::Progress);
  EXPECT_EQ(placeholderTop(0.5, false), PlaceholderTop::Progress);
  EXPECT_EQ(placeholderTop(-1, true), PlaceholderTop::Loader);
  EXPECT_EQ(placeholderTop(-1, false), PlaceholderTop::Icon);
}

TEST(RemovalProgress, IsPresentOnlyWithAValue) {
  EXPECT_FALSE(RemovalProgress().present());
  EXPECT_FALSE(RemovalProgress(std::nullopt).present());
  EXPECT_TRUE(RemovalProgress(DeletionProgress{}).present());
}

constexpr ListPlace middle{.row = 50, .rowCount = 100, .rowsInSight = 10};

TEST(ListKeys, APageLeavesOneRowInSight) {
  EXPECT_EQ(rowReachedBy(Qt::Key_PageDown, middle), 59);
  EXPECT_EQ(rowReachedBy(Qt::Key_PageUp, middle), 41);
}

TEST(ListKeys, HomeAndEndLeadToTheFirstRowAndTheLast) {
  EXPECT_EQ(rowReachedBy(Qt::Key_Home, middle), 0);
  EXPECT_EQ(rowReachedBy(Qt::Key_End, middle), 99);
}

TEST(ListKeys, NoPageLeadsBeyondTheRows) {
  EXPECT_EQ(rowReachedBy(Qt::Key_PageUp, {.row = 3, .rowCount = 100, .rowsInSight = 10}), 0);
  EXPECT_EQ(rowReachedBy(Qt::Key_PageDown, {.row = 95, .rowCount = 100, .rowsInSight = 10}), 99);
}

TEST(ListKeys, APageOfAListTooLowForARowIsOneRow) {
  EXPECT_EQ(rowReachedBy(Qt::Key_PageDown, {.row = 3, .rowCount = 100, .rowsInSight = 0}), 4);
}

TEST(ListKeys, LeadNowhereInAListWithoutRows) {
  EXPECT_EQ(rowReachedBy(Qt::Key_End, {.row = -1, .rowCount = 0, .rowsInSight = 10}), std::nullopt);
}

TEST(ListKeys, OtherKeysLeadNowhere) {
  EXPECT_EQ(rowReachedBy(Qt::Key_Space, middle), std::nullopt);
  EXPECT_EQ(rowReachedBy(Qt::Key_Menu, middle), std::nullopt);
}

}  // namespace
}  // namespace klarvik
