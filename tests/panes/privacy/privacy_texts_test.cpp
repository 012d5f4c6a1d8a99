#include "panes/privacy/privacy_texts.h"

#include <gtest/gtest.h>

namespace klarvik::privacy {
namespace {

TEST(PrivacyTexts, TellWhatClearingATrailCosts) {
  EXPECT_EQ(cost(PrivacyCategory::browserHistory), "Autocomplete forgets sites");
  EXPECT_EQ(cost(PrivacyCategory::browserCookies), "Signs you out everywhere");
  EXPECT_EQ(cost(PrivacyCategory::browserCache), "Sites reload once, slower");
  EXPECT_EQ(cost(PrivacyCategory::recentFiles), "Recent menus empty out");
  EXPECT_EQ(cost(PrivacyCategory::recentApps), "Recent apps list empties");
  EXPECT_EQ(cost(PrivacyCategory::downloadsList), "Download history forgotten");
  EXPECT_EQ(cost(PrivacyCategory::clipboard), "Whatever you last copied");
  EXPECT_EQ(cost(PrivacyCategory::quarantine), "Downloaded-from records go");
  EXPECT_EQ(cost(PrivacyCategory::locationHistory), "Cached location lookups");
}

TEST(PrivacyTexts, TellTheCostOfTheTrashHistoryThoughNoItemEverShowsIt) {
  EXPECT_EQ(cost(PrivacyCategory::trashHistory), "Where trashed files came from");
}

TEST(PrivacyTexts, CountEntriesOnlyWhereTheyAreCounted) {
  EXPECT_EQ(entryCount({.name = "Recent Files Lists", .count = 3}), "3");
  EXPECT_EQ(entryCount({.name = "Recent Files Lists", .count = 0}), "—");
}

TEST(PrivacyTexts, NeverInflectTheTrailsThatWereCleared) {
  const Formatting formatting("en_US");
  EXPECT_EQ(clearedSubtitle({.cleaned = 1, .freed = 8'000}, formatting),
            "Cleared 1 trails · 8 KB freed");
  EXPECT_EQ(clearedSubtitle({.cleaned = 0, .freed = 0}, formatting),
            "Cleared 0 trails · Zero KB freed");
}

TEST(PrivacyTexts, InflectTheTrailsInTheFooter) {
  const Formatting formatting("en_US");
  EXPECT_EQ(selectionSummary(0, 0, formatting), "0 trails selected · Zero KB");
  EXPECT_EQ(selectionSummary(1, 8'000, formatting), "1 trail selected · 8 KB");
  EXPECT_EQ(selectionSummary(2, 1'500'000, formatting), "2 trails selected · 1.5 MB");
  EXPECT_EQ(clearTitle(0), "Clear 0 trails");
  EXPECT_EQ(clearTitle(1), "Clear 1 trail");
  EXPECT_EQ(clearTitle(2), "Clear 2 trails");
}

TEST(PrivacyTexts, WarnOfASelectionThatHurts) {
  EXPECT_EQ(selectionHint(true, true),
            "Your selection signs you out of sites. This cannot be undone.");
  EXPECT_EQ(selectionHint(false, true),
            "Your selection forgets the commands you typed. This cannot be undone.");
  EXPECT_EQ(selectionHint(false, false),
            "Clearing a trail is permanent, but nothing you rely on is removed.");
}

}  // namespace
}  // namespace klarvik::privacy
