#include "panes/smart_scan/scan_preview_model.h"

#include "translation/translation.h"

namespace klarvik {

ScanPreviewModel::ScanPreviewModel(const DiskLayout& layout, QObject* parent)
    : QAbstractListModel(parent) {
  for (const ScanRow& row : layout.scanRows) {
    _rows.push_back({.name = std::string(row.name), .level = safety(row.type)});
  }
}

int ScanPreviewModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant ScanPreviewModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const Row& row = _rows[static_cast<std::size_t>(index.row())];
  switch (role) {
    case NameRole:
      return translated(row.name);
    case SafetyRole:
      return static_cast<int>(row.level);
    default:
      return {};
  }
}

QHash<int, QByteArray> ScanPreviewModel::roleNames() const {
  return {{NameRole, "name"}, {SafetyRole, "safety"}};
}

}  // namespace klarvik
