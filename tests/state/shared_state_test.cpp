#include "state/shared_state.h"

#include <gtest/gtest.h>

#include "support/application/main_loop.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

TEST(SharedState, StandsBehindEverySharedObject) {
  const FakeDesktopOnDisk around;
  SharedState shared(around.desktop);
  EXPECT_EQ(&Navigator::shared(), &shared.navigator());
  EXPECT_EQ(&ToolActivity::shared(), &shared.toolActivity());
  EXPECT_EQ(&ScanCoordinator::shared(), &shared.scanCoordinator());
  EXPECT_EQ(&ScanHistory::shared(), &shared.scanHistory());
  EXPECT_EQ(&PermissionsManager::shared(), &shared.permissionsManager());
  EXPECT_EQ(&DiskMonitor::shared(), &shared.diskMonitor());
  EXPECT_EQ(&TrashMonitor::shared(), &shared.trashMonitor());
}

TEST(SharedStateDeathTest, AskedForBeforeItIsMadeItEndsTheProgramWithAMessage) {
  EXPECT_DEATH(static_cast<void>(Navigator::shared()), "no SharedState; main makes it first");
}

TEST(SharedStateDeathTest, ASecondOneEndsTheProgramWithAMessage) {
  const FakeDesktopOnDisk around;
  SharedState shared(around.desktop);
  EXPECT_DEATH(SharedState second(around.desktop), "There is a SharedState already");
}

}  // namespace
}  // namespace klarvik
