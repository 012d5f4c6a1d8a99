#include "state/update_manager.h"

#include <gtest/gtest.h>

#include "signal_count.h"
#include "state/shared_state.h"
#include "support/application/main_loop.h"
#include "support/desktop_fakes.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

using Available = UpdateManager::UpdateAvailable;
using Failed = UpdateManager::Failed;
using Unknown = UpdateManager::Unknown;
using Checking = UpdateManager::Checking;
using UpToDate = UpdateManager::UpToDate;

UpdaterError updaterError(std::int64_t code, std::string description = "What the updater says.") {
  return {updaterErrorDomain, code, std::move(description)};
}

class UpdateManagerTest : public ::testing::Test {
 protected:
  [[nodiscard]] UpdaterDelegate& delegate() { return *around.updater.delegate; }
  void find(const std::string& version) {
    delegate().didFindValidUpdate(version);
    turnMainLoop();
  }
  void finish(const std::optional<UpdaterError>& error = std::nullopt) {
    delegate().didFinishUpdateCycle(error);
    turnMainLoop();
  }
  void abort(const UpdaterError& error) {
    delegate().didAbortWithError(error);
    turnMainLoop();
  }
  void expect(const UpdateManager::Status& status) { EXPECT_EQ(manager.status(), status); }

  FakeDesktopOnDisk around;
  UpdateManager manager{around.desktop};
};

TEST_F(UpdateManagerTest, StartsTheUpdaterAndKnowsNothingYet) {
  ASSERT_NE(around.updater.delegate, nullptr);
  expect(Unknown{});
  EXPECT_EQ(around.updater.checks, 0);
}

TEST_F(UpdateManagerTest, BeginsWithTheUpdatersLastCheck) {
  EXPECT_EQ(manager.lastCheckDate(), std::nullopt);
  EXPECT_EQ(manager.lastCheckedText(), "Never checked");
  around.updater.lastCheck = around.clock.now() - 3h;
  const UpdateManager next(around.desktop);
  EXPECT_EQ(next.lastCheckDate(), around.clock.now() - 3h);
  EXPECT_EQ(next.lastCheckedText(), "Checked 3 hr. ago");
}

TEST_F(UpdateManagerTest, ACheckIsUnderWayUntilTheUpdaterTells) {
  manager.checkForUpdates();
  EXPECT_EQ(around.updater.checks, 1);
  expect(Checking{});
}

TEST_F(UpdateManagerTest, ASecondCheckWhileTheUpdaterIsBusyFailsAndAsksForNothing) {
  around.updater.canCheck = false;
  manager.checkForUpdates();
  expect(Failed{"A check is already running."});
  EXPECT_EQ(around.updater.checks, 0);
  EXPECT_EQ(manager.detailText(), "A check is already running. · not configured");
}

TEST_F(UpdateManagerTest, AFoundUpdateIsAvailableAndLeavesTheDateOfTheLastCheck) {
  manager.checkForUpdates();
  find("2.0");
  expect(Available{"2.0"});
  EXPECT_EQ(manager.lastCheckDate(), std::nullopt);
}

TEST_F(UpdateManagerTest, AFinishedCycleWithoutErrorKeepsAnAvailableUpdate) {
  find("2.0");
  finish();
  expect(Available{"2.0"});
  EXPECT_EQ(manager.lastCheckDate(), around.clock.now());
}

TEST_F(UpdateManagerTest, NothingFoundIsUpToDateAsOfNow) {
  manager.checkForUpdates();
  delegate().didNotFindUpdate();
  turnMainLoop();
  expect(UpToDate{});
  EXPECT_EQ(manager.lastCheckDate(), around.clock.now());
}

TEST_F(UpdateManagerTest, ACycleThatFinishesWhileCheckingIsUpToDate) {
  manager.checkForUpdates();
  finish();
  expect(UpToDate{});
}

TEST_F(UpdateManagerTest, ACycleThatFinishesInAnyOtherStateLeavesIt) {
  finish();
  expect(Unknown{});
  abort(updaterError(9));
  finish();
  expect(Failed{"What the updater says."});
}

TEST_F(UpdateManagerTest, AnErrorAtTheEndOfACycleCountsAndSoDoesItsDate) {
  manager.checkForUpdates();
  finish(updaterError(9));
  expect(Failed{"What the updater says."});
  EXPECT_EQ(manager.lastCheckDate(), around.clock.now());
}

