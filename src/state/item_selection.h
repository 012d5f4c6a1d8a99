#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <unordered_set>
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

/// A set of items' identifiers that knows which of them belong to the results of a scan, and what
/// those add up to. A category is selected as a whole, counted and summed without going through its
/// items, however many it has; a copy costs a bit for each of them.
class ItemSelection {
 public:
  using Items = std::shared_ptr<const SortedItems>;

  /// What is left of a category after some of its items have gone.
  struct RemainingCategory {
    Uuid before;  ///< the category that it was
    CleanCategory category;
    Items items;
  };

  /// A category joins the results. None of its items is selected by that.
  void add(const CleanCategory& category, Items items);

  [[nodiscard]] bool contains(const Uuid& id) const;
  [[nodiscard]] bool empty() const { return size() == 0; }
  [[nodiscard]] std::size_t size() const;

  /// These tell whether that changed anything.
  bool set(const Uuid& id, bool selected);
  /// Nothing when there is no such category.
  bool setAll(const Uuid& category, bool selected);
  /// Selects of a category what may be selected without asking: all that no program uses.
  bool selectUnused(const Uuid& category);
  void toggle(const Uuid& id) { set(id, !contains(id)); }

  /// Exactly the items of the safe categories of the same results, without those in use.
  [[nodiscard]] ItemSelection safeItems() const;
  /// The same selection without `gone`, over results of which no more than `kept` is left.
  [[nodiscard]] ItemSelection without(const std::unordered_set<Uuid>& gone,
                                      const std::vector<RemainingCategory>& kept) const;

  /// What is selected of the results, and of one category of theirs.
  [[nodiscard]] ItemSum selected() const;
  [[nodiscard]] ItemSum selected(const Uuid& category) const;
  /// What there is, selected or not.
  [[nodiscard]] ItemSum total() const;
  [[nodiscard]] ItemSum total(const Uuid& category) const;
  /// Nothing when there is no such category.
  [[nodiscard]] Items items(const Uuid& category) const;
  /// Whether nothing of the results is selected that asks for a review.
  [[nodiscard]] bool isAllSafe() const;

  /// Whether the same identifiers are selected, whatever the results.
  bool operator==(const ItemSelection& other) const;

 private:
  struct Group {
    Uuid category;
    CategoryType type;
    Items items;
    std::vector<bool> isSelected;  ///< by rank
    ItemSum selected;

    bool set(std::size_t rank, bool select);
    bool setAll(bool select);
    bool selectUnused();
    [[nodiscard]] bool isWithin(const ItemSelection& other) const;
  };

  [[nodiscard]] const Group* find(const Uuid& category) const;

  std::vector<Group> _groups;
  std::set<Uuid> _unknownIds;  ///< selected, but not in the results
};

}  // namespace klarvik
