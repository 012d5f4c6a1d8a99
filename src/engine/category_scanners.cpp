// What the scanners of all rows share.

#include "engine/category_scanners.h"

#include "engine/sizes.h"
#include "platform/file_system.h"

namespace klarvik {

CategoryScanners::CategoryScanners(const Platform& platform, ItemReport report)
    : _platform(platform), _report(std::move(report)) {}

CategoryScanners::Items CategoryScanners::find(CategoryType type) const {
  switch (type) {
    case CategoryType::xcodeCache:
      return xcodeCache();
    case CategoryType::simulators:
      return simulators();
    case CategoryType::xcodeArchives:
      return xcodeArchives();
    case CategoryType::appCaches:
      return appCaches();
    case CategoryType::systemLogs:
      return systemLogs();
    case CategoryType::iosBackups:
      return deviceBackups();
    case CategoryType::trashBin:
      return trash();
    case CategoryType::browserCaches:
      return browserCaches();
    case CategoryType::dockerData:
      return docker();
    case CategoryType::timeMachine:
      return timeMachine();
    case CategoryType::systemData:
      return leftovers();
    case CategoryType::buildArtifacts:
    case CategoryType::packageCaches:
    case CategoryType::toolchains:
    case CategoryType::installedPackages:
      break;  // no Mac has them
  }
  return {};
}

Path CategoryScanners::inHome(std::string_view path) const {
  return _platform.files.home() / path;
}

std::vector<Path> CategoryScanners::children(std::string_view folderInHome) const {
  return _platform.files.list(inHome(folderInHome)).value_or(std::vector<Path>{});
}

bool CategoryScanners::isLink(const Path& path) const {
  const auto attributes = _platform.files.attributes(path);
  return attributes && attributes->kind == FileKind::symbolicLink;
}

JunkItem CategoryScanners::item(std::string name, const Path& path) const {
  JunkItem found = datedItem(std::move(name), path);
  found.modifiedDate.reset();
  return found;
}

JunkItem CategoryScanners::item(const Message& name, const Path& path) const {
  JunkItem found = item(name.english(), path);
  found.nameText = name;
  return found;
}

JunkItem CategoryScanners::datedItem(const Message& name, const Path& path) const {
  JunkItem found = datedItem(name.english(), path);
  found.nameText = name;
  return found;
}

JunkItem CategoryScanners::datedItem(std::string name, const Path& path) const {
  const auto attributes = _platform.files.attributes(path);
  return {.name = std::move(name),
          .path = path,
          .size = allocatedSize(_platform.files, path),
          .modifiedDate = attributes ? attributes->modified : std::nullopt,
          .identity = attributes ? entryIdentity(*attributes) : std::nullopt};
}

CategoryScanners::Items CategoryScanners::scanPaths(std::span<const std::string_view> paths) const {
  Items items;
  for (const std::string_view each : paths) {
    const Path path = inHome(each);
    JunkItem found = datedItem(path.filename().native(), path);
    if (found.size < 1) continue;
    items.push_back(std::move(found));
    _report(items.back());
  }
  return items;
}

}  // namespace klarvik
