#include "panes/large_files/large_file_rows_model.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <utility>

#include "panes/kit/row_text.h"
#include "panes/large_files/large_files_texts.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

/// More rows than any screen has room for.
constexpr std::size_t mostRowsOnScreen = 80;

std::ptrdiff_t offset(std::size_t row) {
  return static_cast<std::ptrdiff_t>(row);
}

}  // namespace

LargeFileRowsModel::LargeFileRowsModel(const std::unordered_set<Uuid>& selected,
                                       const Desktop& desktop, QObject* parent)
    : QAbstractListModel(parent), _selected(selected), _desktop(desktop) {
  lookAt(-1, -1);
}

int LargeFileRowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_files.size());
}

QVariant LargeFileRowsModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const LargeFile& file = *_files[static_cast<std::size_t>(index.row())];
  switch (role) {
    case NameRole:
      return printableText(file.url.filename().native());
    case FolderRole:
      return folderLine(file.url, _desktop.files.home());
    case PathRole:
      return printableText(file.url.native());
    case UrlRole:
      return urlOfPath(file.url);
    case KindRole:
      return translated(file.kind());
    case LastOpenedRole:
      return translated(file.lastOpenedText(_desktop.formatting, _desktop.clock.now()));
    case SizeRole:
      return byteText(file.size, _desktop.formatting);
    case IsSelectedRole:
      return _selected.contains(file.id);
    case DescriptionRole:
      return large_files::description(file, _desktop.formatting, _desktop.clock.now());
    default:
      return {};
  }
}

QHash<int, QByteArray> LargeFileRowsModel::roleNames() const {
  return {{NameRole, "name"},
          {FolderRole, "folder"},
          {PathRole, "pathText"},
          {UrlRole, "url"},
          {KindRole, "kind"},
          {LastOpenedRole, "lastOpened"},
          {SizeRole, "size"},
          {IsSelectedRole, "isSelected"},
          {DescriptionRole, "description"}};
}

LargeFileList LargeFileRowsModel::apply(RowArrangement arrangement) {
  // From the end on, so that the rows before keep their numbers.
  for (const RowReplacement& each : std::views::reverse(arrangement.replacements)) {
    replace(each, arrangement.rows);
  }
  return std::move(arrangement.rows);
}

void LargeFileRowsModel::lookAt(int firstRow, int currentRow) {
  _inSight = {.first = static_cast<std::size_t>(std::max(0, firstRow)), .count = mostRowsOnScreen};
  if (currentRow >= 0) _inSight.current = static_cast<std::size_t>(currentRow);
}

void LargeFileRowsModel::selectionChanged(int row) {
  rowsChanged(static_cast<std::size_t>(row), 1, {IsSelectedRole});
}

void LargeFileRowsModel::refreshDates() {
  if (!_files.empty()) rowsChanged(0, _files.size(), {LastOpenedRole, DescriptionRole});
}

/// Takes the new files out of `fresh`, and leaves there those they stand in place of.
void LargeFileRowsModel::replace(const RowReplacement& replacement, LargeFileList& fresh) {
  const std::size_t overwritten = std::min(replacement.before, replacement.after);
  const std::size_t rest = replacement.at + overwritten;
  const auto place = _files.begin() + offset(rest);
  const auto added = fresh.begin() + offset(replacement.from + overwritten);

  if (replacement.after > overwritten) {
    const std::size_t count = replacement.after - overwritten;
    beginInsertRows({}, static_cast<int>(rest), static_cast<int>(rest + count - 1));
    _files.insert(place, std::make_move_iterator(added),
                  std::make_move_iterator(added + offset(count)));
    endInsertRows();
  } else if (replacement.before > overwritten) {
    const std::size_t count = replacement.before - overwritten;
    beginRemoveRows({}, static_cast<int>(rest), static_cast<int>(rest + count - 1));
    std::move(place, place + offset(count), std::back_inserter(fresh));
    _files.erase(place, place + offset(count));
    endRemoveRows();
  }
  if (overwritten == 0) return;
  std::swap_ranges(_files.begin() + offset(replacement.at),
                   _files.begin() + offset(replacement.at + overwritten),
                   fresh.begin() + offset(replacement.from));
  rowsChanged(replacement.at, overwritten);
}

void LargeFileRowsModel::rowsChanged(std::size_t first, std::size_t count,
                                     const QList<int>& roles) {
  emit dataChanged(index(static_cast<int>(first)), index(static_cast<int>(first + count - 1)),
                   roles);
}

}  // namespace klarvik
