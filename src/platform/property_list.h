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

/// The texts of a property list as they were written before XML: `{ key = "value"; }`, with lists
/// in parentheses, data in angle brackets, and comments. Nothing when `content` is no such
/// dictionary from its first to its last brace. Any thread.
[[nodiscard]] std::optional<PropertyList::Texts> readOldStylePropertyList(std::string_view content);

/// Whether the bytes say of themselves that they are a binary property list.
[[nodiscard]] bool isBinaryPropertyList(std::string_view content);

/// Whether every object that the list holds lies within its bytes, and all of them together are as
/// much as a parser that copies an object for each reference to it can take: a list may name itself
/// as a part of itself, or name one part twice, that again names one part twice, and so on. To be
/// asked before such a parser is let loose on it.
[[nodiscard]] bool isBoundedBinaryPropertyList(std::string_view content);

}  // namespace klarvik
