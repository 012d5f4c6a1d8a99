#include "systemdata/system_data_item.h"
#include "platform/formatting.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

using enum ItemSafety;

SystemDataItem itemOf(SystemDataSubCategory kind, std::optional<ItemSafety> safety = {},
                      std::int64_t size = 1) {
  return {.name = "x", .path = "/x", .size = size, .subCategory = kind, .safetyOverride = safety};
}

TEST(SystemDataItem, ReadsTheSafetyOfItsKindUnlessItHasOneOfItsOwn) {
  EXPECT_EQ(itemOf(SystemDataSubCategory::containers).safety(), review);
  EXPECT_EQ(itemOf(SystemDataSubCategory::caches).safety(), safe);
  EXPECT_EQ(itemOf(SystemDataSubCategory::caches, review).safety(), review);
}

TEST(SystemDataItem, AProtectedOneIsNotRemovableThoughItsKindIsSafe) {
  EXPECT_FALSE(itemOf(SystemDataSubCategory::developerTools, protected_).isRemovable());
  EXPECT_TRUE(itemOf(SystemDataSubCategory::developerTools).isRemovable());
  EXPECT_TRUE(itemOf(SystemDataSubCategory::developerTools, review).isRemovable());
  EXPECT_TRUE(itemOf(SystemDataSubCategory::vmSwap, safe).isRemovable());
  EXPECT_FALSE(itemOf(SystemDataSubCategory::vmSwap).isRemovable());
}

TEST(SystemDataItem, EqualityAndHashingCoverAllFields) {
  const auto item = itemOf(SystemDataSubCategory::caches, review);
  const std::hash<SystemDataItem> hash;
  EXPECT_EQ(hash(SystemDataItem(item)), hash(item));
  const auto differsWhen = [&](const auto& change) {
    SystemDataItem other = item;
    change(other);
    return other != item && hash(other) != hash(item);
  };
  EXPECT_TRUE(differsWhen([](SystemDataItem& other) { other.id = Uuid::random(); }));
  EXPECT_TRUE(differsWhen([](SystemDataItem& other) { other.name = "y"; }));
  EXPECT_TRUE(differsWhen([](SystemDataItem& other) { other.path = "/y"; }));
  EXPECT_TRUE(differsWhen([](SystemDataItem& other) { other.size = 2; }));
  EXPECT_TRUE(
      differsWhen([](SystemDataItem& other) { other.subCategory = SystemDataSubCategory::logs; }));
  EXPECT_TRUE(differsWhen([](SystemDataItem& other) { other.safetyOverride.reset(); }));
}

TEST(GroupSafety, OneReviewAndNineSafeItemsReadReview) {
  std::vector<SystemDataItem> items(9, itemOf(SystemDataSubCategory::caches));
  EXPECT_EQ(groupSafety(items), safe);
  items.push_back(itemOf(SystemDataSubCategory::caches, review));
  EXPECT_EQ(groupSafety(items), review);
}

TEST(GroupSafety, OfNoItemsIsProtected) {
  EXPECT_EQ(groupSafety({}), protected_);
}

TEST(GroupSafety, AMixOfSafeAndProtectedReadsSafe) {
  const std::vector<SystemDataItem> items{itemOf(SystemDataSubCategory::vmSwap),
                                          itemOf(SystemDataSubCategory::caches)};
  EXPECT_EQ(groupSafety(items), safe);
  EXPECT_EQ(groupSafety(std::span(items).first(1)), protected_);
}

TEST(FormattedSize, IsTheSumAsText) {
  const Formatting formatting("en_US");
  const std::vector<SystemDataItem> items{itemOf(SystemDataSubCategory::caches, {}, 1'500'000'000),
                                          itemOf(SystemDataSubCategory::logs, {}, 750'000'000)};
  EXPECT_EQ(formattedSize(items, formatting), "2.25 GB");
  EXPECT_EQ(formattedSize({}, formatting), "Zero KB");
}

TEST(SystemDataResult, ItsFreeBytesCanBeToldLater) {
  SystemDataResult result({itemOf(SystemDataSubCategory::caches)});
  EXPECT_EQ(result.freeBytesAtMeasurement, 0);
  result.freeBytesAtMeasurement = 5;
  const SystemDataResult copy = result;
  EXPECT_EQ(copy.freeBytesAtMeasurement, 5);
  EXPECT_EQ(copy.items(), result.items());
}

}  // namespace
}  // namespace klarvik
