// When the updater checks by itself, and what it keeps.

#include "updater_fixture.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class BackgroundCheck : public UpdaterFixture {
 protected:
  /// Moves time on, and waits for the end of a check if one has begun.
  void pass(std::chrono::hours time) {
    delegate.calls.clear();
    clock.advance(time);
    ASSERT_TRUE(
        turnMainLoopUntil([&] { return updater->canCheckForUpdates() || delegate.isFinished(); }));
  }
  void restart() {
    updater.reset();
    makeUpdater();
  }
  [[nodiscard]] std::size_t checks() const { return server.requests().size(); }
};

TEST_F(BackgroundCheck, LeavesWhatHasBeenDeliveredAloneUntilItIsAnswered) {
  ASSERT_TRUE(check());
  ASSERT_TRUE(install());
  const std::size_t before = checks();
  pass(72h);
  EXPECT_EQ(checks(), before);
  EXPECT_TRUE(is<update_stage::Delivered>());
  updater->install();
  EXPECT_THAT(workspace.openedUrls, SizeIs(1));
  pass(1h);
  EXPECT_EQ(checks(), before + 1);
}

class QuietBackgroundCheck : public BackgroundCheck {
 protected:
  QuietBackgroundCheck() { server.answer("/feed", {.body = rss("")}); }
};

TEST_F(BackgroundCheck, RunsRightAfterTheStartWhenItIsDueAndShowsWhatItFinds) {
  pass(0h);
  EXPECT_EQ(checks(), 1U);
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0"));
  ASSERT_THAT(stages, SizeIs(1));
  EXPECT_TRUE(is<update_stage::Offered>());
}

/// An offer that waits while a day passes, and the feed that is read then.
class StandingOffer : public BackgroundCheck {
 protected:
  void SetUp() override {
    pass(0h);
    ASSERT_TRUE(is<update_stage::Offered>());
    stages.clear();
    delegate.calls.clear();
  }
  void passADay() {
    clock.advance(24h);
    ASSERT_TRUE(
        turnMainLoopUntil([this] { return checks() == 2 && server.openConnections() == 0; }));
  }
  [[nodiscard]] std::string offered() const {
    const auto* stage =
        stages.empty() ? nullptr : std::get_if<update_stage::Offered>(&stages.back());
    return stage != nullptr ? stage->version : "";
  }
};

TEST_F(StandingOffer, StaysAsItIsWhenTheFeedSaysTheSame) {
  passADay();
  EXPECT_THAT(stages, IsEmpty());
  EXPECT_THAT(delegate.calls, IsEmpty());
  ASSERT_TRUE(install());
  EXPECT_THAT(downloads(), ElementsAre("Klarvik-2.0.deb"));
}

TEST_F(StandingOffer, GivesWayToANewerVersion) {
  serve({.version = "2.1"});
  passADay();
  ASSERT_TRUE(turnMainLoopUntil([this] { return offered() == "2.1"; }));
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.1"));
  ASSERT_TRUE(install());
  EXPECT_THAT(downloads(), ElementsAre("Klarvik-2.1.deb"));
}

TEST_F(StandingOffer, GoesWhenTheFeedWithdrawsIt) {
  server.answer("/feed", {.body = rss("")});
  passADay();
  ASSERT_TRUE(turnMainLoopUntil([this] { return is<update_stage::UpToDate>(); }));
  updater->install();
  EXPECT_THAT(downloads(), IsEmpty());
}

TEST_F(StandingOffer, StaysWhenTheFeedCannotBeRead) {
  server.answer("/feed", {.body = "garbage"});
  passADay();
  EXPECT_THAT(stages, IsEmpty());
  ASSERT_TRUE(install());
  EXPECT_THAT(downloads(), ElementsAre("Klarvik-2.0.deb"));
}

TEST_F(StandingOffer, IsInstalledAlsoWhileTheFeedIsReadAgain) {
  clock.advance(24h);
  ASSERT_TRUE(install());
  EXPECT_THAT(downloads(), ElementsAre("Klarvik-2.0.deb"));
}

TEST_F(StandingOffer, IsPutOffAlsoWhileTheFeedIsReadAgain) {
  clock.advance(24h);
  updater->dismiss();
  EXPECT_THAT(delegate.calls, ElementsAre("aborted 4008", "finished 4008"));
  EXPECT_TRUE(is<update_stage::Hidden>());
  EXPECT_TRUE(updater->canCheckForUpdates());
}

TEST_F(StandingOffer, IsShownAgainWhenTheUserAsksWhileTheFeedIsRead) {
  clock.advance(24h);
  ASSERT_TRUE(updater->canCheckForUpdates());
  updater->checkForUpdates();
  EXPECT_EQ(offered(), "2.0");
}

TEST_F(QuietBackgroundCheck, ShowsNothingUnlessThereIsSomethingNew) {
  pass(0h);
  EXPECT_THAT(delegate.calls, ElementsAre("nothing", "finished"));
  EXPECT_THAT(stages, IsEmpty());
}

TEST_F(QuietBackgroundCheck, ShowsNothingWhenItFails) {
  server.answer("/feed", {.body = "garbage"});
  pass(0h);
  EXPECT_THAT(delegate.calls, ElementsAre("aborted 1002", "finished 1002"));
  EXPECT_THAT(stages, IsEmpty());
}

TEST_F(QuietBackgroundCheck, RunsOnceADay) {
  for (const int hour : {0, 1, 1, 21}) pass(std::chrono::hours(hour));
  EXPECT_EQ(checks(), 1U);
  pass(1h);
  EXPECT_EQ(checks(), 2U);
  pass(23h);
  EXPECT_EQ(checks(), 2U);
}

