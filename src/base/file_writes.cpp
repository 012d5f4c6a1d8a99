#include "base/file_writes.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <random>
#include <utility>

#include "base/posix_io.h"

namespace klarvik {
namespace {

constexpr int mostNames = 1000;
constexpr mode_t forTheUserAlone = 0600;

std::string nameFor(const std::string& name, int number, const std::string& extension) {
  return name + (number == 1 ? "" : "-" + std::to_string(number)) + extension;
}

UniqueFd openAt(int folder, const char* name, int flags) {
  return UniqueFd(retryOnEintr(
      [&] { return ::openat(folder, name, flags | O_RDWR | O_CLOEXEC, forTheUserAlone); }));
}

std::string temporaryName() {
  std::array<char, 32> name{};
  std::snprintf(name.data(), name.size(), ".klarvik-new-%08x", std::random_device()());
  return name.data();
}

}  // namespace

PendingFile::PendingFile(UniqueFd folder, UniqueFd fd, std::string temporary)
    : _folder(std::move(folder)), _fd(std::move(fd)), _temporary(std::move(temporary)) {}

PendingFile::PendingFile(PendingFile&& other) noexcept
    : _folder(std::move(other._folder)),
      _fd(std::move(other._fd)),
      _temporary(std::exchange(other._temporary, {})),
      _size(other._size) {}

PendingFile::~PendingFile() {
  discard();
}

std::optional<PendingFile> PendingFile::in(UniqueFd folder) {
  if (!folder) return std::nullopt;
  UniqueFd nameless = openAt(folder.get(), ".", O_TMPFILE);
  if (nameless) return PendingFile(std::move(folder), std::move(nameless), {});
  std::string temporary = temporaryName();
  UniqueFd named = openAt(folder.get(), temporary.c_str(), O_CREAT | O_EXCL | O_NOFOLLOW);
  if (!named) return std::nullopt;
  return PendingFile(std::move(folder), std::move(named), std::move(temporary));
}

bool PendingFile::append(std::string_view bytes) {
  if (!writeAll(_fd.get(), bytes)) return false;
  _size += static_cast<std::int64_t>(bytes.size());
  return true;
}

bool PendingFile::inspect(const std::function<bool(std::span<const std::byte>)>& look) const {
  const auto length = static_cast<std::size_t>(_size);
  if (length == 0) return look({});
  void* const content = ::mmap(nullptr, length, PROT_READ, MAP_PRIVATE, _fd.get(), 0);
  if (content == MAP_FAILED) return false;
  const bool answer = look({static_cast<const std::byte*>(content), length});
  ::munmap(content, length);
  return answer;
}

bool PendingFile::flush() const {
  return retryOnEintr([&] { return ::fdatasync(_fd.get()); }) == 0;
}

void PendingFile::discard() {
  if (!_temporary.empty()) ::unlinkat(_folder.get(), _temporary.c_str(), 0);
  _temporary.clear();
}

/// Where the file system knows no renaming that replaces nothing, as on NFS, a second name does not
/// replace anything either.
bool PendingFile::rename(const std::string& name) const {
  const int folder = _folder.get();
  if (::renameat2(folder, _temporary.c_str(), folder, name.c_str(), RENAME_NOREPLACE) == 0) {
    return true;
  }
  if (errno != EINVAL || ::linkat(folder, _temporary.c_str(), folder, name.c_str(), 0) != 0) {
    return false;
  }
  ::unlinkat(folder, _temporary.c_str(), 0);
  return true;
}

bool PendingFile::link(const std::string& name) const {
  const std::string handle = "/proc/self/fd/" + std::to_string(_fd.get());
  return ::linkat(AT_FDCWD, handle.c_str(), _folder.get(), name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

PendingFile::Naming PendingFile::giveName(const std::string& name) {
  const bool isNamed =
      retryOnEintr([&] { return (_temporary.empty() ? link(name) : rename(name)) ? 0 : -1; }) == 0;
  if (!isNamed) return errno == EEXIST ? Naming::nameTaken : Naming::failed;
  _temporary.clear();
  return Naming::done;
}

std::optional<std::string> PendingFile::commit(const std::string& name,
                                               const std::string& extension) {
  ::fchmod(_fd.get(), 0644);  // where the file system keeps such modes
  if (::fsync(_fd.get()) != 0) return std::nullopt;
  for (int number = 1; number <= mostNames; ++number) {
    std::string wanted = nameFor(name, number, extension);
    switch (giveName(wanted)) {
      case Naming::done:
        return wanted;
      case Naming::nameTaken:
        continue;
      case Naming::failed:
        return std::nullopt;
    }
  }
  return std::nullopt;
}

namespace {

// Makes the new name last. When that fails, the new content stands all the same.
void syncFolder(const std::filesystem::path& folder) {
  const UniqueFd fd{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
  if (fd) ::fsync(fd.get());
}

}  // namespace

std::filesystem::path linkedFile(const std::filesystem::path& file) {
  constexpr int mostLinks = 40;
  std::filesystem::path place = file;
  for (int link = 0; link < mostLinks; ++link) {
    std::error_code error;
    const auto target = std::filesystem::read_symlink(place, error);
    if (error) return place;
    place = place.parent_path() / target;
  }
  return file;
}

bool writeAtomically(const std::filesystem::path& file, std::string_view content, ::mode_t mode) {
  // In folders that are everybody's, under a name that nobody else gives.
  const std::filesystem::path fresh =
      file.parent_path() / (".klarvik-" + file.filename().native() + ".new");
  ::unlink(fresh.c_str());  // of a run that was killed
  UniqueFd fd{::open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600)};
  if (!fd) return false;
  const bool stored = ::fchmod(fd.get(), mode) == 0 && writeAll(fd.get(), content) &&
                      ::fsync(fd.get()) == 0 && ::close(fd.release()) == 0 &&
                      ::rename(fresh.c_str(), file.c_str()) == 0;
  if (stored) {
    syncFolder(file.parent_path());
  } else {
    ::unlink(fresh.c_str());
  }
  return stored;
}

}  // namespace klarvik
