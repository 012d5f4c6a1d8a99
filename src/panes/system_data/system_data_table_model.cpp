#include "panes/system_data/system_data_table_model.h"

#include <QColor>
#include <QUrl>
#include <algorithm>
#include <ranges>
#include <unordered_set>
#include <utility>

#include "panes/kit/donut.h"
#include "panes/kit/file_url.h"
#include "panes/kit/kit_enums.h"
#include "panes/kit/palette.h"
#include "panes/kit/row_ranges.h"
#include "panes/kit/row_text.h"
#include "panes/system_data/system_data_texts.h"

namespace klarvik {
namespace {

QString text(std::string_view bytes) {
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// What a row says that has nothing to say: a view binds every role of every row.
QVariant nothing(int role) {
  switch (role) {
    case SystemDataTableModel::SafetyRole:
      return static_cast<int>(ItemSafety::protected_);
    case SystemDataTableModel::SelectionRole:
      return static_cast<int>(SelectionState::None);
    case SystemDataTableModel::CanToggleRole:
    case SystemDataTableModel::IsExpandedRole:
      return false;
    case SystemDataTableModel::ColorRole:
      return QColor(Qt::transparent);
    case SystemDataTableModel::UrlRole:
      return QUrl();
    default:
      return QString();
  }
}

SelectionState::Value selectionOf(const SystemDataKind& kind) {
  if (kind.selectedCount == 0) return SelectionState::None;
  return kind.selectedCount == kind.removableCount ? SelectionState::All : SelectionState::Partial;
}

}  // namespace

SystemDataTableModel::SystemDataTableModel(SystemDataFindings& findings,
                                           const Formatting& formatting, Path home, QObject* parent)
    : QAbstractListModel(parent),
      _findings(findings),
      _formatting(formatting),
      _home(std::move(home)),
      _layout(layoutFor(_home)) {}

int SystemDataTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant SystemDataTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role < RowKindRole) return {};
  const Row& row = _rows[static_cast<std::size_t>(index.row())];
  switch (role) {
    case RowKindRole:
      return static_cast<int>(row.kind);
    case KindNameRole:
      return text(label(row.category, _layout));
    default:
      break;
  }
  switch (row.kind) {
    case RowKind::Kind:
      if (const SystemDataKind* kind = kindOf(row)) return dataOfKind(*kind, role);
      break;
    case RowKind::Header:
      if (role == NameRole || role == DescriptionRole) {
        return text(klarvik::description(row.category, _layout));
      }
      break;
    case RowKind::Item:
      if (const SystemDataItem* item = itemOf(row)) return dataOfItem(*item, role);
      break;
  }
  return nothing(role);
}

QHash<int, QByteArray> SystemDataTableModel::roleNames() const {
  return {{RowKindRole, "rowKind"},
          {KindNameRole, "kindName"},
          {NameRole, "name"},
          {DetailRole, "detail"},
          {PathRole, "path"},
          {UrlRole, "url"},
          {SymbolRole, "symbol"},
          {ColorRole, "color"},
          {SafetyRole, "safety"},
          {SafetyTextRole, "safetyText"},
          {SelectionRole, "selection"},
          {CanToggleRole, "canToggle"},
          {SelectionHelpRole, "selectionHelp"},
          {ShareRole, "share"},
          {SizeRole, "size"},
          {IsExpandedRole, "isExpanded"},
          {DescriptionRole, "description"}};
}

void SystemDataTableModel::activate(int row) {
  if (!hasIndex(row, 0)) return;
  const Row& pressed = _rows[static_cast<std::size_t>(row)];
  if (pressed.kind == RowKind::Kind) {
    toggleExpansion(pressed.category);
  } else {
    toggleSelection(row);
  }
}

void SystemDataTableModel::toggleSelection(int row) {
  if (!hasIndex(row, 0)) return;
  const Row& pressed = _rows[static_cast<std::size_t>(row)];
  if (pressed.kind == RowKind::Kind) {
    _findings.toggleKind(pressed.place);
  } else if (const SystemDataItem* item = itemOf(pressed)) {
    _findings.toggle(*item);
  }
  syncSelection();
  emit selectionToggled();
}

void SystemDataTableModel::toggleExpansion(SystemDataSubCategory category) {
  const std::string name(rawValue(category));
  if (_expandedCategories.erase(name) == 0) _expandedCategories.insert(name);
  syncRows();
}

void SystemDataTableModel::syncRows() {
  const std::vector<Row> wanted = rowsToShow();
  removeRowsMissingFrom(wanted);
  moveRowsAsIn(wanted);
  insertRowsOf(wanted);
  _rows = wanted;
  if (!_rows.empty()) emit dataChanged(index(0), index(rowCount() - 1));
}

void SystemDataTableModel::syncSelection() {
  if (!_rows.empty()) emit dataChanged(index(0), index(rowCount() - 1), {SelectionRole});
}

