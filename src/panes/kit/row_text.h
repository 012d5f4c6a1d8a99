#pragma once

#include <QString>
#include <QUrl>
#include <cstdint>
#include <string_view>

#include "base/paths.h"
#include "places/category_type.h"

namespace klarvik {

/// A path on its way through QML. The url holds the bytes of the disk, so that a name which is not
/// UTF-8 comes back as it was. An empty path is an empty url.
[[nodiscard]] QUrl urlOfPath(const Path& path);
[[nodiscard]] Path pathOfUrl(const QUrl& url);

/// `text` with every occurrence of the home replaced by "~", fit for the screen.
[[nodiscard]] QString abbreviated(std::string_view text, const Path& home);

/// The folder that an item lies in, as a row shows it: "~/Library/Caches/".
[[nodiscard]] QString folderLine(const Path& item, const Path& home);

class Formatting;
class Message;

/// A text of the tables, in the language of the user.
[[nodiscard]] QString programText(std::string_view utf8);
/// Bytes of the disk, made fit for one line of the screen: what is not UTF-8, and what would break
/// the line or reverse it, becomes U+FFFD.
[[nodiscard]] QString printableText(std::string_view bytes);
[[nodiscard]] QString byteText(std::int64_t bytes, const Formatting& formatting);
/// For text over several lines: no line ends between a size's number and its unit.
[[nodiscard]] QString withSizesUnbroken(QString text);
/// The name of an item: `text`, where it was made of words of the program, else `name` of the disk.
[[nodiscard]] QString shownName(std::string_view name, const Message& text);
/// "Safe" or "Review".
[[nodiscard]] QString verdictText(SafetyLevel level);
/// What a screen reader says of a row: "App Caches, 1.2 GB, Safe".
[[nodiscard]] QString rowDescription(const QString& name, const QString& size,
                                     const QString& verdict);

}  // namespace klarvik
