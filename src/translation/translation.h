#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <string>
#include <string_view>

#include "base/message.h"
#include "platform/formatting.h"

namespace klarvik {

/// The languages that the program speaks besides English, as "de".
[[nodiscard]] QStringList translatedLanguages();

/// The first language of the user that the program speaks; English where it speaks none of them.
/// `wanted`: as `QLocale::uiLanguages` lists them, best first.
[[nodiscard]] QString languageFor(const QStringList& wanted);

/// Has the application speak the language: its own texts, and those of Qt where they are installed.
/// Numbers and dates follow it, in the form that they have where the user lives. Before the first
/// text is asked for; main thread. English takes back what was installed before.
void speak(const QString& language);
/// The language that is spoken.
[[nodiscard]] QString spokenLanguage();
/// The same for sizes and dates, which are written as they are where the user lives.
[[nodiscard]] FormattingLanguage formattingLanguage();

/// A text of the windows, in the user's language. `n`: what "%n" stands for, and what the form of
/// the plural follows. lupdate finds the texts by the name of this function.
[[nodiscard]] QString translate(const char* context, const char* source, const char* note = nullptr,
                                int n = -1);
/// A count as Qt's plurals take it.
template <typename Count>
[[nodiscard]] int plural(Count count) {
  constexpr auto most = static_cast<Count>(1'000'000'000);
  return static_cast<int>(count < most ? count : most);
}

/// The sentence, as UTF-8, with `values` in the places of "%1" to "%9".
template <typename... Values>
[[nodiscard]] std::string filled(const QString& sentence, const Values&... values) {
  return Message(sentence.toStdString(), {std::string(values)...}).english();
}

/// What the layers without Qt hand out: a text of the tables, or one that is marked "Engine". What
/// is neither stays as it is.
[[nodiscard]] QString translated(std::string_view source);
[[nodiscard]] inline QString translated(const std::string& source) {
  return translated(std::string_view(source));
}
[[nodiscard]] inline QString translated(const char* source) {
  return translated(std::string_view(source));
}
/// The same filled in. Values may hold bytes of the disk: they are made printable.
[[nodiscard]] QString translated(const Message& message);

}  // namespace klarvik
