#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace klarvik {

/// `text` in lower case, by the rules of Unicode and of no one language. Bytes that are not UTF-8
/// stay as they are, so that two texts that differ in them do not become the same.
[[nodiscard]] std::string lowercased(std::string_view text);

/// `text` with its first character in upper case, by the same rules. One that is not UTF-8 stays.
[[nodiscard]] std::string capitalized(std::string_view text);

/// How many characters a reader sees in `text`: a letter and its accents are one. Each byte that is
/// not UTF-8 counts as one.
[[nodiscard]] std::size_t characterCount(std::string_view text);

[[nodiscard]] bool isUtf8(std::string_view bytes);

/// How a name of the disk is made fit for the screen: U+FFFD stands for every sequence that is not
/// UTF-8, and for every character that would break the line in two or turn the text around it the
/// other way.
[[nodiscard]] std::string printable(std::string_view bytes);

}  // namespace klarvik
