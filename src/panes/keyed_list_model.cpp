#include "panes/keyed_list_model.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <unordered_set>
#include <utility>

#include "panes/kit/row_ranges.h"

namespace klarvik {
namespace {

struct RowHash {
  template <typename Row>
  std::size_t operator()(const Row& row) const {
    return std::hash<Uuid>{}(row.item) * 31 + static_cast<std::size_t>(row.section) * 7 +
           static_cast<std::size_t>(row.kind);
  }
};

struct SameRow {
  template <typename Row>
  bool operator()(const Row& left, const Row& right) const {
    return left.isSame(right);
  }
};

template <typename Row>
std::unordered_set<Row, RowHash, SameRow> setOf(const std::vector<Row>& rows) {
  return {rows.begin(), rows.end(), rows.size()};
}

}  // namespace

int KeyedListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

void KeyedListModel::showRows(const std::vector<Row>& wanted,
                              const std::function<void()>& exchange) {
  removeRowsMissingFrom(wanted);
  if (exchange) exchange();
  const auto known = setOf(wanted);
  for (Row& row : _rows) row = *known.find(row);
  moveRowsAsIn(wanted);
  insertRowsOf(wanted);
  if (!_rows.empty()) emit dataChanged(index(0), index(rowCount() - 1));
}

void KeyedListModel::removeRowsMissingFrom(const std::vector<Row>& wanted) {
  const auto kept = setOf(wanted);
  std::vector<RowRange> runs =
      rangesOf(_rows.size(), [&](std::size_t row) { return !kept.contains(_rows[row]); });
  if (runs.size() > mostRuns) {
    const std::size_t first = runs.front().first;
    runs = {RowRange{first, runs.back().first + runs.back().count - first}};
  }
  for (const auto& [first, count] : std::views::reverse(runs)) {
    const auto begin = _rows.begin() + static_cast<std::ptrdiff_t>(first);
    beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count - 1));
    _rows.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
    endRemoveRows();
  }
}

/// Rows that change places together move as one block.
void KeyedListModel::moveRowsAsIn(const std::vector<Row>& wanted) {
  const auto present = setOf(_rows);
  std::vector<Row> order;
  std::ranges::copy_if(wanted, std::back_inserter(order),
                       [&](const Row& row) { return present.contains(row); });
  for (std::size_t at = 0; at < order.size(); ++at) {
    if (_rows[at].isSame(order[at])) continue;
    const auto target = _rows.begin() + static_cast<std::ptrdiff_t>(at);
    const auto first =
        std::find_if(target, _rows.end(), [&](const Row& row) { return row.isSame(order[at]); });
    const auto last =
        std::mismatch(first, _rows.end(), order.begin() + static_cast<std::ptrdiff_t>(at),
                      order.end(), SameRow{})
            .first;
    beginMoveRows({}, static_cast<int>(first - _rows.begin()),
                  static_cast<int>(last - _rows.begin()) - 1, {}, static_cast<int>(at));
    std::rotate(target, first, last);
    endMoveRows();
  }
}

void KeyedListModel::insertRowsOf(const std::vector<Row>& wanted) {
  const auto present = setOf(_rows);
  std::size_t at = 0;
  while (at < wanted.size()) {
    if (present.contains(wanted[at])) {
      ++at;
      continue;
    }
    const auto first = wanted.begin() + static_cast<std::ptrdiff_t>(at);
    const auto last =
        std::find_if(first, wanted.end(), [&](const Row& row) { return present.contains(row); });
    beginInsertRows({}, static_cast<int>(at), static_cast<int>(last - wanted.begin()) - 1);
    _rows.insert(_rows.begin() + static_cast<std::ptrdiff_t>(at), first, last);
    endInsertRows();
    at = static_cast<std::size_t>(last - wanted.begin());
  }
}

}  // namespace klarvik
