#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace klarvik {

// Reading what others write: tools, files, the user. Pure functions; the answers point into the
// text they were given. "White space" is that of every script, and a character is one code point; a
// byte that is not UTF-8 counts as a character of its own.

/// Without white space and newlines at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);
/// Without the bytes `of` at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text, std::string_view of);
/// Cuts the first line and the newline behind it off `text`, and answers the line.
[[nodiscard]] std::string_view takeLine(std::string_view& text);
/// The pieces between newlines, empty ones included.
[[nodiscard]] std::vector<std::string_view> splitLines(std::string_view text);
/// The pieces between white space, none of them empty.
[[nodiscard]] std::vector<std::string_view> splitWords(std::string_view text);
/// The whole text where it is no longer than `count` characters.
[[nodiscard]] std::string_view firstCharacters(std::string_view text, std::size_t count);
/// Nothing unless the whole text is digits of this base, for a signed number perhaps behind a
/// minus, and fits. The locale has no say in what a digit is.
template <std::integral Number>
[[nodiscard]] std::optional<Number> wholeNumber(std::string_view text, int base = 10) {
  Number number = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number, base);
  return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}
/// Nothing unless the whole text is a decimal integer, signed or not, that fits 64 bits.
[[nodiscard]] std::optional<std::int64_t> decimalInteger(std::string_view text);
/// Nothing unless the whole text is a decimal number. One beyond the range of a double reads as 0.
[[nodiscard]] std::optional<double> decimalNumber(std::string_view text);

/// `text` in lower case, by the rules of Unicode and of no one language. Bytes that are not UTF-8
/// stay as they are, so that two texts that differ in them do not become the same.
[[nodiscard]] std::string lowercased(std::string_view text);

/// By what two names are compared that a person takes for the same: in lower case, and with each
/// letter and its accents as one character where there is one.
[[nodiscard]] std::string comparableName(std::string_view name);

/// `text` with its first character in upper case, by the same rules. One that is not UTF-8 stays.
[[nodiscard]] std::string capitalized(std::string_view text);

/// How many characters a reader sees in `text`: a letter and its accents are one. Each byte that is
/// not UTF-8 counts as one.
[[nodiscard]] std::size_t characterCount(std::string_view text);

[[nodiscard]] bool isUtf8(std::string_view bytes);

/// Whether `name` holds letters, digits and `marks` alone, and begins with a letter or a digit: a
/// program takes what begins with "-" for an option.
[[nodiscard]] bool isPlainName(std::string_view name, std::string_view marks);

/// How a name of the disk is made fit for the screen: U+FFFD stands for every sequence that is not
/// UTF-8, and for every character that would break the line in two or turn the text around it the
/// other way.
[[nodiscard]] std::string printable(std::string_view bytes);

}  // namespace klarvik
