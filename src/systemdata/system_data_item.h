#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/message.h"
#include "base/paths.h"
#include "core/uuid.h"
#include "platform/file_attributes.h"
#include "systemdata/system_data_sub_category.h"

namespace klarvik {

class Formatting;

/// One finding of the analysis.
struct SystemDataItem {
  Uuid id = Uuid::random();
  std::string name;  ///< what the row shows; bytes of the disk, made printable only at the screen
  Path path{};       ///< what was measured; empty for what lies in no one place
  std::int64_t size = 0;  ///< bytes
  SystemDataSubCategory subCategory = SystemDataSubCategory::otherLibrary;
  /// Where this item differs from its kind.
  std::optional<ItemSafety> safetyOverride = std::nullopt;
  /// As it was found. Another thing that comes to its name later is not removed in its place.
  /// Nothing for what is no file.
  std::optional<EntryIdentity> identity = std::nullopt;
  /// What it is and what one can do about it; empty where the kind says it all.
  std::string_view sentence{};
  /// What the name was made of; empty where it is one of the disk.
  Message nameText{};

  [[nodiscard]] ItemSafety safety() const;
  /// Whether a pane may select, count as removable, or remove it.
  [[nodiscard]] bool isRemovable() const;

  bool operator==(const SystemDataItem&) const = default;
};

/// The verdict on several items together. That of no items is `protected_`, and a mix of `safe` and
/// `protected_` is `safe`.
[[nodiscard]] ItemSafety groupSafety(std::span<const SystemDataItem> items);
/// The sum of their sizes as text.
[[nodiscard]] std::string formattedSize(std::span<const SystemDataItem> items,
                                        const Formatting& formatting);

/// How the rows of an analysis that accounts for the whole volume lie to what the volume says.
struct LedgerSum {
  std::int64_t usedBytes = 0;
  /// By how much the rows are more than that: shared space, and changes while they were counted.
  std::int64_t exceedsBy = 0;

  bool operator==(const LedgerSum&) const = default;
};

/// Whether an item of this kind is a part of what is used.
[[nodiscard]] bool isCounted(SystemDataSubCategory kind);

/// The outcome of one analysis. Other items make another result; how much is free may be told later
/// and again.
class SystemDataResult {
 public:
  explicit SystemDataResult(std::vector<SystemDataItem> items, std::int64_t freeBytes = 0)
      : freeBytesAtMeasurement(freeBytes), _items(std::move(items)) {}

  [[nodiscard]] const std::vector<SystemDataItem>& items() const { return _items; }

  std::int64_t freeBytesAtMeasurement = 0;  ///< of the volume
  /// Nothing where the analysis looks at certain places only.
  std::optional<LedgerSum> ledger = std::nullopt;

 private:
  std::vector<SystemDataItem> _items;
};

/// What a folder that is named after a bundle identifier is called on the screen: "com.apple.mail"
/// reads "Mail". Only one vendor's prefix is ever taken off, so "group.com.apple.notes" reads
/// "Apple.notes".
[[nodiscard]] std::string friendlyName(std::string_view text);

/// Without the items that lie inside another one, or where an earlier one lies, so that nothing is
/// counted twice. The items with the fewest characters in their path come first; those with as many
/// keep their order.
[[nodiscard]] std::vector<SystemDataItem> withoutOverlaps(std::vector<SystemDataItem> items);

}  // namespace klarvik

template <>
struct std::hash<klarvik::SystemDataItem> {
  [[nodiscard]] std::size_t operator()(const klarvik::SystemDataItem& item) const noexcept;
};
