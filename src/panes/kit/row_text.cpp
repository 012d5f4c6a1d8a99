#include "panes/kit/row_text.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QStringList>

#include "platform/formatting.h"
#include "translation/translation.h"

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

QString programText(std::string_view utf8) {
  return translated(utf8);
}

QString printableText(std::string_view bytes) {
  return QString::fromStdString(printable(bytes));
}

QString shownName(std::string_view name, const Message& text) {
  return text.empty() ? printableText(name) : translated(text);
}

QString byteText(std::int64_t bytes, const Formatting& formatting) {
  return QString::fromStdString(formatting.byteText(bytes));
}

QString withSizesUnbroken(QString text) {
  static const QRegularExpression gap(QStringLiteral("(?<=\\d) (?=([Bb]ytes?|[KMGTPE]B)\\b)"));
  return text.replace(gap, QString(QChar::Nbsp));
}

QString verdictText(SafetyLevel level) {
  return level == SafetyLevel::caution ? translate("Kit", "Review") : translate("Kit", "Safe");
}

QString rowDescription(const QString& name, const QString& size, const QString& verdict) {
  return QStringList{name, size, verdict}.join(QStringLiteral(", "));
}

}  // namespace klarvik
