#include "panes/system_data/system_data_table_model.h"

#include <QColor>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "panes/kit/donut.h"
#include "panes/kit/kit_enums.h"
#include "panes/kit/palette.h"
#include "panes/kit/row_text.h"
#include "panes/system_data/system_data_texts.h"
#include "translation/translation.h"

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
    : KeyedListModel(parent),
      _findings(findings),
      _formatting(formatting),
      _home(std::move(home)),
      _layout(layoutFor(_home)) {}

QVariant SystemDataTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role < RowKindRole) return {};
  const Row& row = rows()[static_cast<std::size_t>(index.row())];
  const auto category = static_cast<SystemDataSubCategory>(row.section);
  switch (role) {
    case RowKindRole:
      return row.kind;
    case KindNameRole:
      return translated(label(category, _layout));
    default:
      break;
  }
  switch (static_cast<RowKind>(row.kind)) {
    case RowKind::Kind:
      if (const SystemDataKind* kind = kindOf(row)) return dataOfKind(*kind, role);
      break;
    case RowKind::Header:
      if (role == NameRole || role == DescriptionRole) {
        return translated(klarvik::description(category, _layout));
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
  const Row& pressed = rows()[static_cast<std::size_t>(row)];
  if (pressed.kind == static_cast<int>(RowKind::Kind)) {
    toggleExpansion(static_cast<SystemDataSubCategory>(pressed.section));
  } else {
    toggleSelection(row);
  }
}

void SystemDataTableModel::toggleSelection(int row) {
  if (!hasIndex(row, 0)) return;
  const Row& pressed = rows()[static_cast<std::size_t>(row)];
  if (pressed.kind == static_cast<int>(RowKind::Kind)) {
    _findings.toggleKind(pressed.sectionPlace);
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

int SystemDataTableModel::kindRow(int row) const {
  while (rows()[static_cast<std::size_t>(row)].kind != static_cast<int>(RowKind::Kind)) --row;
  return row;
}

void SystemDataTableModel::syncRows() {
  showRows(rowsToShow());
}

void SystemDataTableModel::syncSelection() {
  if (!rows().empty()) emit dataChanged(index(0), index(rowCount() - 1), {SelectionRole});
}

std::vector<SystemDataTableModel::Row> SystemDataTableModel::rowsToShow() const {
  std::vector<Row> rows;
  const std::vector<SystemDataKind>& kinds = _findings.kinds();
  for (std::size_t place = 0; place < kinds.size(); ++place) {
    const SystemDataKind& kind = kinds[place];
    const auto add = [&](RowKind rowKind, std::size_t itemPlace, Uuid item = {}) {
      rows.push_back({.kind = static_cast<int>(rowKind),
                      .section = static_cast<int>(kind.kind),
                      .item = item,
                      .sectionPlace = place,
                      .itemPlace = itemPlace});
    };
    add(RowKind::Kind, 0);
    if (!_expandedCategories.contains(std::string(rawValue(kind.kind)))) continue;
    add(RowKind::Header, 0);
    for (std::size_t item = 0; item < kind.items.size(); ++item) {
      add(RowKind::Item, item, kind.items[item].id);
    }
  }
  return rows;
}

/// Nothing while the rows are being brought in line with findings that lack the kind.
const SystemDataKind* SystemDataTableModel::kindOf(const Row& row) const {
  const std::vector<SystemDataKind>& kinds = _findings.kinds();
  const std::size_t place = row.sectionPlace;
  const bool isThere = place < kinds.size() && static_cast<int>(kinds[place].kind) == row.section;
  return isThere ? &kinds[place] : nullptr;
}

const SystemDataItem* SystemDataTableModel::itemOf(const Row& row) const {
  const SystemDataKind* kind = kindOf(row);
  if (kind == nullptr || row.kind != static_cast<int>(RowKind::Item)) return nullptr;
  const std::size_t place = row.itemPlace;
  const bool isThere = place < kind->items.size() && kind->items[place].id == row.item;
  return isThere ? &kind->items[place] : nullptr;
}

QVariant SystemDataTableModel::dataOfKind(const SystemDataKind& kind, int role) const {
  const QString name = translated(label(kind.kind, _layout));
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
  const QString name = shownName(item.name, item.nameText);
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
