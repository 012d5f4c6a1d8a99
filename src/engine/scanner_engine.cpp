#include "engine/scanner_engine.h"

#include <algorithm>

#include "base/bytes.h"
#include "base/message.h"
#include "engine/category_scanners.h"
#include "engine/place_scanner.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/user_defaults.h"

namespace klarvik {

namespace {

void sortBySize(std::vector<CleanCategory>& categories) {
  std::stable_sort(categories.begin(), categories.end(),
                   [](const CleanCategory& left, const CleanCategory& right) {
                     return left.totalSize() > right.totalSize();
                   });
}

std::vector<ScanRow> wantedRows(const DiskLayout& layout, const UserDefaults& defaults) {
  std::vector<ScanRow> rows(layout.scanRows.begin(), layout.scanRows.end());
  if (!defaults.boolean("includeDeveloperJunk", true)) {
    std::erase_if(rows, [](const ScanRow& row) { return row.isForDevelopers; });
  }
  return rows;
}

/// The scanners of one run.
class Scanners {
 public:
  Scanners(const Platform& platform, std::stop_token stop,
           const CategoryScanners::ItemReport& report)
      : _hasPlaces(!layoutFor(platform.files.home()).places.empty()),
        _methods(platform, report),
        _places(platform, std::move(stop), report) {}

  CleanCategory find(CategoryType type) {
    if (!_hasPlaces) return {.type = type, .items = _methods.find(type)};
    if (type == CategoryType::trashBin) return _places.findTrashed();
    if (type == CategoryType::buildArtifacts) return _places.findArtifacts();
    return _places.find(type);
  }

 private:
  const bool _hasPlaces;
  const CategoryScanners _methods;
  PlaceScanner _places;
};

}  // namespace

ScannerEngine::ScannerEngine(const Platform& platform, LeftAlone* leftAlone)
    : _platform(platform), _leftAlone(leftAlone) {}

std::vector<CleanCategory> ScannerEngine::scanAll(std::stop_token stop, const UpdateSink& onUpdate,
                                                  const CategorySink& onCategory) {
  const std::scoped_lock serial(_scanning);
  const auto rows = wantedRows(layoutFor(_platform.files.home()), _platform.defaults);
  _updateSink = onUpdate;
  _current.completedCategories = 0;
  _current.totalCategories = static_cast<std::int64_t>(rows.size());

  Scanners scanners(_platform, stop, [this](const JunkItem& item) { countItem(item); });
  std::vector<CleanCategory> found;
  for (const ScanRow& row : rows) {
    if (stop.stop_requested()) break;
    begin(std::string(row.name), row.fraction);
    CleanCategory category = scanners.find(row.type);
    std::erase_if(category.items, [](const JunkItem& item) { return item.size < 1; });
    if (category.hasItems() || !category.hints.empty()) {
      if (onCategory) onCategory(category);
      found.push_back(std::move(category));
    }
    ++_current.completedCategories;
  }
  begin(stop.stop_requested() ? QT_TRANSLATE_NOOP("Engine", "Scan stopped")
                              : QT_TRANSLATE_NOOP("Engine", "Scan complete"),
        1.0);

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
  std::ranges::stable_sort(items, [](const JunkItem& left, const JunkItem& right) {
    if (left.wasJustUsed != right.wasJustUsed) return right.wasJustUsed;
    return left.size > right.size;
  });
}

}  // namespace klarvik
