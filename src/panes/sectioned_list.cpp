#include "panes/sectioned_list.h"

#include <utility>

namespace klarvik {

QVariant SectionedList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const ShownRow& row = _shown[rows()[static_cast<std::size_t>(index.row())].itemPlace];
  switch (role) {
    case KindRole:
      return static_cast<int>(row.item ? RowKind::Item : RowKind::Heading);
    case NameRole:
      return row.name;
    case PathRole:
      return row.path;
    case UrlRole:
      return row.url;
    case NoteRole:
      return row.note;
    case CountRole:
      return row.count;
    case SizeRole:
      return row.size;
    case IsSelectedRole:
      return row.item && _selected.contains(*row.item);
    case CanSelectRole:
      return row.item && row.canSelect;
    case DescriptionRole:
      return row.description;
    default:
      return {};
  }
}

QHash<int, QByteArray> SectionedList::roleNames() const {
  return {{KindRole, "kind"},           {NameRole, "name"},
          {PathRole, "pathText"},       {UrlRole, "url"},
          {NoteRole, "note"},           {CountRole, "count"},
          {SizeRole, "size"},           {IsSelectedRole, "isSelected"},
          {CanSelectRole, "canSelect"}, {DescriptionRole, "description"}};
}

void SectionedList::toggle(int row) {
  if (!hasIndex(row, 0)) return;
  const ShownRow& pressed = _shown[rows()[static_cast<std::size_t>(row)].itemPlace];
  if (!pressed.item || !pressed.canSelect) return;
  if (_selected.erase(*pressed.item) == 0) _selected.insert(*pressed.item);
  emit dataChanged(index(row), index(row), {IsSelectedRole});
  emit selectionChanged();
}

void SectionedList::fill(std::vector<ShownRow> rows, std::unordered_set<Uuid> selected) {
  if (rows.empty()) return;
  _shown = std::move(rows);
  _selected = std::move(selected);
  std::vector<Row> wanted;
  int section = 0;
  for (std::size_t place = 0; place < _shown.size(); ++place) {
    const std::optional<Uuid>& item = _shown[place].item;
    if (!item) ++section;
    wanted.push_back({.section = section, .item = item.value_or(Uuid()), .itemPlace = place});
  }
  showRows(wanted);
  emit selectionChanged();
}

void SectionedList::empty() {
  if (_shown.empty()) return;
  showRows({});
  _shown.clear();
  _selected.clear();
  emit selectionChanged();
}

void SectionedList::replace(ShownRow row) {
  const auto found = std::ranges::find(rows(), row.item,
                                       [](const Row& shown) { return std::optional(shown.item); });
  if (found == rows().end()) return;
  if (!row.canSelect) _selected.erase(found->item);
  _shown[found->itemPlace] = std::move(row);
  const QModelIndex changed = index(static_cast<int>(found - rows().begin()));
  emit dataChanged(changed, changed);
  emit selectionChanged();
}

void SectionedList::remove(const std::unordered_set<Uuid>& items) {
  std::vector<Row> kept;
  for (const Row& row : rows()) {
    if (_shown[row.itemPlace].item && items.contains(row.item)) continue;
    const bool isHeading = !_shown[row.itemPlace].item;
    const bool followsHeading = !kept.empty() && !_shown[kept.back().itemPlace].item;
    if (isHeading && followsHeading) kept.pop_back();
    kept.push_back(row);
  }
  if (!kept.empty() && !_shown[kept.back().itemPlace].item) kept.pop_back();
  showRows(kept);
  for (const Uuid& item : items) _selected.erase(item);
  emit selectionChanged();
}

}  // namespace klarvik
