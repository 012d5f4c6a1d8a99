#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/disk_snapshot.h"
#include "support/fake_desktop.h"
#include "support/property_lists.h"
#include "tools/uninstaller_engine.h"

namespace klarvik {

/// The engine on a real disk with a real Trash; the file system can be made to fail.
class UninstallerTest : public testing::Test {
 protected:
  FakeDesktopOnDisk world;
  TemporaryFolder& disk = world.disk;
  FaultInjectingFileSystem& files = world.files;
  UninstallerEngine engine{world.desktop};
  const Path library = "/Users/ann/Library";
  const Path trashed = "/Users/ann/.local/share/Trash/files";

  /// An application in /Applications, of 100 bytes and its property list.
  AppInfo install(const std::string& name, const std::string& bundleID) {
    return installAt(Path("/Applications") / (name + ".app"), name, bundleID);
  }

  AppInfo installAt(const Path& place, const std::string& name, const std::string& bundleID) {
    const std::string list =
        xmlPropertyList({{"CFBundleIdentifier", bundleID}, {"CFBundleName", name}});
    disk.makeFile(place / "Contents/Info.plist", list);
    disk.makeFile(place / "Contents/MacOS/program", 100);
    return {.name = name,
            .bundleID = bundleID,
            .appURL = place,
            .appSize = static_cast<std::int64_t>(list.size()) + 100,
            .identity = entryIdentity(files, place)};
  }

  [[nodiscard]] std::vector<Path> placesFound(const AppInfo& app) {
    std::vector<Path> places;
    for (const ResidualFile& residual : engine.findResiduals(app)) places.push_back(residual.url);
    std::ranges::sort(places);
    return places;
  }

  /// What the user keeps selected of an application's leftovers, by their places.
  [[nodiscard]] std::vector<ResidualFile> residualsAt(const std::vector<Path>& places,
                                                      std::int64_t size = 10) const {
    std::vector<ResidualFile> residuals;
    for (const Path& place : places) {
      residuals.push_back({.url = place, .size = size, .identity = entryIdentity(files, place)});
    }
    return residuals;
  }

  [[nodiscard]] DiskSnapshot snapshot() const { return snapshotOf(disk.path()); }
};

}  // namespace klarvik
