#pragma once

#include <functional>
#include <mutex>
#include <set>

#include "platform/file_system.h"

namespace klarvik {

/// Another file system, with a hook before each operation that changes the disk or reads much of
/// it, and with files that cannot be opened. May be used from any thread.
class HookedFileSystem final : public FileSystem {
 public:
  /// Told the operation ("walk", "remove", "move") and the path.
  using Hook = std::function<void(const std::string& operation, const Path& path)>;

  explicit HookedFileSystem(FileSystem& inner) : _inner(inner) {}

  void setHook(Hook hook) {
    const std::scoped_lock lock(_mutex);
    _hook = std::move(hook);
  }
  void makeUnreadable(const Path& path) {
    const std::scoped_lock lock(_mutex);
    _unreadable.insert(path);
  }
  void makeReadable(const Path& path) {
    const std::scoped_lock lock(_mutex);
    _unreadable.erase(path);
  }
  [[nodiscard]] std::vector<Path> openedFiles() const {
    const std::scoped_lock lock(_mutex);
    return _opened;
  }

  [[nodiscard]] Path diskPath(const Path& logical) const override {
    return _inner.diskPath(logical);
  }
  [[nodiscard]] std::optional<Path> logicalPath(const Path& disk) const override {
    return _inner.logicalPath(disk);
  }
  [[nodiscard]] Path home() const override { return _inner.home(); }
  [[nodiscard]] Path realHome() const override { return _inner.realHome(); }
  [[nodiscard]] bool exists(const Path& path) const override { return _inner.exists(path); }
  [[nodiscard]] std::optional<FileAttributes> attributes(const Path& path) const override {
    return _inner.attributes(path);
  }
  [[nodiscard]] std::optional<std::vector<Path>> list(const Path& folder) const override {
    return _inner.list(folder);
  }
  WalkOutcome walk(const Path& folder, WalkOptions options,
                   const WalkVisitor& visit) const override {
    callHook("walk", folder);
    return _inner.walk(folder, options, visit);
  }
  [[nodiscard]] std::unique_ptr<FileReader> openForReading(const Path& path) const override {
    {
      const std::scoped_lock lock(_mutex);
      _opened.push_back(path);
      if (_unreadable.contains(path)) return nullptr;
    }
    return _inner.openForReading(path);
  }
  bool createDirectories(const Path& folder) override { return _inner.createDirectories(folder); }
  bool move(const Path& from, const Path& to) override {
    callHook("move", from);
    return _inner.move(from, to);
  }
  bool remove(const Path& item, const PlaceCheck& mayRemove) override {
    callHook("remove", item);
    return _inner.remove(item, mayRemove);
  }

 private:
  void callHook(const std::string& operation, const Path& path) const {
    Hook hook;
    {
      const std::scoped_lock lock(_mutex);
      hook = _hook;
    }
    if (hook) hook(operation, path);
  }

  FileSystem& _inner;
  mutable std::mutex _mutex;
  Hook _hook;
  std::set<Path> _unreadable;
  mutable std::vector<Path> _opened;
};

}  // namespace klarvik
