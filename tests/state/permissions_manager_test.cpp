#include "state/permissions_manager.h"

#include <gmock/gmock.h>

#include "signal_count.h"
#include "support/desktop_fakes.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

const Path first = "/Users/ann/Library/Application Support/com.apple.TCC/TCC.db";
const Path second = "/Users/ann/Library/Safari/CloudTabs.db";
const Path third = "/Library/Application Support/com.apple.TCC/TCC.db";

class PermissionsManagerTest : public ::testing::Test {
 protected:
  void putReadable(const Path& path) { around.disk.makeFile(path); }
  void putUnreadable(const Path& path) {
    around.disk.makeFile(path);
    around.files.fail(FileOperation::openForReading, path);
  }
  void grant() { around.files.heal(FileOperation::openForReading, first); }
  [[nodiscard]] bool access() { return PermissionsManager(around.desktop).probeAccess(); }

  FakeDesktopOnDisk around;
};

TEST_F(PermissionsManagerTest, NoProtectedFileAtAllCountsAsAccess) {
  EXPECT_TRUE(access());
}

TEST_F(PermissionsManagerTest, AReadableFirstFileDecidesWithoutALookAtTheOthers) {
  putReadable(first);
  putUnreadable(second);
  EXPECT_TRUE(access());
  EXPECT_FALSE(around.files.openings().empty());
  EXPECT_THAT(around.files.openings(), ::testing::Each(first));
}

TEST_F(PermissionsManagerTest, AnUnreadableFirstFileAndAReadableThirdCountAsAccess) {
  putUnreadable(first);
  putReadable(third);
  EXPECT_TRUE(access());
}

TEST_F(PermissionsManagerTest, ProtectedFilesOfWhichNoneCanBeOpenedCountAsNoAccess) {
  putUnreadable(second);
  EXPECT_FALSE(access());
  putUnreadable(first);
  putUnreadable(third);
  EXPECT_FALSE(access());
}

TEST_F(PermissionsManagerTest, ProbingTouchesNoStateAndRefreshingDoes) {
  putUnreadable(first);
  PermissionsManager permissions(around.desktop);
  const SignalCount changes(permissions, &PermissionsManager::hasFullDiskAccessChanged);
  EXPECT_FALSE(permissions.hasFullDiskAccess());
  grant();
  EXPECT_TRUE(permissions.probeAccess());
  EXPECT_FALSE(permissions.hasFullDiskAccess());
  permissions.refreshAccess();
  permissions.refreshAccess();
  EXPECT_TRUE(permissions.hasFullDiskAccess());
  EXPECT_EQ(changes.get(), 1);
}

class WithoutAccess : public PermissionsManagerTest {
 protected:
  void SetUp() override { putUnreadable(first); }

  void ensure(const std::string& tool) {
    permissions().ensureAccess([this, tool] { worked.push_back(tool); });
  }
  PermissionsManager& permissions() {
    if (!_permissions) _permissions.emplace(around.desktop);
    return *_permissions;
  }
  void forgetPermissions() { _permissions.reset(); }

  std::vector<std::string> worked;

 private:
  std::optional<PermissionsManager> _permissions;
};

TEST_F(WithoutAccess, TheFirstToolRaisesTheSheetAndItsWorkWaits) {
  ensure("storage");
  EXPECT_TRUE(permissions().isRequestingAccess());
  EXPECT_TRUE(worked.empty());
  permissions().finishAccessRequest();
  EXPECT_FALSE(permissions().isRequestingAccess());
  EXPECT_EQ(worked, std::vector<std::string>{"storage"});
}

TEST_F(WithoutAccess, ASecondToolDuringTheSheetWorksAtOnceAndIsNotQueued) {
  ensure("storage");
  ensure("duplicates");
  EXPECT_EQ(worked, std::vector<std::string>{"duplicates"});
  permissions().finishAccessRequest();
  EXPECT_EQ(worked, (std::vector<std::string>{"duplicates", "storage"}));
}

TEST_F(WithoutAccess, TheSheetStandsInTheWayOnceInAProcess) {
  ensure("storage");
  permissions().finishAccessRequest();
  ensure("storage");
  EXPECT_FALSE(permissions().isRequestingAccess());
  EXPECT_EQ(worked, (std::vector<std::string>{"storage", "storage"}));
}

