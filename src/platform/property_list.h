#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace klarvik {

/// A property list whose outermost part is a dictionary, as XML or binary. It may come from
/// anywhere: whatever the bytes are, reading them takes bounded time and memory.
class PropertyList {
 public:
  /// Nothing when `content` is not such a list, or is more deeply nested or more widely branched
  /// than one that a program describes itself in would ever be. May be called from any thread.
  [[nodiscard]] static std::optional<PropertyList> parse(std::string_view content);

  /// The value for `key` where it is text in UTF-8.
  [[nodiscard]] std::optional<std::string> text(const char* key) const;

 private:
  struct Release {
    void operator()(void* root) const;
  };
  explicit PropertyList(void* root) : _root(root) {}

  std::unique_ptr<void, Release> _root;
};

}  // namespace klarvik
