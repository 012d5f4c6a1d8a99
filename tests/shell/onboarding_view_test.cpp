#include "shell/onboarding/onboarding_model.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>

#include "support/desktop_fakes.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class Onboarding : public ::testing::Test {
 protected:
  struct DeniedDesktop : FakeDesktopOnDisk {
    DeniedDesktop() { denyFullDiskAccess(); }
  };

  void goToTheLastStep() {
    desk.grantFullDiskAccess();
    permissions.refreshAccess();
    view.proceed();
    view.proceed();
  }
  [[nodiscard]] bool isStored(const char* key) const { return desk.defaults.boolean(key, false); }

  DeniedDesktop desk;
  PermissionsManager permissions{desk.desktop};
  OnboardingModel view{permissions, desk.desktop};
  QSignalSpy finished{&view, &OnboardingModel::finished};
};

TEST_F(Onboarding, AUserWhoNeverGrantsCannotLeaveThePageOfThePermission) {
  EXPECT_EQ(view.buttonTitle(), "Continue");
  view.proceed();
  for (int press = 1; press <= 3; ++press) {
    EXPECT_EQ(view.step(), 1);
    EXPECT_EQ(view.buttonTitle(), "Open System Settings");
    view.proceed();
    EXPECT_EQ(desk.workspace.openedUrls.size(), static_cast<std::size_t>(press));
  }
  EXPECT_EQ(finished.count(), 0);
  EXPECT_FALSE(isStored("onboarding_complete"));
}

TEST_F(Onboarding, AUserWhoHasAlreadyGrantedSeesContinueOnThePageOfThePermission) {
  desk.grantFullDiskAccess();
  permissions.refreshAccess();
  view.proceed();
  EXPECT_EQ(view.step(), 1);
  EXPECT_TRUE(view.isGranted());
  EXPECT_EQ(view.buttonTitle(), "Continue");
  view.proceed();
  EXPECT_EQ(view.step(), 2);
  EXPECT_EQ(view.buttonTitle(), "Run first scan");
  EXPECT_TRUE(desk.workspace.openedUrls.empty());
}

TEST_F(Onboarding, TheGrantShowsWithoutAnyAction) {
  view.proceed();
  view.proceed();
  const QSignalSpy grants(&view, &OnboardingModel::isGrantedChanged);
  const QSignalSpy titles(&view, &OnboardingModel::buttonTitleChanged);
  desk.grantFullDiskAccess();
  desk.clock.advance(2s);
  EXPECT_EQ(grants.count(), 1);
  EXPECT_EQ(titles.count(), 1);
  EXPECT_EQ(view.buttonTitle(), "Continue");
  EXPECT_EQ(view.step(), 1);
}

TEST_F(Onboarding, TheGrantShowsOnItsPageAlsoWhenNoButtonWasPressed) {
  view.proceed();
  desk.clock.advance(10s);
  EXPECT_FALSE(view.isGranted());
  desk.grantFullDiskAccess();
  desk.clock.advance(2s);
  EXPECT_TRUE(view.isGranted());
  EXPECT_TRUE(desk.workspace.openedUrls.empty());
}

TEST_F(Onboarding, OpensTheSettingsAndReopensTheProgramWhenAsked) {
  view.openSettings();
  EXPECT_EQ(desk.workspace.openedUrls.size(), 1U);
  view.reopen();
  EXPECT_EQ(desk.workspace.relaunches, 1);
}

TEST_F(Onboarding, TheFirstScanEndsItWithBothKeysStored) {
  goToTheLastStep();
  EXPECT_FALSE(isStored("onboarding_complete"));
  EXPECT_FALSE(isStored("fda_prompt_shown"));
  view.proceed();
  EXPECT_TRUE(isStored("onboarding_complete"));
  EXPECT_TRUE(isStored("fda_prompt_shown"));
  ASSERT_EQ(finished.count(), 1);
  EXPECT_TRUE(finished.at(0).at(0).toBool());
}

TEST_F(Onboarding, LaterStillMarksItComplete) {
  goToTheLastStep();
  view.later();
  EXPECT_TRUE(isStored("onboarding_complete"));
  EXPECT_TRUE(isStored("fda_prompt_shown"));
  ASSERT_EQ(finished.count(), 1);
  EXPECT_FALSE(finished.at(0).at(0).toBool());
}

TEST_F(Onboarding, LaterIsForTheLastPageOnly) {
  view.later();
  EXPECT_EQ(finished.count(), 0);
  EXPECT_FALSE(isStored("onboarding_complete"));
}

TEST_F(Onboarding, EndsOnce) {
  goToTheLastStep();
  view.proceed();
  view.later();
  view.proceed();
  EXPECT_EQ(finished.count(), 1);
}

TEST_F(Onboarding, PreferencesThatCannotBeStoredDoNotHoldItUp) {
  goToTheLastStep();
  desk.defaults.refuseWrites(true);
  view.proceed();
  EXPECT_EQ(finished.count(), 1);
}

TEST_F(Onboarding, UncheckingTheMenuBarTakesEffectBeforeItsEnd) {
  goToTheLastStep();
  EXPECT_TRUE(view.showMenuBar()->isOn());
  view.showMenuBar()->toggle();
  EXPECT_FALSE(desk.defaults.boolean("showMenuBar", true));
  EXPECT_EQ(finished.count(), 0);
}

TEST_F(Onboarding, BeginsAnewAfterAQuitInTheMiddle) {
  view.proceed();
  EXPECT_EQ(view.step(), 1);
  const OnboardingModel next(permissions, desk.desktop);
  EXPECT_EQ(next.step(), 0);
}

TEST(OnboardingOnALinuxDisk, HasNoPageOfAPermission) {
  const FakeDesktopOnDisk desk(std::nullopt, linuxHome);
  PermissionsManager permissions(desk.desktop);
  OnboardingModel view(permissions, desk.desktop);
  EXPECT_EQ(view.stepCount(), 2);
  EXPECT_EQ(view.buttonTitle(), "Continue");
  view.proceed();
  EXPECT_TRUE(view.isLastStep());
  EXPECT_EQ(view.buttonTitle(), "Run first scan");
}

}  // namespace
}  // namespace klarvik
