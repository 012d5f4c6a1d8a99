#include "state/item_selection.h"

#include <algorithm>
#include <utility>

#include "base/bytes.h"

namespace klarvik {

ItemSum& ItemSum::operator+=(const ItemSum& other) {
  size = addBytes(size, other.size);
  count += other.count;
  forGood = addBytes(forGood, other.forGood);
  return *this;
}

ItemSum& ItemSum::operator-=(const ItemSum& other) {
  return *this += {-other.size, -other.count, -other.forGood};
}

SortedItems::SortedItems(const std::vector<JunkItem>& items) {
  _items.reserve(items.size());
  for (const JunkItem& item : items) {
    _items.push_back({item.id, static_cast<std::uint32_t>(_items.size()), item.size,
                      item.goesForGood, !item.closeFirst.empty(), item.wasJustUsed});
    _total += _items.back().sum();
  }
  std::ranges::sort(_items, [](const Item& left, const Item& right) {
    if (left.wasJustUsed != right.wasJustUsed) return right.wasJustUsed;
    return left.size != right.size ? left.size > right.size : left.place < right.place;
  });
  _ranks.reserve(_items.size());
  for (const Item& item : _items) {
    if (item.isInUse) _ranksInUse.push_back(_ranks.size());
    _ranks.emplace_back(item.id, static_cast<std::uint32_t>(_ranks.size()));
  }
  std::ranges::sort(_ranks);
}

std::optional<std::size_t> SortedItems::rankOf(const Uuid& id) const {
  const auto found = std::ranges::lower_bound(_ranks, id, {}, &decltype(_ranks)::value_type::first);
  if (found == _ranks.end() || found->first != id) return std::nullopt;
  return found->second;
}

namespace {

bool isSafe(CategoryType type) {
  return safety(type) == SafetyLevel::safe;
}

}  // namespace

bool ItemSelection::Group::set(std::size_t rank, bool select) {
  if (isSelected[rank] == select) return false;
  isSelected[rank] = select;
  if (select) {
    selected += (*items)[rank].sum();
  } else {
    selected -= (*items)[rank].sum();
  }
  return true;
}

bool ItemSelection::Group::setAll(bool select) {
  const ItemSum sum = select ? items->total() : ItemSum{};
  if (selected == sum) return false;
  isSelected.assign(items->size(), select);
  selected = sum;
  return true;
}

bool ItemSelection::Group::selectUnused() {
  bool changed = setAll(true);
  for (const std::size_t rank : items->ranksInUse()) changed = set(rank, false) || changed;
  return changed;
}

bool ItemSelection::Group::isWithin(const ItemSelection& other) const {
  const Group* same = other.find(category);
  if (same != nullptr) return same->isSelected == isSelected;
  for (std::size_t rank = 0; rank < items->size(); ++rank) {
    if (isSelected[rank] && !other.contains((*items)[rank].id)) return false;
  }
  return true;
}

void ItemSelection::add(const CleanCategory& category, Items items) {
  const std::size_t size = items->size();
  _groups.push_back({category.id, category.type, std::move(items), std::vector<bool>(size), {}});
  Group& added = _groups.back();
  std::erase_if(_unknownIds, [&](const Uuid& id) {
    const auto rank = added.items->rankOf(id);
    return rank && added.set(*rank, true);
  });
}

bool ItemSelection::contains(const Uuid& id) const {
  for (const Group& group : _groups) {
    if (const auto rank = group.items->rankOf(id)) return group.isSelected[*rank];
  }
  return _unknownIds.contains(id);
}

std::size_t ItemSelection::size() const {
  return static_cast<std::size_t>(selected().count) + _unknownIds.size();
}

bool ItemSelection::set(const Uuid& id, bool selected) {
  for (Group& group : _groups) {
    if (const auto rank = group.items->rankOf(id)) return group.set(*rank, selected);
  }
  return selected ? _unknownIds.insert(id).second : _unknownIds.erase(id) == 1;
}

bool ItemSelection::setAll(const Uuid& category, bool selected) {
  const auto group = std::ranges::find(_groups, category, &Group::category);
  return group != _groups.end() && group->setAll(selected);
}

bool ItemSelection::selectUnused(const Uuid& category) {
  const auto group = std::ranges::find(_groups, category, &Group::category);
  return group != _groups.end() && group->selectUnused();
}

ItemSelection ItemSelection::safeItems() const {
  ItemSelection safe = *this;
  safe._unknownIds.clear();
  for (Group& group : safe._groups) {
    if (isSafe(group.type)) {
      group.selectUnused();
    } else {
      group.setAll(false);
    }
  }
  return safe;
}

ItemSelection ItemSelection::without(const std::unordered_set<Uuid>& gone,
                                     const std::vector<RemainingCategory>& kept) const {
  ItemSelection rest;
  rest._unknownIds = _unknownIds;
  std::erase_if(rest._unknownIds, [&](const Uuid& id) { return gone.contains(id); });
  for (const RemainingCategory& remainder : kept) {
    rest.add(remainder.category, remainder.items);
    const Group* whole = find(remainder.before);
    if (whole == nullptr) continue;
    // What is left has kept its order, so one walk along both finds each where it was.
    std::size_t was = 0;
    for (std::size_t rank = 0; rank < remainder.items->size(); ++rank, ++was) {
      while ((*whole->items)[was].id != (*remainder.items)[rank].id) ++was;
      rest._groups.back().set(rank, whole->isSelected[was]);
    }
  }
  return rest;
}

ItemSum ItemSelection::selected() const {
  ItemSum sum;
  for (const Group& group : _groups) sum += group.selected;
  return sum;
}

ItemSum ItemSelection::selected(const Uuid& category) const {
  const Group* group = find(category);
  return group != nullptr ? group->selected : ItemSum{};
}

ItemSum ItemSelection::total() const {
  ItemSum sum;
  for (const Group& group : _groups) sum += group.items->total();
  return sum;
}

ItemSum ItemSelection::total(const Uuid& category) const {
  const Group* group = find(category);
  return group != nullptr ? group->items->total() : ItemSum{};
}

ItemSelection::Items ItemSelection::items(const Uuid& category) const {
  const Group* group = find(category);
  return group != nullptr ? group->items : nullptr;
}

bool ItemSelection::isAllSafe() const {
  return std::ranges::all_of(
      _groups, [](const Group& group) { return isSafe(group.type) || group.selected.count == 0; });
}

bool ItemSelection::operator==(const ItemSelection& other) const {
  return size() == other.size() &&
         std::ranges::all_of(_groups, [&](const Group& group) { return group.isWithin(other); }) &&
         std::ranges::all_of(_unknownIds, [&](const Uuid& id) { return other.contains(id); });
}

const ItemSelection::Group* ItemSelection::find(const Uuid& category) const {
  const auto found = std::ranges::find(_groups, category, &Group::category);
  return found != _groups.end() ? &*found : nullptr;
}

}  // namespace klarvik
