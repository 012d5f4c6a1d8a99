#include "shell/settings/general_settings_model.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <QSysInfo>
#include <map>

#include "support/desktop_fakes.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class GeneralSettings : public ::testing::Test {
 protected:
  [[nodiscard]] static std::map<std::string, StoredSwitch*> boxes(GeneralSettingsModel& page) {
    return {{"showMenuBar", page.showMenuBar()},
            {"useTrash", page.useTrash()},
            {"confirmDelete", page.confirmDelete()},
            {"backgroundScanOnLaunch", page.backgroundScanOnLaunch()},
            {"includeDeveloperJunk", page.includeDeveloperJunk()}};
  }

  FakeDesktopOnDisk desk;
  FakeLoginItem loginItem;
  PermissionsManager permissions{desk.desktop};
  GeneralSettingsModel page{permissions, loginItem, desk.desktop};
};

TEST_F(GeneralSettings, AFreshInstallHasEveryBoxOn) {
  for (const auto& [key, box] : boxes(page)) EXPECT_TRUE(box->isOn()) << key;
}

TEST_F(GeneralSettings, AValueThatIsNoBooleanCountsAsOn) {
  for (const auto& [key, box] : boxes(page)) desk.defaults.set(key, std::string("no"));
  GeneralSettingsModel next(permissions, loginItem, desk.desktop);
  for (const auto& [key, box] : boxes(next)) EXPECT_TRUE(box->isOn()) << key;
}

TEST_F(GeneralSettings, EveryBoxWritesItsOwnKeyAtOnceAndNoOther) {
  for (const auto& [key, box] : boxes(page)) {
    box->toggle();
    EXPECT_FALSE(box->isOn()) << key;
    for (const auto& [other, otherBox] : boxes(page)) {
      EXPECT_EQ(desk.defaults.boolean(other, true), other != key) << key << " and " << other;
    }
    box->toggle();
    EXPECT_TRUE(desk.defaults.boolean(key, false)) << key;
  }
}

TEST_F(GeneralSettings, BoxesFollowWhatIsWrittenByHandWhileTheProgramRuns) {
  desk.defaults.set("useTrash", false);
  desk.notifications.post(defaultsChangedNotification);
  EXPECT_FALSE(page.useTrash()->isOn());
  desk.defaults.set("useTrash", std::int64_t{0});
  desk.notifications.post(defaultsChangedNotification);
  EXPECT_TRUE(page.useTrash()->isOn());
}

TEST_F(GeneralSettings, ABoxThatCannotBeStoredSnapsBack) {
  desk.defaults.refuseWrites(true);
  for (const auto& [key, box] : boxes(page)) {
    box->toggle();
    EXPECT_TRUE(box->isOn()) << key;
  }
}

TEST_F(GeneralSettings, TheLoginItemFollowsItsBox) {
  LaunchAtLogin& box = *page.launchAtLogin();
  EXPECT_FALSE(box.isOn());
  box.toggle();
  EXPECT_TRUE(box.isOn());
  EXPECT_EQ(loginItem.current, LoginItem::Status::enabled);
  box.toggle();
  EXPECT_FALSE(box.isOn());
  EXPECT_EQ(loginItem.current, LoginItem::Status::notRegistered);
}

TEST_F(GeneralSettings, ALoginItemThatCannotBeChangedSnapsItsBoxBack) {
  LaunchAtLogin& box = *page.launchAtLogin();
  loginItem.canChange = false;
  box.toggle();
  EXPECT_EQ(loginItem.changes, 1);
  EXPECT_FALSE(box.isOn());
}

TEST_F(GeneralSettings, ALoginItemThatIsAlreadyAsWantedIsLeftAlone) {
  LaunchAtLogin& box = *page.launchAtLogin();
  loginItem.current = LoginItem::Status::enabled;
  EXPECT_FALSE(box.isOn()) << "it is read when the page is made";
  box.toggle();
  EXPECT_EQ(loginItem.changes, 0);
  EXPECT_TRUE(box.isOn());
}

TEST_F(GeneralSettings, ACopyThatIsNotInstalledSaysSoAndItsBoxStaysOff) {
  loginItem.current = LoginItem::Status::notFound;
  loginItem.canChange = false;
  LaunchAtLogin box(loginItem);
  EXPECT_TRUE(box.isUnavailable());
  box.toggle();
  EXPECT_FALSE(box.isOn());
  EXPECT_TRUE(box.isUnavailable());
}

TEST_F(GeneralSettings, ShowOnboardingAgainRemovesBothKeysAndNothingElse) {
  for (const char* key : {"onboarding_complete", "fda_prompt_shown", "useTrash"}) {
    desk.defaults.set(key, true);
  }
  page.showOnboardingAgain();
  EXPECT_FALSE(desk.defaults.object("onboarding_complete"));
  EXPECT_FALSE(desk.defaults.object("fda_prompt_shown"));
  EXPECT_TRUE(desk.defaults.object("useTrash"));
}

TEST_F(GeneralSettings, FollowThePermission) {
  EXPECT_TRUE(page.isGranted());
  const QSignalSpy changes(&page, &GeneralSettingsModel::isGrantedChanged);
  desk.denyFullDiskAccess();
  permissions.refreshAccess();
  EXPECT_FALSE(page.isGranted());
  EXPECT_EQ(changes.count(), 1);
  page.openSystemSettings();
  EXPECT_EQ(desk.workspace.openedUrls.size(), 1U);
  page.reopen();
  EXPECT_EQ(desk.workspace.relaunches, 1);
}

TEST_F(GeneralSettings, AboutNamesTheVersionAndTheBuild) {
  EXPECT_EQ(page.versionLine(), "Klarvik 1.2.3 (45)");
  desk.info.clear();
  EXPECT_EQ(page.versionLine(), "Klarvik 0.0.0 (0)");
  EXPECT_EQ(page.systemLine(), "macOS " + QSysInfo::prettyProductName());
}

TEST_F(GeneralSettings, LinksAreThereOnlyWhereTheBuildHasAddresses) {
  EXPECT_FALSE(page.hasWebsite());
  EXPECT_FALSE(page.hasSupport());
  desk.info["KlarvikWebsite"] = std::string("https://klarvik.example/");
  desk.info["KlarvikSupportAddress"] = std::string("help@klarvik.example");
  EXPECT_TRUE(page.hasWebsite());
  EXPECT_TRUE(page.hasSupport());
  page.openPrivacy();
  page.openTerms();
  page.openSupport();
  EXPECT_EQ(desk.workspace.openedUrls, (std::vector<std::string>{"https://klarvik.example/privacy",
                                                                 "https://klarvik.example/terms",
                                                                 "mailto:help@klarvik.example"}));
}

TEST(GeneralSettingsOnALinuxDisk, NameTheDistributionAlone) {
  const FakeDesktopOnDisk desk(std::nullopt, linuxHome);
  FakeLoginItem loginItem;
  PermissionsManager permissions(desk.desktop);
  const GeneralSettingsModel page(permissions, loginItem, desk.desktop);
  EXPECT_EQ(page.systemLine(), QSysInfo::prettyProductName());
}

}  // namespace
}  // namespace klarvik
