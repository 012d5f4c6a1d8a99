#include "translation/translation.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr const char* engine = "Engine";
constexpr const char* english = "en";

struct Spoken {
  QString language = QString::fromLatin1(english);
  std::unique_ptr<QTranslator> own;
  std::unique_ptr<QTranslator> ofQt;
};

Spoken& spoken() {
  static Spoken state;
  return state;
}

/// Where the user lives, by the environment, such as "AT"; empty where it does not say. `LANGUAGE`
/// names languages only.
QString usersRegion() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const QString locale = qEnvironmentVariable(variable);
    if (!locale.isEmpty()) return locale.section('.', 0, 0).section('@', 0, 0).section('_', 1, 1);
  }
  return {};
}

/// The language as it is written where the user lives.
QString localeOf(const QString& language) {
  const QString region = usersRegion();
  return region.isEmpty() || language.contains('_') ? language : language + '_' + region;
}

std::unique_ptr<QTranslator> installed(const QString& file, const QString& folder) {
  auto translator = std::make_unique<QTranslator>();
  if (!translator->load(file, folder)) return nullptr;
  QCoreApplication::installTranslator(translator.get());
  return translator;
}

}  // namespace

QStringList translatedLanguages() {
  QStringList languages;
  for (const QString& file : QDir(QStringLiteral(":/i18n")).entryList({"klarvik_*.qm"})) {
    languages << file.section('_', 1).section('.', 0, 0);
  }
  return languages;
}

QString languageFor(const QStringList& wanted) {
  const QStringList languages = translatedLanguages();
  for (QString each : wanted) {
    each.replace('-', '_');
    if (languages.contains(each)) return each;
    const QString language = each.section('_', 0, 0);
    if (languages.contains(language)) return language;
    if (language == english || language == "C") break;
  }
  return english;
}

void speak(const QString& language) {
  Spoken& now = spoken();
  now.own.reset();
  now.ofQt.reset();
  now.language = language;
  static const QLocale usual;
  QLocale::setDefault(language == english ? usual : QLocale(localeOf(language)));
  if (language == english) return;
  now.ofQt = installed("qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  now.own = installed("klarvik_" + language, ":/i18n");
}

QString spokenLanguage() {
  return spoken().language;
}

FormattingLanguage formattingLanguage() {
  FormattingLanguage language{.noBytes = translate("Formatting", "Zero KB").toStdString(),
                              .oneByte = translate("Formatting", "1 byte").toStdString(),
                              .bytes = translate("Formatting", "%1 bytes").toStdString(),
                              //: Six units, a blank between them.
                              .units = translate("Formatting", "KB MB GB TB PB EB").toStdString()};
  if (spokenLanguage() != english) language.locale = localeOf(spokenLanguage()).toStdString();
  return language;
}

QString translate(const char* context, const char* source, const char* note, int n) {
  return QCoreApplication::translate(context, source, note, n);
}

QString translated(std::string_view source) {
  const std::string text(source);
  return text.empty() ? QString() : QCoreApplication::translate(engine, text.c_str());
}

QString translated(const Message& message) {
  if (message.empty()) return {};
  const QString text = QCoreApplication::translate(engine, message.source().c_str(), nullptr,
                                                   message.count().value_or(-1));
  return QString::fromStdString(printable(message.filled(text.toStdString())));
}

}  // namespace klarvik
