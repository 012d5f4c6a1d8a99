#include "window_fixture.h"

namespace klarvik {
namespace {

class FullDiskAccessWindow : public EmptyHomeWindowFixture {
 protected:
  void SetUp() override {
    EmptyHomeWindowFixture::SetUp();
    desk->denyFullDiskAccess();
    desk->defaults.remove("fda_prompt_shown");
  }
};

TEST_F(FullDiskAccessWindow, AsksAtTheFirstStartAndFollowsThePermission) {
  openWindow();
  ASSERT_NE(waitFor("One permission to set up"), nullptr);
  settle();
  EXPECT_TRUE(shows("This build has no signing identity"));
  picture("full_disk_access_missing");

  click("Open System Settings");
  EXPECT_FALSE(desk->workspace.openedUrls.empty());
  desk->grantFullDiskAccess();
  ASSERT_TRUE(turnUntil([this] { return shows("Full Disk Access granted"); }));
  settle();
  EXPECT_FALSE(shows("Open System Settings"));
  picture("full_disk_access_granted");

  click("Continue");
  settle();
  EXPECT_FALSE(shows("Full Disk Access granted"));
}

TEST_F(FullDiskAccessWindow, CanBeSkippedByKeyboardAlone) {
  openWindow();
  ASSERT_NE(waitFor("One permission to set up"), nullptr);
  settle();
  ASSERT_TRUE(tabTo("Skip for now"));
  press(Qt::Key_Space);
  settle();
  EXPECT_FALSE(shows("One permission to set up"));
}

TEST_F(FullDiskAccessWindow, OnceSkippedItIsNotShownAtTheNextLaunchThoughThePermissionIsMissing) {
  openWindow();
  ASSERT_NE(waitFor("One permission to set up"), nullptr);
  settle();
  click("Skip for now");
  settle();
  EXPECT_TRUE(desk->defaults.boolean("fda_prompt_shown", false));
  closeWindow();
  openWindow();
  settle();
  EXPECT_TRUE(shows("Smart Scan"));
  EXPECT_FALSE(shared->permissionsManager().hasFullDiskAccess());
  EXPECT_FALSE(shows("One permission to set up"));
}

}  // namespace
}  // namespace klarvik
