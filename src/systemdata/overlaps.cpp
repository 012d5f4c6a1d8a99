#include "systemdata/overlaps.h"

#include <algorithm>
#include <functional>
#include <set>
#include <string_view>

#include "base/text.h"

namespace klarvik {
namespace {

using Paths = std::set<std::string, std::less<>>;

struct MeasuredItem {
  std::size_t pathCharacters;
  SystemDataItem item;
};

std::vector<MeasuredItem> shortestPathFirst(std::vector<SystemDataItem> items) {
  std::vector<MeasuredItem> sorted;
  for (SystemDataItem& item : items) {
    const auto characters = characterCount(item.path.native());
    sorted.push_back({characters, std::move(item)});
  }
  std::ranges::stable_sort(sorted, {}, &MeasuredItem::pathCharacters);
  return sorted;
}

bool liesAtOrBelowOneOf(const Paths& folders, std::string_view path) {
  for (auto slash = path.find('/'); slash != path.npos; slash = path.find('/', slash + 1)) {
    if (folders.contains(path.substr(0, slash))) return true;
  }
  return folders.contains(path);
}

}  // namespace

std::vector<SystemDataItem> withoutOverlaps(std::vector<SystemDataItem> items) {
  std::vector<SystemDataItem> kept;
  Paths keptPaths;
  for (MeasuredItem& each : shortestPathFirst(std::move(items))) {
    if (liesAtOrBelowOneOf(keptPaths, each.item.path.native())) continue;
    keptPaths.insert(each.item.path.native());
    kept.push_back(std::move(each.item));
  }
  return kept;
}

}  // namespace klarvik
