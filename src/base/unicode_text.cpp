#include "base/unicode_text.h"

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <memory>

namespace klarvik {
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
