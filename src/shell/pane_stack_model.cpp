#include "shell/pane_stack_model.h"

#include <algorithm>
#include <utility>

namespace klarvik {

PaneStackModel::PaneStackModel(std::vector<PaneEntry> panes, const Navigator& navigator,
                               QObject* parent)
    : QAbstractListModel(parent), _panes(std::move(panes)), _navigator(navigator) {
  std::ranges::sort(_panes, {}, &PaneEntry::section);
  connect(&navigator, &Navigator::sectionChanged, this, [this] {
    if (!_panes.empty()) {
      emit dataChanged(index(0), index(rowCount() - 1), {IsSelectedRole});
    }
  });
}

int PaneStackModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_panes.size());
}

QVariant PaneStackModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const PaneEntry& pane = _panes[static_cast<std::size_t>(index.row())];
  switch (role) {
    case ViewRole:
      return pane.view;
    case ModelRole:
      return QVariant::fromValue<QObject*>(pane.model.get());
    case IsSelectedRole:
      return pane.section == _navigator.section();
    default:
      return {};
  }
}

QHash<int, QByteArray> PaneStackModel::roleNames() const {
  return {{ViewRole, "view"}, {ModelRole, "paneModel"}, {IsSelectedRole, "isSelected"}};
}

}  // namespace klarvik
