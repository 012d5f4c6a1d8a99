#include "state/item_selection.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

CleanCategory categoryOf(CategoryType type, const std::vector<std::int64_t>& sizes) {
  CleanCategory category{.type = type, .items = {}};
  for (const std::int64_t size : sizes) {
    category.items.push_back({.name = {}, .path = {}, .size = size});
  }
  return category;
}

ItemSelection::Items ranked(const CleanCategory& category) {
  return std::make_shared<const SortedItems>(category.items);
}

class ItemSelectionTest : public ::testing::Test {
 protected:
  ItemSelectionTest() {
    selection.add(caches, ranked(caches));
    selection.add(archives, ranked(archives));
  }

  const CleanCategory caches = categoryOf(CategoryType::appCaches, {10, 30, 20});
  const CleanCategory archives = categoryOf(CategoryType::xcodeArchives, {400});
  const Uuid& first = caches.items[0].id;
  const Uuid& toReview = archives.items[0].id;
  const Uuid stranger = Uuid::random();
  ItemSelection selection;
};

TEST_F(ItemSelectionTest, BeginsEmptyOverResultsThatItKnowsTheSumOf) {
  EXPECT_TRUE(selection.empty());
  EXPECT_EQ(selection.selected(), ItemSum{});
  EXPECT_EQ(selection.total(), (ItemSum{460, 4}));
  EXPECT_EQ(selection.total(caches.id), (ItemSum{60, 3}));
  EXPECT_EQ(selection.total(Uuid::random()), ItemSum{});
}

TEST_F(ItemSelectionTest, CountsWhatIsSelectedInAllAndByCategory) {
  EXPECT_TRUE(selection.set(first, true));
  EXPECT_FALSE(selection.set(first, true));
  EXPECT_TRUE(selection.set(toReview, true));
  EXPECT_TRUE(selection.contains(first));
  EXPECT_FALSE(selection.contains(caches.items[1].id));
  EXPECT_EQ(selection.selected(), (ItemSum{410, 2}));
  EXPECT_EQ(selection.selected(caches.id), (ItemSum{10, 1}));
  selection.toggle(first);
  EXPECT_EQ(selection.selected(), (ItemSum{400, 1}));
  EXPECT_EQ(selection.size(), 1U);
}

TEST_F(ItemSelectionTest, SelectsACategoryAsAWhole) {
  selection.set(first, true);
  EXPECT_TRUE(selection.setAll(caches.id, true));
  EXPECT_FALSE(selection.setAll(caches.id, true));
  for (const JunkItem& item : caches.items) EXPECT_TRUE(selection.contains(item.id));
  EXPECT_FALSE(selection.contains(toReview));
  EXPECT_EQ(selection.selected(), (ItemSum{60, 3}));
  EXPECT_TRUE(selection.setAll(caches.id, false));
  EXPECT_TRUE(selection.empty());
  EXPECT_FALSE(selection.setAll(Uuid::random(), true));
}

TEST_F(ItemSelectionTest, KeepsAnIdentifierThatIsNotInTheResultsWithoutCountingIt) {
  EXPECT_TRUE(selection.set(stranger, true));
  EXPECT_TRUE(selection.contains(stranger));
  EXPECT_EQ(selection.selected(), ItemSum{});
  EXPECT_EQ(selection.size(), 1U);
  selection.toggle(stranger);
  EXPECT_TRUE(selection.empty());
}

TEST_F(ItemSelectionTest, CountsSuchAnIdentifierOnceItsCategoryArrives) {
  const CleanCategory late = categoryOf(CategoryType::trashBin, {7, 8});
  selection.set(late.items[1].id, true);
  selection.add(late, ranked(late));
  EXPECT_EQ(selection.selected(late.id), (ItemSum{8, 1}));
  EXPECT_EQ(selection.size(), 1U);
}

TEST_F(ItemSelectionTest, TheSafeItemsReplaceEverythingElse) {
  selection.set(toReview, true);
  selection.set(stranger, true);
  EXPECT_FALSE(selection.isAllSafe());
  const ItemSelection safe = selection.safeItems();
  EXPECT_TRUE(safe.isAllSafe());
  EXPECT_EQ(safe.selected(), (ItemSum{60, 3}));
  EXPECT_FALSE(safe.contains(stranger));
}

