#pragma once

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/disk_snapshot.h"
#include "support/fake_desktop.h"
#include "tools/uninstaller_engine.h"

namespace klarvik {

/// A Linux disk on which applications of each kind can be installed.
class LinuxApplications : public testing::Test {
 protected:
  FakeDesktopOnDisk world{std::nullopt, linuxHome};
  TemporaryFolder& disk = world.disk;
  FaultInjectingFileSystem& files = world.files;
  UninstallerEngine engine{world.desktop};
  const Path home = linuxHome;
  const Path ownEntries = home / ".local/share/applications";
  const Path trashed = home / ".local/share/Trash/files";
  std::string status;

  void entry(const Path& place, const std::string& lines) const {
    disk.makeFile(place, "[Desktop Entry]\nType=Application\n" + lines);
  }

  void program(const Path& place, std::int64_t bytes = 5'000) const {
    disk.makeFile(place, bytes);
    std::filesystem::permissions(disk.onDisk(place), std::filesystem::perms::owner_all);
  }

  void appImage(const Path& place) const {
    std::string content(9'000, 'x');
    content.replace(0, 11,
                    std::string("\x7f"
                                "ELF\x02\x01\x01\x00"
                                "AI\x02",
                                11));
    disk.makeFile(place, content);
  }

  /// A package with these files, which have to be made apart.
  void package(const std::string& name, const std::vector<Path>& owned,
               const std::string& more = {}) {
    status += "Package: " + name + "\nStatus: install ok installed\nInstalled-Size: 70\n" + more +
              "Description: x\n y\n\n";
    std::filesystem::remove(disk.onDisk("/var/lib/dpkg/status"));
    disk.makeFile("/var/lib/dpkg/status", status);
    std::string list = "/.\n/usr\n";
    for (const Path& each : owned) list += each.native() + "\n";
    disk.makeFile("/var/lib/dpkg/info/" + name + ".list", list);
  }

  /// A program in a package, with an entry "name.desktop".
  void installDebian(const std::string& name, const std::string& more = {},
                     const std::string& lines = {}) {
    program("/usr/bin/" + name);
    const Path place = "/usr/share/applications/" + name + ".desktop";
    entry(place, "Name=" + name + "\nExec=" + name + " %U\n" + lines);
    package(name, {"/usr/bin/" + name, place}, more);
  }

  void installFlatpak(const Path& installation, const std::string& id, const std::string& name) {
    const Path commit = installation / "app" / id / "x86_64/stable/a1b2";
    disk.makeFile(commit / "files/bin/program", 20'000);
    entry(commit / "export/share/applications" / (id + ".desktop"),
          "Name=" + name + "\nExec=/usr/bin/flatpak run " + id + "\nX-Flatpak=" + id + "\n");
    disk.makeLink(installation / "app" / id / "current", "x86_64/stable");
    disk.makeLink(installation / "app" / id / "x86_64/stable/active", "a1b2");
    disk.makeLink(
        installation / "exports/share/applications" / (id + ".desktop"),
        "../../../app/" + id + "/current/active/export/share/applications/" + id + ".desktop");
  }

  void installSnap(const std::string& name, const std::string& revision) {
    disk.makeFile("/var/lib/snapd/snaps/" + name + "_" + revision + ".snap", 30'000);
    entry("/var/lib/snapd/desktop/applications/" + name + "_" + name + ".desktop",
          "Name=" + name + "\nExec=env X=/y /snap/bin/" + name + "\nX-SnapInstanceName=" + name +
              "\n");
  }

  /// In "~/.local/opt", with an entry and an icon.
  void installByHand(const std::string& name, const std::string& lines = {}) {
    program(home / ".local/opt" / (name + "-2.1/bin") / name);
    entry(ownEntries / (name + ".desktop"),
          "Name=" + name + "\nIcon=" + name + "\nExec=\"" +
              (home / ".local/opt" / (name + "-2.1/bin") / name).native() + "\" %F\n" + lines);
    disk.makeFile(home / ".local/share/icons/hicolor/48x48/apps" / (name + ".png"), 300);
  }

  std::vector<std::string> names() {
    std::vector<std::string> found;
    for (const AppInfo& app : engine.listApps()) found.push_back(app.name);
    return found;
  }

  AppInfo appCalled(const std::string& name) {
    for (AppInfo& app : engine.listApps()) {
      if (app.name == name) return app;
    }
    ADD_FAILURE() << "no application is called " << name;
    return {};
  }

  std::vector<Path> leftoversOf(const AppInfo& app) {
    std::vector<Path> places;
    for (const ResidualFile& each : engine.findResiduals(app)) {
      places.push_back(each.url.lexically_relative(home));
    }
    std::ranges::sort(places);
    return places;
  }
};

}  // namespace klarvik
