#include "platform/update/plain_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::size_t mostBytes = 16'000;
constexpr std::size_t longestCharacter = 4;
constexpr std::size_t longestEntity = 8;
constexpr std::string_view whiteSpace = " \t\r\n";
constexpr std::string_view bullet = "\u2022 ";

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> entities{
    {{"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"apos", "'"}, {"nbsp", " "}}};
/// Elements that stand on lines of their own.
constexpr std::array<std::string_view, 15> blocks{
    "p", "div", "br", "ul", "ol", "li", "h1", "h2", "h3", "h4", "h5", "h6", "tr", "table", "hr"};
/// Elements whose content is not for reading.
constexpr std::array<std::string_view, 4> unread{"script", "style", "head", "title"};

bool isOneOf(std::string_view name, const auto& names) {
  return std::ranges::find(names, name) != names.end();
}

bool isWhite(char character) {
  return whiteSpace.find(character) != whiteSpace.npos;
}

bool isControl(char character) {
  return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
}

/// "&#65;" without what stands around the digits.
std::optional<std::string> characterOfNumber(std::string_view digits) {
  std::uint32_t number = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + static_cast<std::uint32_t>(digit - '0');
  }
  if (number < 0x20 || number > 0x7E) return std::nullopt;
  return std::string(1, static_cast<char>(number));
}

/// Reads once from front to end, whatever is nested in what. QTextDocument, which also knows HTML,
/// takes seconds of the main thread for 64 KB of open elements or of style rules, and asks for the
/// style sheets and pictures that a text names.
class HtmlToText {
 public:
  explicit HtmlToText(std::string_view html) : _rest(html) {}

  std::string read() {
    while (!_rest.empty() && _text.size() < mostBytes + longestCharacter) {
      if (_rest.front() == '<') {
        takeTag();
      } else if (_rest.front() == '&') {
        takeEntity();
      } else {
        take(_rest.front());
        _rest.remove_prefix(1);
      }
    }
    return std::move(_text);
  }

 private:
  void takeTag() {
    if (_rest.starts_with("<!--")) return skipThrough("-->");
    const auto end = _rest.find('>');
    std::string_view tag = _rest.substr(1, end == _rest.npos ? end : end - 1);
    skipThrough(">");
    const bool isEnd = tag.starts_with('/');
    if (isEnd) tag.remove_prefix(1);
    const std::string name =
        lowercased(tag.substr(0, std::min(tag.find_first_of(" \t\r\n/"), std::size_t{10})));
    if (isOneOf(name, blocks)) endLine();
    if (!isEnd && name == "li") _text += bullet;
    if (!isEnd && isOneOf(name, unread))
      _rest.remove_prefix(std::min(_rest.find("</"), _rest.size()));
  }

  void takeEntity() {
    const std::string_view ahead = _rest.substr(1, longestEntity);
    const auto end = ahead.find(';');
    const std::string_view name = ahead.substr(0, end == ahead.npos ? 0 : end);
    if (const auto character = characterOf(name)) {
      _text += *character;
      _rest.remove_prefix(name.size() + 2);
    } else {
      take('&');
      _rest.remove_prefix(1);
    }
  }

  static std::optional<std::string> characterOf(std::string_view name) {
    if (name.starts_with('#')) return characterOfNumber(name.substr(1));
    for (const auto& [known, character] : entities) {
      if (known == name) return std::string(character);
    }
    return std::nullopt;
  }

  /// White space between words is one space, and none where a line begins.
  void take(char character) {
    if (!isWhite(character)) {
      _text += character;
    } else if (!_text.empty() && !isWhite(_text.back())) {
      _text += ' ';
    }
  }

  void endLine() {
    while (!_text.empty() && _text.back() == ' ') _text.pop_back();
    if (!_text.empty() && _text.back() != '\n') _text += '\n';
  }

  void skipThrough(std::string_view end) {
    const auto at = _rest.find(end);
    _rest.remove_prefix(at == _rest.npos ? _rest.size() : at + end.size());
  }

  std::string_view _rest;
  std::string _text;
};

/// No more than is read, and no half of a character at its end.
std::string cut(std::string_view text) {
  std::string_view kept = text.substr(0, mostBytes);
  const auto isContinuation = [&](std::size_t at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
  };
  while (!kept.empty() && isContinuation(kept.size())) kept.remove_suffix(1);
  return std::string(kept);
}

}  // namespace

std::string plainNotes(std::string_view text) {
  std::string notes = cut(text);
  std::erase_if(notes, [](char character) { return isControl(character) && character != '\n'; });
  return std::string(trimmed(notes, whiteSpace));
}

std::string plainNotesOfHtml(std::string_view html) {
  return plainNotes(HtmlToText(html).read());
}

}  // namespace klarvik
