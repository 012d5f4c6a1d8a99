#include "panes/duplicates/duplicate_rows_model.h"

#include <QUrl>
#include <algorithm>
#include <ranges>
#include <utility>

#include "panes/duplicates/duplicates_texts.h"
#include "panes/kit/row_ranges.h"
#include "panes/kit/row_text.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

std::ptrdiff_t offset(std::size_t row) {
  return static_cast<std::ptrdiff_t>(row);
}

SelectionState::Value selectionOf(const ChosenGroup& group) {
  if (group.selectedCount == 0) return SelectionState::None;
  return group.selectedCount + 1 == group.group.files.size() ? SelectionState::All
                                                             : SelectionState::Partial;
}

/// What a row says that has nothing to say: a view binds every role of every row.
QVariant nothing(int role) {
  switch (role) {
    case DuplicateRowsModel::SelectionRole:
    case DuplicateRowsModel::FateRole:
      return 0;
    case DuplicateRowsModel::CanToggleRole:
    case DuplicateRowsModel::IsExpandedRole:
      return false;
    case DuplicateRowsModel::UrlRole:
      return QUrl();
    default:
      return QString();
  }
}

}  // namespace

DuplicateRowsModel::DuplicateRowsModel(const DuplicateChoice& choice, const Desktop& desktop,
                                       QObject* parent)
    : QAbstractListModel(parent), _choice(choice), _desktop(desktop) {}

int DuplicateRowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant DuplicateRowsModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role < IsGroupRole) return {};
  const Row& row = at(index.row());
  if (role == IsGroupRole) return row.isGroup();
  return row.isGroup() ? dataOfGroup(*row.group, role) : dataOfCopy(*row.group, row.file, role);
}

QHash<int, QByteArray> DuplicateRowsModel::roleNames() const {
  return {{IsGroupRole, "isGroup"},
          {NameRole, "name"},
          {FolderRole, "folder"},
          {PathRole, "pathText"},
          {UrlRole, "url"},
          {SelectionRole, "selection"},
          {CanToggleRole, "canToggle"},
          {FateRole, "fate"},
          {DateRole, "date"},
          {MenuEntryRole, "menuEntry"},
          {CopiesRole, "copies"},
          {EachRole, "each"},
          {ReclaimableRole, "reclaimable"},
          {IsExpandedRole, "isExpanded"},
          {DescriptionRole, "description"}};
}

void DuplicateRowsModel::lookAt(int firstRow) {
  _firstInSight = static_cast<std::size_t>(std::max(0, firstRow));
}

void DuplicateRowsModel::toggleExpanded(int row) {
  const auto head = static_cast<std::size_t>(groupRow(row));
  const ChosenGroup* group = _rows[head].group;
  if (_expanded.erase(group->group.id) > 0) {
    takeRows(head + 1, rowsBelow(head));
  } else {
    _expanded.insert(group->group.id);
    insertCopies(head);
  }
  const QModelIndex changed = index(static_cast<int>(head));
  emit dataChanged(changed, changed, {IsExpandedRole});
}

void DuplicateRowsModel::insertCopies(std::size_t groupRow) {
  const ChosenGroup* group = _rows[groupRow].group;
  const std::size_t count = group->group.files.size();
  if (count == 0) return;
  const std::size_t first = groupRow + 1;
  beginInsertRows({}, static_cast<int>(first), static_cast<int>(first + count - 1));
  _rows.insert(_rows.begin() + offset(first), count, Row{group});
  for (std::size_t file = 0; file < count; ++file) _rows[first + file].file = file;
  endInsertRows();
}

void DuplicateRowsModel::removeAll() {
  _expanded.clear();
  takeRows(0, _rows.size());
}

void DuplicateRowsModel::insertAll() {
  const ChosenGroups& groups = _choice.groups();
  if (groups.empty()) return;
  beginInsertRows({}, 0, static_cast<int>(groups.size()) - 1);
  _rows.reserve(groups.size());
  for (const auto& group : groups) _rows.push_back({group.get()});
  endInsertRows();
  toggleExpanded(0);
}

void DuplicateRowsModel::removeFiles(const DuplicateChoice::Paths& gone,
                                     const DuplicateChoice::GroupSet& dissolved) {
  const IsGone isGone = [&](const Row& row) {
    if (dissolved.contains(row.group)) return true;
    return !row.isGroup() && gone.contains(row.group->group.files[row.file].url);
  };
  for (const ChosenGroup* group : dissolved) _expanded.erase(group->group.id);

  const std::vector<RowRange> runs =
      rangesOf(_rows.size(), [&](std::size_t row) { return isGone(_rows[row]); });
  if (runs.size() > mostRuns) {
    const std::size_t sight = std::min(_firstInSight, _rows.size());
    const auto anchor = std::find_if_not(_rows.begin() + offset(sight), _rows.end(), isGone);
    const auto middle = static_cast<std::size_t>(std::distance(_rows.begin(), anchor));
    removeWithin(middle, _rows.size(), isGone);
    removeWithin(0, middle, isGone);
    return;
  }
  for (const auto& [first, count] : std::views::reverse(runs)) takeRows(first, count);
}

