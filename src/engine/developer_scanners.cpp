// The rows of the scan table that look at what developer tools leave behind.

#include "engine/category_scanners.h"
#include "engine/docker_table.h"
#include "engine/shell.h"
#include "engine/simulator_devices.h"

namespace klarvik {

namespace {

constexpr std::int64_t largestIgnoredDevice = 1'000'000;
constexpr std::int64_t largestIgnoredDockerFolder = 100'000;

}  // namespace

CategoryScanners::Items CategoryScanners::xcodeCache() const {
  return scanPaths({"Library/Developer/Xcode/DerivedData",
                    "Library/Developer/Xcode/iOS DeviceSupport",
                    "Library/Developer/Xcode/watchOS DeviceSupport",
                    "Library/Developer/Xcode/tvOS DeviceSupport"});
}

CategoryScanners::Items CategoryScanners::xcodeArchives() const {
  return scanPaths({"Library/Developer/Xcode/Archives"});
}

CategoryScanners::Items CategoryScanners::simulators() const {
  Items items;
  JunkItem caches = item("CoreSimulator Caches", inHome("Library/Developer/CoreSimulator/Caches"));
  if (caches.size >= 1) items.push_back(std::move(caches));

  const auto listing =
      runShell(_platform.commands, "xcrun simctl list devices unavailable --json 2>/dev/null");
  const Path devices = inHome("Library/Developer/CoreSimulator/Devices");
  for (const SimulatorDevice& device : unavailableSimulators(listing)) {
    JunkItem folder =
        item(device.name + " (" + device.runtime + ") — unavailable", devices / device.udid);
    if (folder.size > largestIgnoredDevice) items.push_back(std::move(folder));
  }
  return items;
}

CategoryScanners::Items CategoryScanners::docker() const {
  const auto engineId = runShell(_platform.commands, "docker info --format '{{.ID}}' 2>/dev/null");
  if (!engineId.empty()) {
    const auto table = runShell(_platform.commands, "docker system df 2>/dev/null");
    // No file stands for this: the path only fills the item's place, and the guard refuses it.
    return {{.name = "Docker reclaimable (images, containers, volumes, cache)",
             .path = "/usr/local/bin/docker",
             .size = dockerReclaimableBytes(table)}};
  }

  Items items;
  for (const char* const name : {"cache", "log"}) {
    JunkItem folder = item(name, inHome("Library/Containers/com.docker.docker/Data") / name);
    if (folder.size > largestIgnoredDockerFolder) items.push_back(std::move(folder));
  }
  return items;
}

}  // namespace klarvik
