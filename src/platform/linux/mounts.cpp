#include "platform/linux/mounts.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <algorithm>
#include <array>
#include <string>

#include "base/paths.h"
#include "base/posix_io.h"
#include "base/text.h"

namespace klarvik {
namespace {

// The fields of a line, separated by single spaces, that are read here.
constexpr std::size_t kIdField = 0;
constexpr std::size_t kVolumeField = 2;
constexpr std::size_t kTopField = 3;
constexpr std::size_t kPlaceField = 4;

constexpr std::size_t kLongestTable = 64 << 20;  // bytes; a machine with 100,000 mounts has less

/// "8:1": two numbers.
std::optional<std::uint64_t> volumeFrom(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const auto major = wholeNumber<std::uint32_t>(text.substr(0, colon));
  const auto minor = wholeNumber<std::uint32_t>(text.substr(colon + 1));
  if (!major || !minor) return std::nullopt;
  return std::uint64_t{*major} << 32U | *minor;
}

std::string_view fieldOf(std::string_view line, std::size_t index) {
  for (; index > 0; --index) {
    const std::size_t space = line.find(' ');
    if (space == std::string_view::npos) return {};
    line.remove_prefix(space + 1);
  }
  return line.substr(0, line.find(' '));
}

// Behind the fields, whose number varies, a lone dash precedes the kind of file system and what was
// mounted.
constexpr std::string_view kEndOfFields = " - ";
constexpr std::size_t kKindField = 0;
constexpr std::size_t kSourceField = 1;

std::string_view behindTheFields(std::string_view line) {
  const std::size_t end = line.find(kEndOfFields);
  return end != std::string_view::npos ? line.substr(end + kEndOfFields.size()) : "";
}

constexpr std::array<std::string_view, 18> kLocalKinds{
    "ext2",  "ext3", "ext4",  "xfs",  "btrfs", "f2fs",    "zfs", "bcachefs", "jfs",
    "tmpfs", "vfat", "exfat", "ntfs", "ntfs3", "fuseblk", "hfs", "hfsplus",  "overlay"};

bool isLocalKind(std::string_view kind) {
  return std::ranges::find(kLocalKinds, kind) != kLocalKinds.end();
}

// Blanks, line ends and backslashes stand as a backslash and three octal digits.
constexpr std::size_t kEscapedLength = 4;

std::string unescaped(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const bool mayBeEscaped = text.front() == '\\' && text.size() >= kEscapedLength;
    const auto escaped = mayBeEscaped
                             ? wholeNumber<unsigned char>(text.substr(1, kEscapedLength - 1), 8)
                             : std::nullopt;
    bytes += escaped ? static_cast<char>(*escaped) : text.front();
    text.remove_prefix(escaped ? kEscapedLength : 1);
  }
  return bytes;
}

}  // namespace

std::vector<MountPoint> mountTableFrom(std::string_view text) {
  std::vector<MountPoint> mounts;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    const auto id = wholeNumber<std::uint64_t>(fieldOf(line, kIdField));
    const std::string_view place = fieldOf(line, kPlaceField);
    if (!id || !place.starts_with('/')) continue;
    const std::string_view rest = behindTheFields(line);
    mounts.push_back({.id = *id,
                      .place = unescaped(place),
                      .volume = volumeFrom(fieldOf(line, kVolumeField)).value_or(0),
                      .top = unescaped(fieldOf(line, kTopField)),
                      .source = unescaped(fieldOf(rest, kSourceField)),
                      .isLocal = isLocalKind(fieldOf(rest, kKindField)),
                      .mountsOnEntry = fieldOf(rest, kKindField) == "autofs"});
  }
  return mounts;
}

// Asked for each folder on its way to the Trash. libmount reads the same, in twice the time and
// with five to nine times as many allocations.
std::optional<std::vector<MountPoint>> readMountTable() {
  const UniqueFd file(retryOnEintr(
      [] { return ::open("/proc/self/mountinfo", O_RDONLY | O_NOFOLLOW | O_CLOEXEC); }));
  const auto text = file ? readToEnd(file.get(), kLongestTable) : std::nullopt;
  if (!text) return std::nullopt;
  return mountTableFrom(*text);
}

std::optional<MountOfEntry> mountOf(const struct statx& entry) {
  if (!(entry.stx_mask & STATX_MNT_ID) || !(entry.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT)) {
    return std::nullopt;
  }
  return MountOfEntry{.id = entry.stx_mnt_id,
                      .isDirectory = S_ISDIR(entry.stx_mode),
                      .isMountPoint = (entry.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0};
}

std::optional<MountOfEntry> mountOfEntry(int folder, const char* name) {
  struct statx entry {};
  constexpr int flags = AT_SYMLINK_NOFOLLOW | AT_EMPTY_PATH;
  if (::statx(folder, name, flags, STATX_TYPE | STATX_MNT_ID, &entry) != 0) return std::nullopt;
  return mountOf(entry);
}

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

namespace {

/// A folder of the file system, and where the machine shows it.
struct View {
  Path place;
  Path top;
  bool holdsHome = false;
};

bool isAtOrBelow(const Path& path, const Path& folder) {
  return path == folder || isBelow(path.native(), folder.native());
}

/// `folder` with what leads from `above` to `below` added.
Path movedBelow(const Path& folder, const Path& below, const Path& above) {
  const Path rest = below.lexically_relative(above);
  return rest == "." ? folder : folder / rest;
}

/// Whether the way to `mount` leads through a file system that may not answer.
bool isBehindOther(const MountPoint& mount, const std::vector<MountPoint>& mounts) {
  return std::ranges::any_of(mounts, [&](const MountPoint& above) {
    return above.volume != mount.volume && !above.isLocal && above.place != "/" &&
           isAtOrBelow(mount.place, above.place);
  });
}

std::vector<View> viewsOf(std::uint64_t volume, const std::vector<MountPoint>& mounts,
                          const RootFolder& root, std::uint64_t homeMount) {
  std::vector<View> views;
  for (const MountPoint& mount : mounts) {
    if (mount.volume != volume) continue;
    const bool holdsHome = mount.id == homeMount;
    if (mount.id == root.mount) {
      views.push_back({root.place, movedBelow(mount.top, root.place, mount.place), holdsHome});
    } else if (isBelow(mount.place.native(), root.place.native()) &&
               (holdsHome || !isBehindOther(mount, mounts))) {
      views.push_back({mount.place, mount.top, holdsHome});
    }
  }
  return views;
}

}  // namespace

VolumeTops volumeTopsFrom(const std::vector<MountPoint>& mounts, const RootFolder& root,
                          std::uint64_t homeMount) {
  const auto home = std::ranges::find(mounts, homeMount, &MountPoint::id);
  if (home == mounts.end()) return {};
  std::vector<View> views = viewsOf(home->volume, mounts, root, homeMount);
  // What the home lies in counts under its own name, and else what shows most.
  std::ranges::stable_sort(views, [](const View& left, const View& right) {
    if (left.holdsHome != right.holdsHome) return left.holdsHome;
    return left.top.native().size() < right.top.native().size();
  });
  std::vector<View> chosen;
  VolumeTops tops;
  for (const View& view : views) {
    const auto shows = [&](const View& other) { return isAtOrBelow(view.top, other.top); };
    if (std::ranges::any_of(chosen, shows)) continue;
    for (const View& other : chosen) {
      if (!isAtOrBelow(other.top, view.top)) continue;
      tops.seenElsewhere.push_back(movedBelow(view.place, other.top, view.top));
    }
    tops.folders.push_back(view.place);
    chosen.push_back(view);
  }
  return tops;
}

}  // namespace klarvik
