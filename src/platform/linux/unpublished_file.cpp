#include "platform/linux/unpublished_file.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

#include "platform/linux/write_whole.h"

namespace klarvik {
namespace {

constexpr int mostNames = 1000;

Path nameFor(const std::string& name, int number, const std::string& extension) {
  return name + (number == 1 ? "" : "-" + std::to_string(number)) + extension;
}

}  // namespace

UnpublishedFile::UnpublishedFile(Path folder, UniqueFd fd, Path temporary)
    : _folder(std::move(folder)), _fd(std::move(fd)), _temporary(std::move(temporary)) {}

UnpublishedFile::UnpublishedFile(UnpublishedFile&& other) noexcept
    : _folder(std::move(other._folder)),
      _fd(std::move(other._fd)),
      _temporary(std::exchange(other._temporary, {})),
      _size(other._size) {}

UnpublishedFile::~UnpublishedFile() {
  discard();
}

std::optional<UnpublishedFile> UnpublishedFile::in(const Path& folder) {
  UniqueFd nameless{::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600)};
  if (nameless) return UnpublishedFile(folder, std::move(nameless), {});
  std::string temporary = (folder / ".klarvik-update-XXXXXX").native();
  UniqueFd named{::mkostemp(temporary.data(), O_CLOEXEC)};
  if (!named) return std::nullopt;
  return UnpublishedFile(folder, std::move(named), temporary);
}

bool UnpublishedFile::append(std::string_view bytes) {
  if (!writeWhole(_fd.get(), bytes)) return false;
  _size += static_cast<std::int64_t>(bytes.size());
  return true;
}

bool UnpublishedFile::inspect(const std::function<bool(std::span<const std::byte>)>& look) const {
  const auto length = static_cast<std::size_t>(_size);
  if (length == 0) return look({});
  void* const content = ::mmap(nullptr, length, PROT_READ, MAP_PRIVATE, _fd.get(), 0);
  if (content == MAP_FAILED) return false;
  const bool answer = look({static_cast<const std::byte*>(content), length});
  ::munmap(content, length);
  return answer;
}

bool UnpublishedFile::flush() const {
  return ::fdatasync(_fd.get()) == 0;
}

void UnpublishedFile::discard() {
  if (!_temporary.empty()) ::unlink(_temporary.c_str());
  _temporary.clear();
}

/// Where the file system knows no renaming that replaces nothing, as on NFS, a second name does not
/// replace anything either.
bool UnpublishedFile::rename(const Path& path) const {
  if (::renameat2(AT_FDCWD, _temporary.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0) {
    return true;
  }
  if (errno != EINVAL || ::link(_temporary.c_str(), path.c_str()) != 0) return false;
  ::unlink(_temporary.c_str());
  return true;
}

bool UnpublishedFile::giveName(const Path& path) const {
  if (!_temporary.empty()) return rename(path);
  const std::string handle = "/proc/self/fd/" + std::to_string(_fd.get());
  return ::linkat(AT_FDCWD, handle.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

std::optional<Path> UnpublishedFile::publish(const std::string& name,
                                             const std::string& extension) {
  ::fchmod(_fd.get(), 0644);  // where the file system keeps such modes
  if (::fsync(_fd.get()) != 0) return std::nullopt;
  for (int number = 1; number <= mostNames; ++number) {
    const Path path = _folder / nameFor(name, number, extension);
    if (giveName(path)) {
      _temporary.clear();
      return path;
    }
    if (errno != EEXIST) return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace klarvik
