#include "platform/property_list.h"

#include <unicode/unistr.h>
#include <unicode/utf16.h>
#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\v\f";
constexpr std::string_view kBareCharacters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_$+/:.-";

/// A text, or one character that has a meaning: a bracket, "=", ";" or ",".
struct Token {
  bool isText = false;
  std::string text;

  [[nodiscard]] bool is(char mark) const { return !isText && text.front() == mark; }
  [[nodiscard]] bool isOneOf(std::string_view marks) const {
    return !isText && marks.find(text.front()) != std::string_view::npos;
  }
};

class Tokens {
 public:
  explicit Tokens(std::string_view content) : _rest(content) {}

  /// Nothing at the end, and where a comment or a quoted text has none.
  std::optional<Token> next() {
    if (!skipBlanks() || _rest.empty()) return std::nullopt;
    if (_rest.front() == '"' || _rest.front() == '\'') return quoted();
    const std::size_t length = _rest.find_first_not_of(kBareCharacters);
    if (length == 0) return Token{.text = std::string(take(1))};
    return Token{.isText = true, .text = std::string(take(length))};
  }

  /// Whether nothing follows but blanks and comments.
  bool isAtEnd() { return skipBlanks() && _rest.empty(); }

 private:
  std::string_view take(std::size_t length) {
    const std::string_view taken = _rest.substr(0, length);
    _rest.remove_prefix(taken.size());
    return taken;
  }

  bool skipBlanks() {
    while (true) {
      take(std::min(_rest.find_first_not_of(kBlanks), _rest.size()));
      if (_rest.starts_with("//")) {
        take(std::min(_rest.find('\n'), _rest.size()));
      } else if (_rest.starts_with("/*")) {
        const std::size_t end = _rest.find("*/", 2);
        if (end == std::string_view::npos) return false;
        take(end + 2);
      } else {
        return true;
      }
    }
  }

  std::optional<Token> quoted() {
    const char quote = take(1).front();
    Token token{.isText = true, .text = ""};
    while (!_rest.empty()) {
      const char character = take(1).front();
      if (character == quote) return token;
      if (character != '\\') {
        token.text += character;
      } else if (!_rest.empty()) {
        addEscaped(token.text);
      }
    }
    return std::nullopt;
  }

  void addEscaped(std::string& text) {
    const char character = take(1).front();
    constexpr std::pair<char, char> names[]{{'n', '\n'}, {'t', '\t'}, {'r', '\r'}, {'a', '\a'},
                                            {'b', '\b'}, {'f', '\f'}, {'v', '\v'}};
    for (const auto& [name, meant] : names) {
      if (character == name) {
        text += meant;
        return;
      }
    }
    if (character == 'U' || character == 'u') {
      addUnits(text);
    } else {
      text += character;
    }
  }

  /// Four hexadecimal digits behind "\U"; two such in a row may be one character.
  void addUnits(std::string& text) {
    icu::UnicodeString units;
    do {
      const auto unit = wholeNumber<std::uint16_t>(take(4), 16);
      if (!unit) break;
      units.append(static_cast<char16_t>(*unit));
    } while (U16_IS_LEAD(units[units.length() - 1]) &&
             (_rest.starts_with("\\U") || _rest.starts_with("\\u")) && !take(2).empty());
    units.toUTF8String(text);
  }

  std::string_view _rest;
};

/// Takes what is left of a value whose first token was `first`, up to the end of its brackets.
/// False where no value begins like that, or it has no end.
bool takeRest(Tokens& tokens, const Token& first) {
  if (first.isText) return true;
  if (!first.isOneOf("{(<")) return false;
  std::size_t depth = 1;
  while (depth > 0) {
    const auto token = tokens.next();
    if (!token) return false;
    if (token->isOneOf("{(<")) ++depth;
    if (token->isOneOf("})>")) --depth;
  }
  return true;
}

}  // namespace

std::optional<PropertyList::Texts> readOldStylePropertyList(std::string_view content) {
  Tokens tokens(content);
  const auto brace = tokens.next();
  if (!brace || !brace->is('{')) return std::nullopt;
  PropertyList::Texts texts;
  while (true) {
    auto key = tokens.next();
    if (!key) return std::nullopt;
    if (key->is('}')) return tokens.isAtEnd() ? std::optional(std::move(texts)) : std::nullopt;
    const auto equals = tokens.next();
    auto value = equals && equals->is('=') ? tokens.next() : std::nullopt;
    if (!key->isText || !value || !takeRest(tokens, *value)) return std::nullopt;
    if (value->isText) texts.emplace(std::move(key->text), std::move(value->text));
    const auto semicolon = tokens.next();
    if (!semicolon || !semicolon->is(';')) return std::nullopt;
  }
}

}  // namespace klarvik
