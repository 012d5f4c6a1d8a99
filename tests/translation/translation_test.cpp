#include "translation/translation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <array>
#include <optional>

#include "panes/kit/row_text.h"
#include "panes/privacy/privacy_texts.h"
#include "panes/smart_scan/smart_scan_texts.h"
#include "panes/storage/storage_rows.h"
#include "panes/system_data/system_data_texts.h"
#include "panes/uninstaller/uninstaller_texts.h"
#include "shell/sidebar_texts.h"
#include "source_texts/source_texts.h"
#include "state/section.h"

namespace klarvik {
namespace {

struct Entry {
  QString context;
  QString source;
  QStringList forms;  ///< of its translation; one, where it has no plural
  bool isUnfinished = false;
};

std::vector<Entry> catalogue(const QString& language) {
  QFile file(QStringLiteral(KLARVIK_CATALOGUES) + "/klarvik_" + language + ".ts");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  std::vector<Entry> entries;
  Entry entry;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == u"name") entry.context = xml.readElementText();
    if (xml.name() == u"source") {
      entry.source = xml.readElementText();
      entry.forms.clear();
    }
    if (xml.name() != u"translation") continue;
    entry.isUnfinished = xml.attributes().hasAttribute("type");
    while (xml.readNext() != QXmlStreamReader::EndElement || xml.name() != u"translation") {
      if (xml.isCharacters() && !xml.isWhitespace()) entry.forms << xml.text().toString();
    }
    entries.push_back(entry);
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return entries;
}

class TranslationTest : public ::testing::Test {
 protected:
  void SetUp() override { speak("de"); }
  void TearDown() override { speak("en"); }

