#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace klarvik {

/// The texts of a property list's outermost dictionary, under their keys. What else it holds is
/// passed over. The list may come from anywhere: whatever the bytes are, reading them takes bounded
/// time and memory.
class PropertyList {
 public:
  using Texts = std::map<std::string, std::string, std::less<>>;

  /// `content` is XML, binary, or in the old style, a text without tags; a text in UTF-8 or UTF-16.
  /// Nothing when it is none of these, or when a binary one is more deeply nested or more widely
  /// branched than one that a program describes itself in would ever be. Any thread.
  [[nodiscard]] static std::optional<PropertyList> parse(std::string_view content);

  /// The value for `key` where it is text in UTF-8.
  [[nodiscard]] std::optional<std::string> text(std::string_view key) const;

 private:
  explicit PropertyList(Texts texts) : _texts(std::move(texts)) {}

  Texts _texts;
};

}  // namespace klarvik
