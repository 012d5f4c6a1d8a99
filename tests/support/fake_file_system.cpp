#include "support/fake_file_system.h"

#include <algorithm>
#include <utility>

#include "base/paths.h"
#include "platform/packages.h"
#include "support/folder_by_path.h"

namespace klarvik {

namespace {

bool isHidden(const Path& name) {
  return name.native().starts_with('.');
}

class RememberedEntry final : public WalkEntry {
 public:
  RememberedEntry(const Path& start, Path path, std::size_t depth, const FileAttributes& attributes)
      : _path(std::move(path)),
        _folder(depth == 1 ? "" : _path.parent_path().lexically_relative(start).native()),
        _name(_path.filename()),
        _depth(depth),
        _attributes(attributes) {}

  [[nodiscard]] std::string_view name() const override { return _name; }
  [[nodiscard]] FileKind kind() const override { return _attributes.kind; }
  [[nodiscard]] std::size_t depth() const override { return _depth; }
  [[nodiscard]] Path path() const override { return _path; }
  [[nodiscard]] std::string_view folder() const override { return _folder; }
  [[nodiscard]] std::int64_t allocatedBytes() override { return _attributes.allocatedBytes; }
  [[nodiscard]] std::optional<FileAttributes> attributes() override { return _attributes; }

 private:
  Path _path;
  std::string _folder;
  std::string _name;
  std::size_t _depth;
  FileAttributes _attributes;
};

}  // namespace

FakeFileSystem::FakeFileSystem(Path home) : _home(std::move(home)) {}

void FakeFileSystem::addFolder(const Path& path) {
  if (path.has_relative_path()) addFolder(path.parent_path());
  _entries.try_emplace(path, FileAttributes{.kind = FileKind::directory,
                                            .modified = usualDate,
                                            .accessed = usualDate,
                                            .created = usualDate});
}

void FakeFileSystem::addFile(const Path& path, std::int64_t allocatedBytes,
                             std::optional<Date> modified) {
  addFolder(path.parent_path());
  _entries[path] = {.kind = FileKind::regular,
                    .allocatedBytes = allocatedBytes,
                    .logicalBytes = allocatedBytes,
                    .modified = modified,
                    .accessed = modified,
                    .created = modified};
}

void FakeFileSystem::addLink(const Path& path) {
  addFile(path, 12);
  _entries[path].kind = FileKind::symbolicLink;
}

void FakeFileSystem::setModified(const Path& path, std::optional<Date> modified) {
  _entries.at(path).modified = modified;
}

void FakeFileSystem::setRealPlace(const Path& item, const Path& real) {
  _realPlaces[item] = real;
}

bool FakeFileSystem::holds(const Path& path) const {
  const std::shared_lock lock(_mutex);
  return _entries.contains(path);
}

std::set<Path> FakeFileSystem::contents() const {
  const std::shared_lock lock(_mutex);
  std::set<Path> paths;
  for (const auto& [path, attributes] : _entries) paths.insert(path);
  return paths;
}

bool FakeFileSystem::exists(const Path& path) const {
  const auto found = attributes(path);
  return found && found->kind != FileKind::symbolicLink;
}

std::optional<FileAttributes> FakeFileSystem::attributes(const Path& path) const {
  const std::shared_lock lock(_mutex);
  const auto found = _entries.find(path);
  if (found == _entries.end()) return std::nullopt;
  return found->second;
}

std::optional<std::vector<Path>> FakeFileSystem::list(const Path& folder) const {
  const auto own = attributes(folder);
  if (!own || own->kind != FileKind::directory) return std::nullopt;
  const std::shared_lock lock(_mutex);
  std::vector<Path> children = subtree(folder);
  std::erase_if(children,
                [&](const Path& path) { return path.parent_path() != folder || path == folder; });
  return children;
}

WalkOutcome FakeFileSystem::walk(const Path& folder, WalkOptions options,
                                 const WalkVisitor& visit) const {
  const auto start = list(folder);
  if (!start) return WalkOutcome::refused;
  std::vector<std::pair<Path, std::size_t>> waiting;
  const auto add = [&](const std::vector<Path>& paths, std::size_t depth) {
    for (const Path& path : paths) waiting.emplace_back(path, depth);
  };
  for (add(*start, 1); !waiting.empty();) {
    const auto [path, depth] = waiting.back();
    waiting.pop_back();
    if (options.skipHidden && isHidden(path.filename())) continue;
    const auto own = attributes(path);
    if (!own) continue;
    RememberedEntry entry(folder, path, depth, *own);
    const WalkStep step = visit(entry);
    if (step == WalkStep::stop) return WalkOutcome::stopped;
    const bool closed = step == WalkStep::skipDescendants || own->kind != FileKind::directory ||
                        (options.skipPackageContents && isPackageName(entry.name()));
    if (!closed) add(list(path).value_or(std::vector<Path>{}), depth + 1);
  }
  return WalkOutcome::completed;
}

std::unique_ptr<FileReader> FakeFileSystem::openForReading(const Path&) const {
  return nullptr;
}

std::unique_ptr<OpenedFolder> FakeFileSystem::openFolder(const Path& folder) const {
  return std::make_unique<FolderByPath>(*this, folder);
}

bool FakeFileSystem::createDirectories(const Path& folder) {
  const std::scoped_lock lock(_mutex);
  addFolder(folder);
  return true;
}

/// Paths are in the order of their components, so that an item stands just before what it holds.
std::vector<Path> FakeFileSystem::subtree(const Path& item) const {
  std::vector<Path> paths;
  for (auto entry = _entries.lower_bound(item); entry != _entries.end(); ++entry) {
    if (entry->first != item && !isBelow(entry->first.native(), item.native())) break;
    paths.push_back(entry->first);
  }
  return paths;
}

bool FakeFileSystem::move(const Path& from, const Path& to) {
  const std::scoped_lock lock(_mutex);
  if (!_entries.contains(from) || _entries.contains(to)) return false;
  for (const Path& path : subtree(from)) {
    auto entry = _entries.extract(path);
    entry.key() = to.native() + path.native().substr(from.native().size());
    _entries.insert(std::move(entry));
  }
  return true;
}

bool FakeFileSystem::isAllowed(const Path& item, const ItemCheck& check) const {
  const auto real = _realPlaces.find(item);
  const auto own = attributes(item);
  return own && check(real == _realPlaces.end() ? item : real->second, *own);
}

bool FakeFileSystem::moveChecked(const Path& from, const Path& to, const ItemCheck& mayMove) {
  return isAllowed(from, mayMove) && move(from, to);
}

bool FakeFileSystem::empty(const Path& file, const ItemCheck& mayEmpty) {
  if (!isAllowed(file, mayEmpty)) return false;
  const std::scoped_lock lock(_mutex);
  const auto entry = _entries.find(file);
  if (entry == _entries.end() || entry->second.kind != FileKind::regular) return false;
  entry->second.allocatedBytes = entry->second.logicalBytes = 0;
  return true;
}

bool FakeFileSystem::removeUserAttributes(const Path& file, std::span<const std::string_view>,
                                          const ItemCheck& mayChange) {
  return isAllowed(file, mayChange);
}

bool FakeFileSystem::remove(const Path& item, const ItemCheck& mayRemove) {
  if (!isAllowed(item, mayRemove)) return false;
  const std::scoped_lock lock(_mutex);
  if (!_entries.contains(item)) return false;
  for (const Path& path : subtree(item)) _entries.erase(path);
  return true;
}

FakeTrash::FakeTrash(FakeFileSystem& files)
    : _files(files),
      _mainTrash(files.home() / ".local/share/Trash/files"),
      _homeTrash(files.home() / ".Trash") {
  _files.addFolder(_mainTrash);
}

std::vector<Path> FakeTrash::folders() {
  return {_mainTrash, _homeTrash};
}

std::optional<std::vector<Path>> FakeTrash::list() {
  auto entries = _files.list(_mainTrash);
  if (!entries) return std::nullopt;
  const auto more = _files.list(_homeTrash).value_or(std::vector<Path>{});
  entries->insert(entries->end(), more.begin(), more.end());
  return entries;
}

std::optional<Date> FakeTrash::modificationDate() {
  return FakeFileSystem::usualDate;
}

bool FakeTrash::contains(const Path& item) const {
  return item.native().find("/.Trash/") != std::string::npos ||
         isBelow(item.native(), _mainTrash.native());
}

std::optional<Path> FakeTrash::moveToTrash(const Path& item, const ItemCheck& mayMove) {
  const Path trashed = _mainTrash / item.filename();
  return _files.moveChecked(item, trashed, mayMove) ? std::optional(trashed) : std::nullopt;
}

bool FakeTrash::putBack(const Path& trashed, const Path& original, const ItemCheck& mayReturn) {
  _files.createDirectories(original.parent_path());
  return _files.moveChecked(trashed, original, mayReturn);
}

bool FakeTrash::remove(const Path& trashed, const ItemCheck& mayRemove) {
  return _files.remove(trashed, mayRemove);
}

}  // namespace klarvik
