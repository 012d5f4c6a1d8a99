#include "state/tool_activity.h"

#include <gtest/gtest.h>

#include <cmath>

#include "signal_count.h"
#include "support/fake_clock.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using State = ToolActivity::State;

class ToolActivityTest : public ::testing::Test {
 protected:
  [[nodiscard]] State privacy() const { return activity.state("privacy"); }

  FakeClock clock;
  ToolActivity activity{clock};
};

TEST_F(ToolActivityTest, AToolThatNobodyToldOfIsIdle) {
  EXPECT_EQ(privacy(), State(ToolActivity::Idle{}));
  EXPECT_TRUE(activity.states().empty());
}

TEST_F(ToolActivityTest, AFinishedSummaryStandsForSixSeconds) {
  activity.start("privacy");
  EXPECT_EQ(privacy(), State(ToolActivity::Running{}));
  activity.finish("privacy", "3 GB");
  clock.advance(6s - 1ns);
  EXPECT_EQ(privacy(), State(ToolActivity::Finished{"3 GB"}));
  clock.advance(1ns);
  EXPECT_EQ(privacy(), State(ToolActivity::Idle{}));
}

TEST_F(ToolActivityTest, FinishTwiceWithinSixSecondsClearsSixSecondsAfterTheSecond) {
  activity.finish("privacy", "first");
  clock.advance(5s);
  activity.finish("privacy", "second");
  EXPECT_EQ(privacy(), State(ToolActivity::Finished{"second"}));
  clock.advance(6s - 1ns);
  EXPECT_EQ(privacy(), State(ToolActivity::Finished{"second"}));
  clock.advance(1ns);
  EXPECT_EQ(privacy(), State(ToolActivity::Idle{}));
}

TEST_F(ToolActivityTest, ClearDuringTheSixSecondsLeavesIdleAndCancelsTheClearing) {
  activity.finish("privacy", "3 GB");
  clock.advance(2s);
  activity.clear("privacy");
  EXPECT_EQ(privacy(), State(ToolActivity::Idle{}));
  EXPECT_EQ(clock.pendingAlarms(), 0U);
}

TEST_F(ToolActivityTest, AStartDuringTheSixSecondsCancelsTheClearing) {
  activity.finish("privacy", "3 GB");
  clock.advance(2s);
  activity.start("privacy");
  EXPECT_EQ(clock.pendingAlarms(), 0U);
  activity.finish("privacy", "4 GB");
  clock.advance(4s);
  EXPECT_EQ(privacy(), State(ToolActivity::Finished{"4 GB"}));
}

TEST_F(ToolActivityTest, TheClearingLeavesAStateThatIsNoLongerFinishedAlone) {
  activity.finish("privacy", "3 GB");
  activity.setProgress("privacy", 0.5);
  clock.advance(6s);
  EXPECT_EQ(privacy(), State(ToolActivity::Progress{0.5}));
}

TEST_F(ToolActivityTest, ProgressIsHeldBetweenZeroAndOne) {
  activity.setProgress("privacy", 1.2);
  EXPECT_EQ(privacy(), State(ToolActivity::Progress{1}));
  activity.setProgress("privacy", -0.2);
  EXPECT_EQ(privacy(), State(ToolActivity::Progress{0}));
}

TEST_F(ToolActivityTest, ProgressThatIsNoNumberIsNone) {
  activity.setProgress("privacy", std::nan(""));
  EXPECT_EQ(privacy(), State(ToolActivity::Progress{0}));
}

TEST_F(ToolActivityTest, ToolsDoNotDisturbOneAnother) {
  activity.finish("privacy", "3 GB");
  activity.start("storage");
  clock.advance(6s);
  EXPECT_EQ(activity.state("storage"), State(ToolActivity::Running{}));
}

TEST_F(ToolActivityTest, TellsOnlyOfChanges) {
  const SignalCount changes(activity, &ToolActivity::statesChanged);
  activity.clear("privacy");
  EXPECT_EQ(changes.get(), 0);
  activity.start("privacy");
  activity.start("privacy");
  EXPECT_EQ(changes.get(), 1);
  activity.setProgress("privacy", 0.5);
  activity.setProgress("privacy", 0.5);
  EXPECT_EQ(changes.get(), 2);
}

}  // namespace
}  // namespace klarvik
