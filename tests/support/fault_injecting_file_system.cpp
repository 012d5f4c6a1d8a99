#include "support/fault_injecting_file_system.h"

#include <algorithm>
#include <limits>

#include "support/folder_by_path.h"

namespace klarvik {

template class FaultInjection<FileOperation>;

namespace {

class OverlaidReader final : public FileReader {
 public:
  using Overlay = std::function<FileAttributes(const FileAttributes&)>;

  /// Fails once `limit` bytes have been read.
  OverlaidReader(std::unique_ptr<FileReader> file, std::size_t limit, Overlay overlay)
      : _file(std::move(file)), _left(limit), _overlay(std::move(overlay)) {}

  [[nodiscard]] std::optional<FileAttributes> attributes() const override {
    const auto known = _file->attributes();
    return known ? std::optional(_overlay(*known)) : std::nullopt;
  }
  [[nodiscard]] std::optional<std::size_t> read(std::span<std::byte> buffer) override {
    if (_left == 0) return std::nullopt;
    const auto count = _file->read(buffer.first(std::min(buffer.size(), _left)));
    _left -= count.value_or(0);
    return count;
  }

 private:
  std::unique_ptr<FileReader> _file;
  std::size_t _left;
  Overlay _overlay;
};

}  // namespace

/// An entry of a walk with overlays and faults applied. Puts no path together where there are none,
/// so that a walk costs what it costs without.
class FaultInjectingFileSystem::OverlaidEntry final : public WalkEntry {
 public:
  OverlaidEntry(const FaultInjectingFileSystem& files, WalkEntry& entry)
      : _files(files), _entry(entry) {}

  [[nodiscard]] std::string_view name() const override { return _entry.name(); }
  [[nodiscard]] FileKind kind() const override { return _entry.kind(); }
  [[nodiscard]] std::size_t depth() const override { return _entry.depth(); }
  [[nodiscard]] Path path() const override { return _entry.path(); }
  [[nodiscard]] std::string_view folder() const override { return _entry.folder(); }
  [[nodiscard]] std::int64_t allocatedBytes() override {
    if (isPlain()) return _entry.allocatedBytes();
    const auto known = attributes();
    return known ? known->allocatedBytes : 0;
  }
  [[nodiscard]] std::optional<FileAttributes> attributes() override {
    if (isPlain()) return _entry.attributes();
    const Path path = _entry.path();
    if (!_files.goesAhead(Operation::attributes, path)) return std::nullopt;
    const auto known = _entry.attributes();
    return known ? std::optional(_files.overlaid(path, *known)) : std::nullopt;
  }

 private:
  [[nodiscard]] bool isPlain() const {
    return !_files.isInjected(Operation::attributes) && !_files._isOverlaid;
  }

