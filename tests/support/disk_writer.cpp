#include "support/disk_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ranges>
#include <stdexcept>
#include <system_error>

namespace klarvik {
namespace {

std::uint64_t hashOf(std::string_view text) {
  std::uint64_t hash = 14'695'981'039'346'656'037U;
  for (const char character : text) {
    hash = (hash ^ static_cast<unsigned char>(character)) * 1'099'511'628'211U;
  }
  return hash;
}

[[noreturn]] void fail(const Path& path) {
  throw std::system_error(errno, std::generic_category(), path.native());
}

bool write(int fd, std::string_view text) {
  return ::write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

/// Up to a length of `bytes`. Small files are written out: the blocks of a disk that are asked for
/// without writing are slow to give back, file by file, and most sample disks do not live long
/// enough for what is written to reach the disk.
bool fill(int fd, std::int64_t bytes) {
  if (bytes > megabyte) return ::posix_fallocate(fd, 0, bytes) == 0;
  static const std::string zeros(megabyte, '\0');
  const off_t length = ::lseek(fd, 0, SEEK_END);
  const auto missing = static_cast<std::size_t>(std::max<std::int64_t>(bytes - length, 0));
  return length >= 0 && write(fd, std::string_view(zeros).substr(0, missing));
}

bool isAtOrBelow(const Path& place, const Path& folder) {
  return std::ranges::mismatch(folder, place).in1 == folder.end();
}

std::int64_t ownBytes(const Path& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0) fail(path);
  constexpr std::int64_t blockSize = 512;
  // A file with another name elsewhere goes on taking its space.
  return S_ISREG(status.st_mode) && status.st_nlink == 1 ? status.st_blocks * blockSize : 0;
}

}  // namespace

DiskWriter::DiskWriter(Path root) : _root(std::move(root)) {
  std::filesystem::create_directories(_root);
  if (!std::filesystem::is_empty(_root)) {
    throw std::invalid_argument(_root.native() + " is not empty");
  }
}

void DiskWriter::folder(const Path& place) {
  if (std::filesystem::exists(onDisk(place))) return;
  folder(place.parent_path());
  std::filesystem::create_directory(onDisk(place));
  _made.push_back(place);
}

void DiskWriter::file(const Path& place, std::int64_t bytes, std::string_view content) {
  folder(place.parent_path());
  const Path path = onDisk(place);
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (fd < 0) fail(path);
  const bool isWritten = write(fd, content) && fill(fd, bytes);
  ::close(fd);
  if (!isWritten) fail(path);
  _made.push_back(place);
  ++_files;
}

void DiskWriter::file(const Path& place, std::int64_t bytes) {
  const std::string own = place.native() + '\n';
  file(place, bytes, std::string_view(own).substr(0, static_cast<std::size_t>(bytes)));
}

void DiskWriter::sparse(const Path& place, std::int64_t bytes) {
  file(place, 1);
  if (::truncate(onDisk(place).c_str(), bytes) != 0) fail(onDisk(place));
}

void DiskWriter::files(const Path& folderPlace, std::int64_t count, std::int64_t bytes) {
  for (std::int64_t number = 0; number < count; ++number) {
    file(folderPlace / ("data-" + std::to_string(number) + ".bin"), bytes / count);
  }
}

void DiskWriter::link(const Path& place, const Path& target) {
  folder(place.parent_path());
  std::filesystem::create_symlink(target, onDisk(place));
  _made.push_back(place);
}

void DiskWriter::hardLink(const Path& place, const Path& existing) {
  folder(place.parent_path());
  std::filesystem::create_hard_link(onDisk(existing), onDisk(place));
}

void DiskWriter::attribute(const Path& place, const char* name, std::string_view content) const {
  static_cast<void>(
      ::setxattr(onDisk(place).c_str(), name, content.data(), content.size(), /*flags=*/0));
}

void DiskWriter::socket(const Path& place) {
  folder(place.parent_path());
  if (::mknod(onDisk(place).c_str(), S_IFSOCK | 0600, 0) != 0) fail(onDisk(place));
  _made.push_back(place);
}

void DiskWriter::date(const Path& place, std::int64_t second) {
  _dates.push_back({place, second});
}

void DiskWriter::mode(const Path& place, mode_t permissions) {
  _modes.push_back({place, permissions});
}

void DiskWriter::finish() const {
  for (const Path& place : _made) {
    const timespec modified{.tv_sec = secondOf(place), .tv_nsec = 0};
    const std::array<timespec, 2> times{modified, modified};
    const Path path = onDisk(place);
    if (::utimensat(AT_FDCWD, path.c_str(), times.data(), AT_SYMLINK_NOFOLLOW) != 0) fail(path);
  }
  for (const Mode& each : _modes) {
    const Path path = onDisk(each.place);
    if (::chmod(path.c_str(), each.permissions) != 0) fail(path);
  }
}

/// The last date that was given for a folder above counts.
std::int64_t DiskWriter::secondOf(const Path& place) const {
  for (const Dated& each : std::views::reverse(_dates)) {
    if (isAtOrBelow(place, each.place)) return each.second;
  }
  constexpr std::uint64_t oldestDays = 700;
  const auto daysAgo = static_cast<std::int64_t>(hashOf(place.native()) % oldestDays);
  return newestSecond - daysAgo * secondsADay;
}

std::int64_t DiskWriter::allocatedBytes(const Path& place) const {
  const Path path = onDisk(place);
  if (!std::filesystem::is_directory(path)) return ownBytes(path);
  std::int64_t bytes = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
    bytes += ownBytes(entry.path());
  }
  return bytes;
}

std::string trashRecord(const Path& original) {
  return "[Trash Info]\nPath=" + original.native() + "\nDeletionDate=2025-12-24T18:00:00\n";
}

}  // namespace klarvik
