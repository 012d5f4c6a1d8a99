#include "panes/kit/file_url.h"

#include <QByteArray>

#include "platform/formatting.h"

namespace klarvik {

QUrl urlOfPath(const Path& path) {
  if (path.empty()) return {};
  const QByteArray bytes = QByteArray::fromStdString(path.native());
  return QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"), QUrl::StrictMode);
}

Path pathOfUrl(const QUrl& url) {
  const QByteArray encoded = url.path(QUrl::FullyEncoded).toLatin1();
  return Path(QByteArray::fromPercentEncoding(encoded).toStdString());
}

QString abbreviated(std::string_view text, const Path& home) {
  std::string result(text);
  const std::string& wanted = home.native();
  if (wanted.size() > 1) {
    for (auto at = result.find(wanted); at != std::string::npos; at = result.find(wanted, at + 1)) {
      result.replace(at, wanted.size(), "~");
    }
  }
  return QString::fromStdString(printable(result));
}

QString folderLine(const Path& item, const Path& home) {
  return abbreviated(item.parent_path().native(), home) + "/";
}

}  // namespace klarvik