  const FaultInjectingFileSystem& _files;
  WalkEntry& _entry;
};

void FaultInjectingFileSystem::makeUnreadable(const Path& folder) {
  fail(Operation::list, folder);
  fail(Operation::walk, folder);
}

void FaultInjectingFileSystem::failReadingAfter(std::size_t bytes, const Path& path) {
  const std::scoped_lock lock(_mutex);
  _readLimits[path] = bytes;
}

void FaultInjectingFileSystem::overlaySize(const Path& path, std::int64_t bytes) {
  const std::scoped_lock lock(_mutex);
  _sizes[path] = bytes;
  _isOverlaid = true;
}

void FaultInjectingFileSystem::vanishBefore(Operation operation, const Path& path) {
  before(operation, path, [disk = diskPath(path)] { std::filesystem::remove_all(disk); });
}

void FaultInjectingFileSystem::becomeLinkBefore(Operation operation, const Path& path,
                                                const Path& target) {
  before(operation, path, [disk = diskPath(path), target] {
    std::filesystem::remove_all(disk);
    std::filesystem::create_symlink(target, disk);
  });
}

std::vector<Path> FaultInjectingFileSystem::openings() const {
  const std::scoped_lock lock(_mutex);
  return _openings;
}

std::vector<FaultInjectingFileSystem::Removal> FaultInjectingFileSystem::removals() const {
  const std::scoped_lock lock(_mutex);
  return _removals;
}

std::vector<Path> FaultInjectingFileSystem::removed() const {
  std::vector<Path> items;
  for (const Removal& removal : removals()) {
    if (removal.done) items.push_back(removal.item);
  }
  return items;
}

Path FaultInjectingFileSystem::diskPath(const Path& logical) const {
  return _files.diskPath(logical);
}

std::optional<Path> FaultInjectingFileSystem::logicalPath(const Path& disk) const {
  return _files.logicalPath(disk);
}

Path FaultInjectingFileSystem::home() const {
  return _files.home();
}

Path FaultInjectingFileSystem::realHome() const {
  return _files.realHome();
}

std::optional<Path> FaultInjectingFileSystem::linkTarget(const Path& path) const {
  return _files.linkTarget(path);
}

bool FaultInjectingFileSystem::isMountPoint(const Path& path) const {
  return _files.isMountPoint(path);
}

UserFolders FaultInjectingFileSystem::folders() const {
  return _files.folders();
}

std::optional<Path> FaultInjectingFileSystem::realPath(const Path& path) const {
  return _files.realPath(path);
}

bool FaultInjectingFileSystem::exists(const Path& path) const {
  return goesAhead(Operation::exists, path) && _files.exists(path);
}

std::optional<FileAttributes> FaultInjectingFileSystem::attributes(const Path& path) const {
  if (!goesAhead(Operation::attributes, path)) return std::nullopt;
  const auto known = _files.attributes(path);
  return known ? std::optional(overlaid(path, *known)) : std::nullopt;
}

std::optional<std::vector<Path>> FaultInjectingFileSystem::list(const Path& folder) const {
  return goesAhead(Operation::list, folder) ? _files.list(folder) : std::nullopt;
}

WalkOutcome FaultInjectingFileSystem::walk(const Path& folder, WalkOptions options,
                                           const WalkVisitor& visit) const {
  if (!goesAhead(Operation::walk, folder)) return WalkOutcome::refused;
  return _files.walk(folder, options, [&](WalkEntry& entry) {
    OverlaidEntry overlaidEntry(*this, entry);
    const WalkStep step = visit(overlaidEntry);
    const bool enters = step == WalkStep::proceed && entry.kind() == FileKind::directory;
    if (!enters || !isInjected(Operation::walk)) return step;
    return goesAhead(Operation::walk, entry.path()) ? step : WalkStep::skipDescendants;
  });
}

std::unique_ptr<FileReader> FaultInjectingFileSystem::openForReading(const Path& path) const {
  {
    const std::scoped_lock lock(_mutex);
    _openings.push_back(path);
  }
  if (!goesAhead(Operation::openForReading, path)) return nullptr;
  auto file = _files.openForReading(path);
  const std::scoped_lock lock(_mutex);
  const auto limit = _readLimits.find(path);
  const bool isLimited = limit != _readLimits.end();
  if (!file || (!isLimited && !_isOverlaid)) return file;
  return std::make_unique<OverlaidReader>(
      std::move(file), isLimited ? limit->second : std::numeric_limits<std::size_t>::max(),
      [this, path](const FileAttributes& known) { return overlaid(path, known); });
}

std::unique_ptr<OpenedFolder> FaultInjectingFileSystem::openFolder(const Path& folder) const {
  return std::make_unique<FolderByPath>(*this, folder);
}

bool FaultInjectingFileSystem::createDirectories(const Path& folder) {
  return goesAhead(Operation::createDirectories, folder) && _files.createDirectories(folder);
}

bool FaultInjectingFileSystem::move(const Path& from, const Path& to) {
  return goesAhead(Operation::move, from) && _files.move(from, to);
}

bool FaultInjectingFileSystem::empty(const Path& file, const ItemCheck& mayEmpty) {
  return goesAhead(Operation::remove, file) && _files.empty(file, mayEmpty);
}

bool FaultInjectingFileSystem::removeUserAttributes(const Path& file,
                                                    std::span<const std::string_view> names,
                                                    const ItemCheck& mayChange) {
  return goesAhead(Operation::remove, file) && _files.removeUserAttributes(file, names, mayChange);
}

bool FaultInjectingFileSystem::remove(const Path& item, const ItemCheck& mayRemove) {
  const bool done = goesAhead(Operation::remove, item) && _files.remove(item, mayRemove);
  const std::scoped_lock lock(_mutex);
  _removals.push_back({item, done});
  return done;
}

FileAttributes FaultInjectingFileSystem::overlaid(const Path& path,
                                                  FileAttributes attributes) const {
  if (!_isOverlaid) return attributes;
  const std::scoped_lock lock(_mutex);
  if (const auto size = _sizes.find(path); size != _sizes.end()) {
    attributes.allocatedBytes = attributes.logicalBytes = size->second;
  }
  return attributes;
}

}  // namespace klarvik
