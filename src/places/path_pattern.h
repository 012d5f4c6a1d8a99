#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

namespace klarvik {

/// A pattern names paths component by component, "cache/*/logs". One "*" in a component stands for
/// any characters of one name, and never for a leading dot. Pure text: no file is touched.

/// Whether `name` is one that the component `pattern` stands for.
[[nodiscard]] bool nameMatches(std::string_view pattern, std::string_view name);

/// Whether `name` matches one of `patterns`.
[[nodiscard]] bool nameMatchesAny(std::span<const std::string_view> patterns,
                                  std::string_view name);

/// How a path lies to what a pattern names.
enum class Relation {
  apart,
  above,  ///< a folder in which there may be such a thing
  at,
  below,  ///< inside of such a thing
};

struct PatternMatch {
  Relation relation = Relation::apart;
  std::size_t length = 0;  ///< components that matched
  /// The names that the components with a "*" stand for, in their order.
  std::vector<std::string_view> stars{};
};

/// How `path` lies to what the parts of a pattern name, one below the other. Parts may be empty.
[[nodiscard]] PatternMatch matchPattern(std::span<const std::string_view> path,
                                        std::initializer_list<std::string_view> parts);

}  // namespace klarvik
