#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "core/junk_model.h"

namespace klarvik {

/// A number of items, and their bytes.
struct ItemSum {
  std::int64_t size = 0;
  std::int64_t count = 0;
  std::int64_t forGood = 0;  ///< bytes of those that never go to the Trash

  ItemSum& operator+=(const ItemSum& other);
  ItemSum& operator-=(const ItemSum& other);
  bool operator==(const ItemSum&) const = default;
};

/// The items of a category in the order in which the user goes through them, that of
/// `sortItemsBySize`; the place in that order, from 0, is an item's rank. Immutable. Of very many
/// items it takes longer to make than a frame lasts, so it is made off the main thread; whatever it
/// is asked is answered without going through them.
class SortedItems {
 public:
  struct Item {
    Uuid id;
    std::uint32_t place = 0;  ///< in the category's items
    std::int64_t size = 0;    ///< bytes
    bool goesForGood = false;
    bool isInUse = false;  ///< by a program that should be closed first
    bool wasJustUsed = false;

    [[nodiscard]] ItemSum sum() const { return {size, 1, goesForGood ? size : 0}; }
  };

  explicit SortedItems(const std::vector<JunkItem>& items);

  [[nodiscard]] std::size_t size() const { return _items.size(); }
  [[nodiscard]] const Item& operator[](std::size_t rank) const { return _items[rank]; }
  [[nodiscard]] const ItemSum& total() const { return _total; }
  /// Of the items that are in use, in ascending order.
  [[nodiscard]] const std::vector<std::size_t>& ranksInUse() const { return _ranksInUse; }
  /// Nothing when there is no such item.
  [[nodiscard]] std::optional<std::size_t> rankOf(const Uuid& id) const;

 private:
  std::vector<Item> _items;
  std::vector<std::pair<Uuid, std::uint32_t>> _ranks;  ///< in the order of the identifiers
  std::vector<std::size_t> _ranksInUse;
  ItemSum _total;
};

}  // namespace klarvik
