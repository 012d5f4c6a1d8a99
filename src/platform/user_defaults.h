#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace klarvik {

/// A preference that is a string of bytes rather than text.
struct Bytes {
  std::string content;
  bool operator==(const Bytes&) const = default;
};

using DefaultsValue = std::variant<bool, std::int64_t, double, std::string, Bytes>;

/// Posted through the notification centre, from the main loop, after a preference has changed, in
/// this program or from outside. Also when none has: whoever hears it reads again what it needs.
inline constexpr const char* defaultsChangedNotification = "klarvik.defaultsChanged";

/// Posted the same way, once in a run, when a preference could not be stored.
inline constexpr const char* defaultsNotSavedNotification = "klarvik.defaultsNotSaved";

/// The user's preferences: typed values under text keys, kept across restarts. Each read sees what
/// stands on the disk now, also when another process wrote it. May be called from any thread.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  [[nodiscard]] virtual std::optional<DefaultsValue> object(const std::string& key) const = 0;
  /// False when the value could not be stored whole; what stood before then still stands.
  virtual bool set(const std::string& key, const DefaultsValue& value) = 0;
  virtual bool remove(const std::string& key) = 0;

  /// `fallback` when the key is absent or holds anything but a boolean.
  [[nodiscard]] bool boolean(const std::string& key, bool fallback) const {
    const auto value = object(key);
    const bool* stored = value ? std::get_if<bool>(&*value) : nullptr;
    return stored != nullptr ? *stored : fallback;
  }
};

}  // namespace klarvik
