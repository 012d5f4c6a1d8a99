#include "tools/residual_matcher.h"

#include <gmock/gmock.h>

#include <random>

#include "base/text.h"
#include "places/disk_layout.h"
#include "tools/uninstaller_engine.h"

namespace klarvik {
namespace {

using testing::ElementsAre;

AppInfo app(const std::string& name, const std::string& bundleID) {
  return {.name = name, .bundleID = bundleID};
}

bool matches(const AppInfo& application, std::string_view name,
             const std::vector<std::string>& installed = {}) {
  return ResidualMatcher(application, layoutFor("/Users/ann").applications, installed)
      .matches(name);
}

TEST(ResidualMatcher, TakesATokenAsAWholeWordOnly) {
  const AppInfo note = app("Note", "com.paper.n");
  for (const char* const name : {"note", "Note", "NOTE-cache", "note-cache", "com.note.app",
                                 "com_note_app", "my note", "note.plist", "-note-", ".note"}) {
    EXPECT_TRUE(matches(note, name)) << name;
  }
  for (const char* const name : {"notebook.plist", "notebook", "anote", "com.notes.app", "note1",
                                 "not", "no-te", "note+cache", "note/", "", "com.keynote.app"}) {
    EXPECT_FALSE(matches(note, name)) << name;
  }
}

TEST(ResidualMatcher, APartOfTheIdentifierThatHoldsACapitalLetterCannotMatchByItself) {
  const AppInfo tool = app("Xy", "com.acme.Tool");
  EXPECT_FALSE(matches(tool, "tool"));
  EXPECT_FALSE(matches(tool, "org.Tool.plist"));
  EXPECT_TRUE(matches(tool, "com.acme.Tool"));
  EXPECT_TRUE(matches(tool, "com.acme.tool"));
}

TEST(ResidualMatcher, ANameIsTheSameWithItsAccentsApartOrNot) {
  for (const char* const name : {"Caf\u00e9", "Cafe\u0301"}) {
    const AppInfo cafe = app(name, "com.x.y");
    EXPECT_TRUE(matches(cafe, "Caf\u00e9"));
    EXPECT_TRUE(matches(cafe, "Cafe\u0301 cache"));
    EXPECT_FALSE(matches(cafe, "Cafe"));
    EXPECT_THAT(UninstallerEngine::residualIdentifiers(cafe), ElementsAre("caf\u00e9", "com.x.y"));
  }
  EXPECT_FALSE(matches(app("Cafe", "com.x.y"), "Cafe\u0301"));
}

TEST(ResidualMatcher, TheNameFindsWhatSuchAPartCannot) {
  const AppInfo tool = app("Tool", "com.acme.Tool");
  EXPECT_TRUE(matches(tool, "tool"));
  EXPECT_TRUE(matches(tool, "com.acme.tool.plist"));
}

TEST(ResidualMatcher, ANameWithBlanksIsFoundWholeWithoutThemAndWithHyphens) {
  const AppInfo writer = app("Big Ink Pot", "com.x.y");
  EXPECT_TRUE(matches(writer, "Big Ink Pot"));
  EXPECT_TRUE(matches(writer, "com.bigInkPot.helper"));
  EXPECT_TRUE(matches(writer, "big-ink-pot"));
  EXPECT_FALSE(matches(writer, "Big"));
  EXPECT_FALSE(matches(writer, "ink pot"));
  EXPECT_FALSE(matches(writer, "Big_Ink_Pot"));
  EXPECT_FALSE(matches(writer, "Big Ink Pot 2"));
}

TEST(ResidualMatcher, ANameOfThreeCharactersOrFewerGivesNoTokens) {
  const AppInfo git = app("Git", "com.acme.scm");
  EXPECT_FALSE(matches(git, "git"));
  EXPECT_FALSE(matches(git, "git.plist"));
  EXPECT_TRUE(matches(git, "acme-data"));
  EXPECT_TRUE(matches(git, "COM.ACME.SCM"));
}

TEST(ResidualMatcher, CountsCharactersAndNotBytes) {
  EXPECT_FALSE(matches(app("äöü", "a.b"), "äöü"));
  EXPECT_TRUE(matches(app("äöüß", "a.b"), "ÄÖÜß"));
  EXPECT_FALSE(matches(app("👩‍👩‍👧‍👦👩‍👩‍👧‍👦", "a.b"),
                       "👩‍👩‍👧‍👦👩‍👩‍👧‍👦"));
}

TEST(ResidualMatcher, AnEntryNamedExactlyLikeTheIdentifierMatchesAlsoWhenItIsShort) {
  EXPECT_TRUE(matches(app("X", "a.b"), "a.b"));
  EXPECT_TRUE(matches(app("X", "A.B"), "a.B"));
  EXPECT_FALSE(matches(app("X", "a.b"), "a.b.plist"));
  EXPECT_FALSE(matches(app("X", "a.b"), "a"));
}

TEST(ResidualMatcher, AnIdentifierOfGenericOrShortPartsMatchesOnlyWhole) {
  const AppInfo vague = app("It", "com.app.it");
  EXPECT_TRUE(matches(vague, "com.app.it"));
  for (const char* const name :
       {"com", "app", "it", "com.app", "com.app.it.plist", "com.apple.x"}) {
    EXPECT_FALSE(matches(vague, name)) << name;
  }
}

TEST(ResidualMatcher, NeighboursDoNotTakeOneAnothersFilesByAPartOfAWord) {
  EXPECT_FALSE(matches(app("A", "com.a.b"), "com.a.bc"));
  EXPECT_FALSE(matches(app("A", "com.a.b"), "com.a.bc.plist"));
  EXPECT_FALSE(matches(app("A", "com.a.bc"), "com.a.b"));
  EXPECT_FALSE(matches(app("App", "io.x.y"), "App 11"));
  EXPECT_FALSE(matches(app("App 11", "io.x.z"), "App"));
  EXPECT_FALSE(matches(app("App 11", "io.x.z"), "App 110.plist"));
  EXPECT_FALSE(matches(app("App 11", "io.x.z"), "App 1"));
  EXPECT_TRUE(matches(app("App 11", "io.x.z"), "App 11"));
}

TEST(ResidualMatcher, AProtectedNameIsNeverAResidual) {
  for (const char* const name :
       {"com.apple.Music",       "com.apple.TV",          "com.apple.podcasts",
        "com.apple.iTunes",      "com.apple.Photos",      "com.apple.PhotoLibrary",
        "com.apple.CloudPhotos", "com.apple.PhotoBooth",  "com.apple.AddressBook",
        "com.apple.ContactsUI",  "com.apple.iCal",        "com.apple.reminders",
        "com.apple.mail",        "com.apple.Safari",      "com.apple.Notes",
        "com.apple.Home",        "com.apple.AMS",         "com.apple.AppleMediaServices",
        "com.apple.MarkupUI",    "group.com.apple.music", "group.com.apple.photos"}) {
    const std::string lower = lowercased(name);
    for (const std::string& entry : {std::string(name), lower, lower + ".plist", lower + "x"}) {
      for (const AppInfo& application :
           {app(name, name), app(entry, entry), app("Apple", "com.apple.apple"),
            app("Music Photos Notes", "com.apple.music")}) {
        EXPECT_FALSE(matches(application, entry)) << entry;
      }
    }
  }
  EXPECT_TRUE(matches(app("Xcode", "com.apple.dt.Xcode"), "com.apple.dt.Xcode.plist"));
  EXPECT_TRUE(matches(app("Music", "com.x.y"), "Music"));
}

TEST(ResidualMatcher, AnApplicationOfTheSystemLeavesNothing) {
  const AppInfo safari = app("Safari", "com.apple.Safari");
  for (const char* const name : {"Safari", "safari", "com.apple.Safari", "com.apple.finder.plist",
                                 "com.apple.dt.Xcode", "apple", "Apple"}) {
    EXPECT_FALSE(matches(safari, name)) << name;
  }
}

TEST(ResidualMatcher, WhatSpellsAnotherInstalledApplicationsIdentifierIsThatOnes) {
  const std::vector<std::string> installed{"com.paper.n", "com.note.app", "com.note.App.Beta",
                                           "org.x.Keynote"};
  const AppInfo note = app("Note", "com.paper.n");
  EXPECT_TRUE(matches(note, "com.note.app"));
  for (const char* const name : {"com.note.app", "COM.NOTE.APP", "com.note.app.plist",
                                 "com.note.app.beta.savedState", "A1B2.com.note.app"}) {
    EXPECT_FALSE(matches(note, name, installed)) << name;
  }
  for (const char* const name :
       {"note", "note-cache", "com.note.apple", "xcom.note.app", "com.paper.n.note", "com.note"}) {
    EXPECT_EQ(matches(note, name, installed), matches(note, name)) << name;
  }
}

TEST(ResidualMatcher, OfTwoIdentifiersThatBeginAlikeTheLongerOneIsMeant) {
  const std::vector<std::string> installed{"com.acme.writer", "com.acme.writer.beta"};
  const AppInfo writer = app("Writer", "com.acme.writer");
  const AppInfo beta = app("Writer Beta", "com.acme.writer.beta");
  EXPECT_TRUE(matches(writer, "com.acme.writer.plist", installed));
  EXPECT_TRUE(matches(writer, "com.acme.writer.helper", installed));
  EXPECT_FALSE(matches(writer, "com.acme.writer.beta.plist", installed));
  EXPECT_TRUE(matches(beta, "com.acme.writer.beta.plist", installed));
  EXPECT_FALSE(matches(beta, "com.acme.writer.plist", installed));
}

TEST(ResidualMatcher, AnotherApplicationWhoseIdentifierIsOneWordHasOnlyThatName) {
  const AppInfo note = app("Note", "com.paper.n");
  EXPECT_FALSE(matches(note, "Note", {"note"}));
  EXPECT_TRUE(matches(note, "note-cache", {"note"}));
  EXPECT_TRUE(matches(note, "note", {"", "com"}));
}

TEST(ResidualMatcher, TheWordsOfTheVendorAloneAreNotEnough) {
  const AppInfo writer = app("Ink Pot", "com.acme.Writer");
  for (const char* const name :
       {"com.acme.painter", "com.acme.painter.plist", "com.acme.plist", "com.acme",
        "COM.ACME.Painter", "group.com.acme.painter", "com.acme.rewriter"}) {
    EXPECT_FALSE(matches(writer, name)) << name;
  }
  for (const char* const name :
       {"com.acme.writer", "com.acme.writer.plist", "com.acme.suite.writer", "com.acme.inkpot",
        "com.acme.ink-pot", "com.acme.writerx", "group.com.acme.writer", "acme", "acme-data",
        "org.acme.painter"}) {
    EXPECT_TRUE(matches(writer, name)) << name;
  }
}

TEST(ResidualMatcher, WhatTheSystemsVendorMadeIsNoLeftoverOfOthers) {
  const AppInfo finder = app("Finder", "com.acme.finder");
  EXPECT_FALSE(matches(finder, "com.apple.finder.plist"));
  EXPECT_FALSE(matches(finder, "COM.APPLE.Finder"));
  EXPECT_FALSE(matches(finder, "group.com.apple.finder"));
  EXPECT_TRUE(matches(finder, "com.applepie.finder"));
  const AppInfo xcode = app("Xcode", "com.apple.dt.Xcode");
  EXPECT_TRUE(matches(xcode, "com.apple.dt.Xcode.plist"));
  EXPECT_FALSE(matches(xcode, "com.apple.finder.plist"));
}

TEST(ResidualMatcher, WhateverTheApplicationIsCalledNoTokenMatchesInsideAWord) {
  const std::vector<std::string> pieces{"a", "com", "note", "Note", "book", ".",  "-",   "_",
                                        " ", "ä",   "📱",    "İ",    "/",    "\n", "\xff"};
  std::mt19937 random(11);
  const auto text = [&] {
    std::string made;
    for (std::size_t count = random() % 6; count > 0; --count)
      made += pieces[random() % pieces.size()];
    return made;
  };
  int matched = 0;
  for (int round = 0; round < 20'000; ++round) {
    const AppInfo application = app(text(), text());
    const std::string entry = text();
    const ResidualMatcher matcher(application, layoutFor("/Users/ann").applications);
    if (!matcher.matches(entry)) continue;
    ++matched;
    // The same entry with a letter grown onto every word of it belongs to somebody else.
    std::string grown = "z";
    for (const char character : entry) {
      const bool separates = std::string_view(".-_ ").find(character) != std::string_view::npos;
      grown += separates ? std::string("z") + character + "z" : std::string(1, character);
    }
    EXPECT_FALSE(matcher.matches(grown + "z"))
        << entry << " of " << application.name << ", " << application.bundleID;
  }
  EXPECT_GT(matched, 100);
}

TEST(GuardIdentifiers, AreTheTokensWithThePartsOfTheIdentifierInLowerCase) {
  EXPECT_THAT(
      UninstallerEngine::residualIdentifiers(app("Big Tool", "com.Acme.BigTool.Helper")),
      ElementsAre("acme", "bigtool", "helper", "big tool", "big-tool", "com.acme.bigtool.helper"));
  EXPECT_THAT(UninstallerEngine::residualIdentifiers(app("Tool", "com.acme.Tool")),
              ElementsAre("acme", "tool", "com.acme.tool"));
}

TEST(GuardIdentifiers, OfShortAndGenericTextsAreOnlyTheIdentifierItself) {
  EXPECT_THAT(UninstallerEngine::residualIdentifiers(app("It", "com.App.it")),
              ElementsAre("com.app.it"));
  EXPECT_THAT(UninstallerEngine::residualIdentifiers(app("", "")), ElementsAre(""));
}

}  // namespace
}  // namespace klarvik
