#include "platform/linux/mounted_volume.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/statvfs.h>

#include <array>

#include "base/posix_io.h"

namespace klarvik {
namespace {

std::optional<struct ::statvfs> statusOf(const Path& folder) {
  struct ::statvfs status {};
  if (retryOnEintr([&] { return ::statvfs(folder.c_str(), &status); }) != 0) return std::nullopt;
  return status;
}

std::optional<std::int64_t> bytes(::fsblkcnt_t blocks, unsigned long blockSize) {
  std::int64_t product = 0;
  if (__builtin_mul_overflow(blocks, blockSize, &product)) return std::nullopt;
  return product;
}

}  // namespace

MountedVolume::MountedVolume(Path folder) : _folder(std::move(folder)) {}

std::optional<std::int64_t> MountedVolume::totalBytes() const {
  const auto status = statusOf(_folder);
  return status ? bytes(status->f_blocks, status->f_frsize) : std::nullopt;
}

std::optional<std::int64_t> MountedVolume::availableBytes() const {
  const auto status = statusOf(_folder);
  return status ? bytes(status->f_bavail, status->f_frsize) : std::nullopt;
}

std::optional<std::int64_t> MountedVolume::keptForRootBytes() const {
  const auto status = statusOf(_folder);
  if (!status || status->f_bfree < status->f_bavail) return std::nullopt;
  return bytes(status->f_bfree - status->f_bavail, status->f_frsize);
}

std::optional<std::string> MountedVolume::name() const {
  const UniqueFd fd{::open(_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
  std::array<char, FSLABEL_MAX + 1> label{};
  if (!fd || ::ioctl(fd.get(), FS_IOC_GETFSLABEL, label.data()) != 0) return std::nullopt;
  std::string name(label.data());
  return name.empty() ? std::nullopt : std::optional(std::move(name));
}

}  // namespace klarvik
