#include "base/text.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>

namespace klarvik {

namespace {

struct Character {
  UChar32 codePoint;  ///< negative for a byte that is not UTF-8
  std::size_t length;
};

Character firstCharacter(std::string_view text) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  const auto length = static_cast<std::int32_t>(std::min<std::size_t>(text.size(), U8_MAX_LENGTH));
  std::int32_t next = 0;
  UChar32 codePoint = 0;
  U8_NEXT(bytes, next, length, codePoint);
  return {codePoint, codePoint < 0 ? 1 : static_cast<std::size_t>(next)};
}

Character lastCharacter(std::string_view text) {
  const auto tail = text.substr(text.size() - std::min<std::size_t>(text.size(), U8_MAX_LENGTH));
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(tail.data());
  const auto length = static_cast<std::int32_t>(tail.size());
  std::int32_t start = length;
  UChar32 codePoint = 0;
  U8_PREV(bytes, 0, start, codePoint);
  return {codePoint, codePoint < 0 ? 1 : static_cast<std::size_t>(length - start)};
}

bool isWhiteSpace(UChar32 codePoint) {
  return codePoint >= 0 && u_isUWhiteSpace(codePoint) != 0;
}

/// The length of the longest start of `text` whose characters are all (or all not) white space.
std::size_t runLength(std::string_view text, bool ofWhiteSpace) {
  std::size_t length = 0;
  while (length < text.size()) {
    const Character next = firstCharacter(text.substr(length));
    if (isWhiteSpace(next.codePoint) != ofWhiteSpace) break;
    length += next.length;
  }
  return length;
}

/// The standard's reader of numbers takes a minus, but no plus.
std::string_view withoutPlus(std::string_view text) {
  const bool plain = text.size() > 1 && text[0] == '+' && text[1] != '-';
  return plain ? text.substr(1) : text;
}

/// Keeps out the words for infinity and for no number.
bool beginsLikeANumber(std::string_view text) {
  const auto digits = text.starts_with('-') ? text.substr(1) : text;
  return !digits.empty() && (digits[0] == '.' || (digits[0] >= '0' && digits[0] <= '9'));
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(runLength(text, true));
  while (!text.empty()) {
    const Character last = lastCharacter(text);
    if (!isWhiteSpace(last.codePoint)) break;
    text.remove_suffix(last.length);
  }
  return text;
}

std::string_view trimmed(std::string_view text, std::string_view of) {
  const auto first = text.find_first_not_of(of);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(of) - first + 1);
}

std::string_view takeLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(std::min(text.size(), line.size() + 1));
  return line;
}

std::vector<std::string_view> splitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  lines.push_back(text);
  return lines;
}

std::vector<std::string_view> splitWords(std::string_view text) {
  std::vector<std::string_view> words;
  for (text.remove_prefix(runLength(text, true)); !text.empty();
       text.remove_prefix(runLength(text, true))) {
    const auto length = runLength(text, false);
    words.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return words;
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
  std::size_t length = 0;
  for (; count > 0 && length < text.size(); --count) {
    length += firstCharacter(text.substr(length)).length;
  }
  return text.substr(0, length);
}

std::optional<std::int64_t> decimalInteger(std::string_view text) {
  return wholeNumber<std::int64_t>(withoutPlus(text));
}

std::optional<double> decimalNumber(std::string_view text) {
  const auto digits = withoutPlus(text);
  if (!beginsLikeANumber(digits)) return std::nullopt;
  const char* const end = digits.data() + digits.size();
  double value = 0;
  const auto [rest, error] = std::from_chars(digits.data(), end, value);
  if (error == std::errc::invalid_argument || rest != end) return std::nullopt;
  return error == std::errc{} ? value : 0;
}

}  // namespace klarvik