void DuplicateRowsModel::allChanged() {
  std::size_t file = 0;
  for (Row& row : _rows) {
    if (row.isGroup()) {
      file = 0;
    } else {
      row.file = file++;
    }
  }
  if (!_rows.empty()) emit dataChanged(index(0), index(rowCount() - 1));
}

void DuplicateRowsModel::groupChanged(int row) {
  const auto head = static_cast<std::size_t>(groupRow(row));
  emit dataChanged(index(static_cast<int>(head)), index(static_cast<int>(head + rowsBelow(head))));
}

void DuplicateRowsModel::takeRows(std::size_t first, std::size_t count) {
  if (count == 0) return;
  beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count - 1));
  _rows.erase(_rows.begin() + offset(first), _rows.begin() + offset(first + count));
  endRemoveRows();
}

/// The rows from `first` up to `last` close ranks: as many as are gone are taken off the end of the
/// run, and all others there may have become others.
void DuplicateRowsModel::removeWithin(std::size_t first, std::size_t last, const IsGone& isGone) {
  const auto begin = _rows.begin() + offset(first);
  const auto end = _rows.begin() + offset(last);
  const auto count = static_cast<std::size_t>(std::count_if(begin, end, isGone));
  if (count == 0) return;
  beginRemoveRows({}, static_cast<int>(last - count), static_cast<int>(last - 1));
  _rows.erase(std::remove_if(begin, end, isGone), end);
  endRemoveRows();
}

int DuplicateRowsModel::groupRow(int row) const {
  while (!at(row).isGroup()) --row;
  return row;
}

std::size_t DuplicateRowsModel::rowsBelow(std::size_t groupRow) const {
  const auto first = _rows.begin() + offset(groupRow + 1);
  return static_cast<std::size_t>(
      std::distance(first, std::find_if(first, _rows.end(), std::mem_fn(&Row::isGroup))));
}

QVariant DuplicateRowsModel::dataOfGroup(const ChosenGroup& group, int role) const {
  const std::vector<DuplicateFile>& files = group.group.files;
  switch (role) {
    case NameRole:
      return duplicates::groupName(group.group);
    case SelectionRole:
      return static_cast<int>(selectionOf(group));
    case CanToggleRole:
      return true;
    case CopiesRole:
      return QString::number(files.size());
    case EachRole:
      return byteText(files.empty() ? 0 : files.front().size, _desktop.formatting);
    case ReclaimableRole:
      return byteText(group.removableBytes, _desktop.formatting);
    case IsExpandedRole:
      return _expanded.contains(group.group.id);
    case DescriptionRole:
      return duplicates::groupDescription(group, _desktop.formatting);
    default:
      return nothing(role);
  }
}

KeepOrDelete::Value DuplicateRowsModel::fate(const ChosenGroup& group, std::size_t file) const {
  if (file == group.keeper) return KeepOrDelete::Keep;
  const bool isMarked =
      !layoutFor(_desktop.files.home()).marksSelectedCopiesOnly || _choice.isSelected(group, file);
  return isMarked ? KeepOrDelete::Delete : KeepOrDelete::Neither;
}

QVariant DuplicateRowsModel::dataOfCopy(const ChosenGroup& group, std::size_t file,
                                        int role) const {
  const DuplicateFile& copy = group.group.files[file];
  const bool isKeeper = file == group.keeper;
  switch (role) {
    case NameRole:
      return printableText(copy.url.filename().native());
    case FolderRole:
      return folderLine(copy.url, _desktop.files.home());
    case PathRole:
      return printableText(copy.url.native());
    case UrlRole:
      return urlOfPath(copy.url);
    case SelectionRole:
      return static_cast<int>(_choice.isSelected(group, file) ? SelectionState::All
                                                              : SelectionState::None);
    case CanToggleRole:
      return !isKeeper;
    case FateRole:
      return static_cast<int>(fate(group, file));
    case DateRole:
      return copy.modifiedDate
                 ? QString::fromStdString(_desktop.formatting.dateAndTime(*copy.modifiedDate))
                 : QString();
    case MenuEntryRole:
      return duplicates::menuEntry(isKeeper);
    case DescriptionRole:
      return duplicates::copyDescription(copy, fate(group, file), _desktop.files.home(),
                                         _desktop.formatting);
    default:
      return nothing(role);
  }
}

}  // namespace klarvik
