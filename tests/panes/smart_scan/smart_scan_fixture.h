#pragma once

#include "../pane_fixture.h"
#include "panes/smart_scan/smart_scan_model.h"

namespace klarvik {

/// A Smart Scan pane over a real disk, in a program of its own with a main loop.
class SmartScanFixture : public PaneFixture {
 protected:
  void addCache(const std::string& name, std::int64_t megabytes = 2) const {
    desk.disk.makeFile(Path("/Users/ann/Library/Caches") / name / "data", megabytes * megabyte);
  }
  /// Something to review; all of them are one item.
  void addArchive(const std::string& name) const {
    desk.disk.makeFile(Path("/Users/ann/Library/Developer/Xcode/Archives") / name / "notes",
                       2 * megabyte);
  }

  template <typename State>
  [[nodiscard]] bool is() const {
    return std::holds_alternative<State>(appState.scanState());
  }
  [[nodiscard]] bool scan() {
    appState.startScan();
    return turnUntil([this] { return is<AppState::Done>(); });
  }
  [[nodiscard]] bool clean() {
    appState.performClean();
    return turnUntil([this] { return is<AppState::CleanDone>(); });
  }

  void selectEverything() {
    for (const CleanCategory& category : appState.scanResults()) {
      appState.setSelection(category.items, true);
    }
  }

  QVariant reviewed(int row, ReviewTableModel::Role role) {
    return pane.reviewTable()->index(row).data(role);
  }
  QStringList reviewedNames() {
    QStringList names;
    for (int row = 0; row < pane.reviewTable()->rowCount(); ++row) {
      names << reviewed(row, ReviewTableModel::NameRole).toString();
    }
    return names;
  }

 protected:
  AppState appState{desktop, shared.toolActivity(), shared.scanCoordinator(), shared.scanHistory(),
                    shared.removalNotice()};
  SmartScanModel pane{appState, shared, desktop};
};

}  // namespace klarvik