TEST_F(UpdateManagerTest, AUserWhoCancelsTheInstallOrPutsItOffReturnsToNotCheckedYet) {
  for (const std::int64_t code : {4007, 4008}) {
    find("2.0");
    abort(updaterError(code));
    expect(Unknown{});
    find("2.0");
    finish(updaterError(code));
    expect(Unknown{});
    EXPECT_EQ(manager.lastCheckDate(), around.clock.now());
  }
}

TEST_F(UpdateManagerTest, TheErrorThatThereIsNoUpdateMeansUpToDate) {
  abort(updaterError(1001));
  expect(UpToDate{});
}

TEST_F(UpdateManagerTest, AnyOtherErrorFailsWithItsSentence) {
  abort({urlErrorDomain, -1009, ""});
  expect(Failed{"No internet connection."});
}

TEST_F(UpdateManagerTest, AUrlErrorWrappedUnderTheUpdatersStillSaysNoInternetConnection) {
  UpdaterError error = updaterError(2001);
  error.underlying = std::make_shared<const UpdaterError>(UpdaterError{urlErrorDomain, -1009, ""});
  abort(error);
  expect(Failed{"No internet connection."});
}

TEST_F(UpdateManagerTest, AFailureWithoutAFeedShowsTheMessageAndThatNoneIsConfigured) {
  abort(updaterError(9));
  EXPECT_EQ(manager.feedAddress(), "not configured");
  EXPECT_EQ(manager.detailText(), "What the updater says. · not configured");
}

TEST_F(UpdateManagerTest, AFeedThatIsNoTextIsNotConfigured) {
  around.info["SUFeedURL"] = true;
  EXPECT_EQ(manager.feedAddress(), "not configured");
}

TEST_F(UpdateManagerTest, AFailureShowsTheFeedAndAnythingElseTheLastCheck) {
  around.info["SUFeedURL"] = std::string("https://example.com/feed.xml");
  abort({urlErrorDomain, -1001, ""});
  EXPECT_EQ(manager.detailText(), "The update server timed out. · https://example.com/feed.xml");
  delegate().didNotFindUpdate();
  turnMainLoop();
  around.clock.advance(5min);
  EXPECT_EQ(manager.detailText(), "Checked 5 min. ago");
}

TEST_F(UpdateManagerTest, TheNextCheckClearsAFailure) {
  abort(updaterError(9));
  manager.checkForUpdates();
  expect(Checking{});
}

TEST_F(UpdateManagerTest, ABackgroundCheckChangesTheStateWithoutPassingThroughChecking) {
  const SignalCount changes(manager, &UpdateManager::statusChanged);
  find("2.0");
  expect(Available{"2.0"});
  EXPECT_EQ(changes.get(), 1);
  find("2.0");
  EXPECT_EQ(changes.get(), 1);
}

TEST_F(UpdateManagerTest, TouchesNothingWithinTheUpdatersOwnCall) {
  delegate().didFindValidUpdate("2.0");
  delegate().didFinishUpdateCycle(std::nullopt);
  expect(Unknown{});
  turnMainLoop();
  expect(Available{"2.0"});
}

TEST_F(UpdateManagerTest, AllowsBackgroundChecksOnlyOnceTheFirstRunIsFinished) {
  EXPECT_FALSE(delegate().mayCheckInBackground());
  around.defaults.set("onboarding_complete", true);
  EXPECT_TRUE(delegate().mayCheckInBackground());
}

TEST_F(UpdateManagerTest, GoesOnAllowingThemWhenTheNextStartIsToShowTheFirstRunAgain) {
  around.defaults.set("onboarding_complete", true);
  around.defaults.remove("onboarding_complete");
  EXPECT_TRUE(delegate().mayCheckInBackground());
}

TEST(SharedUpdateManager, IsMadeAtFirstUseAndStopsTheUpdaterWithTheSharedState) {
  FakeDesktopOnDisk around;
  {
    SharedState shared(around.desktop);
    EXPECT_EQ(around.updater.delegate, nullptr);
    static_cast<void>(shared.updateManager());
    EXPECT_NE(around.updater.delegate, nullptr);
  }
  EXPECT_EQ(around.updater.delegate, nullptr);
}

}  // namespace
}  // namespace klarvik
