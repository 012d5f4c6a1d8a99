#include "engine/scanner_engine.h"

#include <algorithm>

#include "engine/category_scanners.h"
#include "platform/user_defaults.h"

namespace klarvik {

namespace {

struct ScanRow {
  std::string_view name;
  double fraction;  ///< told when the row begins, and until it ends
  CategoryType type;
  CategoryScanners::Items (CategoryScanners::*scan)() const;
};

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

std::vector<ScanRow> scanTable(const UserDefaults& defaults) {
  using enum CategoryType;
  std::vector<ScanRow> rows{
      {"Xcode Cache", 0.10, xcodeCache, &CategoryScanners::xcodeCache},
      {"iOS Simulators", 0.22, simulators, &CategoryScanners::simulators},
      {"Xcode Archives", 0.34, xcodeArchives, &CategoryScanners::xcodeArchives},
      {"App Caches", 0.50, appCaches, &CategoryScanners::appCaches},
      {"System Logs", 0.62, systemLogs, &CategoryScanners::systemLogs},
      {"iPhone Backups", 0.72, iosBackups, &CategoryScanners::deviceBackups},
      {"Trash", 0.82, trashBin, &CategoryScanners::trash},
      {"Browser Caches", 0.88, browserCaches, &CategoryScanners::browserCaches},
      {"Docker", 0.91, dockerData, &CategoryScanners::docker},
      {"Time Machine", 0.95, timeMachine, &CategoryScanners::timeMachine},
      {"Leftovers", 0.99, systemData, &CategoryScanners::leftovers},
  };
  if (!defaults.boolean("includeDeveloperJunk", true)) {
    std::erase_if(rows, [](const ScanRow& row) { return isDeveloperRow(row.name); });
  }
  return rows;
}

}  // namespace

ScannerEngine::ScannerEngine(const Platform& platform, LeftAlone* leftAlone)
    : _platform(platform), _leftAlone(leftAlone) {}

std::vector<CleanCategory> ScannerEngine::scanAll(std::stop_token stop, const UpdateSink& onUpdate,
                                                  const CategorySink& onCategory) {
  const std::scoped_lock serial(_scanning);
  const auto rows = scanTable(_platform.defaults);
  _updateSink = onUpdate;
  _current.completedCategories = 0;
  _current.totalCategories = static_cast<std::int64_t>(rows.size());

  const CategoryScanners scanners(_platform, [this](const JunkItem& item) { countItem(item); });
  std::vector<CleanCategory> found;
  for (const ScanRow& row : rows) {
    if (stop.stop_requested()) break;
    begin(std::string(row.name), row.fraction);
    CleanCategory category{.type = row.type, .items = (scanners.*row.scan)()};
    std::erase_if(category.items, [](const JunkItem& item) { return item.size < 1; });
    if (!category.items.empty()) {
      if (onCategory) onCategory(category);
      found.push_back(std::move(category));
    }
    ++_current.completedCategories;
  }
  begin(stop.stop_requested() ? "Scan stopped" : "Scan complete", 1.0);

  sortBySize(found);
  _updateSink = nullptr;
  return found;
}

void ScannerEngine::begin(std::string name, double fraction) {
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

void ScannerEngine::countItem(const JunkItem& item) {
  ++_current.partialItems;
  _current.partialBytes = addBytes(_current.partialBytes, item.size);
  _current.currentPath = item.path.native();
  publishUpdate();
}

void sortItemsBySize(std::vector<JunkItem>& items) {
  std::stable_sort(items.begin(), items.end(), [](const JunkItem& left, const JunkItem& right) {
    return left.size > right.size;
  });
}

}  // namespace klarvik
