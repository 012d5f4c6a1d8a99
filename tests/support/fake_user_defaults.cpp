#include "support/fake_user_defaults.h"

namespace klarvik {

std::optional<DefaultsValue> FakeUserDefaults::object(const std::string& key) const {
  const std::lock_guard lock(_mutex);
  const auto found = _values.find(key);
  return found != _values.end() ? std::optional(found->second) : std::nullopt;
}

bool FakeUserDefaults::set(const std::string& key, const DefaultsValue& value) {
  return change([&] { _values.insert_or_assign(key, value); });
}

bool FakeUserDefaults::remove(const std::string& key) {
  return change([&] { _values.erase(key); });
}

bool FakeUserDefaults::change(const std::function<void()>& apply) {
  {
    const std::lock_guard lock(_mutex);
    if (_refuseWrites) return false;
    apply();
  }
  if (_observer) _observer();
  return true;
}

void FakeUserDefaults::refuseWrites(bool refuse) {
  const std::lock_guard lock(_mutex);
  _refuseWrites = refuse;
}

}  // namespace klarvik
