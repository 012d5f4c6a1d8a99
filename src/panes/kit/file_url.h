#pragma once

#include <QString>
#include <QUrl>

#include "platform/path.h"

namespace klarvik {

/// A path on its way through QML. The url holds the bytes of the disk, so that a name which is not
/// UTF-8 comes back as it was. An empty path is an empty url.
[[nodiscard]] QUrl urlOfPath(const Path& path);
[[nodiscard]] Path pathOfUrl(const QUrl& url);

/// `text` with every occurrence of the home replaced by "~", fit for the screen.
[[nodiscard]] QString abbreviated(std::string_view text, const Path& home);

/// The folder that an item lies in, as a row shows it: "~/Library/Caches/".
[[nodiscard]] QString folderLine(const Path& item, const Path& home);

}  // namespace klarvik