  [[nodiscard]] Formatting formatting() const { return Formatting(formattingLanguage()); }
};

TEST_F(TranslationTest, TheFirstLanguageThatIsSpokenIsTaken) {
  EXPECT_EQ(languageFor({"de-DE", "de", "en"}), "de");
  EXPECT_EQ(languageFor({"de_AT"}), "de");
  EXPECT_EQ(languageFor({"fr-FR", "de"}), "de");
  EXPECT_EQ(languageFor({"en-GB", "de"}), "en");
  EXPECT_EQ(languageFor({"C"}), "en");
  EXPECT_EQ(languageFor({"C", "de"}), "en");
  EXPECT_EQ(languageFor({"fr", "it"}), "en");
  EXPECT_EQ(languageFor({"", "den", "-"}), "en");
  EXPECT_EQ(languageFor({}), "en");
}

TEST_F(TranslationTest, EnglishTakesBackWhatWasInstalled) {
  EXPECT_EQ(translate("Kit", "Quit"), "Beenden");
  speak("en");
  EXPECT_EQ(spokenLanguage(), "en");
  EXPECT_EQ(translate("Kit", "Quit"), "Quit");
  speak("no language");
  EXPECT_EQ(translate("Kit", "Quit"), "Quit");
}

TEST_F(TranslationTest, EveryTextOfTheTablesIsInEveryCatalogue) {
  for (const QString& language : translatedLanguages()) {
    std::set<std::string> translatedTexts;
    for (const Entry& entry : catalogue(language)) {
      if (entry.context == "Engine") translatedTexts.insert(entry.source.toStdString());
    }
    for (const std::string& text : sourceTexts()) {
      EXPECT_TRUE(translatedTexts.contains(text)) << language.toStdString() << ": " << text;
    }
  }
}

/// What stands for a value, in any order.
QStringList placesIn(const QString& text) {
  static const QRegularExpression place("%L?[1-9n]|\\*");
  QStringList places;
  for (auto match = place.globalMatch(text); match.hasNext();) places << match.next().captured();
  places.sort();
  return places;
}

TEST_F(TranslationTest, ATranslationHasThePlacesOfItsSource) {
  ASSERT_THAT(translatedLanguages(), testing::Contains(QString("de")));
  for (const QString& language : translatedLanguages()) {
    for (const Entry& entry : catalogue(language)) {
      EXPECT_FALSE(entry.isUnfinished) << entry.source.toStdString();
      ASSERT_FALSE(entry.forms.isEmpty()) << entry.source.toStdString();
      for (const QString& form : entry.forms) {
        EXPECT_EQ(placesIn(form), placesIn(entry.source)) << form.toStdString();
        EXPECT_EQ(form, form.trimmed());
        const bool isSentence = entry.source.endsWith('.') && !entry.source.endsWith("...");
        EXPECT_EQ(isSentence && !form.endsWith('.'), false) << form.toStdString();
      }
    }
  }
}

TEST_F(TranslationTest, GermanHasItsOwnTypography) {
  const QRegularExpression wrong("[\"'”]|\\S…|\\.\\.\\.|—| - |\\d%|%\\d%");
  for (const Entry& entry : catalogue("de")) {
    for (const QString& form : entry.forms) {
      EXPECT_FALSE(wrong.match(form).hasMatch()) << form.toStdString();
    }
  }
}

TEST_F(TranslationTest, CountsFollowThePluralsOfTheLanguage) {
  EXPECT_EQ(smart_scan::showMoreTitle(1), "1 weiteres zeigen");
  EXPECT_EQ(smart_scan::showMoreTitle(7), "7 weitere zeigen");
  EXPECT_EQ(privacy::clearTitle(1), "1 Spur löschen");
  EXPECT_EQ(privacy::clearTitle(2), "2 Spuren löschen");
  EXPECT_EQ(system_data::confirmationTitle(1), "1 Objekt in den Papierkorb verschieben?");
  EXPECT_EQ(system_data::confirmationTitle(12), "12 Objekte in den Papierkorb verschieben?");
  EXPECT_EQ(translated(Message::counted("%n smaller items", 3)), "3 kleinere Objekte");
  EXPECT_EQ(uninstaller::detailSubtitle(1, 2'500'000, formatting()),
            "1 Rest gefunden · insgesamt 2,5 MB");
}

TEST_F(TranslationTest, SizesAndDatesAreOfTheRegionThatTheEnvironmentNames) {
  const auto localeIn = [](const char* all, const char* messages, const char* usual) {
    qputenv("LC_ALL", all);
    qputenv("LC_MESSAGES", messages);
    qputenv("LANG", usual);
    return formattingLanguage().locale.value_or("");
  };
  const std::array<const char*, 3> names{"LC_ALL", "LC_MESSAGES", "LANG"};
  std::array<std::optional<QByteArray>, 3> before;
  for (std::size_t at = 0; at < names.size(); ++at) {
    if (qEnvironmentVariableIsSet(names[at])) before[at] = qgetenv(names[at]);
  }
  EXPECT_EQ(localeIn("", "", "de_AT.UTF-8"), "de_AT");
  EXPECT_EQ(localeIn("", "de_CH@euro", "de_AT.UTF-8"), "de_CH");
  EXPECT_EQ(localeIn("en_US.UTF-8", "de_CH", "de_AT"), "de_US");
  EXPECT_EQ(localeIn("", "", "C.UTF-8"), "de");
  EXPECT_EQ(localeIn("C", "de_CH", "de_AT"), "de");
  EXPECT_EQ(localeIn("", "", ""), "de");
  speak("en");
  EXPECT_EQ(localeIn("", "", "de_AT.UTF-8"), "");
  for (std::size_t at = 0; at < names.size(); ++at) {
    if (before[at]) {
      qputenv(names[at], *before[at]);
    } else {
      qunsetenv(names[at]);
    }
  }
}

TEST_F(TranslationTest, SizesAndDatesAreWrittenAsTheLanguageDoes) {
  const Formatting german = formatting();
  EXPECT_EQ(german.byteText(0), "0 KB");
  EXPECT_EQ(german.byteText(1), "1 Byte");
  EXPECT_EQ(german.byteText(999), "999 Byte");
  EXPECT_EQ(german.byteText(1'500'000), "1,5 MB");
  EXPECT_EQ(german.byteText(-2'250'000'000), "-2,25 GB");
  const Date now{std::chrono::hours(24 * 365 * 50)};
  EXPECT_EQ(german.relative(now - std::chrono::minutes(3), now), "vor 3 Minuten");
  EXPECT_EQ(sidebar::percentText(0.451), "45 %");
  speak("en");
  const Formatting english(formattingLanguage());
  EXPECT_EQ(english.byteText(0), "Zero KB");
  EXPECT_EQ(english.byteText(1), "1 byte");
  EXPECT_EQ(english.byteText(999), "999 bytes");
}

TEST_F(TranslationTest, WordsOfTheDiskAreNoWordsOfTheProgram) {
  // A folder that is called like a text of the tables keeps its name.
  EXPECT_EQ(shownName("Trash", {}), "Trash");
  EXPECT_EQ(shownName("Trash", "Trash"), "Papierkorb");
  const Message message("%1 is running. Close it first.", {"Settings %1 * %n"});
  EXPECT_EQ(translated(message), "Settings %1 * %n läuft. Schließen Sie es zuerst.");
  EXPECT_EQ(message, "Settings %1 * %n is running. Close it first.");
  EXPECT_EQ(translated(Message("%1 was stopped.", {"a\xffz"})), "a\uFFFDz wurde angehalten.");
  EXPECT_EQ(translated(Message("Crash reports of *", {"vim"})), "Absturzberichte von vim");
  EXPECT_EQ(translated(Message("Logs of *", {"a"}).followedBy(" — Logs")),
            "Protokolle von a — Logs");
  EXPECT_EQ(translated("no text of the program"), "no text of the program");
}

TEST_F(TranslationTest, AHistoryThatWasStoredInEnglishIsReadInGerman) {
  const QList<GrowthRow> rows = growthRows({{.name = "App Caches", .delta = 1'500'000},
                                            {.name = "A category of old", .delta = 2'000'000}},
                                           formatting());
  ASSERT_EQ(rows.size(), 2);
  EXPECT_EQ(rows[0].name, "App-Caches");
  EXPECT_EQ(rows[0].figure, "+1,5 MB");
  EXPECT_EQ(rows[1].name, "A category of old");
}

TEST_F(TranslationTest, ToolsAndTheirTotalsAreCalledInTheLanguage) {
  EXPECT_EQ(translated(tool(Section::largeFiles).title), "Große Dateien");
  const Words words{};
  EXPECT_EQ(tool(Section::duplicates).help({"1,5 GB", 1, words}),
            "1,5 GB löschbar in 1 überzähligen Kopie");
  EXPECT_EQ(tool(Section::duplicates).help({"1,5 GB", 4, words}),
            "1,5 GB löschbar in 4 überzähligen Kopien");
}

}  // namespace
}  // namespace klarvik
