#include "panes/uninstaller/uninstaller_texts.h"

#include <gtest/gtest.h>

#include "places/disk_layout.h"

namespace klarvik::uninstaller {
namespace {

TEST(UninstallerTexts, TellWhatTheListIsDoing) {
  const Words& words = layoutFor("/Users/ann").words;
  EXPECT_EQ(listSubtitle(true, false, 0, words), "Waiting for another tool to finish measuring");
  EXPECT_EQ(listSubtitle(true, true, 0, words), "Waiting for another tool to finish measuring");
  EXPECT_EQ(listSubtitle(false, true, 3, words), "Reading /Applications…");
  EXPECT_EQ(listSubtitle(false, false, 3, words),
            "3 apps · dragging one to the Trash leaves its support files behind");
  EXPECT_EQ(listSubtitle(false, false, 1, words),
            "1 apps · dragging one to the Trash leaves its support files behind");
}

TEST(UninstallerTexts, NameNoFolderOfAnotherSystemOnALinuxDisk) {
  const Words& words = layoutFor("/home/ann").words;
  EXPECT_EQ(listSubtitle(false, true, 3, words), "Reading the installed apps…");
  EXPECT_EQ(listSubtitle(false, false, 3, words),
            "3 apps · deleting one leaves its support files behind");
}

TEST(UninstallerTexts, TellWhatTheOpenedApplicationTakes) {
  const Formatting formatting("en_US");
  EXPECT_EQ(detailSubtitle(3, 1'500'000, formatting), "3 leftovers found · 1.5 MB total");
  EXPECT_EQ(detailSubtitle(0, 0, formatting), "0 leftovers found · Zero KB total");
  EXPECT_EQ(uninstallTitle("Acme Writer"), "Uninstall Acme Writer");
  EXPECT_EQ(noLeftovers("Acme Writer"),
            "Acme Writer has not left anything behind that Klarvik can attribute to it.");
}

TEST(UninstallerTexts, TellWhatEachKindOfLeftoverIs) {
  EXPECT_EQ(whatItIs(ResidualCategory::preferences), "Settings and licence keys");
  EXPECT_EQ(whatItIs(ResidualCategory::caches), "Rebuilt on next launch");
  EXPECT_EQ(whatItIs(ResidualCategory::appSupport), "Documents and unsynced data");
  EXPECT_EQ(whatItIs(ResidualCategory::logs), "Diagnostics only");
  EXPECT_EQ(whatItIs(ResidualCategory::containers), "Sandboxed app data");
  EXPECT_EQ(whatItIs(ResidualCategory::savedState), "Window positions");
  EXPECT_EQ(whatItIs(ResidualCategory::cookies), "Review before removing");
  EXPECT_EQ(whatItIs(ResidualCategory::other), "Review before removing");
}

TEST(UninstallerTexts, QuoteASearchWithoutHits) {
  EXPECT_EQ(noMatch("xyz"), "Nothing matches “xyz”");
}

TEST(UninstallerTexts, SumUpTheSelection) {
  const Formatting formatting("en_US");
  EXPECT_EQ(selectionSummary(4'200'000, 2, 5, formatting), "4.2 MB selected · 2 of 5 leftovers");
  EXPECT_EQ(selectionSummary(0, 0, 1, formatting), "Zero KB selected · 0 of 1 leftovers");
}

TEST(UninstallerTexts, HintAtWhatIsLeftBehindWhenFewerAreSelectedThanFound) {
  EXPECT_EQ(selectionHint(4, 5),
            "Preferences and app data left behind on purpose. Everything goes to Trash.");
  EXPECT_EQ(selectionHint(5, 5), "Everything goes to Trash, so it can be put back.");
  EXPECT_EQ(selectionHint(0, 0), "Everything goes to Trash, so it can be put back.");
}

TEST(UninstallerTexts, MakeAnOddNameFitForTheScreen) {
  EXPECT_EQ(uninstallTitle("odd\xff\nname"), QStringLiteral("Uninstall odd\uFFFD\uFFFDname"));
  EXPECT_EQ(uninstallTitle("a\u202Eb 📱"), QStringLiteral("Uninstall a\uFFFDb 📱"));
}

}  // namespace
}  // namespace klarvik::uninstaller
