#include "platform/linux/disk_threads.h"

#include <fcntl.h>
#include <limits.h>
#include <sched.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "base/posix_io.h"
#include "platform/linux/mounts.h"

namespace klarvik {
namespace {

// Beyond these, threads that wait for the disk gain nothing more.
constexpr std::size_t kWaitingThreads = 8;

std::size_t processors() {
  cpu_set_t allowed;
  CPU_ZERO(&allowed);
  if (::sched_getaffinity(0, sizeof allowed, &allowed) == 0) {
    return static_cast<std::size_t>(CPU_COUNT(&allowed));
  }
  return std::max(1U, std::thread::hardware_concurrency());
}

std::optional<std::string> textOf(const std::string& path) {
  constexpr std::size_t most = 4096;
  const UniqueFd file(retryOnEintr([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); }));
  return file ? readToEnd(file.get(), most) : std::nullopt;
}

/// The disk of a virtual machine says that it turns when nobody has told it.
bool isVirtual(const std::string& device) {
  constexpr std::array<std::string_view, 2> drivers{"virtio_blk", "vbd"};
  std::array<char, PATH_MAX> target;
  const ssize_t length =
      ::readlink((device + "/device/driver").c_str(), target.data(), target.size());
  if (length <= 0) return false;
  const std::string_view driver(target.data(), static_cast<std::size_t>(length));
  return std::ranges::find(drivers, driver.substr(driver.rfind('/') + 1)) != drivers.end();
}

/// The number of the device that the opened folder lies on. Some file systems, such as btrfs, have
/// a number that is no device's: theirs is the one that they were mounted from.
std::optional<dev_t> deviceOf(int folder) {
  struct stat status {};
  if (::fstat(folder, &status) != 0) return std::nullopt;
  if (major(status.st_dev) != 0) return status.st_dev;
  const auto mount = mountOfEntry(folder, "");
  const auto table = mount ? readMountTable() : std::nullopt;
  if (!table) return std::nullopt;
  const auto found = std::ranges::find(*table, mount->id, &MountPoint::id);
  // Another path may lead to a server that does not answer.
  if (found == table->end() || !found->source.native().starts_with("/dev/")) return std::nullopt;
  if (::stat(found->source.c_str(), &status) != 0) return std::nullopt;
  return status.st_rdev;
}

/// Whether the disk that the opened folder lies on turns, as far as the system tells.
bool liesOnTurningDisk(int folder) {
  const auto number = deviceOf(folder);
  if (!number) return false;
  const std::string device =
      "/sys/dev/block/" + std::to_string(major(*number)) + ':' + std::to_string(minor(*number));
  // What is asked of a whole disk is found above its partitions.
  for (const std::string& disk : {device, device + "/.."}) {
    const auto turns = textOf(disk + "/queue/rotational");
    if (turns) return turns->starts_with('1') && !isVirtual(disk);
  }
  return false;
}

}  // namespace

HelpfulThreads helpfulThreads(int folder) {
  const std::size_t working = std::min(processors(), kWaitingThreads);
  if (working < 2 || liesOnTurningDisk(folder)) return {};
  return {.helpers = working - 1, .whileDiskIsRead = kWaitingThreads - working};
}

std::size_t filesReadAtOnce(int folder) {
  if (liesOnTurningDisk(folder)) return 1;
  return std::max(processors(), kWaitingThreads);
}

}  // namespace klarvik
