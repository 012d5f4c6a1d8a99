#include "systemdata/system_data_item.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/formatting.h"

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

TEST(FriendlyName, LosesTheVendorsPrefixAndBeginsWithACapital) {
  EXPECT_EQ(friendlyName("com.apple.mail"), "Mail");
  EXPECT_EQ(friendlyName("com.google.Chrome"), "Chrome");
  EXPECT_EQ(friendlyName("com.microsoft.teams2"), "Teams2");
  EXPECT_EQ(friendlyName("org.mozilla.firefox"), "Firefox");
  EXPECT_EQ(friendlyName("com.brave.Browser"), "Browser");
  EXPECT_EQ(friendlyName("com.acme.writer"), "Acme.writer");
  EXPECT_EQ(friendlyName("Adobe"), "Adobe");
}

TEST(FriendlyName, ADockerContainerReadsDockerDocker) {
  EXPECT_EQ(friendlyName("com.docker.docker"), "Docker.docker");
  EXPECT_EQ(friendlyName("com.docker.helper"), "Helper");
  EXPECT_EQ(friendlyName("group.com.docker"), "Docker");
}

TEST(FriendlyName, LosesOnePrefixOfTheListOnly) {
  EXPECT_EQ(friendlyName("group.com.apple.notes"), "Apple.notes");
  EXPECT_EQ(friendlyName("group.group.acme"), "Group.acme");
  EXPECT_EQ(friendlyName("com.apple.com.acme"), "Acme");
}

TEST(FriendlyName, OfAnEmptyTextOrAMerePrefixIsEmpty) {
  EXPECT_EQ(friendlyName(""), "");
  EXPECT_EQ(friendlyName("com.apple."), "");
  EXPECT_EQ(friendlyName("group.com."), "");
}

TEST(FriendlyName, ANameThatIsNotUtf8KeepsItsBytes) {
  EXPECT_EQ(friendlyName("com.apple.\xff\xfe"), "\xff\xfe");
  EXPECT_EQ(friendlyName("a\nb\xc3"), "A\nb\xc3");
}

using testing::ElementsAre;

std::vector<std::string> keptOf(const std::vector<Path>& paths) {
  std::vector<SystemDataItem> items;
  for (const Path& path : paths) items.push_back({.name = path, .path = path, .size = 1});
  std::vector<std::string> kept;
  for (const SystemDataItem& item : withoutOverlaps(items)) kept.push_back(item.name);
  return kept;
}

TEST(Overlaps, TheParentWinsOverAnythingInsideIt) {
  EXPECT_THAT(keptOf({"/a/b/c/d", "/a/b", "/a/b/c"}), ElementsAre("/a/b"));
}

TEST(Overlaps, ASiblingThatSharesAPrefixStays) {
  EXPECT_THAT(keptOf({"/a/b", "/a/bc", "/a/b c/d"}), ElementsAre("/a/b", "/a/bc", "/a/b c/d"));
}

TEST(Overlaps, TheShortestPathComesFirstAndTiesKeepTheirOrder) {
  EXPECT_THAT(keptOf({"/ccc", "/b", "/aaa", "/dd"}), ElementsAre("/b", "/dd", "/ccc", "/aaa"));
}

TEST(Overlaps, CharactersAreCountedAndNotBytes) {
  EXPECT_THAT(keptOf({"/abc", "/öö"}), ElementsAre("/öö", "/abc"));
  EXPECT_THAT(keptOf({"/ab", "/e\u0301"}), ElementsAre("/e\u0301", "/ab"));
}

TEST(Overlaps, OfTwoItemsOfOnePathTheFirstStays) {
  const std::vector<SystemDataItem> items{{.name = "first", .path = "/a/b"},
                                          {.name = "second", .path = "/a/b"}};
  const auto kept = withoutOverlaps(items);
  ASSERT_EQ(kept.size(), 1U);
  EXPECT_EQ(kept[0].name, "first");
}

TEST(Overlaps, NamesThatAreNotUtf8AreComparedAsTheyStand) {
  EXPECT_THAT(keptOf({"/a\xff/b", "/a\xfe", "/a\xff", "/a\xfe\xff"}),
              ElementsAre("/a\xfe", "/a\xff", "/a\xfe\xff"));
}

TEST(Overlaps, ALongListIsWorkedThrough) {
  std::vector<Path> paths;
  for (int number = 0; number < 100'000; ++number) {
    paths.emplace_back("/folder-" + std::to_string(number % 50'000) +
                       (number < 50'000 ? "" : "/x"));
  }
  EXPECT_EQ(keptOf(paths).size(), 50'000U);
}

}  // namespace
}  // namespace klarvik
