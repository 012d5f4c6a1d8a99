#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace klarvik {

/// Why something may not be removed, as a sentence; nothing when it may.
using Refusal = std::optional<std::string>;
inline constexpr std::nullopt_t allowed = std::nullopt;

template <class... Parts>
[[nodiscard]] Refusal refuse(const Parts&... parts) {
  std::string sentence;
  (sentence.append(parts), ...);
  return sentence;
}

[[nodiscard]] inline const std::string_view* firstPrefixOf(
    std::string_view path, std::span<const std::string_view> prefixes) {
  const auto found =
      std::ranges::find_if(prefixes, [&](auto prefix) { return path.starts_with(prefix); });
  return found != prefixes.end() ? &*found : nullptr;
}

}  // namespace klarvik
