#include "platform/linux/shared_extents.h"

#include <linux/fiemap.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/vfs.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

#include "base/bytes.h"
#include "base/posix_io.h"

namespace klarvik {
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
