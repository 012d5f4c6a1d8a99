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
            "3 apps · removing one leaves its settings and caches behind");
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

TEST(UninstallerTexts, TellHowAnApplicationWasInstalledAndHowItGoes) {
  AppInfo app{.name = "Ink", .bundleID = "org.acme.Ink", .kind = AppKind::flatpak};
  app.package = "app/org.acme.Ink/x86_64/stable";
  EXPECT_EQ(origin(app), "Flatpak · org.acme.Ink");
  EXPECT_EQ(actionTitle(app), "Uninstall Ink");
  EXPECT_EQ(removalHint(app),
            "Flatpak removes the app. Selected leftovers go to the Trash, and can be put back.");
  app.kind = AppKind::snap;
  app.package = "ink";
  EXPECT_EQ(origin(app), "Snap · org.acme.Ink");
  EXPECT_EQ(removalHint(app),
            "snapd removes the app, and keeps a snapshot of its data for 31 days.");
  app.kind = AppKind::appImage;
  EXPECT_EQ(origin(app), "AppImage · org.acme.Ink");
  EXPECT_EQ(removalHint(app), "The app and what is selected go to the Trash, and can be put back.");
  app.kind = AppKind::systemPackage;
  EXPECT_EQ(origin(app), "Package · org.acme.Ink");
  EXPECT_EQ(actionTitle(app), "Move Leftovers to Trash");
  EXPECT_EQ(removalHint(app),
            "The app stays. Selected leftovers go to the Trash, and can be put back.");
  app.kind = AppKind::bundle;
  EXPECT_EQ(origin(app), "org.acme.Ink");
}

TEST(UninstallerTexts, TellWhatElseACommandRemoves) {
  const AppInfo app{.name = "Ink", .kind = AppKind::systemPackage};
  const QString how =
      "Klarvik does not remove packages. Run this in a terminal if you agree with it.";
  RemovalPlan plan{.command = "sudo apt remove ink"};
  EXPECT_EQ(planExplanation(app, plan), how + " What else it removes is not known.");
  plan.isSimulated = true;
  EXPECT_EQ(planExplanation(app, plan), how + " It removes no other package.");
  plan.alsoRemoved = {"a"};
  EXPECT_EQ(planExplanation(app, plan), how + " It also removes a.");
  plan.alsoRemoved = {"a", "b", "c", "d", "e", "f"};
  EXPECT_EQ(planExplanation(app, plan),
            how + " It also removes 6 packages: a, b, c, d and 2 more.");
  EXPECT_EQ(alsoRemoved(plan), "a, b, c, d, e, f");
  plan.mayTakeMore = true;
  plan.alsoRemoved = {"a"};
  EXPECT_EQ(planExplanation(app, plan),
            how + " It also removes a. What no package needs then may go as well.");
  plan.alsoRemoved = {};
  EXPECT_EQ(planExplanation(app, plan),
            how + " No other package needs it. What no package needs then may go as well.");
  EXPECT_EQ(planExplanation(app, {.keptBecause = "It is needed."}), "It is needed.");
}

}  // namespace
}  // namespace klarvik::uninstaller
