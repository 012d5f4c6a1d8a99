#include "systemdata/overlaps.h"

#include <gmock/gmock.h>

namespace klarvik {
namespace {

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
