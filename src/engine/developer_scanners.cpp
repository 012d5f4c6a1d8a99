// The rows of the scan table that look at what developer tools leave behind.

#include "engine/category_scanners.h"

#include "base/message.h"
#include "engine/developer_tool_answers.h"
#include "engine/shell.h"
#include "places/mac/scan_places.h"

namespace klarvik {

CategoryScanners::Items CategoryScanners::xcodeCache() const {
  return scanPaths(mac::xcodeCaches);
}

CategoryScanners::Items CategoryScanners::xcodeArchives() const {
  return scanPaths(mac::xcodeArchives);
}

CategoryScanners::Items CategoryScanners::simulators() const {
  Items items;
  JunkItem caches = item(Message(QT_TRANSLATE_NOOP("Engine", "CoreSimulator Caches")),
                         inHome(mac::simulatorCaches));
  if (caches.size >= 1) items.push_back(std::move(caches));

  const auto listing =
      runShell(_platform.commands, "xcrun simctl list devices unavailable --json 2>/dev/null");
  const Path devices = inHome(mac::simulatorDevices);
  for (const SimulatorDevice& device : unavailableSimulators(listing)) {
    JunkItem folder =
        item({QT_TRANSLATE_NOOP("Engine", "%1 (%2) — unavailable"), {device.name, device.runtime}},
             devices / device.udid);
    if (folder.size > mac::largestIgnoredDevice) items.push_back(std::move(folder));
  }
  return items;
}

CategoryScanners::Items CategoryScanners::docker() const {
  const auto engineId = runShell(_platform.commands, "docker info --format '{{.ID}}' 2>/dev/null");
  if (!engineId.empty()) {
    const auto table = runShell(_platform.commands, "docker system df 2>/dev/null");
    // No file stands for this: the path only fills the item's place, and the guard refuses it.
    const Message name =
        QT_TRANSLATE_NOOP("Engine", "Docker reclaimable (images, containers, volumes, cache)");
    return {{.name = name.english(),
             .path = "/usr/local/bin/docker",
             .size = dockerReclaimableBytes(table),
             .nameText = name}};
  }

  Items items;
  for (const std::string_view each : mac::dockerFolders) {
    const Path path = inHome(each);
    JunkItem folder = item(path.filename().native(), path);
    if (folder.size > mac::largestIgnoredDockerFolder) items.push_back(std::move(folder));
  }
  return items;
}

}  // namespace klarvik
