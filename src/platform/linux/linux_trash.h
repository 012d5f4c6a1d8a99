#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/paths.h"
#include "platform/linux/parent_handle.h"
#include "platform/linux/trash_folder.h"
#include "platform/trash.h"

namespace klarvik {

/// The things that somebody is busy with: each has one user at a time. Any thread.
class PathLocks {
 public:
  /// For as long as it lives, its owner has `thing` alone, unless somebody had it already.
  class Hold {
   public:
    Hold(PathLocks& all, Path thing) : _all(all), _thing(std::move(thing)) {
      const std::scoped_lock lock(_all._mutex);
      _isHeld = _all._things.insert(_thing).second;
    }
    ~Hold() {
      const std::scoped_lock lock(_all._mutex);
      if (_isHeld) _all._things.erase(_thing);
    }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

    explicit operator bool() const { return _isHeld; }

   private:
    PathLocks& _all;
    const Path _thing;
    bool _isHeld = false;
  };

 private:
  std::mutex _mutex;
  std::set<Path> _things;
};

/// The freedesktop Trash, version 1.0: `Trash` in the user's data folder for what lies on the same
/// mount, and `.Trash/$uid` or `.Trash-$uid` at the top of any other. A thing never leaves its
/// mount on the way.
///
/// A `.Trash` folder that the home has of its own belongs to the user's Trash as well; it keeps no
/// records, and nothing is moved there.
class LinuxTrash : public Trash {
 public:
  /// `root` is where the logical "/" is on the machine; `home` and `dataFolder` are logical.
  LinuxTrash(const Path& root, Path home, const Path& dataFolder);
  /// With the data folder that a user has who has set no other.
  LinuxTrash(const Path& root, const Path& home) : LinuxTrash(root, home, home / ".local/share") {}

  [[nodiscard]] std::vector<Path> folders() override;
  [[nodiscard]] std::optional<std::vector<Path>> list() override;
  [[nodiscard]] std::optional<Date> modificationDate() override;
  [[nodiscard]] bool contains(const Path& item) const override;

  std::optional<Path> moveToTrash(const Path& item, const ItemCheck& mayMove) override;
  bool putBack(const Path& trashed, const Path& original, const ItemCheck& mayReturn) override;
  bool remove(const Path& trashed, const ItemCheck& mayRemove) override;
  void dropRecordsOfNothing() override;

 private:
  /// A Trash that can take a certain item.
  struct Destination {
    TrashFolder trash;
    Path files;          // logical, its `files/`
    Path recordedPlace;  // of the item, as this Trash writes it
  };

  /// A Trash folder at the top of a volume, and where it is.
  struct OnVolume {
    TrashFolder trash;
    Path files;  // logical
  };

  struct Recorder {
    TrashFolder trash;
    Path base;  // on the machine, what the recorded places count from
  };

  /// Nothing for what is in no Trash, or only seems to be, since its folder there is a link.
  [[nodiscard]] std::optional<ParentHandle> openTrashed(const Path& trashed) const;
  [[nodiscard]] Path onMachine(const Path& logical) const;
  [[nodiscard]] std::optional<Path> logical(const Path& onMachine) const;

  [[nodiscard]] std::optional<TrashFolder> openHomeTrash() const;
  /// Only for a home that is there.
  [[nodiscard]] std::optional<ParentHandle> makeParentOfHomeTrash() const;
  [[nodiscard]] std::optional<Destination> destinationFor(const Path& item,
                                                          std::uint64_t mount) const;
  [[nodiscard]] std::optional<Destination> destinationOnVolume(const Path& item,
                                                               std::uint64_t mount) const;
  /// Those that are there, each once, on volumes that no server keeps.
  [[nodiscard]] std::vector<OnVolume> trashesOnVolumes() const;
  /// What a check is told of the place of a trashed item.
  [[nodiscard]] Path placeOf(const ParentHandle& item, const Path& trashed) const;
  [[nodiscard]] bool holdsMountPoint(const Path& folder) const;
  [[nodiscard]] bool isPartOfATrash(const Path& item) const;

  /// The Trash that keeps a record of `item`, called `trashed`. Nothing when none does.
  [[nodiscard]] std::optional<Recorder> recorderOf(const ParentHandle& item,
                                                   const Path& trashed) const;
  [[nodiscard]] std::optional<Path> recordBase(const ParentHandle& item, const Path& trashed) const;
  [[nodiscard]] std::optional<Path> recordedPlace(const Recorder& recorder,
                                                  const std::string& name) const;
  /// Whether `real`, which `original` leads to now, is the place the item was at: the recorded one,
  /// or, as far as none is recorded that says otherwise, one that is reached without links. The
  /// home itself may be a link.
  [[nodiscard]] bool leadsBack(const Path& real, const Path& original,
                               const std::optional<Path>& recorded) const;
  [[nodiscard]] Path placeWithoutLinks(const Path& original) const;

  Path _root;  // every link followed
  Path _home;
  Path _homeTrash;
  PathLocks _inHand;  // what is brought back cannot be removed meanwhile, nor the other way round
};

}  // namespace klarvik
