#pragma once

#include <atomic>
#include <mutex>

#include "platform/trash.h"

namespace klarvik {

/// A Trash that is nothing but the folder ".Trash" in the home, without records of where things
/// were. Its stamp and its being readable are what the test says. May be used from any thread.
class FolderTrash final : public Trash {
 public:
  explicit FolderTrash(FileSystem& files) : _files(files), _folder(files.home() / ".Trash") {}

  std::atomic<bool> readable = true;
  std::atomic<int> listings = 0;

  void setStamp(std::optional<Date> stamp) {
    const std::scoped_lock lock(_mutex);
    _stamp = stamp;
  }
  /// As when something comes or goes.
  void moveStamp() {
    const std::scoped_lock lock(_mutex);
    _stamp = _stamp.value_or(Date()) + std::chrono::seconds(1);
  }

  [[nodiscard]] std::vector<Path> folders() override { return {_folder}; }
  [[nodiscard]] std::optional<std::vector<Path>> list() override {
    ++listings;
    if (!readable) return std::nullopt;
    return _files.list(_folder).value_or(std::vector<Path>());
  }
  [[nodiscard]] std::optional<Date> modificationDate() override {
    const std::scoped_lock lock(_mutex);
    return _stamp;
  }
  [[nodiscard]] bool contains(const Path& item) const override {
    return item.native().find("/.Trash/") != std::string::npos;
  }
  std::optional<Path> moveToTrash(const Path& item, const PlaceCheck&) override {
    const Path trashed = _folder / item.filename();
    _files.createDirectories(_folder);
    if (!_files.move(item, trashed)) return std::nullopt;
    moveStamp();
    return trashed;
  }
  bool putBack(const Path& trashed, const Path& original) override {
    _files.createDirectories(original.parent_path());
    const bool moved = _files.move(trashed, original);
    if (moved) moveStamp();
    return moved;
  }
  bool remove(const Path& trashed, const PlaceCheck& mayRemove) override {
    const bool removed = _files.remove(trashed, mayRemove);
    if (removed) moveStamp();
    return removed;
  }

 private:
  FileSystem& _files;
  Path _folder;
  std::mutex _mutex;
  std::optional<Date> _stamp = Date(std::chrono::seconds(1));
};

}  // namespace klarvik
