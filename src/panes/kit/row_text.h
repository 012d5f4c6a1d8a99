#pragma once

#include <QString>
#include <cstdint>
#include <string_view>

#include "places/category_type.h"

namespace klarvik {

class Formatting;

/// A text of the program.
[[nodiscard]] QString programText(std::string_view utf8);
/// Bytes of the disk, made fit for one line of the screen: what is not UTF-8, and what would break
/// the line or reverse it, becomes U+FFFD.
[[nodiscard]] QString printableText(std::string_view bytes);
[[nodiscard]] QString byteText(std::int64_t bytes, const Formatting& formatting);
/// For text over several lines: no line ends between a size's number and its unit.
[[nodiscard]] QString withSizesUnbroken(QString text);
/// "Safe" or "Review".
[[nodiscard]] QString verdictText(SafetyLevel level);
/// What a screen reader says of a row: "App Caches, 1.2 GB, Safe".
[[nodiscard]] QString rowDescription(const QString& name, const QString& size,
                                     const QString& verdict);

}  // namespace klarvik
