#include "base/text.h"

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>
#include <algorithm>
#include <memory>

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

namespace {

// Below 0 for a sequence that is not UTF-8.
UChar32 takeCodePoint(std::string_view text, std::size_t& position) {
  UChar32 codePoint = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"  // inside ICU's macro
  U8_NEXT(text.data(), position, text.size(), codePoint);
#pragma GCC diagnostic pop
  return codePoint;
}

// Takes `text` apart, front to back, into stretches that are UTF-8 and sequences that are not.
template <class OnText, class OnRubbish>
void forEachUtf8Run(std::string_view text, OnText onText, OnRubbish onRubbish) {
  std::size_t stretchStart = 0;
  std::size_t next = 0;
  while (next < text.size()) {
    const std::size_t start = next;
    if (takeCodePoint(text, next) >= 0) continue;
    if (start > stretchStart) onText(text.substr(stretchStart, start - stretchStart));
    onRubbish(text.substr(start, next - start));
    stretchStart = next;
  }
  if (next > stretchStart) onText(text.substr(stretchStart));
}

bool breaksTheLine(UChar32 codePoint) {
  switch (u_charType(codePoint)) {
    case U_CONTROL_CHAR:
    case U_LINE_SEPARATOR:
    case U_PARAGRAPH_SEPARATOR:
      return true;
    default:
      return (codePoint >= 0x202A && codePoint <= 0x202E) ||
             (codePoint >= 0x2066 && codePoint <= 0x2069);
  }
}

std::size_t charactersOfText(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::BreakIterator> characters{
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status)};
  UText utext = UTEXT_INITIALIZER;
  utext_openUTF8(&utext, text.data(), static_cast<std::int64_t>(text.size()), &status);
  std::size_t count = 0;
  if (U_SUCCESS(status)) {
    characters->setText(&utext, status);
    while (characters->next() != icu::BreakIterator::DONE) ++count;
  }
  utext_close(&utext);
  return count;
}

std::string composed(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* const normalizer = icu::Normalizer2::getNFCInstance(status);
  if (U_FAILURE(status)) return std::string(text);
  std::string result;
  const auto compose = [&](std::string_view stretch) {
    icu::StringByteSink<std::string> sink(&result);
    const auto size = static_cast<std::int32_t>(stretch.size());
    normalizer->normalizeUTF8(0, icu::StringPiece(stretch.data(), size), sink, nullptr, status);
  };
  forEachUtf8Run(text, compose, [&](std::string_view garbage) { result += garbage; });
  return result;
}

}  // namespace

std::string lowercased(std::string_view text) {
  std::string result;
  const auto lower = [&](std::string_view stretch) {
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&result);
    const auto size = static_cast<std::int32_t>(stretch.size());
    icu::CaseMap::utf8ToLower("", 0, icu::StringPiece(stretch.data(), size), sink, nullptr, status);
  };
  forEachUtf8Run(text, lower, [&](std::string_view garbage) { result += garbage; });
  return result;
}

std::string comparableName(std::string_view name) {
  // The order of accents may change with the case.
  return composed(lowercased(composed(name)));
}

std::string capitalized(std::string_view text) {
  std::size_t firstLength = 0;
  if (text.empty() || takeCodePoint(text, firstLength) < 0) return std::string(text);
  std::string result;
  UErrorCode status = U_ZERO_ERROR;
  icu::StringByteSink<std::string> sink(&result);
  const auto size = static_cast<std::int32_t>(firstLength);
  icu::CaseMap::utf8ToUpper("", 0, icu::StringPiece(text.data(), size), sink, nullptr, status);
  return result.append(text.substr(firstLength));
}

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  forEachUtf8Run(
      text, [&](std::string_view stretch) { count += charactersOfText(stretch); },
      [&](std::string_view garbage) { count += garbage.size(); });
  return count;
}

bool isUtf8(std::string_view bytes) {
  bool sound = true;
  forEachUtf8Run(
      bytes, [](std::string_view) {}, [&](std::string_view) { sound = false; });
  return sound;
}

bool isPlainName(std::string_view name, std::string_view marks) {
  const auto isLetterOrDigit = [](char each) {
    return (each >= 'a' && each <= 'z') || (each >= 'A' && each <= 'Z') ||
           (each >= '0' && each <= '9');
  };
  return !name.empty() && isLetterOrDigit(name.front()) &&
         std::ranges::all_of(name, [&](char each) {
           return isLetterOrDigit(each) || marks.find(each) != std::string_view::npos;
         });
}

std::string printable(std::string_view bytes) {
  std::string result;
  std::size_t next = 0;
  while (next < bytes.size()) {
    const std::size_t start = next;
    const UChar32 codePoint = takeCodePoint(bytes, next);
    if (codePoint < 0 || breaksTheLine(codePoint)) {
      result += "\uFFFD";
    } else {
      result += bytes.substr(start, next - start);
    }
  }
  return result;
}

}  // namespace klarvik
