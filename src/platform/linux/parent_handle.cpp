#include "platform/linux/parent_handle.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <vector>

#include "base/posix_io.h"

namespace klarvik {
namespace {

constexpr int kMostLinks = 40;  // what the kernel allows itself on one path

using Components = std::vector<std::string>;

/// The components of a path, without slashes and ".".
Components componentsOf(std::string_view path) {
  Components components;
  for (std::size_t start = 0; start < path.size();) {
    const std::size_t end = std::min(path.find('/', start), path.size());
    const std::string_view component = path.substr(start, end - start);
    if (!component.empty() && component != ".") components.emplace_back(component);
    start = end + 1;
  }
  return components;
}

Path pathOf(Components::const_iterator first, Components::const_iterator last) {
  std::string text;
  for (; first != last; ++first) text.append("/").append(*first);
  return Path(text.empty() ? "/" : std::move(text));
}

bool namesAnItem(const Path& item) {
  const std::string name = item.filename().native();
  return item.is_absolute() && !name.empty() && name != "." && name != ".." &&
         item.native().find('\0') == std::string::npos;
}

std::optional<std::string> linkTarget(int folder, const std::string& name) {
  std::array<char, PATH_MAX> target;
  const ssize_t length = retryOnEintr(
      [&] { return ::readlinkat(folder, name.c_str(), target.data(), target.size()); });
  if (length <= 0) return std::nullopt;
  return std::string(target.data(), static_cast<std::size_t>(length));
}

/// Goes down from the root of the machine and keeps account of where it really is. The account is
/// the chain of folders that were opened, each one beneath the last, so that it never depends on
/// what a ".." on the disk may have come to mean.
class PathResolver {
 public:
  PathResolver() : _folder(openFolderHandle(AT_FDCWD, "/")) {}

  /// Goes down along `path`. Where it fails, what has not been entered stays pending.
  bool enter(std::string_view path) {
    push(componentsOf(path));
    _own = _pending.size();
    while (_folder && !_pending.empty()) {
      if (!enterNext()) return false;
    }
    return static_cast<bool>(_folder);
  }

  /// Makes the pending folders and enters them. Nothing stands where the first is made.
  bool createPending() {
    while (!_pending.empty()) {
      const std::string& name = _pending.back();
      const auto make = [&] { return ::mkdirat(_folder.get(), name.c_str(), 0777); };
      if (retryOnEintr(make) != 0 && errno != EEXIST) return false;
      UniqueFd next = openFolderHandle(_folder.get(), name.c_str());
      if (!next) return false;
      arriveAt(std::move(next));
    }
    return true;
  }

  /// Whether what stopped the descent is a missing folder that may be made: named by the path
  /// itself rather than by a link, with no ".." after it.
  [[nodiscard]] bool stoppedAtMissing() const {
    return _missing && _pending.size() == _own &&
           std::find(_pending.begin(), _pending.end(), "..") == _pending.end();
  }

  [[nodiscard]] const Components& place() const { return _place; }
  /// The place with the pending folders entered.
  [[nodiscard]] Components destination() const {
    Components all = _place;
    all.insert(all.end(), _pending.rbegin(), _pending.rend());
    return all;
  }
  [[nodiscard]] UniqueFd takeFolder() { return std::move(_folder); }

 private:
  void push(const Components& components) {
    _pending.insert(_pending.end(), components.rbegin(), components.rend());
  }

  std::string pop() {
    std::string name = std::move(_pending.back());
    _pending.pop_back();
    _own = std::min(_own, _pending.size());
    return name;
  }

  bool enterNext() {
    if (_pending.back() == "..") {
      pop();
      return leave();
    }
    UniqueFd next = openFolderHandle(_folder.get(), _pending.back().c_str());
    if (next) {
      arriveAt(std::move(next));
      return true;
    }
    _missing = errno == ENOENT;
    return errno == ENOTDIR && followLink();
  }

  void arriveAt(UniqueFd next) {
    _folder = std::move(next);
    _place.push_back(pop());
  }

  bool followLink() {
    const auto target = linkTarget(_folder.get(), _pending.back());
    if (!target) {
      errno = ENOTDIR;
      return false;
    }
    if (++_links > kMostLinks) {
      errno = ELOOP;
      return false;
    }
    pop();
    push(componentsOf(*target));
    if (target->front() != '/') return true;
    _place.clear();
    _folder = openFolderHandle(AT_FDCWD, "/");
    return static_cast<bool>(_folder);
  }

  bool leave() {
    if (!_place.empty()) _place.pop_back();
    _folder = openFolderHandle(AT_FDCWD, "/");
    for (const std::string& name : _place) {
      if (!_folder) return false;
      _folder = openFolderHandle(_folder.get(), name.c_str());
    }
    return static_cast<bool>(_folder);
  }

  UniqueFd _folder;
  Components _place;     // real components below the root of the machine
  Components _pending;   // still to be entered, the next one last
  std::size_t _own = 0;  // how many of the pending come from the path, the others from links
  int _links = 0;
  bool _missing = false;
};

/// `place` counted from the root; nothing when it lies outside.
std::optional<Path> logicalPlace(const Components& place, const Components& root) {
  if (place.size() < root.size() || !std::equal(root.begin(), root.end(), place.begin())) {
    return std::nullopt;
  }
  return pathOf(place.begin() + static_cast<std::ptrdiff_t>(root.size()), place.end());
}

std::optional<ParentHandle> openParentOf(const Path& root, const Path& item,
                                         const RealPathPredicate* mayCreate) {
  if (!namesAnItem(item)) return std::nullopt;
  PathResolver descent;
  if (!descent.enter(root.native())) return std::nullopt;
  const Components rootPlace = descent.place();

  const bool arrived = descent.enter(item.parent_path().native());
  if (!arrived && !(mayCreate && descent.stoppedAtMissing())) return std::nullopt;
  const auto folder = logicalPlace(descent.destination(), rootPlace);
  if (!folder) return std::nullopt;

  Path realPath = *folder / item.filename();
  if (!arrived && !((*mayCreate)(realPath) && descent.createPending())) return std::nullopt;
  return ParentHandle{descent.takeFolder(), item.filename().native(), std::move(realPath)};
}

}  // namespace

std::optional<ParentHandle> openParent(const Path& root, const Path& item) {
  return openParentOf(root, item, nullptr);
}

std::optional<ParentHandle> openParentCreating(const Path& root, const Path& item,
                                               const RealPathPredicate& mayCreate) {
  return openParentOf(root, item, &mayCreate);
}

}  // namespace klarvik
