#include "state/item_selection.h"

#include <gtest/gtest.h>

#include "engine/scanner_engine.h"

namespace klarvik {
namespace {

std::vector<JunkItem> itemsOfSizes(const std::vector<std::int64_t>& sizes) {
  std::vector<JunkItem> items;
  for (const std::int64_t size : sizes) {
    items.push_back({.name = std::to_string(items.size()), .path = {}, .size = size});
  }
  return items;
}

TEST(SortedItems, AreInTheOrderOfTheEngineWithThePlaceThatEachHas) {
  const std::vector<JunkItem> items = itemsOfSizes({3, 9, 3, 1, 9, 3});
  std::vector<JunkItem> sorted = items;
  sortItemsBySize(sorted);
  const SortedItems ranked(items);
  ASSERT_EQ(ranked.size(), items.size());
  for (std::size_t rank = 0; rank < ranked.size(); ++rank) {
    EXPECT_EQ(ranked[rank].id, sorted[rank].id);
    EXPECT_EQ(ranked[rank].size, sorted[rank].size);
    EXPECT_EQ(items[ranked[rank].place], sorted[rank]);
  }
}

TEST(SortedItems, AreFoundByTheirIdentifier) {
  const SortedItems ranked(itemsOfSizes({3, 9, 3, 1, 9, 3}));
  for (std::size_t rank = 0; rank < ranked.size(); ++rank) {
    EXPECT_EQ(ranked.rankOf(ranked[rank].id), rank);
  }
  EXPECT_EQ(ranked.rankOf(Uuid::random()), std::nullopt);
}

TEST(SortedItems, KnowWhatTheyAddUpTo) {
  EXPECT_EQ(SortedItems(itemsOfSizes({3, 9, 1})).total(), (ItemSum{13, 3}));
  EXPECT_EQ(SortedItems(itemsOfSizes({})).total(), ItemSum{});
}

using SortedItemsDeathTest = ::testing::Test;

TEST_F(SortedItemsDeathTest, ThatNoLongerAddUpIn64BitsEndTheProgram) {
  const auto most = std::numeric_limits<std::int64_t>::max();
  EXPECT_DEATH(SortedItems(itemsOfSizes({most, 1})), "");
}

}  // namespace
}  // namespace klarvik
