#include "systemdata/system_data_item.h"

#include <algorithm>
#include <array>
#include <functional>
#include <set>
#include <string_view>

#include "base/bytes.h"
#include "base/text.h"
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

namespace {

constexpr std::array<std::string_view, 7> prefixes{
    "com.apple.",   "com.google.", "com.microsoft.", "com.docker.",
    "org.mozilla.", "com.brave.",  "group.",
};

/// Keeps its vendor's word: by "Docker" alone it would read like the application.
constexpr std::string_view dockersOwnContainer = "com.docker.docker";

void removePrefix(std::string_view& text, std::string_view prefix) {
  if (text.starts_with(prefix)) text.remove_prefix(prefix.size());
}

}  // namespace

std::string friendlyName(std::string_view text) {
  const auto* const fitting = std::ranges::find_if(
      prefixes, [&](std::string_view prefix) { return text.starts_with(prefix); });
  if (fitting != prefixes.end() && text != dockersOwnContainer) removePrefix(text, *fitting);
  removePrefix(text, "com.");
  return capitalized(text);
}

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
