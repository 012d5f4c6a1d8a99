#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "../pane_fixture.h"
#include "panes/duplicates/duplicate_finder_model.h"
#include "support/disk_snapshot.h"

namespace klarvik {

/// A Duplicates pane over a real disk, in a program of its own with a main loop. A test can hold a
/// scan up when it opens a file, and put faults under the pane.
class DuplicatesFixture : public PaneFixture {
 protected:
  void TearDown() override {
    PaneFixture::TearDown();
    pane.reset();
  }

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
  /// The next scan waits when it opens this file. Whatever does the reading, the scan is over no
  /// sooner than the thread that has begun it.
  void holdTheNextScanAt(const Path& path) {
    gate.close();
    files.before(Operation::walk, inHome("Documents"), [this] { passers.watchThisThread(); });
    files.before(Operation::openForReading, path, [this] { gate.pass(); });
  }
  [[nodiscard]] bool isHeld() const { return gate.waiting() == 1; }

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
      const bool isGroup = at(row, DuplicateRowsModel::IsGroupRole).toBool();
      names << (isGroup ? "" : "  ") + at(row, DuplicateRowsModel::NameRole).toString();
    }
    return names;
  }
  [[nodiscard]] QVariant at(int row, int role) { return pane->rows()->index(row).data(role); }
  /// The row of this copy, which must be on the screen.
  [[nodiscard]] int rowOf(const Path& copy) {
    for (int row = 0; row < pane->rows()->rowCount(); ++row) {
      const DuplicateRowsModel::Row& shownRow = pane->rows()->at(row);
      if (!shownRow.isGroup() && shownRow.group->group.files[shownRow.file].url == copy) return row;
    }
    return -1;
  }
  [[nodiscard]] QString fateOf(const Path& copy) {
    return at(rowOf(copy), DuplicateRowsModel::FateRole) == static_cast<int>(KeepOrDelete::Keep)
               ? "keep"
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
    for (const SelectedCopy& copy : pane->selectedFiles()) {
      places.push_back(copy.group->files[copy.file].url);
    }
    return places;
  }
  [[nodiscard]] DiskSnapshot outsideTheTrash() const {
    DiskSnapshot snapshot = snapshotOf(desk.disk.path());
    std::erase_if(snapshot,
                  [](const auto& entry) { return entry.first.starts_with("Users/ann/.local"); });
    return snapshot;
  }
  [[nodiscard]] ToolActivity::State activity() { return activityOf("duplicates"); }
  [[nodiscard]] auto total() { return totalOf("duplicates"); }

 private:
  int _hours = 0;

 protected:
  std::unique_ptr<DuplicateFinderModel> pane =
      std::make_unique<DuplicateFinderModel>(shared, desktop);
};

}  // namespace klarvik
