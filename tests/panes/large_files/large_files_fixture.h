#pragma once

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <chrono>
#include <ctime>
#include <memory>
#include <string>

#include "../pane_fixture.h"
#include "panes/large_files/large_file_finder_model.h"

namespace klarvik {

/// A Large Files pane over a real disk, in a program of its own with a main loop. A test can hold
/// the walk up before it looks at a file.
class LargeFilesFixture : public PaneFixture {
 protected:
  static constexpr const char* heldFile = "/Users/ann/Pictures/held.jpg";

  Path add(const std::string& place, std::int64_t mebibytes) const {
    const Path path = desk.files.home() / place;
    desk.disk.makeSparseFile(path, mebibytes * mebibyte);
    return path;
  }
  /// As the disk remembers it.
  void setLastOpened(const Path& path, std::chrono::seconds ago) const {
    const std::array<timespec, 2> times{timespec{::time(nullptr) - ago.count(), 0},
                                        timespec{0, UTIME_OMIT}};
    ASSERT_EQ(::utimensat(AT_FDCWD, desk.disk.onDisk(path).c_str(), times.data(), 0), 0);
  }
  /// The next walk reports once, after everything in Documents and Movies, and then waits.
  void holdTheNextWalk() {
    for (int number = 0; number < 500; ++number) {
      desk.disk.makeFile(desk.files.home() / "Music" / std::to_string(number));
    }
    desk.disk.makeFile(heldFile);
    gate.close();
    files.before(Operation::attributes, heldFile, [this] { waitAtGate(); });
  }
  [[nodiscard]] bool isHeld() const { return gate.waiting() == 1; }

  /// The rows come a moment after the files.
  [[nodiscard]] bool shows(const QStringList& names) {
    return turnUntil([&] { return shownNames() == names; });
  }
  [[nodiscard]] QStringList shownNames() {
    QStringList names;
    for (int row = 0; row < pane->rows()->rowCount(); ++row) {
      names << pane->rows()->index(row).data(LargeFileRowsModel::NameRole).toString();
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
  [[nodiscard]] ToolActivity::State activity() { return activityOf("largeFiles"); }
  [[nodiscard]] auto total() { return totalOf("largeFiles"); }

 protected:
  std::unique_ptr<LargeFileFinderModel> pane =
      std::make_unique<LargeFileFinderModel>(shared, desktop);
};

}  // namespace klarvik
