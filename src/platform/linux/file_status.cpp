#include "platform/linux/file_status.h"

#include <linux/fiemap.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstddef>
#include <cstring>

#include "base/bytes.h"
#include "base/posix_io.h"
#include "platform/file_attributes.h"

namespace klarvik {
namespace {

constexpr std::int64_t kBlockBytes = 512;  // the unit of stx_blocks on every file system

std::optional<Date> dateIf(const struct statx& status, unsigned mask,
                           const struct statx_timestamp& time) {
  return status.stx_mask & mask ? std::optional(dateOf(time.tv_sec, time.tv_nsec)) : std::nullopt;
}

std::int64_t blockBytesOf(const struct statx& status) {
  return static_cast<std::int64_t>(status.stx_blocks) * kBlockBytes;
}

uid_t thisUser() {
  static const uid_t user = ::geteuid();
  return user;
}

}  // namespace

Date dateOf(std::int64_t seconds, std::int64_t nanoseconds) {
  using namespace std::chrono;
  constexpr std::int64_t furthest =
      floor<std::chrono::seconds>(Date::max()).time_since_epoch() / 1s - 1;
  return Date(std::chrono::seconds(std::clamp(seconds, -furthest, furthest)) +
              std::chrono::nanoseconds(nanoseconds));
}

std::optional<struct statx> statusOf(int folder, const char* name, Waiting waiting) {
  struct statx status;
  const int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | (*name ? 0 : AT_EMPTY_PATH) |
                    (waiting == Waiting::forNobody ? AT_STATX_DONT_SYNC : 0);
  const unsigned mask = STATX_BASIC_STATS | STATX_BTIME | STATX_MNT_ID;
  const auto ask = [&] { return ::statx(folder, name, flags, mask, &status); };
  if (retryOnEintr(ask) != 0) return std::nullopt;
  return status;
}

std::optional<MountOf> mountOf(int folder, const char* name) {
  struct statx status;
  const int flags =
      AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC | (*name ? 0 : AT_EMPTY_PATH);
  const auto ask = [&] { return ::statx(folder, name, flags, STATX_MNT_ID, &status); };
  if (retryOnEintr(ask) != 0 || (status.stx_mask & STATX_MNT_ID) == 0) return std::nullopt;
  return MountOf{.number = status.stx_mnt_id,
                 .isItsRoot = (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0};
}

bool isTheSame(const struct statx& now, const struct statx& before) {
  return entryIdentity(attributesOf(now)) == entryIdentity(attributesOf(before));
}

bool isStill(const struct statx& before, int folder, const char* name) {
  const auto now = statusOf(folder, name);
  return now && isTheSame(*now, before);
}

FileKind kindOf(const struct statx& status) {
  switch (status.stx_mode & S_IFMT) {
    case S_IFDIR:
      return FileKind::directory;
    case S_IFREG:
      return FileKind::regular;
    case S_IFLNK:
      return FileKind::symbolicLink;
    default:
      return FileKind::other;
  }
}

std::int64_t allocatedBytesOf(const struct statx& status) {
  if (kindOf(status) == FileKind::directory) return 0;
  return blockBytesOf(status);
}

FileAttributes attributesOf(const struct statx& status) {
  // A folder that cannot be listed or entered cannot be emptied either.
  const unsigned neededToChange = kindOf(status) == FileKind::directory ? S_IRWXU : S_IWUSR;
  return {.kind = kindOf(status),
          .allocatedBytes = allocatedBytesOf(status),
          .folderBytes = kindOf(status) == FileKind::directory ? blockBytesOf(status) : 0,
          .logicalBytes = static_cast<std::int64_t>(status.stx_size),
          .modified = dateIf(status, STATX_MTIME, status.stx_mtime),
          .accessed = dateIf(status, STATX_ATIME, status.stx_atime),
          .created = dateIf(status, STATX_BTIME, status.stx_btime),
          .identity = FileIdentity{.device = ::makedev(status.stx_dev_major, status.stx_dev_minor),
                                   .inode = status.stx_ino},
          .names = status.stx_nlink,
          .isOwn = status.stx_uid == thisUser(),
          .isReadOnly = (status.stx_mode & neededToChange) != neededToChange,
          .isMountPoint = (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0};
}

namespace {

constexpr std::size_t extentsAtOnce = 256;
/// A file in more pieces than this is not looked at to its end.
constexpr int mostTurns = 4096;

constexpr std::size_t mapBytes = sizeof(fiemap) + extentsAtOnce * sizeof(fiemap_extent);

}  // namespace

bool mayShareContent(int file) {
  struct statfs status {};
  if (retryOnEintr([&] { return ::fstatfs(file, &status); }) != 0) return false;
  const auto kind = static_cast<std::uint64_t>(status.f_type) & 0xffff'ffff;
  return kind == BTRFS_SUPER_MAGIC || kind == XFS_SUPER_MAGIC;
}

std::int64_t sharedBytesOf(int file) {
  alignas(fiemap) std::array<std::byte, mapBytes> buffer{};
  std::int64_t shared = 0;
  std::uint64_t next = 0;
  for (int turn = 0; turn < mostTurns; ++turn) {
    auto request = std::bit_cast<fiemap>(std::array<std::byte, sizeof(fiemap)>{});
    request.fm_start = next;
    request.fm_length = FIEMAP_MAX_OFFSET - next;
    request.fm_extent_count = extentsAtOnce;
    std::memcpy(buffer.data(), &request, sizeof request);
    if (retryOnEintr([&] { return ::ioctl(file, FS_IOC_FIEMAP, buffer.data()); }) != 0) return 0;
    std::memcpy(&request, buffer.data(), sizeof request);
    if (request.fm_mapped_extents == 0 || request.fm_mapped_extents > extentsAtOnce) break;
    for (std::size_t at = 0; at < request.fm_mapped_extents; ++at) {
      fiemap_extent extent{};
      std::memcpy(&extent, buffer.data() + sizeof request + at * sizeof extent, sizeof extent);
      if ((extent.fe_flags & FIEMAP_EXTENT_SHARED) != 0) {
        shared = addBytes(shared, static_cast<std::int64_t>(extent.fe_length));
      }
      if ((extent.fe_flags & FIEMAP_EXTENT_LAST) != 0) return shared;
      next = extent.fe_logical + extent.fe_length;
    }
  }
  return shared;
}

}  // namespace klarvik
