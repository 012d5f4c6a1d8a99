#include "tools/path_text.h"

#include <gtest/gtest.h>

#include <iterator>
#include <unordered_set>

namespace klarvik {
namespace {

TEST(PathTextTest, IsTheVeryBytesOfThePath) {
  for (const char* text : {"/", "/a", "/a/b", "/a/b/", "a", "a/b", "", "//a", "/a//b", "/a/b/c d/e",
                           "b/c/", "/a/\xff\n"}) {
    const PathText path = text;
    EXPECT_EQ(path.native(), text);
    EXPECT_EQ(path, text);
    EXPECT_EQ(Path(path).native(), text);
    const Path parts = text;
    EXPECT_EQ(path.partCount(), std::distance(parts.begin(), parts.end())) << text;
  }
}

TEST(PathTextTest, IsEqualWhoeverKeepsTheFolder) {
  const auto folder = std::make_shared<const std::string>("/a/");
  const PathText shared(folder, "b");
  EXPECT_EQ(shared, PathText(folder, "b"));
  EXPECT_EQ(shared, PathText("/a/b"));
  EXPECT_EQ(shared.filename(), "b");
  EXPECT_NE(shared, PathText(folder, "c"));
  EXPECT_NE(shared, PathText("/c/b"));
  EXPECT_TRUE(std::unordered_set<PathText>{shared}.contains(PathText("/a/b")));
}

}  // namespace
}  // namespace klarvik
