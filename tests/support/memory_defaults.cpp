#include "support/memory_defaults.h"

namespace klarvik {

std::optional<DefaultsValue> MemoryDefaults::object(const std::string& key) const {
  const std::lock_guard lock(_mutex);
  const auto found = _values.find(key);
  return found != _values.end() ? std::optional(found->second) : std::nullopt;
}

bool MemoryDefaults::set(const std::string& key, const DefaultsValue& value) {
  return change([&] { _values.insert_or_assign(key, value); });
}

bool MemoryDefaults::remove(const std::string& key) {
  return change([&] { _values.erase(key); });
}

bool MemoryDefaults::change(const std::function<void()>& apply) {
  {
    const std::lock_guard lock(_mutex);
    if (_refuseWrites) return false;
    apply();
  }
  if (_observer) _observer();
  return true;
}

void MemoryDefaults::refuseWrites(bool refuse) {
  const std::lock_guard lock(_mutex);
  _refuseWrites = refuse;
}

}  // namespace klarvik