TEST_F(ItemSelectionTest, SurvivesForWhatIsLeftOfTheResults) {
  selection.setAll(caches.id, true);
  selection.set(caches.items[2].id, false);
  selection.set(toReview, true);
  selection.set(stranger, true);
  CleanCategory rest{.type = caches.type, .items = {caches.items[1], caches.items[2]}};
  const std::vector<ItemSelection::RemainingCategory> kept{{caches.id, rest, ranked(rest)}};
  const ItemSelection left = selection.without({first, toReview}, kept);
  EXPECT_EQ(left.total(), (ItemSum{50, 2}));
  EXPECT_EQ(left.selected(rest.id), (ItemSum{30, 1}));
  EXPECT_TRUE(left.contains(caches.items[1].id));
  EXPECT_FALSE(left.contains(first));
  EXPECT_FALSE(left.contains(toReview));
  EXPECT_TRUE(left.contains(stranger));
  EXPECT_FALSE(selection.without({stranger}, kept).contains(stranger));
}

TEST_F(ItemSelectionTest, EqualsAnotherOfTheSameIdentifiersWhateverTheResults) {
  selection.set(first, true);
  selection.set(toReview, true);
  ItemSelection other;
  other.add(archives, ranked(archives));
  EXPECT_NE(selection, other);
  other.set(toReview, true);
  other.set(first, true);
  EXPECT_EQ(selection, other);
  EXPECT_EQ(other, selection);
  other.set(first, false);
  other.set(stranger, true);
  EXPECT_NE(selection, other);
  EXPECT_NE(other, selection);
}

TEST(ItemSelectionOfAMillionRows, IsWholeAndExact) {
  constexpr std::int64_t count = 1'000'000;
  const CleanCategory category =
      categoryOf(CategoryType::appCaches, std::vector<std::int64_t>(count, 5));
  ItemSelection selection;
  selection.add(category, ranked(category));
  EXPECT_TRUE(selection.setAll(category.id, true));
  EXPECT_EQ(selection.selected(), (ItemSum{5 * count, count}));
  selection.toggle(category.items[500'000].id);
  EXPECT_EQ(selection.selected(), (ItemSum{5 * (count - 1), count - 1}));
  EXPECT_EQ(selection.safeItems().selected(), (ItemSum{5 * count, count}));
  EXPECT_TRUE(selection.setAll(category.id, false));
  EXPECT_TRUE(selection.empty());
}

TEST(ItemSelectionOfThingsInUse, LeavesThemOutOfWhatIsSelectedWithoutAsking) {
  CleanCategory caches = categoryOf(CategoryType::appCaches, {10, 30, 20});
  caches.items[1].closeFirst = "Firefox";
  ItemSelection selection;
  selection.add(caches, ranked(caches));
  EXPECT_TRUE(selection.selectUnused(caches.id));
  EXPECT_EQ(selection.selected(), (ItemSum{30, 2}));
  EXPECT_FALSE(selection.contains(caches.items[1].id));
  EXPECT_FALSE(selection.selectUnused(Uuid::random()));

  EXPECT_TRUE(selection.set(caches.items[1].id, true));
  EXPECT_EQ(selection.safeItems().selected(), (ItemSum{30, 2}));
}

TEST(ItemSelectionOfThingsThatGoForGood, KnowsTheirPartOfTheSum) {
  CleanCategory caches = categoryOf(CategoryType::appCaches, {10, 30, 20});
  caches.items[2].goesForGood = true;
  ItemSelection selection;
  selection.add(caches, ranked(caches));
  EXPECT_TRUE(selection.setAll(caches.id, true));
  EXPECT_EQ(selection.selected(), (ItemSum{60, 3, 20}));
  EXPECT_TRUE(selection.set(caches.items[2].id, false));
  EXPECT_EQ(selection.selected(), (ItemSum{40, 2, 0}));
}

}  // namespace
}  // namespace klarvik
