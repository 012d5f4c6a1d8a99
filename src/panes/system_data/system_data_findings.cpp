#include "panes/system_data/system_data_findings.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "base/bytes.h"

namespace klarvik {
namespace {

void add(SystemDataFindings::Sum& sum, const SystemDataItem& item) {
  sum.bytes = addBytes(sum.bytes, item.size);
  ++sum.count;
}

int partOf(SystemDataSubCategory kind) {
  if (kind == SystemDataSubCategory::notReadable) return 2;
  return kind == SystemDataSubCategory::reserved ? 1 : 0;
}

std::vector<SystemDataKind> byKind(const std::vector<SystemDataItem>& items) {
  std::map<SystemDataSubCategory, SystemDataKind> found;
  for (const SystemDataItem& item : items) {
    SystemDataKind& kind = found[item.subCategory];
    kind.kind = item.subCategory;
    kind.bytes = addBytes(kind.bytes, item.size);
    kind.removableCount += item.isRemovable() ? 1 : 0;
    kind.items.push_back(item);
  }
  std::vector<SystemDataKind> kinds;
  for (auto& [name, kind] : found) {
    std::ranges::stable_sort(kind.items, std::ranges::greater{}, &SystemDataItem::size);
    kind.safety = groupSafety(kind.items);
    kinds.push_back(std::move(kind));
  }
  // What is known of the volume alone stands below what was found on it.
  std::ranges::stable_sort(kinds, [](const SystemDataKind& left, const SystemDataKind& right) {
    const int leftPart = partOf(left.kind);
    const int rightPart = partOf(right.kind);
    return leftPart != rightPart ? leftPart < rightPart : left.bytes > right.bytes;
  });
  return kinds;
}

/// What is moved to the Trash still takes its space, and counts there.
void addToTrash(std::vector<SystemDataItem>& items, std::int64_t bytes) {
  constexpr auto kind = SystemDataSubCategory::yourFiles;
  auto trash = std::ranges::find_if(items, [](const SystemDataItem& item) {
    return item.subCategory == kind && item.path.filename() == "Trash";
  });
  if (trash == items.end()) {
    items.push_back({.name = "Trash", .path = "Trash", .subCategory = kind, .nameText = "Trash"});
    trash = std::prev(items.end());
  }
  trash->size = addBytes(trash->size, bytes);
}

}  // namespace

double SystemDataFindings::share(std::int64_t bytes) const {
  return _totalBytes > 0 ? static_cast<double>(bytes) / static_cast<double>(_totalBytes) : 0;
}

bool SystemDataFindings::isSelected(const SystemDataItem& item) const {
  return item.isRemovable() && _selectedItems.contains(item.id);
}

std::vector<SystemDataItem> SystemDataFindings::selectable() const {
  std::vector<SystemDataItem> items;
  if (!_result) return items;
  std::ranges::copy_if(_result->items(), std::back_inserter(items),
                       [this](const SystemDataItem& item) { return isSelected(item); });
  return items;
}

void SystemDataFindings::setResult(SystemDataResult result) {
  _result = std::move(result);
  _kinds = byKind(_result->items());
  _totalBytes = 0;
  _removable = {};
  for (const SystemDataItem& item : _result->items()) {
    if (isCounted(item.subCategory)) _totalBytes = addBytes(_totalBytes, item.size);
    if (item.isRemovable()) add(_removable, item);
  }
  recount();
}

void SystemDataFindings::removePaths(const std::set<Path>& moved, std::int64_t freeBytes) {
  if (!_result) return;
  SystemDataResult left = without(*_result, moved);
  left.freeBytesAtMeasurement = freeBytes;
  setResult(std::move(left));
}

void SystemDataFindings::deselect(const std::vector<SystemDataItem>& items) {
  for (const SystemDataItem& item : items) _selectedItems.erase(item.id);
  recount();
}

void SystemDataFindings::toggle(const SystemDataItem& item) {
  if (!item.isRemovable()) return;
  if (_selectedItems.erase(item.id) == 0) _selectedItems.insert(item.id);
  recount();
}

void SystemDataFindings::toggleKind(std::size_t place) {
  const SystemDataKind& kind = _kinds[place];
  const bool select = kind.selectedCount < kind.removableCount;
  for (const SystemDataItem& item : kind.items) {
    if (!item.isRemovable()) continue;
    if (select) {
      _selectedItems.insert(item.id);
    } else {
      _selectedItems.erase(item.id);
    }
  }
  recount();
}

void SystemDataFindings::recount() {
  _selected = {};
  for (SystemDataKind& kind : _kinds) {
    kind.selectedCount = 0;
    for (const SystemDataItem& item : kind.items) {
      if (!isSelected(item)) continue;
      ++kind.selectedCount;
      add(_selected, item);
    }
  }
}

SystemDataResult without(const SystemDataResult& result, const std::set<Path>& moved) {
  std::vector<SystemDataItem> left;
  std::ranges::copy_if(result.items(), std::back_inserter(left),
                       [&](const SystemDataItem& item) { return !moved.contains(item.path); });
  if (result.ledger) {
    std::int64_t bytes = 0;
    for (const SystemDataItem& item : result.items()) {
      if (moved.contains(item.path)) bytes = addBytes(bytes, item.size);
    }
    if (bytes > 0) addToTrash(left, bytes);
  }
  SystemDataResult rest(std::move(left), result.freeBytesAtMeasurement);
  rest.ledger = result.ledger;
  return rest;
}

}  // namespace klarvik
