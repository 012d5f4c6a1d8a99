#include <gmock/gmock.h>

#include <QRegularExpression>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "words_of_the_windows.h"

namespace klarvik {
namespace {

/// What only a Mac has, and a text of a Linux disk never names.
constexpr std::array macNames{"macOS",           "Mac",
                              "Finder",          "Xcode",
                              "iPhone",          "iPad",
                              "Safari",          "Time Machine",
                              "iCloud",          "Spotlight",
                              "System Settings", "menu bar",
                              "Macintosh HD",    "Full Disk Access"};

/// A whole word, as it is written or in capitals.
bool holds(const QString& text, const QString& name) {
  const QRegularExpression word("\\b(" + name + "|" + name.toUpper() + ")\\b");
  return word.match(text).hasMatch();
}

/// A text for each of a Mac's names that is in one of them.
std::map<std::string, std::string> macNamesIn(const std::set<QString>& texts) {
  std::map<std::string, std::string> found;
  for (const QString& text : texts) {
    for (const char* name : macNames) {
      if (holds(text, name)) found.emplace(name, text.toStdString());
    }
  }
  return found;
}

class WordsOfALinuxDisk : public WordsOfTheWindows {
 protected:
  WordsOfALinuxDisk() : WordsOfTheWindows(linuxHome) {}
};

class WordsOfAMacsDisk : public WordsOfTheWindows {
 protected:
  WordsOfAMacsDisk() : WordsOfTheWindows(macHome) {}
};

TEST_F(WordsOfALinuxDisk, NameNothingThatOnlyAMacHas) {
  readAll();
  EXPECT_THAT(macNamesIn(seen), testing::IsEmpty());
  EXPECT_GT(textsRead, 1000);
}

TEST_F(WordsOfAMacsDisk, NameWhatAMacHas) {
  readAll();
  std::vector<std::string> names;
  for (const auto& [name, text] : macNamesIn(seen)) names.push_back(name);
  EXPECT_THAT(names, testing::IsSupersetOf({"Finder", "Full Disk Access", "Mac", "Macintosh HD",
                                            "System Settings", "Time Machine", "Xcode", "iCloud",
                                            "iPhone", "macOS", "menu bar"}));
}

TEST_F(WordsOfALinuxDisk, CallThingsAsTheyAreCalledThere) {
  openWindow();
  EXPECT_TRUE(shows("Klarvik finds what file managers hide"));
  EXPECT_TRUE(shows("Nothing leaves this computer. No account, no telemetry."));
  picture("words_welcome");
  click("Continue");
  settle();
  EXPECT_TRUE(shows("Ready when you are"));
  EXPECT_TRUE(shows("your home folder, and what everybody may read"));
  EXPECT_TRUE(shows("Keep Klarvik in the system tray"));
  picture("words_ready");
  click("Later");
  settle();
  EXPECT_TRUE(shows("System"));
  for (const ScanRow& row : layoutFor(home).scanRows) {
    EXPECT_TRUE(shows(QString::fromStdString(std::string(row.name)))) << row.name;
  }
  picture("words_smart_scan");
  press(Qt::Key_Comma, Qt::ControlModifier);
  lookAt(app->window(settingsWindowId));
  settle();
  EXPECT_TRUE(shows("Show in the system tray"));
  EXPECT_TRUE(shows("Unavailable until Klarvik is installed."));
  EXPECT_FALSE(shows("Reopen Klarvik"));
}

}  // namespace
}  // namespace klarvik
