#include "support/test_desktop.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(TestDesktop, IsOneWorldOverOneDisk) {
  TestDesktop world;
  const Desktop desktop = world.desktop();
  EXPECT_EQ(desktop.files.home(), "/Users/ann");
  EXPECT_TRUE(desktop.files.exists("/Users/ann"));

  world.disk.makeFile("/Users/ann/x", std::string_view("content"));
  const auto trashed = desktop.trash.moveToTrash("/Users/ann/x", [](const Path&) { return true; });
  ASSERT_TRUE(trashed);
  EXPECT_EQ(world.disk.contentOf(*trashed), "content");
  EXPECT_TRUE(desktop.trash.putBack(*trashed, "/Users/ann/x"));
  EXPECT_TRUE(world.disk.holds("/Users/ann/x"));

  world.commands.answer("tmutil listlocalsnapshots /", "one\n");
  EXPECT_EQ(desktop.commands.run("tmutil listlocalsnapshots /"), "one\n");
  EXPECT_EQ(desktop.commands.run("another"), "");
}

}  // namespace
}  // namespace klarvik
