#pragma once

#include <vector>

#include "platform/trash.h"
#include "support/fault_injection.h"

namespace klarvik {

enum class TrashOperation {
  moveToTrash,  ///< by the path the item is moved from
  putBack,      ///< by the path of the item in the Trash
  remove,       ///< by the path of the item in the Trash
};

extern template class FaultInjection<TrashOperation>;

/// Another Trash, real or remembered, with faults put into it, and a record of what went into it
/// and out of it for good. May be used from any thread.
class FaultInjectingTrash final : public Trash, public FaultInjection<TrashOperation> {
 public:
  using Operation = TrashOperation;

  explicit FaultInjectingTrash(Trash& trash) : _trash(trash) {}

  std::atomic<bool> readable = true;  ///< whether it can be listed
  std::atomic<int> listings = 0;      ///< how often it was asked to

  /// The modification date, which from now on only this, `moveStamp` and changes through this
  /// object move.
  void setStamp(std::optional<Date> stamp);
  /// As when something comes or goes.
  void moveStamp();

  /// Everything that was moved to the Trash, by where it was.
  [[nodiscard]] std::set<Path> moved() const;
  /// Everything that was removed for good, in order.
  [[nodiscard]] std::vector<Path> removed() const;

  [[nodiscard]] std::vector<Path> folders() override;
  [[nodiscard]] std::optional<std::vector<Path>> list() override;
  [[nodiscard]] std::optional<Date> modificationDate() override;
  [[nodiscard]] bool contains(const Path& item) const override;
  std::optional<Path> moveToTrash(const Path& item, const ItemCheck& mayMove) override;
  bool putBack(const Path& trashed, const Path& original, const ItemCheck& mayReturn) override;
  bool remove(const Path& trashed, const ItemCheck& mayRemove) override;
  void dropRecordsOfNothing() override { _trash.dropRecordsOfNothing(); }

 private:
  void moveStampThatIsSet();

  Trash& _trash;
  mutable std::mutex _mutex;  // guards all below
  std::optional<std::optional<Date>> _stamp;
  std::set<Path> _moved;
  std::vector<Path> _removed;
};

}  // namespace klarvik
