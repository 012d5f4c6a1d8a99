#include "shell/disk_block_model.h"

#include <gtest/gtest.h>

#include "support/fake_desktop.h"
#include "support/private_mounts.h"

namespace klarvik {
namespace {

QString nameShown(const FakeDesktop& desk) {
  const DiskMonitor monitor(desk.desktop);
  return DiskBlockModel(monitor, desk.desktop).volumeName();
}

TEST(DiskBlockName, IsTheLabelOfTheFileSystem) {
  for (const Path& home : {macHome, linuxHome}) {
    FakeDesktopOnDisk desk(std::nullopt, home);
    desk.volume.setName("Data");
    EXPECT_EQ(nameShown(desk), "Data");
  }
}

TEST(DiskBlockName, WithoutALabelIsThatOfTheSystem) {
  FakeDesktopOnDisk mac;
  mac.volume.setName(std::nullopt);
  EXPECT_EQ(nameShown(mac), "Macintosh HD");
  FakeDesktopOnDisk linux(std::nullopt, linuxHome);
  linux.volume.setName(std::nullopt);
  EXPECT_EQ(nameShown(linux), "System");
}

TEST(DiskBlockName, WithoutALabelSaysThatOnlyTheHomeLiesThere) {
  FakeDesktopOnDisk desk(std::nullopt, linuxHome);
  desk.volume.setName(std::nullopt);
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(desk.disk.onDisk("/home"));
    EXPECT_EQ(nameShown(desk), "Home");
  }));
}

}  // namespace
}  // namespace klarvik
