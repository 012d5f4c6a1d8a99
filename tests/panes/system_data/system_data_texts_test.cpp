#include "panes/system_data/system_data_texts.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

class SystemDataTexts : public ::testing::Test {
 protected:
  Formatting formatting{"en_US"};
  const DiskLayout& macDisk = layoutFor("/Users/ann");
  const DiskLayout& linuxDisk = layoutFor("/home/ann");
};

TEST_F(SystemDataTexts, TitleThePaneByWhatWasFound) {
  EXPECT_EQ(system_data::paneTitle(std::nullopt, formatting), "System Data");
  EXPECT_EQ(system_data::paneTitle(12'000'000'000, formatting), "System Data · 12 GB");
  EXPECT_EQ(system_data::paneTitle(0, formatting), "System Data · Zero KB");
}

TEST_F(SystemDataTexts, SayBelowTheTitleHowMuchCanGo) {
  EXPECT_EQ(system_data::subtitle(std::nullopt, macDisk.words, formatting),
            "Not analysed yet. Storage settings will not say what is in these folders. Klarvik "
            "will.");
  EXPECT_EQ(system_data::subtitle(1'500'000, macDisk.words, formatting),
            "System Data, plus the Developer, Mail and app folders Storage settings files "
            "elsewhere and explains just as poorly. 1.5 MB of it can go.");
}

TEST_F(SystemDataTexts, CallTheActionByWhatItWillDo) {
  EXPECT_EQ(system_data::actionTitle(false, false), "Analyse");
  EXPECT_EQ(system_data::actionTitle(false, true), "Re-analyse");
  EXPECT_EQ(system_data::actionTitle(true, false), "Stop");
  EXPECT_EQ(system_data::actionTitle(true, true), "Stop");
}

TEST_F(SystemDataTexts, TellWhatCanGoFromWhatIsOnlyShown) {
  EXPECT_EQ(system_data::removableSummary(0, formatting), "Zero KB Klarvik can remove");
  EXPECT_EQ(system_data::protectedSummary(5'000, formatting), "5 KB shown, never offered");
}

TEST_F(SystemDataTexts, CountTheItemsOfAKind) {
  EXPECT_EQ(system_data::kindDetail(1, SystemDataSubCategory::logs, macDisk), "1 item");
  EXPECT_EQ(system_data::kindDetail(2, SystemDataSubCategory::logs, macDisk), "2 items");
}

TEST_F(SystemDataTexts, SayOfTheSixProtectedKindsThatTheSystemNeedsThem) {
  int needed = 0;
  for (const SystemDataSubCategory kind : allSystemDataSubCategories()) {
    const bool isNeeded =
        system_data::kindDetail(3, kind, macDisk) == "3 items · macOS needs these";
    EXPECT_EQ(isNeeded, defaultSafety(kind) == ItemSafety::protected_);
    needed += isNeeded ? 1 : 0;
  }
  EXPECT_EQ(needed, 6);
}

TEST_F(SystemDataTexts, SayWhatABoxSelects) {
  EXPECT_EQ(system_data::selectionHelp(SystemDataSubCategory::vmSwap, macDisk),
            "Select everything in VM & Swap");
}

TEST_F(SystemDataTexts, NameNoSystemOnALinuxDisk) {
  EXPECT_EQ(system_data::subtitle(std::nullopt, linuxDisk.words, formatting),
            "Not analysed yet. Your file manager will not say where the space of the disk went. "
            "Klarvik will.");
  EXPECT_EQ(system_data::subtitle(1'500'000, linuxDisk.words, formatting),
            "All that is used on this disk, by what it is. 1.5 MB of it can go.");
  EXPECT_EQ(system_data::kindDetail(1, SystemDataSubCategory::vmSwap, linuxDisk),
            "1 item · Space for when memory runs short, and for hibernation");
  EXPECT_EQ(system_data::selectionHelp(SystemDataSubCategory::vmSwap, linuxDisk),
            "Select everything in Swap & Hibernation");
}

TEST_F(SystemDataTexts, SayOfAnItemWhatItIsAndWhereItLies) {
  SystemDataItem item{
      .name = "Writer", .path = "/home/ann/.cache/writer", .sentence = "Made again."};
  EXPECT_EQ(system_data::itemDetail(item, "/home/ann"), "Made again. · ~/.cache/writer");
  item.path = "/usr";
  EXPECT_EQ(system_data::itemDetail(item, "/home/ann"), "Made again. · /usr");
  item.path.clear();
  EXPECT_EQ(system_data::itemDetail(item, "/home/ann"), "Made again.");
}

TEST_F(SystemDataTexts, SayWhetherTheRowsAddUp) {
  const auto note = [&](LedgerSum sum) {
    return system_data::ledgerNote(sum, linuxDisk.words, formatting);
  };
  EXPECT_EQ(note({.usedBytes = 40'000'000'000, .exceedsBy = 1'000'000}),
            "The rows add up to 40 GB: all that the disk says is used.");
  EXPECT_EQ(note({.usedBytes = 40'000'000'000, .exceedsBy = 2'000'000'000}),
            "The rows add up to 2 GB more than the disk says is used: copies can share their "
            "space, and files may have changed meanwhile.");
}

TEST_F(SystemDataTexts, PutTheVerdictsIntoWords) {
  EXPECT_EQ(system_data::safetyText(ItemSafety::safe), "Safe to remove");
  EXPECT_EQ(system_data::safetyText(ItemSafety::review), "Review first");
  EXPECT_EQ(system_data::safetyText(ItemSafety::protected_), "Shown, not offered");
}

TEST_F(SystemDataTexts, SumUpTheSelection) {
  EXPECT_EQ(system_data::selectionSummary(0), "Nothing selected");
  EXPECT_EQ(system_data::selectionSummary(1), "1 items");
  EXPECT_EQ(system_data::selectionSummary(12), "12 items");
  EXPECT_EQ(system_data::removalTitle(0, formatting), "Zero KB to Trash");
  EXPECT_EQ(system_data::removalTitle(2'000'000, formatting), "2 MB to Trash");
}

TEST_F(SystemDataTexts, AskAboutOneItemWithoutAnS) {
  EXPECT_EQ(system_data::confirmationTitle(1), "Move 1 item to Trash?");
  EXPECT_EQ(system_data::confirmationTitle(2), "Move 2 items to Trash?");
  EXPECT_EQ(system_data::confirmationMessage(2'000'000, formatting),
            "This frees 2 MB once the Trash is emptied. Nothing is removed permanently.");
}

TEST_F(SystemDataTexts, TellWhatWentAndWhetherItsSpaceIsBack) {
  EXPECT_EQ(system_data::removedHeadline(1, 2'000'000, formatting), "1 item moved to Trash · 2 MB");
  EXPECT_EQ(system_data::removedHeadline(3, 0, formatting), "3 items moved to Trash · Zero KB");
  EXPECT_EQ(system_data::removedDetail(true),
            "The Trash still holds this space until you empty it.");
  EXPECT_EQ(system_data::removedDetail(false), "The space is back.");
}

}  // namespace
}  // namespace klarvik
