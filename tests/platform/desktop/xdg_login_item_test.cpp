#include "platform/desktop/xdg_login_item.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using Status = LoginItem::Status;

class XdgLoginItemTest : public testing::Test {
 protected:
  [[nodiscard]] XdgLoginItem item(const Path& program = "/usr/bin/klarvik") const {
    return XdgLoginItem({disk.onDisk(program), disk.onDisk("/home/.config"), "klarvik.desktop"});
  }
  void install() const {
    disk.makeFile("/usr/bin/klarvik", "program");
    disk.makeFile("/usr/share/applications/klarvik.desktop", "entry");
  }
  [[nodiscard]] std::string entry() const { return disk.contentOf(place); }
  void replaceInEntry(const std::string& what, const std::string& by) const {
    std::string text = entry();
    const auto found = text.find(what);
    ASSERT_NE(found, std::string::npos) << what;
    disk.makeFile(place, text.replace(found, what.size(), by));
  }

  const Path place = "/home/.config/autostart/klarvik.desktop";
  TemporaryFolder disk;
};

TEST_F(XdgLoginItemTest, IsWrittenForAnInstalledProgramAndRemovedAgain) {
  install();
  XdgLoginItem loginItem = item();
  EXPECT_EQ(loginItem.status(), Status::notRegistered);

  ASSERT_TRUE(loginItem.registerProgram());
  EXPECT_EQ(loginItem.status(), Status::enabled);
  EXPECT_EQ(entry(),
            "[Desktop Entry]\n"
            "Type=Application\n"
            "Name=Klarvik\n"
            "Comment=Sees what fills the disk, and takes the space back\n"
            "TryExec=" +
                disk.onDisk("/usr/bin/klarvik").native() +
                "\n"
                "Exec=\"" +
                disk.onDisk("/usr/bin/klarvik").native() +
                "\"\n"
                "Terminal=false\n"
                "X-GNOME-Autostart-enabled=true\n");

  ASSERT_TRUE(loginItem.unregisterProgram());
  EXPECT_FALSE(disk.holds(place));
  EXPECT_EQ(loginItem.status(), Status::notRegistered);
  EXPECT_FALSE(loginItem.unregisterProgram());
}

TEST_F(XdgLoginItemTest, OfACopyThatWasOnlyBuiltIsNotFoundAndCannotBeRegistered) {
  disk.makeFile("/usr/bin/klarvik", "program");
  XdgLoginItem loginItem = item();
  EXPECT_EQ(loginItem.status(), Status::notFound);
  EXPECT_FALSE(loginItem.registerProgram());
  EXPECT_FALSE(disk.holds(place));
}

TEST_F(XdgLoginItemTest, OfAProgramWhoseFileCannotBeToldIsNotFound) {
  XdgLoginItem loginItem({Path(), disk.onDisk("/home/.config"), "klarvik.desktop"});
  EXPECT_EQ(loginItem.status(), Status::notFound);
  EXPECT_FALSE(loginItem.registerProgram());
}

TEST_F(XdgLoginItemTest, DoesNotCountWhatADesktopHasSwitchedOff) {
  install();
  XdgLoginItem loginItem = item();
  ASSERT_TRUE(loginItem.registerProgram());
  replaceInEntry("X-GNOME-Autostart-enabled=true", "X-GNOME-Autostart-enabled=false");
  EXPECT_EQ(loginItem.status(), Status::notRegistered);
  replaceInEntry("X-GNOME-Autostart-enabled=false", "Hidden = true");
  EXPECT_EQ(loginItem.status(), Status::notRegistered);
  ASSERT_TRUE(loginItem.registerProgram());
  EXPECT_EQ(loginItem.status(), Status::enabled);
}

TEST_F(XdgLoginItemTest, DoesNotCountAnEntryThatStartsAnotherCopyAndTakesItsPlace) {
  install();
  disk.makeFile(place, "[Desktop Entry]\nType=Application\nExec=/opt/old/klarvik\n");
  XdgLoginItem loginItem = item();
  EXPECT_EQ(loginItem.status(), Status::notRegistered);
  ASSERT_TRUE(loginItem.registerProgram());
  EXPECT_EQ(loginItem.status(), Status::enabled);
}

TEST_F(XdgLoginItemTest, ReadsOnlyTheEntrysOwnGroup) {
  install();
  XdgLoginItem loginItem = item();
  ASSERT_TRUE(loginItem.registerProgram());
  disk.makeFile(place, entry() + "\n[Desktop Action Other]\nHidden=true\n");
  EXPECT_EQ(loginItem.status(), Status::enabled);
  disk.makeFile(place, "[Other]\n" + entry().substr(entry().find('\n') + 1));
  EXPECT_EQ(loginItem.status(), Status::notRegistered);
}

TEST_F(XdgLoginItemTest, RubbishWhereTheEntryBelongsIsNotRegistered) {
  install();
  XdgLoginItem loginItem = item();
  disk.makeFile(place, std::string_view("\0\xff=\n[[[\nExec", 12));
  EXPECT_EQ(loginItem.status(), Status::notRegistered);
  std::filesystem::remove(disk.onDisk(place));
  disk.makeFolder(place);
  EXPECT_EQ(loginItem.status(), Status::notRegistered);
  EXPECT_FALSE(loginItem.registerProgram());
  EXPECT_FALSE(loginItem.unregisterProgram());
}

TEST_F(XdgLoginItemTest, CannotBeWrittenWhereNoFolderForItCanBeMade) {
  install();
  disk.makeFile("/home/.config", "a file where the folder belongs");
  XdgLoginItem loginItem = item();
  EXPECT_FALSE(loginItem.registerProgram());
  EXPECT_EQ(loginItem.status(), Status::notRegistered);
}

TEST_F(XdgLoginItemTest, ALinkWhereTheEntryBelongsLeadsNoWriteElsewhere) {
  install();
  disk.makeFile("/home/precious", "precious");
  disk.makeLink(place, disk.onDisk("/home/precious"));
  XdgLoginItem loginItem = item();
  ASSERT_TRUE(loginItem.registerProgram());
  EXPECT_EQ(disk.contentOf("/home/precious"), "precious");
  ASSERT_TRUE(loginItem.unregisterProgram());
  EXPECT_TRUE(disk.holds("/home/precious"));
}

TEST(ExecValue, IsQuotedAsDesktopEntriesAre) {
  EXPECT_EQ(execValue("/usr/bin/klarvik"), R"("/usr/bin/klarvik")");
  EXPECT_EQ(execValue("/opt/My Programs/klarvik"), R"("/opt/My Programs/klarvik")");
  EXPECT_EQ(execValue("/a\"b"), R"("/a\\"b")");
  EXPECT_EQ(execValue("/a$b`c"), R"("/a\\$b\\`c")");
  EXPECT_EQ(execValue("/a\\b"), R"("/a\\\\b")");
  EXPECT_EQ(execValue("/100%"), R"("/100%%")");
  EXPECT_EQ(execValue("/line\nbreak"), R"("/line\nbreak")");
}

TEST(ExecValue, IsNothingForAPathThatItCannotName) {
  EXPECT_FALSE(execValue(""));
  EXPECT_FALSE(execValue("bin/klarvik"));
  EXPECT_FALSE(execValue("/odd=name"));
  EXPECT_FALSE(execValue("/not\xffutf8"));
}

}  // namespace
}  // namespace klarvik
