#include "platform/linux/linux_file_system.h"

#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/posix_io.h"
#include "platform/linux/directory_stack.h"
#include "platform/linux/directory_walk.h"
#include "platform/linux/disk_threads.h"
#include "platform/linux/file_status.h"
#include "platform/linux/mounts.h"
#include "platform/linux/tree_removal.h"
#include "platform/linux/user_attributes.h"

namespace klarvik {
namespace {

/// Without trailing slashes, which would make the system follow a link.
Path withoutTrailingSlashes(const Path& path) {
  std::string text = path.native();
  while (text.size() > 1 && text.back() == '/') text.pop_back();
  return Path(std::move(text));
}

/// A folder that is counted from the working folder would be another one to whoever goes down to it
/// from the machine's "/". Where it cannot be found, the root is a file, below which nothing is.
Path absoluteRoot(const Path& root) {
  std::error_code error;
  const Path whole = root.is_absolute() ? root : std::filesystem::canonical(root, error);
  return withoutTrailingSlashes(error ? Path("/dev/null") : whole);
}

class LinuxFileReader final : public FileReader {
 public:
  explicit LinuxFileReader(UniqueFd file) : _file(std::move(file)) {}

  [[nodiscard]] std::optional<FileAttributes> attributes() const override {
    const auto status = statusOf(_file.get(), "");
    return status ? std::optional(attributesOf(*status)) : std::nullopt;
  }

  [[nodiscard]] std::optional<std::size_t> read(std::span<std::byte> buffer) override {
    std::size_t filled = 0;
    while (filled < buffer.size()) {
      const std::span<std::byte> rest = buffer.subspan(filled);
      const ssize_t got =
          retryOnEintr([&] { return ::read(_file.get(), rest.data(), rest.size()); });
      if (got < 0 && filled == 0) return std::nullopt;
      if (got <= 0) break;
      filled += static_cast<std::size_t>(got);
    }
    return filled;
  }

  [[nodiscard]] std::int64_t sharedBytes() const override { return sharedBytesOf(_file.get()); }

 private:
  UniqueFd _file;
};

std::optional<FileAttributes> attributesAt(int folder, const char* name) {
  const auto status = statusOf(folder, name);
  return status ? std::optional(attributesOf(*status)) : std::nullopt;
}

/// Asked twice for its kind: should it have become a pipe by now, opening it does not wait for a
/// writer.
std::unique_ptr<FileReader> openRegularFile(int folder, const char* name) {
  const auto isRegular = [](const std::optional<struct statx>& status) {
    return status && kindOf(*status) == FileKind::regular;
  };
  if (!isRegular(statusOf(folder, name))) return nullptr;
  constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  UniqueFd file(retryOnEintr([&] { return ::openat(folder, name, flags); }));
  if (!file || !isRegular(statusOf(file.get(), ""))) return nullptr;
  return std::make_unique<LinuxFileReader>(std::move(file));
}

class LinuxFolder final : public OpenedFolder {
 public:
  explicit LinuxFolder(UniqueFd folder) : _folder(std::move(folder)) {}

  [[nodiscard]] std::optional<FileAttributes> attributes(const std::string& name) const override {
    return attributesAt(_folder.get(), name.c_str());
  }
  [[nodiscard]] std::unique_ptr<FileReader> openForReading(const std::string& name) const override {
    return openRegularFile(_folder.get(), name.c_str());
  }
  [[nodiscard]] std::unique_ptr<OpenedFolder> openFolder(const std::string& name) const override {
    UniqueFd folder = openFolderHandle(_folder.get(), name.c_str());
    return folder ? std::make_unique<LinuxFolder>(std::move(folder)) : nullptr;
  }

