#include "panes/sectioned_list.h"

#include <utility>

namespace klarvik {

int SectionedList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant SectionedList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = _rows[static_cast<std::size_t>(index.row())];
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
  const Row& pressed = _rows[static_cast<std::size_t>(row)];
  if (!pressed.item || !pressed.canSelect) return;
  if (_selected.erase(*pressed.item) == 0) _selected.insert(*pressed.item);
  emit dataChanged(index(row), index(row), {IsSelectedRole});
  emit selectionChanged();
}

void SectionedList::fill(std::vector<Row> rows, std::unordered_set<Uuid> selected) {
  if (rows.empty()) return;
  beginInsertRows({}, 0, static_cast<int>(rows.size()) - 1);
  _rows = std::move(rows);
  _selected = std::move(selected);
  endInsertRows();
  emit selectionChanged();
}

void SectionedList::empty() {
  if (_rows.empty()) return;
  beginRemoveRows({}, 0, rowCount() - 1);
  _rows.clear();
  _selected.clear();
  endRemoveRows();
  emit selectionChanged();
}

void SectionedList::remove(const std::unordered_set<Uuid>& items) {
  bool sectionIsEmpty = true;
  for (std::size_t row = _rows.size(); row > 0; --row) {
    const std::optional<Uuid>& item = _rows[row - 1].item;
    const bool isHeading = !item.has_value();
    const bool goes = isHeading ? sectionIsEmpty : items.contains(*item);
    sectionIsEmpty = isHeading || (goes && sectionIsEmpty);
    if (goes) removeRow(row - 1);
  }
  for (const Uuid& item : items) _selected.erase(item);
  emit selectionChanged();
}

void SectionedList::removeRow(std::size_t row) {
  beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row));
  _rows.erase(_rows.begin() + static_cast<std::ptrdiff_t>(row));
  endRemoveRows();
}

}  // namespace klarvik