TEST_F(QuietBackgroundCheck, RunsOnceADayHoweverOftenTheProgramStarts) {
  for (int start = 0; start < 5; ++start) {
    pass(0h);
    restart();
  }
  EXPECT_EQ(checks(), 1U);
  updater.reset();
  clock.advance(24h);
  makeUpdater();
  pass(0h);
  EXPECT_EQ(checks(), 2U);
}

TEST_F(QuietBackgroundCheck, RunsOnceADayAlsoWhereNothingCanBeStored) {
  defaults.refuseWrites(true);
  pass(0h);
  pass(2h);
  EXPECT_EQ(checks(), 1U);
  EXPECT_TRUE(updater->lastUpdateCheckDate().has_value());
}

TEST_F(QuietBackgroundCheck, IsNotRepeatedAtOnceWhenItNeverCameToItsEnd) {
  server.answer("/feed", {.staysSilent = true});
  clock.advance(0h);
  ASSERT_TRUE(turnMainLoopUntil([&] { return checks() == 1; }));
  restart();
  clock.advance(1h);
  turnMainLoop();
  EXPECT_EQ(checks(), 1U);
}

TEST_F(QuietBackgroundCheck, WaitsADayAfterACheckThatTheUserStarted) {
  clock.advance(0h);
  ASSERT_TRUE(turnMainLoopUntil([&] { return delegate.isFinished(); }));
  clock.advance(20h);
  delegate.calls.clear();
  ASSERT_TRUE(check());
  pass(10h);
  EXPECT_EQ(checks(), 2U);
}

TEST_F(QuietBackgroundCheck, DoesNotRunWhileItIsSwitchedOffAndRunsOnceItIsOnAgain) {
  updater->setAutomaticallyChecksForUpdates(false);
  EXPECT_FALSE(updater->automaticallyChecksForUpdates());
  pass(0h);
  restart();
  pass(100h);
  EXPECT_EQ(checks(), 0U);
  updater->setAutomaticallyChecksForUpdates(true);
  pass(1h);
  EXPECT_EQ(checks(), 1U);
}

TEST_F(QuietBackgroundCheck, FollowsTheSwitchAsItStandsInThePreferencesEachTime) {
  defaults.set("automaticallyChecksForUpdates", false);
  pass(0h);
  EXPECT_EQ(checks(), 0U);
  defaults.set("automaticallyChecksForUpdates", std::string("garbage"));
  EXPECT_TRUE(updater->automaticallyChecksForUpdates());
  pass(1h);
  EXPECT_EQ(checks(), 1U);
}

TEST_F(QuietBackgroundCheck, DoesNotRunBeforeTheDelegateAllowsIt) {
  delegate.mayCheck = false;
  pass(50h);
  EXPECT_EQ(checks(), 0U);
  delegate.mayCheck = true;
  pass(1h);
  EXPECT_EQ(checks(), 1U);
}

TEST_F(QuietBackgroundCheck, DoesNotRunWithoutAFeed) {
  info.erase("SUFeedURL");
  pass(50h);
  EXPECT_THAT(delegate.calls, IsEmpty());
  EXPECT_FALSE(updater->lastUpdateCheckDate());
}

TEST_F(QuietBackgroundCheck, DoesNotRunAfterTheUpdaterHasStopped) {
  updater->stop();
  EXPECT_FALSE(updater->canCheckForUpdates());
  clock.advance(50h);
  turnMainLoop();
  EXPECT_EQ(checks(), 0U);
}

TEST_F(QuietBackgroundCheck, TakesRubbishForTheTimeOfTheLastCheckAsNever) {
  const std::int64_t now =
      std::chrono::duration_cast<std::chrono::seconds>(clock.now().time_since_epoch()).count();
  for (const DefaultsValue& garbage :
       {DefaultsValue(std::string("yesterday")), DefaultsValue(true), DefaultsValue(1e300),
        DefaultsValue(std::int64_t{-5}), DefaultsValue(now + 100'000),
        DefaultsValue(std::numeric_limits<std::int64_t>::max()),
        DefaultsValue(std::numeric_limits<std::int64_t>::min())}) {
    defaults.set("lastUpdateCheckDate", garbage);
    EXPECT_FALSE(updater->lastUpdateCheckDate());
  }
  pass(0h);
  EXPECT_EQ(checks(), 1U);
}

TEST_F(QuietBackgroundCheck, RemembersTheTimeOfTheLastCheckAcrossAStart) {
  pass(0h);
  const Date then = clock.now();
  clock.advance(3h);
  restart();
  EXPECT_EQ(updater->lastUpdateCheckDate(), then);
}

TEST_F(QuietBackgroundCheck, GoesOnWhenTheUserDismissesWhatCameOfAnEarlierOne) {
  ASSERT_TRUE(check());
  ASSERT_TRUE(is<update_stage::UpToDate>());
  serve({.version = "2.0"});
  clock.advance(24h);
  EXPECT_FALSE(updater->canCheckForUpdates()) << "the next check is under way";
  updater->dismiss();
  EXPECT_TRUE(is<update_stage::Hidden>());
  EXPECT_THAT(delegate.calls, ElementsAre("nothing", "finished"));
  ASSERT_TRUE(turnMainLoopUntil([&] { return is<update_stage::Offered>(); }));
  EXPECT_THAT(delegate.calls, ElementsAre("nothing", "finished", "found 2.0"));
}

TEST_F(QuietBackgroundCheck, KeepsTheUserWaitingWhileItRuns) {
  clock.advance(0h);
  EXPECT_FALSE(updater->canCheckForUpdates());
}

}  // namespace
}  // namespace klarvik
