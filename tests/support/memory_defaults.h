#pragma once

#include <map>
#include <mutex>

#include "platform/user_defaults.h"

namespace klarvik {

/// Preferences that last as long as the object. May be used from any thread.
class MemoryDefaults final : public UserDefaults {
 public:
  [[nodiscard]] std::optional<DefaultsValue> object(const std::string& key) const override;
  bool set(const std::string& key, const DefaultsValue& value) override;
  bool remove(const std::string& key) override;

  /// While `refuse` holds, nothing can be stored or removed, as on a full disk.
  void refuseWrites(bool refuse);

 private:
  mutable std::mutex _mutex;
  bool _refuseWrites = false;
  std::map<std::string, DefaultsValue> _values;
};

}  // namespace klarvik
