#include "panes/system_data/system_data_findings.h"

#include <gtest/gtest.h>

#include "found_items.h"

namespace klarvik {
namespace {

using Sub = SystemDataSubCategory;
using enum ItemSafety;

SystemDataFindings findingsOf(std::vector<SystemDataItem> items) {
  SystemDataFindings findings;
  findings.setResult(SystemDataResult(std::move(items)));
  return findings;
}

std::vector<Sub> kindsOf(const SystemDataFindings& findings) {
  std::vector<Sub> kinds;
  for (const SystemDataKind& kind : findings.kinds()) kinds.push_back(kind.kind);
  return kinds;
}

TEST(SystemDataFindings, AreNoneWithoutAResult) {
  const SystemDataFindings findings;
  EXPECT_FALSE(findings.result());
  EXPECT_TRUE(findings.kinds().empty());
  EXPECT_TRUE(findings.selectable().empty());
  EXPECT_EQ(findings.share(5), 0);
}

TEST(SystemDataFindings, StandByKindLargestFirstAndTheirItemsToo) {
  const auto findings = findingsOf(
      {found(Sub::logs, "a", 10), found(Sub::vmSwap, "b", 500), found(Sub::logs, "c", 90)});
  EXPECT_EQ(kindsOf(findings), (std::vector<Sub>{Sub::vmSwap, Sub::logs}));
  EXPECT_EQ(findings.kinds()[1].bytes, 100);
  EXPECT_EQ(findings.kinds()[1].items[0].name, "c");
  EXPECT_EQ(findings.kinds()[1].items[1].name, "a");
  EXPECT_EQ(findings.totalBytes(), 600);
}

TEST(SystemDataFindings, ShareOutTheTotal) {
  const auto findings = findingsOf({found(Sub::logs, "a", 25), found(Sub::vmSwap, "b", 75)});
  EXPECT_EQ(findings.share(25), 0.25);
  EXPECT_EQ(findingsOf({found(Sub::logs, "a", 0)}).share(0), 0);
}

TEST(SystemDataFindings, TellWhatCanGoFromWhatIsOnlyShownItemByItem) {
  const auto findings =
      findingsOf({found(Sub::developerTools, "tools", 7, protected_),
                  found(Sub::developerTools, "data", 20), found(Sub::vmSwap, "swap", 100)});
  EXPECT_EQ(findings.removable().bytes, 20);
  EXPECT_EQ(findings.removable().count, 1);
  EXPECT_EQ(findings.protectedBytes(), 107);
  EXPECT_EQ(findings.kinds()[1].removableCount, 1U);
  EXPECT_EQ(findings.kinds()[1].safety, safe);
}

TEST(SystemDataFindings, AllProtectedOfferNothing) {
  auto findings = findingsOf({found(Sub::vmSwap, "swap", 100), found(Sub::preferences, "p", 5)});
  findings.toggleKind(0);
  findings.toggle(findings.kinds()[1].items[0]);
  EXPECT_EQ(findings.removable().bytes, 0);
  EXPECT_EQ(findings.selected().count, 0);
  EXPECT_TRUE(findings.selectable().empty());
}

TEST(SystemDataFindings, SelectNineOfAKindWithOneProtectedAndCountThatAsAll) {
  std::vector<SystemDataItem> items{found(Sub::developerTools, "kept", 50, protected_)};
  for (int number = 0; number < 9; ++number) {
    items.push_back(found(Sub::developerTools, std::to_string(number), 10));
  }
  auto findings = findingsOf(std::move(items));
  findings.toggleKind(0);
  EXPECT_EQ(findings.selected().count, 9);
  EXPECT_EQ(findings.selected().bytes, 90);
  EXPECT_EQ(findings.kinds()[0].selectedCount, findings.kinds()[0].removableCount);
  findings.toggleKind(0);
  EXPECT_EQ(findings.selected().count, 0);
}

TEST(SystemDataFindings, SelectTheRestOfAKindThatIsSelectedInPart) {
  auto findings = findingsOf({found(Sub::logs, "a", 10), found(Sub::logs, "b", 5)});
  findings.toggle(findings.kinds()[0].items[1]);
  EXPECT_EQ(findings.selected().bytes, 5);
  findings.toggleKind(0);
  EXPECT_EQ(findings.selected().count, 2);
}

TEST(SystemDataFindings, OfANewAnalysisHaveNothingSelected) {
  auto findings = findingsOf({found(Sub::logs, "a", 10)});
  findings.toggleKind(0);
  ASSERT_EQ(findings.selected().count, 1);
  findings.setResult(SystemDataResult({found(Sub::logs, "a", 10)}));
  EXPECT_EQ(findings.selected().count, 0);
  EXPECT_TRUE(findings.selectable().empty());
}

TEST(SystemDataFindings, LoseWhatWasMovedAwayAndKeepTheRestSelected) {
  auto findings = findingsOf({found(Sub::logs, "a", 10), found(Sub::logs, "b", 5)});
  findings.toggleKind(0);
  findings.removePaths({"/Users/ann/Library/Caches/a"}, 77);
  ASSERT_EQ(findings.result()->items().size(), 1U);
  EXPECT_EQ(findings.result()->freeBytesAtMeasurement, 77);
  EXPECT_EQ(findings.selected().count, 1);
  EXPECT_EQ(findings.selectable().front().name, "b");
  EXPECT_EQ(findings.totalBytes(), 5);
}

}  // namespace
}  // namespace klarvik
