#include "engine/scanner_engine.h"

#include <algorithm>

#include "engine/allocated_size.h"

namespace klarvik {

namespace {

constexpr std::string_view includeDeveloperJunkKey = "includeDeveloperJunk";

bool isDeveloperRow(std::string_view name) {
  return name == "Xcode Cache" || name == "iOS Simulators" || name == "Xcode Archives" ||
         name == "Docker";
}

void sortBySize(std::vector<CleanCategory>& categories) {
  std::stable_sort(categories.begin(), categories.end(),
                   [](const CleanCategory& left, const CleanCategory& right) {
                     return left.totalSize() > right.totalSize();
                   });
}

}  // namespace

ScannerEngine::ScannerEngine(const Platform& platform) : _platform(platform) {}

std::vector<ScannerEngine::ScanRow> ScannerEngine::scanTable() const {
  using enum CategoryType;
  std::vector<ScanRow> rows{
      {"Xcode Cache", 0.10, xcodeCache, &ScannerEngine::scanXcodeCache},
      {"iOS Simulators", 0.22, simulators, &ScannerEngine::scanSimulators},
      {"Xcode Archives", 0.34, xcodeArchives, &ScannerEngine::scanXcodeArchives},
      {"App Caches", 0.50, appCaches, &ScannerEngine::scanAppCaches},
      {"System Logs", 0.62, systemLogs, &ScannerEngine::scanSystemLogs},
      {"iPhone Backups", 0.72, iosBackups, &ScannerEngine::scanDeviceBackups},
      {"Trash", 0.82, trashBin, &ScannerEngine::scanTrash},
      {"Browser Caches", 0.88, browserCaches, &ScannerEngine::scanBrowserCaches},
      {"Docker", 0.91, dockerData, &ScannerEngine::scanDocker},
      {"Time Machine", 0.95, timeMachine, &ScannerEngine::scanTimeMachine},
      {"Leftovers", 0.99, systemData, &ScannerEngine::scanLeftovers},
  };
  if (!_platform.defaults.boolean(std::string(includeDeveloperJunkKey), true)) {
    std::erase_if(rows, [](const ScanRow& row) { return isDeveloperRow(row.name); });
  }
  return rows;
}

std::vector<CleanCategory> ScannerEngine::scanAll(std::stop_token stop, const UpdateSink& onUpdate,
                                                  const CategorySink& onCategory) {
  const std::scoped_lock serial(_scanning);
  const auto rows = scanTable();
  _updateSink = onUpdate;
  _current.completedCategories = 0;
  _current.totalCategories = static_cast<std::int64_t>(rows.size());

  std::vector<CleanCategory> found;
  for (const ScanRow& row : rows) {
    if (stop.stop_requested()) break;
    beginRow(std::string(row.name), row.fraction);
    CleanCategory category{.type = row.type, .items = (this->*row.scan)()};
    std::erase_if(category.items, [](const JunkItem& item) { return item.size < 1; });
    if (!category.items.empty()) {
      if (onCategory) onCategory(category);
      found.push_back(std::move(category));
    }
    ++_current.completedCategories;
  }
  beginRow(stop.stop_requested() ? "Scan stopped" : "Scan complete", 1.0);

  sortBySize(found);
  _updateSink = nullptr;
  return found;
}

void ScannerEngine::beginRow(std::string name, double fraction) {
  _current.categoryName = std::move(name);
  _current.fraction = fraction;
  _current.currentPath.reset();
  _current.partialItems = 0;
  _current.partialBytes = 0;
  publishUpdate();
}

void ScannerEngine::publishUpdate() const {
  if (_updateSink) _updateSink(_current);
}

void ScannerEngine::reportItem(const JunkItem& item) {
  ++_current.partialItems;
  _current.partialBytes = addBytes(_current.partialBytes, item.size);
  _current.currentPath = item.path.native();
  publishUpdate();
}

Path ScannerEngine::inHome(std::string_view relative) const {
  return _platform.files.home() / relative;
}

std::vector<Path> ScannerEngine::children(const Path& folder) const {
  return _platform.files.list(folder).value_or(std::vector<Path>{});
}

std::int64_t ScannerEngine::sizeOf(const Path& path) const {
  return allocatedSize(_platform.files, path);
}

std::int64_t ScannerEngine::sizeIfPresent(const Path& path) const {
  return _platform.files.exists(path) ? sizeOf(path) : 0;
}

JunkItem ScannerEngine::datedItem(std::string name, const Path& path, std::int64_t size) const {
  const auto attributes = _platform.files.attributes(path);
  return {.name = std::move(name),
          .path = path,
          .size = size,
          .modifiedDate = attributes ? attributes->modified : std::nullopt};
}

ScannerEngine::Items ScannerEngine::scanPaths(const std::vector<Path>& paths) {
  Items items;
  for (const Path& path : paths) {
    const auto size = sizeIfPresent(path);
    if (size < 1) continue;
    items.push_back(datedItem(path.filename().native(), path, size));
    reportItem(items.back());
  }
  return items;
}

void sortItemsBySize(std::vector<JunkItem>& items) {
  std::stable_sort(items.begin(), items.end(), [](const JunkItem& left, const JunkItem& right) {
    return left.size > right.size;
  });
}

}  // namespace klarvik