TEST_F(WithoutAccess, WithTheAccessGrantedWorkRunsAtOnceAndNoSheetIsUsedUp) {
  grant();
  ensure("storage");
  EXPECT_EQ(worked, std::vector<std::string>{"storage"});
  EXPECT_TRUE(permissions().hasFullDiskAccess());
  around.files.fail(FileOperation::openForReading, first);
  ensure("duplicates");
  EXPECT_TRUE(permissions().isRequestingAccess());
}

TEST_F(WithoutAccess, FinishingWithNothingPendingOnlyProbes) {
  EXPECT_FALSE(permissions().hasFullDiskAccess());
  grant();
  permissions().finishAccessRequest();
  EXPECT_TRUE(permissions().hasFullDiskAccess());
  EXPECT_TRUE(worked.empty());
}

TEST_F(WithoutAccess, WorkThatAsksAgainFromTheSheetsEndRunsAtOnce) {
  permissions().ensureAccess([this] { ensure("nested"); });
  permissions().finishAccessRequest();
  EXPECT_EQ(worked, std::vector<std::string>{"nested"});
}

const std::string firstPage =
    "x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension?Privacy_AllFilesAccess";
const std::string secondPage =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFilesAccess";

TEST_F(WithoutAccess, WithTheFirstSettingsPageAcceptedTheSecondIsNotTried) {
  permissions().openFullDiskAccessSettings();
  EXPECT_EQ(around.workspace.openedUrls, std::vector<std::string>{firstPage});
}

TEST_F(WithoutAccess, WithTheFirstSettingsPageRefusedTheSecondIsTried) {
  around.workspace.canOpen = false;
  permissions().openFullDiskAccessSettings();
  EXPECT_EQ(around.workspace.openedUrls, (std::vector<std::string>{firstPage, secondPage}));
}

TEST_F(WithoutAccess, AGrantIsSeenWithinTwoSecondsAndEndsThePolling) {
  permissions().openFullDiskAccessSettings();
  grant();
  around.clock.advance(2s - 1ns);
  EXPECT_FALSE(permissions().hasFullDiskAccess());
  around.clock.advance(1ns);
  EXPECT_TRUE(permissions().hasFullDiskAccess());

  around.files.fail(FileOperation::openForReading, first);
  around.clock.advance(1min);
  EXPECT_TRUE(permissions().hasFullDiskAccess());
}

TEST_F(WithoutAccess, PollingEndsAfter120Seconds) {
  permissions().openFullDiskAccessSettings();
  around.clock.advance(120s);
  EXPECT_EQ(around.clock.pendingAlarms(), 0U);
  grant();
  around.clock.advance(1min);
  EXPECT_FALSE(permissions().hasFullDiskAccess());
}

TEST_F(WithoutAccess, TheEndOfAFirstPollingAlsoEndsASecondThatBeganMeanwhile) {
  permissions().openFullDiskAccessSettings();
  around.clock.advance(100s);
  permissions().openFullDiskAccessSettings();
  around.clock.advance(20s);
  grant();
  around.clock.advance(10s);
  EXPECT_FALSE(permissions().hasFullDiskAccess());
}

TEST_F(WithoutAccess, GoesWhilePolling) {
  permissions().openFullDiskAccessSettings();
  forgetPermissions();
  EXPECT_EQ(around.clock.pendingAlarms(), 0U);
}

TEST_F(WithoutAccess, RelaunchIsHandedToTheWorkspace) {
  permissions().relaunch();
  EXPECT_EQ(around.workspace.relaunches, 1);
}

TEST(PermissionsManagerOnALinuxDisk, HasAccessWhateverLiesAtTheFilesOfAMac) {
  FakeDesktopOnDisk around(std::nullopt, linuxHome);
  for (const Path& path : {Path("/home/ann/Library/Safari/CloudTabs.db"), third}) {
    around.disk.makeFile(path);
    around.files.fail(FileOperation::openForReading, path);
  }
  EXPECT_TRUE(PermissionsManager(around.desktop).probeAccess());
}

}  // namespace
}  // namespace klarvik
