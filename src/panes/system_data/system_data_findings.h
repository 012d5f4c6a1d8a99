#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <unordered_set>
#include <vector>

#include "core/uuid.h"
#include "systemdata/system_data_item.h"

namespace klarvik {

/// Everything of one kind that an analysis found.
struct SystemDataKind {
  SystemDataSubCategory kind = SystemDataSubCategory::otherLibrary;
  std::vector<SystemDataItem> items;  ///< largest first
  std::int64_t bytes = 0;
  ItemSafety safety = ItemSafety::protected_;  ///< of all of them together
  std::size_t removableCount = 0;
  std::size_t selectedCount = 0;  ///< of the removable ones
};

/// What the last analysis found, and which of it is selected. What may not be removed is never
/// selected. A plain value: one thread at a time.
class SystemDataFindings {
 public:
  struct Sum {
    std::int64_t bytes = 0;
    std::int64_t count = 0;
  };

  [[nodiscard]] const std::optional<SystemDataResult>& result() const { return _result; }
  /// By size, largest first, and last what is known of the volume alone; kinds without items are
  /// not among them.
  [[nodiscard]] const std::vector<SystemDataKind>& kinds() const { return _kinds; }
  [[nodiscard]] std::int64_t totalBytes() const { return _totalBytes; }
  [[nodiscard]] const Sum& removable() const { return _removable; }
  [[nodiscard]] std::int64_t protectedBytes() const { return _totalBytes - _removable.bytes; }
  /// How much of the total `bytes` are, 0 to 1.
  [[nodiscard]] double share(std::int64_t bytes) const;

  /// Identifiers of things that are gone select nothing.
  [[nodiscard]] const std::unordered_set<Uuid>& selectedItems() const { return _selectedItems; }
  [[nodiscard]] bool isSelected(const SystemDataItem& item) const;
  [[nodiscard]] const Sum& selected() const { return _selected; }
  [[nodiscard]] std::vector<SystemDataItem> selectable() const;

  /// Takes a new result, under the same selection.
  void setResult(SystemDataResult result);
  /// Takes out what was moved away.
  void removePaths(const std::set<Path>& moved, std::int64_t freeBytes);
  void deselect(const std::vector<SystemDataItem>& items);
  /// Does nothing to what may not be removed.
  void toggle(const SystemDataItem& item);
  /// Selects everything that may be removed in the kind at this place of `kinds`, or nothing when
  /// all of that is selected already.
  void toggleKind(std::size_t place);

 private:
  void recount();

  std::optional<SystemDataResult> _result;
  std::vector<SystemDataKind> _kinds;
  std::int64_t _totalBytes = 0;
  Sum _removable;
  std::unordered_set<Uuid> _selectedItems;
  Sum _selected;
};

/// The items of `result` whose path is not among `moved`. Of an analysis of the whole volume, the
/// Trash takes what they took.
[[nodiscard]] SystemDataResult without(const SystemDataResult& result, const std::set<Path>& moved);

}  // namespace klarvik
