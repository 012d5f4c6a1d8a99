#include "support/faulting_file_system.h"

#include <algorithm>

namespace klarvik {
namespace {

class FailingReader final : public FileReader {
 public:
  FailingReader(std::unique_ptr<FileReader> file, std::size_t limit)
      : _file(std::move(file)), _left(limit) {}

  [[nodiscard]] std::optional<std::size_t> read(std::span<std::byte> buffer) override {
    if (_left == 0) return std::nullopt;
    const auto count = _file->read(buffer.first(std::min(buffer.size(), _left)));
    _left -= count.value_or(0);
    return count;
  }

 private:
  std::unique_ptr<FileReader> _file;
  std::size_t _left;
};

}  // namespace

/// An entry of a walk with overlays and faults applied.
class FaultingFileSystem::OverlaidEntry final : public WalkEntry {
 public:
  OverlaidEntry(const FaultingFileSystem& files, WalkEntry& entry)
      : _files(files), _entry(entry), _path(entry.path()) {}

  [[nodiscard]] std::string_view name() const override { return _entry.name(); }
  [[nodiscard]] FileKind kind() const override { return _entry.kind(); }
  [[nodiscard]] std::size_t depth() const override { return _entry.depth(); }
  [[nodiscard]] Path path() const override { return _path; }
  [[nodiscard]] std::int64_t allocatedBytes() override {
    const auto known = attributes();
    return known ? known->allocatedBytes : 0;
  }
  [[nodiscard]] std::optional<FileAttributes> attributes() override {
    if (!_files.goesAhead(Operation::attributes, _path)) return std::nullopt;
    const auto known = _entry.attributes();
    return known ? std::optional(_files.overlaid(_path, *known)) : std::nullopt;
  }

 private:
  const FaultingFileSystem& _files;
  WalkEntry& _entry;
  const Path _path;
};

void FaultingFileSystem::fail(Operation operation, const Path& path) {
  const std::lock_guard lock(_mutex);
  _failing.emplace(operation, path);
}

void FaultingFileSystem::heal(Operation operation, const Path& path) {
  const std::lock_guard lock(_mutex);
  _failing.erase({operation, path});
}

void FaultingFileSystem::failReadingAfter(std::size_t bytes, const Path& path) {
  const std::lock_guard lock(_mutex);
  _readLimits[path] = bytes;
}

void FaultingFileSystem::overlaySize(const Path& path, std::int64_t bytes) {
  const std::lock_guard lock(_mutex);
  _sizes[path] = bytes;
}

void FaultingFileSystem::overlayModified(const Path& path, Date modified) {
  const std::lock_guard lock(_mutex);
  _modified[path] = modified;
}

void FaultingFileSystem::before(Operation operation, const Path& path, std::function<void()> act) {
  const std::lock_guard lock(_mutex);
  _acts[{operation, path}] = std::move(act);
}

void FaultingFileSystem::vanishBefore(Operation operation, const Path& path) {
  before(operation, path, [disk = diskPath(path)] { std::filesystem::remove_all(disk); });
}

void FaultingFileSystem::becomeLinkBefore(Operation operation, const Path& path,
                                          const Path& target) {
  before(operation, path, [disk = diskPath(path), target] {
    std::filesystem::remove_all(disk);
    std::filesystem::create_symlink(target, disk);
  });
}

std::vector<FaultingFileSystem::Removal> FaultingFileSystem::removals() const {
  const std::lock_guard lock(_mutex);
  return _removals;
}

std::vector<FaultingFileSystem::Move> FaultingFileSystem::moves() const {
  const std::lock_guard lock(_mutex);
  return _moves;
}

Path FaultingFileSystem::diskPath(const Path& logical) const {
  return _files.diskPath(logical);
}

std::optional<Path> FaultingFileSystem::logicalPath(const Path& disk) const {
  return _files.logicalPath(disk);
}

Path FaultingFileSystem::home() const {
  return _files.home();
}

Path FaultingFileSystem::realHome() const {
  return _files.realHome();
}

bool FaultingFileSystem::exists(const Path& path) const {
  return goesAhead(Operation::exists, path) && _files.exists(path);
}

std::optional<FileAttributes> FaultingFileSystem::attributes(const Path& path) const {
  if (!goesAhead(Operation::attributes, path)) return std::nullopt;
  const auto known = _files.attributes(path);
  return known ? std::optional(overlaid(path, *known)) : std::nullopt;
}

std::optional<std::vector<Path>> FaultingFileSystem::list(const Path& folder) const {
  return goesAhead(Operation::list, folder) ? _files.list(folder) : std::nullopt;
}

WalkOutcome FaultingFileSystem::walk(const Path& folder, WalkOptions options,
                                     const WalkVisitor& visit) const {
  if (!goesAhead(Operation::walk, folder)) return WalkOutcome::refused;
  return _files.walk(folder, options, [&](WalkEntry& entry) {
    OverlaidEntry overlaidEntry(*this, entry);
    const WalkStep step = visit(overlaidEntry);
    const bool enters = step == WalkStep::proceed && entry.kind() == FileKind::directory;
    return enters && !goesAhead(Operation::walk, entry.path()) ? WalkStep::skipDescendants : step;
  });
}

std::unique_ptr<FileReader> FaultingFileSystem::openForReading(const Path& path) const {
  if (!goesAhead(Operation::openForReading, path)) return nullptr;
  auto file = _files.openForReading(path);
  const std::lock_guard lock(_mutex);
  const auto limit = _readLimits.find(path);
  if (!file || limit == _readLimits.end()) return file;
  return std::make_unique<FailingReader>(std::move(file), limit->second);
}

bool FaultingFileSystem::createDirectories(const Path& folder) {
  return goesAhead(Operation::createDirectories, folder) && _files.createDirectories(folder);
}

bool FaultingFileSystem::move(const Path& from, const Path& to) {
  const bool done = goesAhead(Operation::move, from) && _files.move(from, to);
  const std::lock_guard lock(_mutex);
  _moves.push_back({from, to, done});
  return done;
}

bool FaultingFileSystem::remove(const Path& item, const PlaceCheck& mayRemove) {
  const bool done = goesAhead(Operation::remove, item) && _files.remove(item, mayRemove);
  const std::lock_guard lock(_mutex);
  _removals.push_back({item, done});
  return done;
}

bool FaultingFileSystem::goesAhead(Operation operation, const Path& path) const {
  std::function<void()> act;
  {
    const std::lock_guard lock(_mutex);
    if (auto found = _acts.extract({operation, path})) act = std::move(found.mapped());
  }
  if (act) act();
  const std::lock_guard lock(_mutex);
  return !_failing.contains({operation, path});
}

FileAttributes FaultingFileSystem::overlaid(const Path& path, FileAttributes attributes) const {
  const std::lock_guard lock(_mutex);
  if (const auto size = _sizes.find(path); size != _sizes.end()) {
    attributes.allocatedBytes = attributes.logicalBytes = size->second;
  }
  if (const auto date = _modified.find(path); date != _modified.end()) {
    attributes.modified = date->second;
  }
  return attributes;
}

}  // namespace klarvik
