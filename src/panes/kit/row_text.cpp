#include "panes/kit/row_text.h"

#include <QStringList>

namespace klarvik {
namespace {

/// Characters that would break a row in two, or turn the text around them the other way.
bool breaksTheLine(QChar character) {
  const char16_t code = character.unicode();
  return character.category() == QChar::Other_Control || (code >= 0x202A && code <= 0x202E) ||
         (code >= 0x2066 && code <= 0x2069) || code == 0x2028 || code == 0x2029;
}

}  // namespace

QString printableText(std::string_view bytes) {
  QString text = QString::fromStdString(printable(bytes));
  for (QChar& character : text) {
    if (breaksTheLine(character)) {
      character = QChar::ReplacementCharacter;
    }
  }
  return text;
}

QString byteText(std::int64_t bytes, const Formatting& formatting) {
  return QString::fromStdString(formatting.byteText(bytes));
}

QString verdictText(SafetyLevel level) {
  return level == SafetyLevel::caution ? QStringLiteral("Review") : QStringLiteral("Safe");
}

QString rowDescription(const QString& name, const QString& size, const QString& verdict) {
  return QStringList{name, size, verdict}.join(QStringLiteral(", "));
}

}  // namespace klarvik
