#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <utility>

#include "platform/user_defaults.h"

namespace klarvik {

/// Preferences that last as long as the object. May be used from any thread.
class FakeUserDefaults final : public UserDefaults {
 public:
  [[nodiscard]] std::optional<DefaultsValue> object(const std::string& key) const override;
  bool set(const std::string& key, const DefaultsValue& value) override;
  bool remove(const std::string& key) override;

  /// Called after each change, on the thread that made it.
  void onChange(std::function<void()> observer) { _observer = std::move(observer); }
  /// While `refuse` holds, nothing can be stored or removed, as on a full disk.
  void refuseWrites(bool refuse);

 private:
  bool change(const std::function<void()>& apply);

  mutable std::mutex _mutex;
  bool _refuseWrites = false;
  std::map<std::string, DefaultsValue> _values;
  std::function<void()> _observer;
};

}  // namespace klarvik
