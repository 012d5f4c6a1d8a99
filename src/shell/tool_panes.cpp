#include "shell/tool_panes.h"

#include "panes/duplicates/duplicate_finder_view.h"
#include "panes/large_files/large_file_finder_view.h"
#include "panes/privacy/privacy_cleaner_view.h"
#include "panes/smart_scan/smart_scan_pane.h"
#include "panes/storage/storage_analytics_view.h"
#include "panes/system_data/system_data_view.h"
#include "panes/uninstaller/app_uninstaller_view.h"

namespace klarvik {
namespace {

QUrl view(const QString& file) {
  return QUrl("qrc:/Klarvik/Panes/" + file);
}

}  // namespace

std::vector<LandedPane> makePanes(AppState& appState, SharedState& shared, const Desktop& desktop) {
  return {
      {Section::smartScan, view("SmartScanPane.qml"),
       std::make_shared<SmartScanPane>(appState, shared, desktop)},
      {Section::storage, view("StorageAnalyticsView.qml"),
       std::make_shared<StorageAnalyticsView>(shared, desktop)},
      {Section::duplicates, view("DuplicateFinderView.qml"),
       std::make_shared<DuplicateFinderView>(shared, desktop)},
      {Section::largeFiles, view("LargeFileFinderView.qml"),
       std::make_shared<LargeFileFinderView>(shared, desktop)},
      {Section::systemData, view("SystemDataView.qml"),
       std::make_shared<SystemDataView>(shared, desktop)},
      {Section::uninstaller, view("AppUninstallerView.qml"),
       std::make_shared<AppUninstallerView>(shared, desktop)},
      {Section::privacy, view("PrivacyCleanerView.qml"),
       std::make_shared<PrivacyCleanerView>(shared, desktop)},
  };
}

}  // namespace klarvik
