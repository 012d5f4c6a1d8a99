#include "window_fixture.h"

namespace klarvik {
namespace {

class UninstallerWindowOfALinuxDisk : public EmptyHomeWindowFixture {
 protected:
  UninstallerWindowOfALinuxDisk() { home = linuxHome; }

  /// As a user downloads one, with its entry in the menu and what it has left.
  void installAppImage() {
    std::string content(3'000'000, 'x');
    content.replace(0, 11,
                    std::string("\x7f"
                                "ELF\x02\x01\x01\x00"
                                "AI\x02",
                                11));
    desk->disk.makeFile(home / image, content);
    desk->disk.makeFile(home / entry, "[Desktop Entry]\nType=Application\nName=Inkwell\nExec=" +
                                          (home / image).native() + " %U\n");
    desk->disk.makeFile(home / ".config/inkwell/settings", 40'000);
    desk->disk.makeFile(home / ".config/inkwell-other/settings", 40'000);
  }

  void installPackage() {
    desk->disk.makeFile("/usr/bin/quill", 5'000);
    std::filesystem::permissions(desk->disk.onDisk("/usr/bin/quill"),
                                 std::filesystem::perms::owner_all);
    const std::string place = "/usr/share/applications/quill.desktop";
    desk->disk.makeFile(place, "[Desktop Entry]\nType=Application\nName=Quill\nExec=quill %U\n");
    desk->disk.makeFile("/var/lib/dpkg/status",
                        "Package: quill\nStatus: install ok installed\nInstalled-Size: 70\n"
                        "Description: x\n y\n\n");
    desk->disk.makeFile("/var/lib/dpkg/info/quill.list",
                        "/.\n/usr\n/usr/bin/quill\n" + place + "\n");
    desk->tools.answer("apt-get --simulate remove quill", "Remv quill [1.0]\n");
  }

  [[nodiscard]] bool openApp(const QString& name) {
    openWindow();
    click("Uninstaller");
    click(name + ", ");
    const bool isOpen = waitFor("Uninstall " + name) != nullptr;
    settle();
    return isOpen;
  }

  const std::string image = "Applications/Inkwell.AppImage";
  const std::string entry = ".local/share/applications/inkwell.desktop";
};

TEST_F(UninstallerWindowOfALinuxDisk, MovesAnAppImageToTheTrashByClicksAndPutsItBack) {
  installAppImage();
  ASSERT_TRUE(openApp("Inkwell"));
  ASSERT_NE(waitFor("inkwell, "), nullptr);
  EXPECT_FALSE(shows("inkwell-other, "));
  // Settings are kept unless the user says otherwise.
  clickSelectionBox("inkwell, ");
  settle();
  picture("uninstaller-appimage");
  clickMainButton("Uninstall ");
  ASSERT_NE(waitFor("Restore"), nullptr);
  ASSERT_TRUE(turnUntil([this] { return !shows("Inkwell, "); }));
  settle();
  for (const std::string& gone : {image, entry, std::string(".config/inkwell/settings")}) {
    EXPECT_FALSE(homeHolds(gone)) << gone;
  }
  EXPECT_TRUE(homeHolds(".config/inkwell-other/settings"));
  EXPECT_TRUE(homeHolds(".local/share/Trash/files/Inkwell.AppImage"));
  picture("uninstaller-appimage-gone");

  click("Restore");
  ASSERT_NE(waitFor("Inkwell, "), nullptr);
  for (const std::string& back : {image, entry, std::string(".config/inkwell/settings")}) {
    EXPECT_TRUE(homeHolds(back)) << back;
  }
}

TEST_F(UninstallerWindowOfALinuxDisk, TellsTheCommandOfAPackage) {
  installPackage();
  ASSERT_TRUE(openApp("Quill"));
  ASSERT_NE(waitFor("sudo apt remove quill"), nullptr);
  settle();
  picture("uninstaller-package");
  click("Copy");
  EXPECT_TRUE(shows("Copied"));
}

TEST_F(UninstallerWindowOfALinuxDisk, TellsTheCommandOfAPackageOfPacman) {
  const std::string place = "usr/share/applications/quill.desktop";
  desk->disk.makeFile("/usr/bin/quill", 5'000);
  desk->disk.makeFile("/" + place,
                      "[Desktop Entry]\nType=Application\nName=Quill\nExec=quill %U\n");
  const Path record = "/var/lib/pacman/local/quill-2.0-1";
  desk->disk.makeFile(record / "desc", "%NAME%\nquill\n\n%SIZE%\n82000000\n\n");
  desk->disk.makeFile(record / "files", "%FILES%\nusr/\n" + place + "\n\n");
  desk->tools.answer("pacman -Rs --print --print-format %n --dbpath " +
                         desk->disk.onDisk("/var/lib/pacman").native() + " quill",
                     "libquill\nquill\n");
  ASSERT_TRUE(openApp("Quill"));
  ASSERT_NE(waitFor("sudo pacman -Rs quill"), nullptr);
  settle();
  EXPECT_TRUE(shows("Klarvik does not remove packages."));
  picture("uninstaller-pacman");
  window().resize(920, 640);
  settle();
  picture("uninstaller-pacman_920x640");
}

}  // namespace
}  // namespace klarvik
