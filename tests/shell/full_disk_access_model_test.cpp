#include "shell/full_disk_access_model.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>

#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class FullDiskAccess : public ::testing::Test {
 protected:
  struct DeniedDesktop : FakeDesktopOnDisk {
    DeniedDesktop() { denyFullDiskAccess(); }
  };

  DeniedDesktop desk;
  PermissionsManager permissions{desk.desktop};
  FullDiskAccessModel view{permissions, desk.desktop};
};

TEST_F(FullDiskAccess, IsAskedForOnceAtAStartAndNeverAgain) {
  EXPECT_FALSE(view.isPresented());
  view.askOnce();
  EXPECT_TRUE(view.isPresented());
  EXPECT_TRUE(desk.defaults.boolean("fda_prompt_shown", false));
  view.dismiss();
  EXPECT_FALSE(view.isPresented());
  FullDiskAccessModel next(permissions, desk.desktop);
  next.askOnce();
  EXPECT_FALSE(next.isPresented());
}

TEST_F(FullDiskAccess, IsNeverAskedForWhereItIsThere) {
  desk.grantFullDiskAccess();
  view.askOnce();
  EXPECT_FALSE(view.isPresented());
  EXPECT_TRUE(desk.defaults.boolean("fda_prompt_shown", false));
}

TEST_F(FullDiskAccess, AToolThatNeedsItGoesOnWhenTheSheetIsClosedWhateverTheUserDid) {
  int runs = 0;
  permissions.ensureAccess([&runs] { ++runs; });
  EXPECT_TRUE(view.isPresented());
  EXPECT_EQ(runs, 0);
  view.dismiss();
  EXPECT_FALSE(view.isPresented());
  EXPECT_EQ(runs, 1);
  view.dismiss();
  EXPECT_EQ(runs, 1);
}

TEST_F(FullDiskAccess, SaysWhatToDoWhileItIsMissing) {
  EXPECT_EQ(view.symbol(), "lock.shield.fill");
  EXPECT_EQ(view.title(), "One permission to set up");
  EXPECT_EQ(view.text(),
            "macOS keeps caches, logs and backups behind Full Disk Access. Without it, some "
            "categories will show 0 bytes.");
  EXPECT_EQ(view.footerTitle(), "Skip for now");
}

TEST_F(FullDiskAccess, NoticesWithin2SecondsThatItHasBeenGranted) {
  view.openSettings();
  const QSignalSpy changes(&view, &FullDiskAccessModel::isGrantedChanged);
  desk.grantFullDiskAccess();
  desk.clock.advance(2s);
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(view.symbol(), "checkmark.shield.fill");
  EXPECT_EQ(view.title(), "Full Disk Access granted");
  EXPECT_EQ(view.text(), "Klarvik can measure every location Storage settings keeps out of sight.");
  EXPECT_EQ(view.footerTitle(), "Continue");
  EXPECT_FALSE(view.showsIdentityNote());
}

TEST_F(FullDiskAccess, OnlyABuildWithoutASigningIdentityShowsTheNote) {
  EXPECT_TRUE(view.showsIdentityNote());
  desk.info["KlarvikHasSigningIdentity"] = true;
  EXPECT_FALSE(view.showsIdentityNote());
  desk.info["KlarvikHasSigningIdentity"] = std::string("yes");
  EXPECT_TRUE(view.showsIdentityNote());
}

}  // namespace
}  // namespace klarvik
