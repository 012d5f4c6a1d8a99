#include "platform/linux/tree_removal.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <vector>

#include "base/posix_io.h"
#include "platform/linux/directory_stack.h"
#include "platform/linux/file_status.h"
#include "platform/linux/item_move.h"

namespace klarvik {
namespace {

/// Which mounted file system something is on. A bind mount shows the same device under another
/// mount, and a subvolume another device under the same mount: neither is entered.
struct Mount {
  std::uint64_t id = 0;
  std::uint32_t deviceMajor = 0;
  std::uint32_t deviceMinor = 0;

  explicit Mount(const struct statx& status)
      : id(status.stx_mask & STATX_MNT_ID ? status.stx_mnt_id : 0),
        deviceMajor(status.stx_dev_major),
        deviceMinor(status.stx_dev_minor) {}
  bool operator==(const Mount&) const = default;
};

bool isMountRoot(const struct statx& status) {
  return status.stx_attributes & status.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT;
}

int unlinkName(int folder, const char* name, int flags) {
  return retryOnEintr([&] { return ::unlinkat(folder, name, flags); });
}

/// Empties one folder, deepest things first.
class TreeRemoval {
 public:
  TreeRemoval(UniqueFd folder, const Mount& mount) : _trail(std::move(folder)), _mount(mount) {}

  void run() {
    removeEntries();
    while (!_pending.empty() || _trail.depth() > 0) {
      if (_pending.extent() > _firstPending.back()) {
        enterNextFolder();
      } else {
        removeFinishedFolder();
      }
    }
  }

  static bool mayEnter(const struct statx& status, const Mount& mount) {
    return Mount(status) == mount && !isMountRoot(status);
  }

 private:
  /// Removes what lies directly in the current folder, and notes the folders to go into.
  void removeEntries() {
    _firstPending.push_back(_pending.extent());
    _reader.read(_trail.current(), [this](const ListedEntry& listed) {
      if (listed.type == DT_DIR || !unlinked(listed)) noteFolder(listed.name.data());
      return true;
    });
  }

  /// False when it is to be looked at as a folder.
  bool unlinked(const ListedEntry& listed) {
    return unlinkName(_trail.current(), listed.name.data(), 0) == 0 || listed.type != DT_UNKNOWN ||
           errno != EISDIR;
  }

  void noteFolder(const char* name) {
    const auto status = statusOf(_trail.current(), name);
    if (!status || kindOf(*status) != FileKind::directory || !mayEnter(*status, _mount)) return;
    _pending.push(name);
    _inodes.push_back(status->stx_ino);
  }

  void enterNextFolder() {
    const std::string name = _pending.pop();
    const std::uint64_t inode = _inodes.back();
    _inodes.pop_back();

    UniqueFd folder = _trail.open(name.c_str());
    if (!folder) {
      // One that may not be listed can go all the same, as long as it is empty.
      unlinkName(_trail.current(), name.c_str(), AT_REMOVEDIR);
      return;
    }
    const auto status = statusOf(folder.get(), "");
    if (!status || status->stx_ino != inode || !mayEnter(*status, _mount)) return;
    _trail.enter(std::move(folder), name);
    removeEntries();
  }

  void removeFinishedFolder() {
    const std::string name(_trail.currentName());
    const std::size_t above = _trail.depth() - 1;
    _trail.leave();
    if (_trail.depth() == above) unlinkName(_trail.current(), name.c_str(), AT_REMOVEDIR);
    while (_firstPending.size() > _trail.depth() + 1) {
      dropPendingOfLastLevel();
    }
  }

  void dropPendingOfLastLevel() {
    while (_pending.extent() > _firstPending.back()) {
      _pending.pop();
      _inodes.pop_back();
    }
    _firstPending.pop_back();
  }

  DirectoryStack _trail;
  const Mount _mount;
  DirectoryReader _reader;
  NameStack _pending;                      // folders still to be emptied, of all levels
  std::vector<std::uint64_t> _inodes;      // of the pending folders, as they were listed
  std::vector<std::size_t> _firstPending;  // for each level, where its own begin
};

void emptyFolder(const ParentHandle& item, const struct statx& seen, const Mount& mount) {
  constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
  UniqueFd folder(
      retryOnEintr([&] { return ::openat(item.folder.get(), item.name.c_str(), flags); }));
  const auto opened = folder ? statusOf(folder.get(), "") : std::nullopt;
  if (!opened || !isTheSame(*opened, seen) || !TreeRemoval::mayEnter(*opened, mount)) return;
  TreeRemoval(std::move(folder), mount).run();
}

/// The system removes whatever stands under a name by the time it is asked. So the file is taken to
/// a name of its own first, and looked at again there.
bool removeFile(const ParentHandle& item, const struct statx& seen) {
  const int folder = item.folder.get();
  const std::string nameAside = temporaryName(item.name);
  const Name place{folder, item.name};
  const Name aside{folder, nameAside};
  const Move move = moveItem(place, seen, aside);
  if (move == Move::unsupported) {
    return isStill(seen, folder, item.name.c_str()) &&
           unlinkName(folder, item.name.c_str(), 0) == 0;
  }
  if (move != Move::done && move != Move::unseen) return false;
  if (move == Move::done && unlinkName(folder, nameAside.c_str(), 0) == 0) return true;
  static_cast<void>(moveItem(aside, seen, place));
  return false;
}

bool removeFolder(const ParentHandle& item, const struct statx& seen, const Mount& mount) {
  if (!TreeRemoval::mayEnter(seen, mount)) return false;
  emptyFolder(item, seen, mount);
  return isStill(seen, item.folder.get(), item.name.c_str()) &&
         unlinkName(item.folder.get(), item.name.c_str(), AT_REMOVEDIR) == 0;
}

}  // namespace

bool removeTree(const ParentHandle& item, const struct statx& seen) {
  if (kindOf(seen) != FileKind::directory) return removeFile(item, seen);
  const auto parent = statusOf(item.folder.get(), "");
  return parent && removeFolder(item, seen, Mount(*parent));
}

}  // namespace klarvik
