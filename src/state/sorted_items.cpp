#include "state/sorted_items.h"

#include <algorithm>

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

}  // namespace klarvik
