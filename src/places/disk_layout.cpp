#include "places/disk_layout.h"

#include <algorithm>

#include "places/linux/linux_layout.h"
#include "places/mac/mac_layout.h"

namespace klarvik {

std::string_view DiskLayout::label(CategoryType type) const {
  const auto row = std::ranges::find(scanRows, type, &ScanRow::type);
  return row != scanRows.end() ? row->name : rawValue(type);
}

const CleaningTool* DiskLayout::tool(std::string_view id) const {
  const auto found = std::ranges::find(tools, id, &CleaningTool::id);
  return found != tools.end() ? &*found : nullptr;
}

const DiskLayout& layoutFor(const Path& home) {
  constexpr std::string_view macHomes = "/Users/";
  const bool isMac = home.native().starts_with(macHomes) && home.native().size() > macHomes.size();
  return isMac ? mac::layout() : linux_disk::layout();
}

}  // namespace klarvik
