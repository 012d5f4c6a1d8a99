#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace klarvik {

/// A universally unique identifier.
class Uuid {
 public:
  /// A fresh random one. May be called from any thread.
  [[nodiscard]] static Uuid random();
  /// From its canonical text, upper or lower case.
  [[nodiscard]] static std::optional<Uuid> fromText(const std::string& text);
  [[nodiscard]] std::string text() const;

  auto operator<=>(const Uuid&) const = default;

 private:
  friend struct std::hash<Uuid>;
  std::array<std::uint8_t, 16> _bytes{};
};

}  // namespace klarvik

template <>
struct std::hash<klarvik::Uuid> {
  [[nodiscard]] std::size_t operator()(const klarvik::Uuid& id) const noexcept;
};