 private:
  UniqueFd _folder;
};

}  // namespace

LinuxFileSystem::LinuxFileSystem(const Path& root, UserFolders folders)
    : _root(absoluteRoot(root)), _folders(std::move(folders)) {}

Path LinuxFileSystem::diskPath(const Path& logical) const {
  const Path below = logical.relative_path();
  return below.empty() ? _root : _root / below;
}

std::optional<Path> LinuxFileSystem::logicalPath(const Path& disk) const {
  const auto [inRoot, inDisk] = std::mismatch(_root.begin(), _root.end(), disk.begin(), disk.end());
  if (inRoot != _root.end()) return std::nullopt;
  Path logical("/");
  for (auto part = inDisk; part != disk.end(); ++part) logical /= *part;
  return logical;
}

Path LinuxFileSystem::realHome() const {
  const auto inHome = realPath(_folders.home / "x");
  return inHome ? inHome->parent_path() : _folders.home;
}

std::optional<Path> LinuxFileSystem::realPath(const Path& path) const {
  const auto parent = openParent(_root, path);
  return parent ? std::optional(parent->realPath) : std::nullopt;
}

std::string LinuxFileSystem::diskText(const Path& logical) const {
  const std::string& text = logical.native();
  const std::size_t first = text.find_first_not_of('/');
  if (first == std::string::npos) return _root.native();
  std::string disk = _root.native();
  if (!disk.ends_with('/')) disk += '/';
  return disk.append(text, first, text.find_last_not_of('/') - first + 1);
}

int LinuxFileSystem::Location::at() const {
  return folder ? folder.get() : AT_FDCWD;
}

std::optional<LinuxFileSystem::Location> LinuxFileSystem::locate(const Path& path) const {
  if (!path.is_absolute() || path.native().find('\0') != std::string::npos) return std::nullopt;
  Location location{{}, diskText(path)};
  while (location.name.size() >= PATH_MAX) {
    if (!enterLongestPart(location)) return std::nullopt;
  }
  return location;
}

/// The system takes no text of `PATH_MAX` bytes at once, however deep the folders are.
bool LinuxFileSystem::enterLongestPart(Location& location) {
  const std::size_t slash = location.name.rfind('/', PATH_MAX - 1);
  if (slash == std::string::npos || slash == 0) return false;
  const std::size_t next =
      std::min(location.name.find_first_not_of('/', slash), location.name.size());
  const std::string rest = location.name.substr(next);
  location.name.resize(slash);
  location.folder = openAt(location, O_PATH | O_DIRECTORY);
  location.name = rest;
  return static_cast<bool>(location.folder);
}

bool LinuxFileSystem::exists(const Path& path) const {
  const auto location = locate(path);
  if (!location) return false;
  struct stat status {};
  const auto ask = [&] { return ::fstatat(location->at(), location->name.c_str(), &status, 0); };
  return retryOnEintr(ask) == 0;
}

std::optional<FileAttributes> LinuxFileSystem::attributes(const Path& path) const {
  const auto location = locate(path);
  if (!location) return std::nullopt;
  return attributesAt(location->at(), location->name.c_str());
}

std::optional<Path> LinuxFileSystem::linkTarget(const Path& path) const {
  const auto location = locate(path);
  if (!location) return std::nullopt;
  std::string target(PATH_MAX, '\0');
  const auto read = [&] {
    return ::readlinkat(location->at(), location->name.c_str(), target.data(), target.size());
  };
  const ssize_t length = retryOnEintr(read);
  if (length <= 0 || length >= PATH_MAX) return std::nullopt;
  target.resize(static_cast<std::size_t>(length));
  return Path(std::move(target));
}

std::vector<std::string> LinuxFileSystem::userAttributes(const Path& path) const {
  const UniqueFd file = open(path, O_PATH | O_NOFOLLOW);
  return file ? userAttributesOf(file.get()) : std::vector<std::string>{};
}

bool LinuxFileSystem::isMountPoint(const Path& path) const {
  const auto location = locate(path);
  const auto mount = location ? mountOf(location->at(), location->name.c_str()) : std::nullopt;
  return mount && mount->isItsRoot;
}

VolumeTops LinuxFileSystem::volumeTops() const {
  const auto mounts = readMountTable();
  const auto ofRoot = mountOf(AT_FDCWD, _root.c_str());
  const auto home = locate(realHome());
  const auto ofHome = home ? mountOf(home->at(), home->name.c_str()) : std::nullopt;
  if (!mounts || !ofRoot || !ofHome) return {{"/"}, {}};
  VolumeTops tops = volumeTopsFrom(*mounts, {_root, ofRoot->number}, ofHome->number);
  const auto makeLogical = [&](Path& folder) { folder = logicalPath(folder).value_or(folder); };
  std::ranges::for_each(tops.folders, makeLogical);
  std::ranges::for_each(tops.seenElsewhere, makeLogical);
  return tops;
}

std::optional<std::vector<Path>> LinuxFileSystem::list(const Path& folder) const {
  const UniqueFd opened = open(folder, O_RDONLY | O_DIRECTORY);
  std::vector<Path> children;
  const bool listed = opened && DirectoryReader().read(opened.get(), [&](const ListedEntry& entry) {
    children.push_back(folder / entry.name);
    return true;
  });
  return listed ? std::optional(std::move(children)) : std::nullopt;
}

WalkOutcome LinuxFileSystem::walk(const Path& folder, WalkOptions options,
                                  const WalkVisitor& visit) const {
  const bool isRoot = withoutTrailingSlashes(folder) == "/";
  UniqueFd start = open(folder, O_RDONLY | O_DIRECTORY | (isRoot ? 0 : O_NOFOLLOW));
  if (!start) return WalkOutcome::refused;
  return walkBelow(std::move(start), withoutTrailingSlashes(folder), options, visit);
}

bool LinuxFileSystem::mayShareContent(const Path& path) const {
  const UniqueFd opened = open(path, O_PATH | O_NOFOLLOW);
  return opened && klarvik::mayShareContent(opened.get());
}

std::size_t LinuxFileSystem::filesAtOnce(const Path& folder) const {
  const UniqueFd opened = open(folder, O_PATH | O_DIRECTORY);
  return opened ? filesReadAtOnce(opened.get()) : 1;
}

std::unique_ptr<FileReader> LinuxFileSystem::openForReading(const Path& path) const {
  const auto location = locate(path);
  return location ? openRegularFile(location->at(), location->name.c_str()) : nullptr;
}

std::unique_ptr<OpenedFolder> LinuxFileSystem::openFolder(const Path& folder) const {
  UniqueFd opened = open(folder, O_PATH | O_DIRECTORY);
  return opened ? std::make_unique<LinuxFolder>(std::move(opened)) : nullptr;
}

bool LinuxFileSystem::createDirectories(const Path& folder) {
  const Path plain = withoutTrailingSlashes(folder);
  if (open(plain, O_PATH | O_DIRECTORY)) return true;
  const auto parent = openParentCreating(_root, plain, [](const Path&) { return true; });
  if (!parent) return false;
  const auto make = [&] { return ::mkdirat(parent->folder.get(), parent->name.c_str(), 0777); };
  return retryOnEintr(make) == 0 || static_cast<bool>(open(plain, O_PATH | O_DIRECTORY));
}

bool LinuxFileSystem::move(const Path& from, const Path& to) {
  const auto source = openParent(_root, from);
  const auto target = openParent(_root, to);
  if (!source || !target) return false;
  return retryOnEintr([&] {
           return ::renameat2(source->folder.get(), source->name.c_str(), target->folder.get(),
                              target->name.c_str(), RENAME_NOREPLACE);
         }) == 0;
}

bool LinuxFileSystem::empty(const Path& file, const ItemCheck& mayEmpty) {
  const auto place = openParent(_root, file);
  if (!place) return false;
  constexpr int flags = O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  const UniqueFd opened(
      retryOnEintr([&] { return ::openat(place->folder.get(), place->name.c_str(), flags); }));
  const auto seen = opened ? statusOf(opened.get(), "") : std::nullopt;
  return seen && kindOf(*seen) == FileKind::regular && seen->stx_nlink == 1 && mayEmpty &&
         mayEmpty(place->realPath, attributesOf(*seen)) &&
         retryOnEintr([&] { return ::ftruncate(opened.get(), 0); }) == 0;
}

bool LinuxFileSystem::removeUserAttributes(const Path& file,
                                           std::span<const std::string_view> names,
                                           const ItemCheck& mayChange) {
  const auto place = openParent(_root, file);
  if (!place) return false;
  constexpr int flags = O_PATH | O_NOFOLLOW | O_CLOEXEC;
  const UniqueFd opened(
      retryOnEintr([&] { return ::openat(place->folder.get(), place->name.c_str(), flags); }));
  const auto seen = opened ? statusOf(opened.get(), "") : std::nullopt;
  const bool isAllowed = seen && kindOf(*seen) == FileKind::regular && mayChange &&
                         mayChange(place->realPath, attributesOf(*seen));
  if (!isAllowed) return false;
  bool areGone = true;
  for (const std::string_view name : names) {
    if (!removeUserAttribute(opened.get(), std::string(name))) areGone = false;
  }
  return areGone;
}

bool LinuxFileSystem::remove(const Path& item, const ItemCheck& mayRemove) {
  const auto place = openParent(_root, item);
  const auto seen = place ? statusOf(place->folder.get(), place->name.c_str()) : std::nullopt;
  return seen && mayRemove && mayRemove(place->realPath, attributesOf(*seen)) &&
         removeTree(*place, *seen);
}

UniqueFd LinuxFileSystem::open(const Path& path, int flags) const {
  const auto location = locate(path);
  return location ? openAt(*location, flags) : UniqueFd();
}

UniqueFd LinuxFileSystem::openAt(const Location& location, int flags) {
  return UniqueFd(retryOnEintr(
      [&] { return ::openat(location.at(), location.name.c_str(), flags | O_CLOEXEC); }));
}

}  // namespace klarvik
