#pragma once

#include <optional>
#include <vector>

#include "platform/file_system.h"

namespace klarvik {

/// The user's Trash: the folder or folders where removed things wait, with a way back.
///
/// Paths are logical, as in `FileSystem`. All operations may be called from any thread, and from
/// other processes at the same time. None throws.
class Trash {
 public:
  virtual ~Trash() = default;

  /// The folders whose entries are in the user's Trash, the main one first, those of other volumes
  /// last. The main one is made when it is first asked for, so that one that cannot be listed
  /// really means no permission.
  [[nodiscard]] virtual std::vector<Path> folders() = 0;
  /// The entries of all folders that can be listed, hidden ones included. Nothing when none can.
  [[nodiscard]] virtual std::optional<std::vector<Path>> list() = 0;
  /// Changes whenever an entry comes or goes in any of the folders. Nothing when unreadable.
  [[nodiscard]] virtual std::optional<Date> modificationDate() = 0;
  /// Drops the records of things that are not in the Trash any more. Those of the last day stay:
  /// other programs write a record before they move the thing.
  virtual void dropRecordsOfNothing() = 0;
  /// Whether `item` lies in a Trash: its text holds "/.Trash/", or it is below a Trash folder.
  [[nodiscard]] virtual bool contains(const Path& item) const = 0;

  /// Moves `item` to the Trash of its own volume together with a record of where it was. Answers
  /// its new place. On any failure the item stays where it was and no record is left.
  virtual std::optional<Path> moveToTrash(const Path& item, const ItemCheck& mayMove) = 0;
  /// Moves a trashed item back, making the folders above `original` again where they are gone, and
  /// drops its record. False when something stands at `original`, when the folder there has become
  /// a link to elsewhere, when the record names another place, or when the move fails; the item
  /// then stays in the Trash. `mayReturn` sees the item where it is in the Trash.
  virtual bool putBack(const Path& trashed, const Path& original, const ItemCheck& mayReturn) = 0;
  /// Removes for good an item that lies in a Trash, and its record. `mayRemove` sees the place of
  /// an entry of the main folder as it is named, also where that folder is reached through links.
  virtual bool remove(const Path& trashed, const ItemCheck& mayRemove) = 0;
};

}  // namespace klarvik