std::vector<SystemDataTableModel::Row> SystemDataTableModel::rowsToShow() const {
  std::vector<Row> rows;
  const std::vector<SystemDataKind>& kinds = _findings.kinds();
  for (std::size_t place = 0; place < kinds.size(); ++place) {
    const SystemDataKind& kind = kinds[place];
    rows.push_back({.kind = RowKind::Kind, .category = kind.kind, .place = place});
    if (!_expandedCategories.contains(std::string(rawValue(kind.kind)))) continue;
    rows.push_back({.kind = RowKind::Header, .category = kind.kind, .place = place});
    for (std::size_t item = 0; item < kind.items.size(); ++item) {
      rows.push_back({.kind = RowKind::Item,
                      .category = kind.kind,
                      .place = place,
                      .item = item,
                      .id = kind.items[item].id});
    }
  }
  return rows;
}

void SystemDataTableModel::removeRowsMissingFrom(const std::vector<Row>& wanted) {
  const std::unordered_set<Row, RowHash, SameRow> kept(wanted.begin(), wanted.end());
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

/// Kinds change places as their sizes change; each moves as one block.
void SystemDataTableModel::moveRowsAsIn(const std::vector<Row>& wanted) {
  const std::unordered_set<Row, RowHash, SameRow> present(_rows.begin(), _rows.end());
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

void SystemDataTableModel::insertRowsOf(const std::vector<Row>& wanted) {
  const std::unordered_set<Row, RowHash, SameRow> present(_rows.begin(), _rows.end());
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

/// Nothing while the rows are being brought in line with findings that lack the kind.
const SystemDataKind* SystemDataTableModel::kindOf(const Row& row) const {
  const std::vector<SystemDataKind>& kinds = _findings.kinds();
  const bool isThere = row.place < kinds.size() && kinds[row.place].kind == row.category;
  return isThere ? &kinds[row.place] : nullptr;
}

const SystemDataItem* SystemDataTableModel::itemOf(const Row& row) const {
  const SystemDataKind* kind = kindOf(row);
  if (kind == nullptr || row.kind != RowKind::Item) return nullptr;
  const bool isThere = row.item < kind->items.size() && kind->items[row.item].id == row.id;
  return isThere ? &kind->items[row.item] : nullptr;
}

QVariant SystemDataTableModel::dataOfKind(const SystemDataKind& kind, int role) const {
  const QString name = text(label(kind.kind, _layout));
  const QString size = byteText(kind.bytes, _formatting);
  const QString safety = QString::fromStdString(system_data::safetyText(kind.safety));
  switch (role) {
    case NameRole:
      return name;
    case DetailRole:
      return QString::fromStdString(system_data::kindDetail(kind.items.size(), kind.kind, _layout));
    case SymbolRole:
      return text(icon(kind.kind));
    case ColorRole:
      return Palette::color(klarvik::color(kind.kind));
    case SafetyRole:
      return static_cast<int>(kind.safety);
    case SafetyTextRole:
      return safety;
    case SelectionRole:
      return static_cast<int>(selectionOf(kind));
    case CanToggleRole:
      return kind.removableCount > 0;
    case SelectionHelpRole:
      return QString::fromStdString(system_data::selectionHelp(kind.kind, _layout));
    case ShareRole:
      return isCounted(kind.kind) ? shareText(_findings.share(kind.bytes)) : QString();
    case SizeRole:
      return size;
    case IsExpandedRole:
      return _expandedCategories.contains(std::string(rawValue(kind.kind)));
    case DescriptionRole:
      return rowDescription(name, size, safety);
    default:
      return nothing(role);
  }
}

QVariant SystemDataTableModel::dataOfItem(const SystemDataItem& item, int role) const {
  const QString name = printableText(item.name);
  const QString size = byteText(item.size, _formatting);
  const QString safety = QString::fromStdString(system_data::safetyText(item.safety()));
  switch (role) {
    case NameRole:
      return name;
    case DetailRole:
      return _layout.ledger.empty() ? folderLine(item.path, _home)
                                    : printableText(system_data::itemDetail(item, _home));
    case PathRole:
      return printableText(item.path.native());
    case UrlRole:
      return item.path.is_absolute() ? urlOfPath(item.path) : QUrl();
    case SafetyRole:
      return static_cast<int>(item.safety());
    case SafetyTextRole:
      return safety;
    case SelectionRole:
      return static_cast<int>(_findings.isSelected(item) ? SelectionState::All
                                                         : SelectionState::None);
    case CanToggleRole:
      return item.isRemovable();
    case ShareRole:
      return isCounted(item.subCategory) ? shareText(_findings.share(item.size)) : QString();
    case SizeRole:
      return size;
    case DescriptionRole:
      return rowDescription(name, size, safety);
    default:
      return nothing(role);
  }
}

}  // namespace klarvik
