#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace klarvik {

/// The volume that the user's home lies on. May be called from any thread.
class Volume {
 public:
  virtual ~Volume() = default;
  [[nodiscard]] virtual std::optional<std::int64_t> totalBytes() const = 0;
  /// What an ordinary user could still write.
  [[nodiscard]] virtual std::optional<std::int64_t> availableBytes() const = 0;
  /// What is free, and yet no ordinary user could write.
  [[nodiscard]] virtual std::optional<std::int64_t> keptForRootBytes() const = 0;
  /// The label of the file system; nothing when it has none or it cannot be read.
  [[nodiscard]] virtual std::optional<std::string> name() const = 0;
};

}  // namespace klarvik
