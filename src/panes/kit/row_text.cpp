#include "panes/kit/row_text.h"

#include <QRegularExpression>
#include <QStringList>

#include "platform/formatting.h"

namespace klarvik {

QString programText(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString printableText(std::string_view bytes) {
  return QString::fromStdString(printable(bytes));
}

QString byteText(std::int64_t bytes, const Formatting& formatting) {
  return QString::fromStdString(formatting.byteText(bytes));
}

QString withSizesUnbroken(QString text) {
  static const QRegularExpression gap(QStringLiteral("(?<=\\d) (?=(bytes?|[KMGTPE]B)\\b)"));
  return text.replace(gap, QString(QChar::Nbsp));
}

QString verdictText(SafetyLevel level) {
  return level == SafetyLevel::caution ? QStringLiteral("Review") : QStringLiteral("Safe");
}

QString rowDescription(const QString& name, const QString& size, const QString& verdict) {
  return QStringList{name, size, verdict}.join(QStringLiteral(", "));
}

}  // namespace klarvik
