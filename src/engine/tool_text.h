#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace klarvik {

// Reading what outside tools print. Pure functions; the answers point into the text they were
// given. "White space" is that of every script, and a character is one code point; a byte that is
// not UTF-8 counts as a character of its own.

/// Without white space and newlines at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);
/// Without spaces and tabs at both ends.
[[nodiscard]] std::string_view trimmedOfBlanks(std::string_view text);
/// The pieces between newlines, empty ones included.
[[nodiscard]] std::vector<std::string_view> splitLines(std::string_view text);
/// The pieces between white space, none of them empty.
[[nodiscard]] std::vector<std::string_view> splitWords(std::string_view text);
/// The whole text where it is no longer than `count` characters.
[[nodiscard]] std::string_view firstCharacters(std::string_view text, std::size_t count);
/// Nothing unless the whole text is a decimal integer, signed or not, that fits 64 bits.
[[nodiscard]] std::optional<std::int64_t> decimalInteger(std::string_view text);
/// Nothing unless the whole text is a decimal number. One beyond the range of a double reads as 0.
[[nodiscard]] std::optional<double> decimalNumber(std::string_view text);

}  // namespace klarvik
