#include <gmock/gmock.h>

#include <QFile>
#include <QRegularExpression>
#include <QSysInfo>
#include <QXmlStreamReader>
#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

#include "translation/translation.h"
#include "words_of_the_windows.h"

namespace klarvik {
namespace {

/// What the windows say in German, by context and English.
class GermanTexts {
 public:
  GermanTexts() {
    QFile file(QStringLiteral(KLARVIK_CATALOGUES "/klarvik_de.ts"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
      if (xml.readNext() != QXmlStreamReader::StartElement) continue;
      if (xml.name() == u"name") context = xml.readElementText();
      if (xml.name() == u"source") source = xml.readElementText();
      if (xml.name() != u"translation") continue;
      const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
      _texts.push_back({context, source, text});
    }
  }

  [[nodiscard]] QString of(const QString& english, const QString& context) const {
    const auto found = std::ranges::find_if(_texts, [&](const Text& text) {
      return text.source == english && (context.isEmpty() || text.context == context);
    });
    EXPECT_NE(found, _texts.end()) << english.toStdString();
    return found != _texts.end() ? found->german : english;
  }
  /// Whether the translation of this text is the text itself.
  [[nodiscard]] bool staysAsItIs(const QString& english) const {
    return std::ranges::any_of(
        _texts, [&](const Text& text) { return text.source == english && text.german == english; });
  }

 private:
  struct Text {
    QString context;
    QString source;
    QString german;
  };
  std::vector<Text> _texts;
};

/// The program from its first run on, read in English and then in German.
class WordsInTwoLanguages : public WordsOfTheWindows {
 protected:
  explicit WordsInTwoLanguages(const Path& disksHome) : WordsOfTheWindows(disksHome) {}

  void TearDown() override {
    WordsOfTheWindows::TearDown();
    speak("en");
  }

  /// The window is closed and everything begins anew, in German.
  void beginInGerman() {
    TearDown();
    speak("de");
    SetUp();
    const FormattingLanguage language = formattingLanguage();
    std::destroy_at(&desk->formatting);
    std::construct_at(&desk->formatting, language);
    seen.clear();
    german = std::make_unique<GermanTexts>();
  }

  [[nodiscard]] QString said(const char* english, const char* context) const override {
    return german ? german->of(english, context) : english;
  }

  /// What a person could have read in both languages, though it is no name and no figure.
  [[nodiscard]] std::vector<std::string> equalTexts(const std::set<QString>& english) const {
    std::vector<std::string> equal;
    for (const QString& text : seen) {
      if (english.contains(text) && isOfAnyLanguage(text)) equal.push_back(text.toStdString());
    }
    return equal;
  }

  std::unique_ptr<GermanTexts> german;

 private:
  [[nodiscard]] bool isOfAnyLanguage(const QString& text) const {
    static const QRegularExpression words("[A-Za-z]{2,}");
    static const QRegularExpression noSentence(
        // Symbols and object names, paths and addresses, sizes, key sequences, identifiers, fonts.
        "^([a-z0-9]+(\\.[a-z0-9]+)+|[a-z]+[A-Za-z_]*|~?/\\S*|[a-z]+:\\S*|[0-9., ]+ ?(KB|MB|GB|TB)?|"
        "go clean -modcache|Ctrl\\+.*|Esc|Klarvik( [0-9.]+ \\([0-9]+\\))?|#[0-9a-f]+)$");
    // Folders of the disk, and what the feed says.
    static const QStringList names{"Documents", "Desktop", "Notes", "Firefox (a.default)"};
    if (names.contains(text) || text.endsWith(QSysInfo::prettyProductName())) return false;
    return words.match(text).hasMatch() && !noSentence.match(text).hasMatch() &&
           !german->staysAsItIs(text);
  }
};

class GermanOnALinuxDisk : public WordsInTwoLanguages {
 protected:
  GermanOnALinuxDisk() : WordsInTwoLanguages(linuxHome) {}
};

class GermanOnAMacsDisk : public WordsInTwoLanguages {
 protected:
  GermanOnAMacsDisk() : WordsInTwoLanguages(macHome) {}
};

TEST_F(GermanOnALinuxDisk, NothingIsLeftInEnglish) {
  readAll();
  const std::set<QString> english = seen;
  beginInGerman();
  readAll();
  EXPECT_GT(textsRead, 2000);
  EXPECT_THAT(equalTexts(english), testing::IsEmpty());
}

TEST_F(GermanOnAMacsDisk, NothingIsLeftInEnglish) {
  readAll();
  const std::set<QString> english = seen;
  beginInGerman();
  readAll();
  EXPECT_THAT(equalTexts(english), testing::IsEmpty());
}

}  // namespace
}  // namespace klarvik
