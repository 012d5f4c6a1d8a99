#include "systemdata/system_data_item.h"

#include <algorithm>

#include "base/bytes.h"
#include "platform/formatting.h"

namespace klarvik {

ItemSafety SystemDataItem::safety() const {
  return safetyOverride.value_or(defaultSafety(subCategory));
}

bool SystemDataItem::isRemovable() const {
  return safety() != ItemSafety::protected_;
}

bool isCounted(SystemDataSubCategory kind) {
  return kind != SystemDataSubCategory::reserved;
}

ItemSafety groupSafety(std::span<const SystemDataItem> items) {
  const auto holds = [&](ItemSafety safety) {
    return std::ranges::find(items, safety, &SystemDataItem::safety) != items.end();
  };
  if (holds(ItemSafety::review)) return ItemSafety::review;
  return holds(ItemSafety::safe) ? ItemSafety::safe : ItemSafety::protected_;
}

std::string formattedSize(std::span<const SystemDataItem> items, const Formatting& formatting) {
  std::int64_t total = 0;
  for (const SystemDataItem& item : items) total = addBytes(total, item.size);
  return formatting.byteText(total);
}

}  // namespace klarvik

std::size_t std::hash<klarvik::SystemDataItem>::operator()(
    const klarvik::SystemDataItem& item) const noexcept {
  std::size_t all = 0;
  const auto mix = [&](std::size_t part) { all = all * 31 + part; };
  mix(std::hash<klarvik::Uuid>{}(item.id));
  mix(std::hash<std::string>{}(item.name));
  mix(std::hash<std::string>{}(item.path.native()));
  mix(std::hash<std::int64_t>{}(item.size));
  mix(static_cast<std::size_t>(item.subCategory));
  mix(item.safetyOverride ? static_cast<std::size_t>(*item.safetyOverride) + 1 : 0);
  return all;
}
