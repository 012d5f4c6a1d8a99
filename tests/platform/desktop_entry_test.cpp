#include "platform/desktop_entry.h"

#include <gmock/gmock.h>

namespace klarvik {
namespace {

constexpr std::string_view entry =
    "Exec=before any group\n"
    "[Desktop Action new]\n"
    "Exec=of another group\n"
    "[Desktop Entry]\r\n"
    "# Exec=remark\n"
    " Exec \t=  \"/usr/bin/klarvik\" a=b \r\n"
    "Exec=the second\n"
    "Hidden=\n"
    "[X-Other]\n"
    "Terminal=false\n";

TEST(DesktopEntry, TellsTheFirstValueOfItsOwnGroupWithoutTheBlanksAroundIt) {
  EXPECT_EQ(valueInDesktopEntry(entry, "Exec"), "\"/usr/bin/klarvik\" a=b");
}

TEST(DesktopEntry, TellsAnEmptyValueFromNone) {
  EXPECT_EQ(valueInDesktopEntry(entry, "Hidden"), "");
  EXPECT_EQ(valueInDesktopEntry(entry, "Terminal"), std::nullopt);
  EXPECT_EQ(valueInDesktopEntry("", "Exec"), std::nullopt);
}

TEST(DesktopEntry, NeedsNoNewlineAtItsEnd) {
  EXPECT_EQ(valueInDesktopEntry("[Desktop Entry]\nHidden=true", "Hidden"), "true");
}

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DesktopEntry, IsReadWithItsEscapesUndone) {
  const DesktopEntry read = readDesktopEntry(
      "[Desktop Entry]\nType=Application\nName=Ink\\sPot\\n\\\\2\nName[de]=Tinte\nName=second\n"
      "Exec=ink %F\nTryExec=ink\nIcon=ink\nStartupWMClass=Ink\nX-Flatpak=org.a.Ink\n"
      "X-SnapInstanceName=ink\nX-AppImage-Version=2\nOnlyShowIn=GNOME; KDE;;\n"
      "[Desktop Action new]\nHidden=true\n");
  EXPECT_EQ(read.name, "Ink Pot \\2");
  EXPECT_EQ(read.command, "ink %F");
  EXPECT_EQ(read.tryCommand, "ink");
  EXPECT_EQ(read.icon, "ink");
  EXPECT_EQ(read.windowClass, "Ink");
  EXPECT_EQ(read.flatpak, "org.a.Ink");
  EXPECT_EQ(read.snap, "ink");
  EXPECT_TRUE(read.isApplication);
  EXPECT_TRUE(read.isAppImage);
  EXPECT_FALSE(read.isHidden);
  EXPECT_FALSE(read.isNotDisplayed);
  EXPECT_FALSE(read.isSettingsPanel);
  EXPECT_THAT(read.onlyShownIn, ElementsAre("GNOME", "KDE"));
}

TEST(DesktopEntry, IsShownWhereItSays) {
  const auto shown = [](std::string_view lines, const std::vector<std::string>& desktops) {
    return readDesktopEntry("[Desktop Entry]\n" + std::string(lines)).isShownIn(desktops);
  };
  EXPECT_TRUE(shown("", {}));
  EXPECT_TRUE(shown("OnlyShowIn=GNOME;", {"ubuntu", "GNOME"}));
  EXPECT_FALSE(shown("OnlyShowIn=KDE;", {"GNOME"}));
  EXPECT_FALSE(shown("OnlyShowIn=KDE;", {}));
  EXPECT_FALSE(shown("NotShowIn=KDE;", {"KDE"}));
  EXPECT_TRUE(shown("NotShowIn=KDE;", {"GNOME"}));
}

TEST(DesktopEntry, MayBeAPageOfTheSettings) {
  for (const char* const line :
       {"Categories=GNOME;X-GNOME-Settings-Panel;", "Categories=X-KDE-settings-system;",
        "X-KDE-System-Settings-Parent-Category=network"}) {
    EXPECT_TRUE(readDesktopEntry("[Desktop Entry]\n" + std::string(line)).isSettingsPanel) << line;
  }
}

TEST(DesktopEntry, OfAnyBytesIsReadAsFarAsItMakesSense) {
  EXPECT_FALSE(readDesktopEntry("").isApplication);
  EXPECT_FALSE(readDesktopEntry("Type=Application").isApplication);
  EXPECT_EQ(readDesktopEntry("[Desktop Entry]\nName=\xff\x01\x1b[2J").name, "\xff\x01\x1b[2J");
  const std::string megabytes(3'000'000, 'x');
  EXPECT_EQ(readDesktopEntry("[Desktop Entry]\nName=" + megabytes).name, megabytes);
}

TEST(DesktopEntry, CommandIsTakenApartWithoutQuotesAndFields) {
  EXPECT_THAT(wordsOfCommand("ink --new %F"), ElementsAre("ink", "--new"));
  EXPECT_THAT(wordsOfCommand("\"/opt/ink pot/ink\" 100%% a%ub"),
              ElementsAre("/opt/ink pot/ink", "100%", "ab"));
  EXPECT_THAT(wordsOfCommand("\"a\\\"b\\$\" c"), ElementsAre("a\"b$", "c"));
  EXPECT_THAT(wordsOfCommand("ink \"open"), IsEmpty());
  EXPECT_THAT(wordsOfCommand(" \t "), IsEmpty());
  EXPECT_THAT(wordsOfCommand("%"), IsEmpty());
}

TEST(DesktopEntry, CommandNamesItsProgramBehindVariables) {
  const auto program = [](std::string_view command) {
    return programOfCommand(wordsOfCommand(command));
  };
  EXPECT_EQ(program("ink %F"), "ink");
  EXPECT_EQ(program("env A=b BAMF=/x/y.desktop /snap/bin/ink %U"), "/snap/bin/ink");
  EXPECT_EQ(program("/usr/bin/env QT=1 ink"), "ink");
  EXPECT_EQ(program("A=b"), "");
  EXPECT_EQ(program("env -u A ink"), "");
  EXPECT_EQ(program("/opt/a=b/ink"), "/opt/a=b/ink");
  EXPECT_EQ(program(""), "");
}

}  // namespace
}  // namespace klarvik
