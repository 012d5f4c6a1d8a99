#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <functional>

#include "panes/smart_scan/smart_scan_pane.h"
#include "state/shared_state.h"
#include "support/desktop_on_disk.h"

namespace klarvik {

/// A Smart Scan pane over a real disk, in a program of its own with a main loop.
class PaneFixture : public ::testing::Test {
 protected:
  static constexpr std::int64_t megabyte = 1'000'000;

  void addCache(const std::string& name, std::int64_t megabytes = 2) const {
    desk.disk.makeFile(Path("/Users/ann/Library/Caches") / name / "data", megabytes * megabyte);
  }
  /// Something to review; all of them are one item.
  void addArchive(const std::string& name) const {
    desk.disk.makeFile(Path("/Users/ann/Library/Developer/Xcode/Archives") / name / "notes",
                       2 * megabyte);
  }

  /// Turns the main loop, and moves the clock on, until `reached` holds. False when it never does.
  [[nodiscard]] bool turnUntil(const std::function<bool()>& reached) {
    const QDeadlineTimer giveUp(60'000);
    while (!reached()) {
      if (giveUp.hasExpired()) {
        return false;
      }
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
      desk.clock.advance(std::chrono::milliseconds(5));
    }
    return true;
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

  QVariant reviewed(int row, ReviewTable::Role role) {
    return pane.reviewTable()->index(row).data(role);
  }
  QStringList reviewedNames() {
    QStringList names;
    for (int row = 0; row < pane.reviewTable()->rowCount(); ++row) {
      names << reviewed(row, ReviewTable::NameRole).toString();
    }
    return names;
  }

 private:
  int _count = 1;
  char _name[6] = "tests";
  char* _arguments[2] = {_name, nullptr};
  QCoreApplication _application{_count, _arguments};

 protected:
  DesktopOnDisk desk;
  SharedState shared{desk.desktop};
  AppState appState{desk.desktop, shared.toolActivity(), shared.scanCoordinator(),
                    shared.scanHistory()};
  SmartScanPane pane{{appState, shared.diskMonitor(), shared.trashMonitor(),
                      shared.scanCoordinator(), shared.toolActivity(), shared.navigator()},
                     desk.desktop};
};

}  // namespace klarvik
