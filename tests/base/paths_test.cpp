#include "base/paths.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(PathPieces, LeavesOutWhatIsEmpty) {
  EXPECT_EQ(splitPath("//a///b c/"), (std::vector<std::string_view>{"a", "b c"}));
  EXPECT_TRUE(splitPath("/").empty());
}

TEST(IsBelow, TakesWholeNamesOnly) {
  EXPECT_TRUE(isBelow("/a/b", "/a"));
  EXPECT_TRUE(isBelow("/a/b/c", "/a"));
  EXPECT_TRUE(isBelow("b/c", "b"));
  EXPECT_FALSE(isBelow("/ab", "/a"));
  EXPECT_FALSE(isBelow("/a", "/a"));
  EXPECT_FALSE(isBelow("/a/", "/a"));
  EXPECT_FALSE(isBelow("/a", "/a/b"));
  EXPECT_FALSE(isBelow("", "/a"));
}

TEST(IsBelow, TakesAllButTheRootAsBelowIt) {
  EXPECT_TRUE(isBelow("/a", "/"));
  EXPECT_TRUE(isBelow("/a/b", "/"));
  EXPECT_FALSE(isBelow("/", "/"));
  EXPECT_FALSE(isBelow("a", "/"));
}

TEST(StandardizedPath, ResolvesDotsAndDropsNeedlessSlashes) {
  EXPECT_EQ(standardizedPath("/a/./b//c/../d/"), "/a/b/d");
  EXPECT_EQ(standardizedPath("/../a"), "/a");
  EXPECT_EQ(standardizedPath("/"), "/");
  EXPECT_EQ(standardizedPath("//"), "/");
  EXPECT_EQ(standardizedPath("/private/tmp/x"), "/private/tmp/x");
}

TEST(StandardizedPath, LeavesARelativePathRelative) {
  EXPECT_EQ(standardizedPath("a/../../b/"), "../b");
  EXPECT_EQ(standardizedPath(""), "");
  EXPECT_EQ(standardizedPath("."), "");
}

TEST(StandardizedPath, KeepsNamesThatAreNotUtf8) {
  EXPECT_EQ(standardizedPath("/a\xff/\n/..."), "/a\xff/\n/...");
}

}  // namespace
}  // namespace klarvik
