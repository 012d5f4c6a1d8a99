#include "panes/uninstaller/leftover_list.h"

#include <QUrl>
#include <algorithm>
#include <utility>

#include "base/bytes.h"
#include "panes/kit/file_url.h"
#include "panes/kit/row_text.h"
#include "panes/uninstaller/uninstaller_texts.h"

namespace klarvik {
namespace {

bool isKeptBack(ResidualCategory category) {
  return category == ResidualCategory::preferences || category == ResidualCategory::appSupport;
}

}  // namespace

LeftoverList::LeftoverList(const Formatting& formatting, QObject* parent)
    : QAbstractListModel(parent), _formatting(formatting) {}

int LeftoverList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant LeftoverList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = _rows[static_cast<std::size_t>(index.row())];
  const auto* heading = std::get_if<Heading>(&row);
  return heading != nullptr ? headingData(*heading, role)
                            : leftoverData(_residuals[std::get<std::size_t>(row)], role);
}

QHash<int, QByteArray> LeftoverList::roleNames() const {
  return {{KindRole, "kind"},
          {NameRole, "name"},
          {PathRole, "pathText"},
          {UrlRole, "url"},
          {WhatItIsRole, "whatItIs"},
          {SizeRole, "size"},
          {IsSelectedRole, "isSelected"},
          {DescriptionRole, "description"}};
}

std::vector<ResidualFile> LeftoverList::selectedResiduals() const {
  std::vector<ResidualFile> chosen;
  std::ranges::copy_if(
      _residuals, std::back_inserter(chosen),
      [this](const ResidualFile& residual) { return _selected.contains(residual.id); });
  return chosen;
}

std::int64_t LeftoverList::totalSize() const {
  std::int64_t sum = 0;
  for (const ResidualFile& residual : _residuals) sum = addBytes(sum, residual.size);
  return sum;
}

std::int64_t LeftoverList::selectedSize() const {
  std::int64_t sum = 0;
  for (const ResidualFile& residual : _residuals) {
    if (_selected.contains(residual.id)) sum = addBytes(sum, residual.size);
  }
  return sum;
}

void LeftoverList::show(std::vector<ResidualFile> residuals) {
  clear();
  std::vector<Row> rows = rowsOf(residuals);
  if (rows.empty()) return;
  for (const ResidualFile& residual : residuals) {
    if (!isKeptBack(residual.category)) _selected.insert(residual.id);
  }
  beginInsertRows({}, 0, static_cast<int>(rows.size()) - 1);
  _residuals = std::move(residuals);
  _rows = std::move(rows);
  endInsertRows();
  emit selectionChanged();
}

void LeftoverList::clear() {
  if (_rows.empty()) return;
  beginRemoveRows({}, 0, rowCount() - 1);
  _rows.clear();
  _residuals.clear();
  _selected.clear();
  endRemoveRows();
  emit selectionChanged();
}

void LeftoverList::toggle(int row) {
  if (!hasIndex(row, 0)) return;
  const auto* place = std::get_if<std::size_t>(&_rows[static_cast<std::size_t>(row)]);
  if (place == nullptr) return;
  const Uuid& id = _residuals[*place].id;
  if (_selected.erase(id) == 0) _selected.insert(id);
  emit dataChanged(index(row), index(row), {IsSelectedRole});
  emit selectionChanged();
}

std::vector<LeftoverList::Row> LeftoverList::rowsOf(
    const std::vector<ResidualFile>& residuals) const {
  std::vector<Row> rows;
  for (const ResidualCategory category : allResidualCategories()) {
    const std::size_t headingRow = rows.size();
    Heading heading{category, 0};
    for (std::size_t place = 0; place < residuals.size(); ++place) {
      if (residuals[place].category != category) continue;
      if (rows.size() == headingRow) rows.emplace_back(heading);
      heading.size = addBytes(heading.size, residuals[place].size);
      rows.emplace_back(place);
    }
    if (rows.size() > headingRow) rows[headingRow] = heading;
  }
  return rows;
}

QVariant LeftoverList::headingData(const Heading& heading, int role) const {
  const QString name = printableText(rawValue(heading.category));
  const QString size = byteText(heading.size, _formatting);
  const QString whatItIs = uninstaller::whatItIs(heading.category);
  switch (role) {
    case KindRole:
      return static_cast<int>(RowKind::Heading);
    case NameRole:
      return name;
    case PathRole:
      return QString();
    case UrlRole:
      return QUrl();
    case WhatItIsRole:
      return whatItIs;
    case SizeRole:
      return size;
    case IsSelectedRole:
      return false;
    case DescriptionRole:
      return rowDescription(name, size, whatItIs);
    default:
      return {};
  }
}

QVariant LeftoverList::leftoverData(const ResidualFile& residual, int role) const {
  const QString name = printableText(residual.url.filename().native());
  const QString size = byteText(residual.size, _formatting);
  const QString whatItIs = uninstaller::whatItIs(residual.category);
  switch (role) {
    case KindRole:
      return static_cast<int>(RowKind::Leftover);
    case NameRole:
      return name;
    case PathRole:
      return printableText(residual.url.native());
    case UrlRole:
      return urlOfPath(residual.url);
    case WhatItIsRole:
      return whatItIs;
    case SizeRole:
      return size;
    case IsSelectedRole:
      return _selected.contains(residual.id);
    case DescriptionRole:
      return rowDescription(name, size, whatItIs);
    default:
      return {};
  }
}

}  // namespace klarvik
