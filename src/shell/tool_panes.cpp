#include "shell/tool_panes.h"

#include <algorithm>
#include <utility>

#include "panes/duplicates/duplicate_finder_model.h"
#include "panes/large_files/large_file_finder_model.h"
#include "panes/privacy/privacy_cleaner_model.h"
#include "panes/smart_scan/smart_scan_model.h"
#include "panes/storage/storage_analytics_model.h"
#include "panes/system_data/system_data_model.h"
#include "panes/uninstaller/app_uninstaller_model.h"

namespace klarvik {
namespace {

QUrl view(const QString& file) {
  return QUrl("qrc:/Klarvik/Panes/" + file);
}

}  // namespace

std::vector<PaneEntry> makePanes(AppState& appState, SharedState& shared, const Desktop& desktop) {
  return {
      {Section::smartScan, view("SmartScanPane.qml"),
       std::make_shared<SmartScanModel>(appState, shared, desktop)},
      {Section::storage, view("StorageAnalyticsView.qml"),
       std::make_shared<StorageAnalyticsModel>(shared, desktop)},
      {Section::duplicates, view("DuplicateFinderView.qml"),
       std::make_shared<DuplicateFinderModel>(shared, desktop)},
      {Section::largeFiles, view("LargeFileFinderView.qml"),
       std::make_shared<LargeFileFinderModel>(shared, desktop)},
      {Section::systemData, view("SystemDataView.qml"),
       std::make_shared<SystemDataModel>(shared, desktop)},
      {Section::uninstaller, view("AppUninstallerView.qml"),
       std::make_shared<AppUninstallerModel>(shared, desktop)},
      {Section::privacy, view("PrivacyCleanerView.qml"),
       std::make_shared<PrivacyCleanerModel>(shared, desktop)},
  };
}

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
