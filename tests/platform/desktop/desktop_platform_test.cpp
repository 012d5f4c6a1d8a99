#include "platform/desktop/desktop_platform.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/application_info.h"
#include "platform/command_runners.h"
#include "platform/desktop_services.h"
#include "platform/trash.h"
#include "platform/volume.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

TEST(DesktopPlatformTest, HandsOutTheMachineAsTheUserSeesIt) {
  const TemporaryFolder home;
  ::setenv("HOME", home.path().c_str(), 1);
  const auto platform = DesktopPlatform::ofThisUser();
  ASSERT_NE(platform, nullptr);
  const Desktop desktop = platform->desktop();
  EXPECT_EQ(desktop.files.home(), home.path());
  EXPECT_TRUE(desktop.files.exists(home.path()));
  EXPECT_EQ(desktop.commands.run("echo x"), "x\n");
  EXPECT_TRUE(desktop.volume.totalBytes().value() > 0);
  EXPECT_TRUE(desktop.info.contains("CFBundleVersion"));
  ::unsetenv("XDG_CONFIG_HOME");
  EXPECT_TRUE(desktop.defaults.set("useTrash", false));
  EXPECT_TRUE(home.holds(".config/klarvik/preferences.json"));
}

TEST(DesktopPlatformTest, IsNotThereForAUserWithoutAHome) {
  for (const auto* home : {"", "/", "//", "/.", "/home/..", "home/ann", "."}) {
    ::setenv("HOME", home, 1);
    EXPECT_EQ(DesktopPlatform::ofThisUser(), nullptr) << home;
  }
}

TEST(DesktopPlatformTest, LiesWhollyBelowItsRoot) {
  const TemporaryFolder root;
  root.makeFolder("/Users/ann");
  DesktopPlatform platform(root.path(), UserFolders::in("/Users/ann"));
  const Desktop desktop = platform.desktop();
  EXPECT_TRUE(desktop.defaults.set("useTrash", false));
  EXPECT_TRUE(root.holds("/Users/ann/.config/klarvik/preferences.json"));
  root.makeFile("/Users/ann/x");
  root.makeFile("/Users/ann/.local/share/recently-used.xbel", "<xbel/>");
  EXPECT_TRUE(desktop.recentDocuments.clear());
  EXPECT_NE(root.contentOf("/Users/ann/.local/share/recently-used.xbel"), "<xbel/>");
  EXPECT_TRUE(desktop.trash.moveToTrash("/Users/ann/x",
                                        [](const Path&, const FileAttributes&) { return true; }));
  EXPECT_TRUE(root.holds("/Users/ann/.local/share/Trash/files/x"));
}

}  // namespace
}  // namespace klarvik
