#include "support/fault_injecting_trash.h"

namespace klarvik {

template class FaultInjection<TrashOperation>;

void FaultInjectingTrash::setStamp(std::optional<Date> stamp) {
  const std::scoped_lock lock(_mutex);
  _stamp = stamp;
}

void FaultInjectingTrash::moveStamp() {
  const std::optional<Date> now = modificationDate();
  setStamp(now.value_or(Date()) + std::chrono::seconds(1));
}

std::set<Path> FaultInjectingTrash::moved() const {
  const std::scoped_lock lock(_mutex);
  return _moved;
}

std::vector<Path> FaultInjectingTrash::removed() const {
  const std::scoped_lock lock(_mutex);
  return _removed;
}

std::vector<Path> FaultInjectingTrash::folders() {
  return _trash.folders();
}

std::optional<std::vector<Path>> FaultInjectingTrash::list() {
  ++listings;
  return readable ? _trash.list() : std::nullopt;
}

std::optional<Date> FaultInjectingTrash::modificationDate() {
  {
    const std::scoped_lock lock(_mutex);
    if (_stamp) return *_stamp;
  }
  return _trash.modificationDate();
}

bool FaultInjectingTrash::contains(const Path& item) const {
  return _trash.contains(item);
}

std::optional<Path> FaultInjectingTrash::moveToTrash(const Path& item, const ItemCheck& mayMove) {
  if (!goesAhead(Operation::moveToTrash, item)) return std::nullopt;
  auto trashed = _trash.moveToTrash(item, mayMove);
  if (!trashed) return std::nullopt;
  moveStampThatIsSet();
  const std::scoped_lock lock(_mutex);
  _moved.insert(item);
  return trashed;
}

bool FaultInjectingTrash::putBack(const Path& trashed, const Path& original,
                                  const ItemCheck& mayReturn) {
  if (!goesAhead(Operation::putBack, trashed)) return false;
  if (!_trash.putBack(trashed, original, mayReturn)) return false;
  moveStampThatIsSet();
  return true;
}

bool FaultInjectingTrash::remove(const Path& trashed, const ItemCheck& mayRemove) {
  if (!goesAhead(Operation::remove, trashed) || !_trash.remove(trashed, mayRemove)) return false;
  moveStampThatIsSet();
  const std::scoped_lock lock(_mutex);
  _removed.push_back(trashed);
  return true;
}

void FaultInjectingTrash::moveStampThatIsSet() {
  const std::scoped_lock lock(_mutex);
  if (_stamp) _stamp = _stamp->value_or(Date()) + std::chrono::seconds(1);
}

}  // namespace klarvik
