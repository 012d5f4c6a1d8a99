#include "places/path_pattern.h"

#include <algorithm>

#include "base/paths.h"

namespace klarvik {
bool nameMatches(std::string_view pattern, std::string_view name) {
  const std::size_t star = pattern.find('*');
  if (star == std::string_view::npos) return pattern == name;
  const std::string_view before = pattern.substr(0, star);
  const std::string_view after = pattern.substr(star + 1);
  if (before.empty() && name.starts_with('.')) return false;
  return name.size() >= before.size() + after.size() && name.starts_with(before) &&
         name.ends_with(after);
}

bool nameMatchesAny(std::span<const std::string_view> patterns, std::string_view name) {
  return std::ranges::any_of(patterns, [&](auto pattern) { return nameMatches(pattern, name); });
}

PatternMatch matchPattern(std::span<const std::string_view> path,
                          std::initializer_list<std::string_view> parts) {
  PatternMatch match;
  for (std::string_view part : parts) {
    for (auto piece = takePiece(part); !piece.empty(); piece = takePiece(part)) {
      if (match.length == path.size()) {
        match.relation = Relation::above;
        return match;
      }
      const std::string_view name = path[match.length];
      if (!nameMatches(piece, name)) return {};
      if (piece.find('*') != std::string_view::npos) match.stars.push_back(name);
      ++match.length;
    }
  }
  match.relation = match.length == path.size() ? Relation::at : Relation::below;
  return match;
}

}  // namespace klarvik
