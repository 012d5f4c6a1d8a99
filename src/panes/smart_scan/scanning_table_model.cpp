#include "panes/smart_scan/scanning_table_model.h"

#include <algorithm>

#include "panes/kit/row_text.h"
#include "places/disk_layout.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

ScanningTableModel::RowSafety rowSafety(const FoundRow::Safety& safety) {
  const SafetyLevel* level = std::get_if<SafetyLevel>(&safety);
  if (level == nullptr) {
    return ScanningTableModel::RowSafety::InProgress;
  }
  return *level == SafetyLevel::safe ? ScanningTableModel::RowSafety::Safe
                                     : ScanningTableModel::RowSafety::Review;
}

QString verdict(const FoundRow::Safety& safety) {
  const SafetyLevel* level = std::get_if<SafetyLevel>(&safety);
  return level != nullptr ? verdictText(*level) : translate("SmartScan", "Scanning");
}

bool isRunning(const FoundRow& row) {
  return std::holds_alternative<FoundRow::InProgress>(row.safety);
}

/// Two rows that stand for the same thing, whatever has been counted by now.
bool isSameLine(const FoundRow& left, const FoundRow& right) {
  return isRunning(left) == isRunning(right) && (isRunning(left) || left.name == right.name);
}

}  // namespace

ScanningTableModel::ScanningTableModel(const AppState& appState, const Formatting& formatting,
                                       QObject* parent)
    : QAbstractListModel(parent), _appState(appState), _formatting(formatting) {
  update();
}

void ScanningTableModel::update() {
  const std::vector<FoundRow> current = currentRows();
  for (std::size_t at = 0; at < current.size(); ++at) {
    if (at == _rows.size() || (isRunning(_rows[at]) && !isRunning(current[at]))) {
      insert(at, current[at]);
    } else if (!isSameLine(_rows[at], current[at])) {
      remove(at, _rows.size() - at);
      insert(at, current[at]);
    } else if (_rows[at] != current[at]) {
      _rows[at] = current[at];
      const QModelIndex changed = index(static_cast<int>(at));
      emit dataChanged(changed, changed);
    }
  }
  if (_rows.size() > current.size()) {
    remove(current.size(), _rows.size() - current.size());
  }
}

int ScanningTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant ScanningTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const FoundRow& row = _rows[static_cast<std::size_t>(index.row())];
  switch (role) {
    case NameRole:
      return translated(row.name);
    case SafetyRole:
      return static_cast<int>(rowSafety(row.safety));
    case ItemsRole:
      return QString::number(row.items);
    case SizeRole:
      return byteText(row.bytes, _formatting);
    case DescriptionRole:
      return rowDescription(translated(row.name), byteText(row.bytes, _formatting),
                            verdict(row.safety));
    default:
      return {};
  }
}

QHash<int, QByteArray> ScanningTableModel::roleNames() const {
  return {{NameRole, "name"},
          {SafetyRole, "safety"},
          {ItemsRole, "items"},
          {SizeRole, "size"},
          {DescriptionRole, "description"}};
}

std::vector<FoundRow> ScanningTableModel::currentRows() const {
  if (!std::holds_alternative<AppState::Scanning>(_appState.scanState())) {
    return {};
  }
  std::vector<FoundRow> rows;
  for (const CleanCategory& category : _appState.scanResults()) {
    if (!category.hasItems()) continue;
    const ItemSum found = _appState.selectedItems().total(category.id);
    rows.push_back({std::string(_appState.layout().label(category.type)), safety(category.type),
                    found.count, found.size});
  }
  const AppState::ScanActivity& activity = _appState.scanActivity();
  if (!activity.categoryName.empty()) {
    rows.push_back({activity.categoryName, FoundRow::InProgress{}, activity.partialItems,
                    activity.partialBytes});
  }
  return rows;
}

void ScanningTableModel::remove(std::size_t first, std::size_t count) {
  const auto begin = _rows.begin() + static_cast<std::ptrdiff_t>(first);
  beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count - 1));
  _rows.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
  endRemoveRows();
}

void ScanningTableModel::insert(std::size_t at, const FoundRow& row) {
  beginInsertRows({}, static_cast<int>(at), static_cast<int>(at));
  _rows.insert(_rows.begin() + static_cast<std::ptrdiff_t>(at), row);
  endInsertRows();
}

}  // namespace klarvik
