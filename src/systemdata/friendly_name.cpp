#include "systemdata/friendly_name.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::array<std::string_view, 7> prefixes{
    "com.apple.",   "com.google.", "com.microsoft.", "com.docker.",
    "org.mozilla.", "com.brave.",  "group.",
};

/// Keeps its vendor's word: by "Docker" alone it would read like the application.
constexpr std::string_view dockersOwnContainer = "com.docker.docker";

void removePrefix(std::string_view& text, std::string_view prefix) {
  if (text.starts_with(prefix)) text.remove_prefix(prefix.size());
}

}  // namespace

std::string friendlyName(std::string_view text) {
  const auto* const fitting = std::ranges::find_if(
      prefixes, [&](std::string_view prefix) { return text.starts_with(prefix); });
  if (fitting != prefixes.end() && text != dockersOwnContainer) removePrefix(text, *fitting);
  removePrefix(text, "com.");
  return capitalized(text);
}

}  // namespace klarvik
