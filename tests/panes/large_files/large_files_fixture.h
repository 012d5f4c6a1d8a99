#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <functional>
#include <memory>
#include <string>

#include "panes/large_files/large_file_finder_view.h"
#include "state/shared_state.h"
#include "support/desktop_on_disk.h"
#include "support/faulting_file_system.h"

namespace klarvik {

/// A Large Files pane over a real disk, in a program of its own with a main loop. A test can hold
/// the walk up before it looks at a file.
class LargeFilesFixture : public ::testing::Test {
 protected:
  using Operation = FaultingFileSystem::Operation;
  static constexpr std::int64_t mebibyte = 1'048'576;
  static constexpr const char* heldFile = "/Users/ann/Pictures/held.jpg";

  void TearDown() override {
    walkGate.open();
    desk.trashGate.open();
  }

  Path add(const std::string& place, std::int64_t mebibytes) const {
    const Path path = desk.files.home() / place;
    desk.disk.makeSparseFile(path, mebibytes * mebibyte);
    return path;
  }
  /// The next walk reports once, after everything in Documents and Movies, and then waits.
  void holdTheNextWalk() {
    for (int number = 0; number < 500; ++number) {
      desk.disk.makeFile(desk.files.home() / "Music" / std::to_string(number));
    }
    desk.disk.makeFile(heldFile);
    walkGate.close();
    files.before(Operation::attributes, heldFile, [this] { walkGate.pass(); });
  }
  [[nodiscard]] bool isHeld() const { return walkGate.waiting() == 1; }

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
  /// The rows come a moment after the files.
  [[nodiscard]] bool shows(const QStringList& names) {
    return turnUntil([&] { return shownNames() == names; });
  }
  [[nodiscard]] QStringList shownNames() {
    QStringList names;
    for (int row = 0; row < pane->rows()->rowCount(); ++row) {
      names << pane->rows()->index(row).data(LargeFileRows::NameRole).toString();
    }
    return names;
  }
  [[nodiscard]] bool scan() {
    pane->performAction();
    return turnUntil([this] {
      return !pane->isScanning() &&
             pane->rows()->rowCount() == static_cast<int>(pane->files().size());
    });
  }
  [[nodiscard]] bool startScanAndHoldIt() {
    holdTheNextWalk();
    pane->performAction();
    return turnUntil([this] { return isHeld() && pane->progress() > 0; });
  }
  [[nodiscard]] int rowOf(const QString& name) {
    return static_cast<int>(shownNames().indexOf(name));
  }
  void select(const QString& name) { pane->toggleSelection(rowOf(name)); }
  [[nodiscard]] bool trash() {
    pane->trashSelected();
    return turnUntil([this] { return !pane->isDeleting(); });
  }
  [[nodiscard]] std::set<Path> listed() const {
    std::set<Path> places;
    for (const auto& file : pane->files()) places.insert(file->url);
    return places;
  }
  [[nodiscard]] ToolActivity::State activity() { return shared.toolActivity().state("largeFiles"); }
  [[nodiscard]] std::optional<ScanCoordinator::Total> total() {
    const auto& totals = shared.scanCoordinator().totals();
    const auto found = totals.find("largeFiles");
    if (found == totals.end()) return std::nullopt;
    return found->second;
  }
  /// There is something to read, and it cannot be read.
  void denyFullDiskAccess() {
    desk.disk.makeFile(protectedFile);
    files.fail(Operation::openForReading, protectedFile);
    shared.permissionsManager().refreshAccess();
  }
  void grantFullDiskAccess() {
    files.heal(Operation::openForReading, protectedFile);
    shared.permissionsManager().refreshAccess();
  }

 private:
  static constexpr const char* protectedFile = "/Library/Application Support/com.apple.TCC/TCC.db";
  int _count = 1;
  char _name[6] = "tests";
  char* _arguments[2] = {_name, nullptr};
  QCoreApplication _application{_count, _arguments};

 protected:
  Gate walkGate;
  DesktopOnDisk desk;
  FaultingFileSystem files{desk.files};
  Desktop desktop{{files, desk.desktop.trash, desk.desktop.commands, desk.defaults, desk.volume,
                   desk.formatting, desk.info, desk.recentDocuments},
                  desk.clock,
                  desk.notifications,
                  desk.workspace,
                  desk.pasteboard,
                  desk.openPanel};
  SharedState shared{desktop};
  std::unique_ptr<LargeFileFinderView> pane = std::make_unique<LargeFileFinderView>(
      LargeFileFinderView::Sources{shared.scanCoordinator(), shared.toolActivity(),
                                   shared.permissionsManager()},
      desktop);
};

}  // namespace klarvik
