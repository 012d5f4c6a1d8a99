#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "panes/duplicates/duplicate_finder_view.h"
#include "state/shared_state.h"
#include "support/desktop_on_disk.h"
#include "support/faulting_file_system.h"

namespace klarvik {

/// A Duplicates pane over a real disk, in a program of its own with a main loop. A test can hold a
/// scan up when it opens a file, and put faults under the pane.
class DuplicatesFixture : public ::testing::Test {
 protected:
  using Operation = FaultingFileSystem::Operation;
  static constexpr std::int64_t mebibyte = 1'048'576;

  void TearDown() override {
    scanGate.open();
    desk.trashGate.open();
    pane.reset();
  }

  [[nodiscard]] Path inHome(const std::string& place) const { return desk.files.home() / place; }
  /// Files of one size are equal. Each is older than the one before it in the same test.
  Path add(const std::string& place, std::int64_t mebibytes) {
    const Path path = inHome(place);
    desk.disk.makeSparseFile(path, mebibytes * mebibyte);
    setAge(path, std::chrono::hours(++_hours));
    return path;
  }
  void setAge(const Path& path, std::chrono::hours age) const {
    std::filesystem::last_write_time(desk.disk.onDisk(path),
                                     std::filesystem::file_time_type::clock::now() - age);
  }
  /// The next scan waits when it opens this file.
  void holdTheNextScanAt(const Path& path) {
    scanGate.close();
    files.before(Operation::openForReading, path, [this] { scanGate.pass(); });
  }
  [[nodiscard]] bool isHeld() const { return scanGate.waiting() == 1; }

  /// Turns the main loop, and moves the clock on, until `reached` holds. False when it never does.
  [[nodiscard]] bool turnUntil(const std::function<bool()>& reached) {
    const QDeadlineTimer giveUp(60'000);
    while (!reached()) {
      if (giveUp.hasExpired()) return false;
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
      desk.clock.advance(std::chrono::milliseconds(5));
    }
    return true;
  }
  [[nodiscard]] bool scan() {
    pane->performAction();
    return turnUntil([this] { return !pane->isScanning(); });
  }
  [[nodiscard]] bool deleteSelected() {
    pane->deleteSelected();
    return turnUntil([this] { return !pane->isDeleting(); });
  }
  /// Names as they stand on the screen; those of copies are indented.
  [[nodiscard]] QStringList shown() {
    QStringList names;
    for (int row = 0; row < pane->rows()->rowCount(); ++row) {
      const bool isGroup = at(row, DuplicateRows::IsGroupRole).toBool();
      names << (isGroup ? "" : "  ") + at(row, DuplicateRows::NameRole).toString();
    }
    return names;
  }
  [[nodiscard]] QVariant at(int row, int role) { return pane->rows()->index(row).data(role); }
  /// The row of this copy, which must be on the screen.
  [[nodiscard]] int rowOf(const Path& copy) {
    for (int row = 0; row < pane->rows()->rowCount(); ++row) {
      const DuplicateRows::Row& shownRow = pane->rows()->at(row);
      if (!shownRow.isGroup() && shownRow.group->group.files[shownRow.file].url == copy) return row;
    }
    return -1;
  }
  [[nodiscard]] QString fateOf(const Path& copy) {
    return at(rowOf(copy), DuplicateRows::FateRole) == static_cast<int>(Fate::Keep) ? "keep"
                                                                                    : "delete";
  }
  [[nodiscard]] std::set<Path> listed() const {
    std::set<Path> places;
    for (const auto& group : pane->groups()) {
      for (const DuplicateFile& file : group->group.files) places.insert(file.url);
    }
    return places;
  }
  [[nodiscard]] std::vector<Path> selected() const {
    std::vector<Path> places;
    for (const DuplicateFile& file : pane->selectedFiles()) places.push_back(file.url);
    return places;
  }
  [[nodiscard]] std::size_t trashCount() const {
    return desk.desktop.trash.list().value_or(std::vector<Path>{}).size();
  }
  [[nodiscard]] ToolActivity::State activity() { return shared.toolActivity().state("duplicates"); }
  [[nodiscard]] std::optional<ScanCoordinator::Total> total() {
    const auto& totals = shared.scanCoordinator().totals();
    const auto found = totals.find("duplicates");
    if (found == totals.end()) return std::nullopt;
    return found->second;
  }
  /// There is something to read, and it cannot be read.
  void denyFullDiskAccess() {
    desk.disk.makeFile(protectedFile);
    files.fail(Operation::openForReading, protectedFile);
    shared.permissionsManager().refreshAccess();
  }

 private:
  static constexpr const char* protectedFile = "/Library/Application Support/com.apple.TCC/TCC.db";
  int _hours = 0;
  int _count = 1;
  char _name[6] = "tests";
  char* _arguments[2] = {_name, nullptr};
  QCoreApplication _application{_count, _arguments};

 protected:
  Gate scanGate;
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
  std::unique_ptr<DuplicateFinderView> pane = std::make_unique<DuplicateFinderView>(
      DuplicateFinderView::Sources{shared.scanCoordinator(), shared.toolActivity(),
                                   shared.permissionsManager()},
      desktop);
};

}  // namespace klarvik
