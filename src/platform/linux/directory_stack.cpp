#include "platform/linux/directory_stack.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "base/posix_io.h"

namespace klarvik {
namespace {

constexpr std::size_t kMostHandles = 32;
constexpr int kForListing = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

bool isOutOfHandles() {
  return errno == EMFILE || errno == ENFILE;
}

}  // namespace

UniqueFd openForListing(int folder, const char* name) {
  return UniqueFd(retryOnEintr([&] { return ::openat(folder, name, kForListing); }));
}

void DirectoryStack::Level::closeHandle() {
  struct stat status {};
  if (::fstat(handle->get(), &status) == 0) {
    device = status.st_dev;
    inode = status.st_ino;
  }
  handle.reset();
}

bool DirectoryStack::Level::isThe(const UniqueFd& folder) const {
  struct stat status {};
  return folder && ::fstat(folder.get(), &status) == 0 && status.st_dev == device &&
         status.st_ino == inode;
}

UniqueFd openOnSameMount(int folder, const char* name) {
  open_how how{};
  how.flags = kForListing;
  how.resolve = RESOLVE_NO_XDEV;
  return UniqueFd(static_cast<int>(
      retryOnEintr([&] { return ::syscall(SYS_openat2, folder, name, &how, sizeof how); })));
}

bool canOpenOnSameMount() {
  return openOnSameMount(AT_FDCWD, "/").get() >= 0;
}

DirectoryStack::DirectoryStack(UniqueFd start, Open open, std::function<bool()> freeHandles)
    : _open(std::move(open)), _freeHandles(std::move(freeHandles)) {
  _levels.push_back({.handle = std::make_shared<const UniqueFd>(std::move(start))});
}

UniqueFd DirectoryStack::open(const char* name) {
  for (;;) {
    UniqueFd folder = openIn(current(), name);
    if (folder || !isOutOfHandles() || !closeHighest()) return folder;
  }
}

UniqueFd DirectoryStack::openIn(int folder, const char* name) const {
  UniqueFd opened = _open(folder, name);
  if (opened || !isOutOfHandles() || !_freeHandles || !_freeHandles()) return opened;
  return _open(folder, name);
}

void DirectoryStack::enter(std::shared_ptr<const UniqueFd> folder, std::string_view name) {
  enterUnopened(name);
  _levels.back().handle = std::move(folder);
  if (_levels.size() - _firstOpen > kMostHandles) closeHighest();
}

void DirectoryStack::enterUnopened(std::string_view name) {
  if (!_path.empty()) _path.push_back('/');
  _path.append(name);
  _levels.push_back({.handle = nullptr, .pathLength = _path.size()});
}

void DirectoryStack::openCurrent() {
  if (_levels.back().handle) return;
  const auto above = _levels[depth() - 1].handle;
  if (!above) return;
  UniqueFd folder = openIn(above->get(), std::string(currentName()).c_str());
  if (folder) _levels.back().handle = std::make_shared<const UniqueFd>(std::move(folder));
}

void DirectoryStack::leave() {
  const auto left = std::move(_levels.back().handle);
  truncate(depth() - 1);
  if (_levels.back().handle) return;
  UniqueFd above;
  if (left) above = openIn(left->get(), "..");
  if (!_levels.back().isThe(above)) return reopenFromRoot();
  _levels.back().handle = std::make_shared<const UniqueFd>(std::move(above));
  _firstOpen = depth();
}

std::string_view DirectoryStack::nameAt(std::size_t level) const {
  if (level == 0) return {};
  const std::size_t above = _levels[level - 1].pathLength;
  const std::size_t start = above == 0 ? 0 : above + 1;
  return std::string_view(_path).substr(start, _levels[level].pathLength - start);
}

/// Closes the handle that will be missed last. False when only those are left that must stay.
bool DirectoryStack::closeHighest() {
  if (_firstOpen >= depth()) return false;
  _levels[_firstOpen++].closeHandle();
  return true;
}

void DirectoryStack::reopenFromRoot() {
  UniqueFd reached;
  std::size_t level = 0;
  while (level < depth()) {
    const int from = level == 0 ? _levels.front().handle->get() : reached.get();
    UniqueFd next = openIn(from, std::string(nameAt(level + 1)).c_str());
    if (!_levels[level + 1].isThe(next)) break;
    reached = std::move(next);
    ++level;
  }
  truncate(level);
  if (level > 0) _levels.back().handle = std::make_shared<const UniqueFd>(std::move(reached));
  _firstOpen = std::max(level, std::size_t{1});
}

void DirectoryStack::truncate(std::size_t depth) {
  _levels.resize(depth + 1);
  _path.resize(_levels.back().pathLength);
}

}  // namespace klarvik
