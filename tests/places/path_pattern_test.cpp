#include "places/path_pattern.h"

#include <gtest/gtest.h>

#include "base/paths.h"

namespace klarvik {
namespace {

Relation relation(std::string_view path, std::initializer_list<std::string_view> parts) {
  return matchPattern(splitPath(path), parts).relation;
}

TEST(NameMatches, TakesAStarForAnyPartOfANameButALeadingDot) {
  EXPECT_TRUE(nameMatches("gnome-*", "gnome-maps"));
  EXPECT_TRUE(nameMatches("gnome-*", "gnome-"));
  EXPECT_TRUE(nameMatches("*.log", "a.log"));
  EXPECT_TRUE(nameMatches("a*b", "ab"));
  EXPECT_TRUE(nameMatches(".x*", ".xyz"));
  EXPECT_FALSE(nameMatches("a*a", "a"));
  EXPECT_FALSE(nameMatches("*", ".hidden"));
  EXPECT_FALSE(nameMatches("*.log", ".log"));
  EXPECT_FALSE(nameMatches("gnome-*", "Gnome-maps"));
  EXPECT_FALSE(nameMatches("npm", "npmx"));
}

TEST(MatchPattern, TellsHowAPathLiesToWhatThePartsName) {
  EXPECT_EQ(relation(".cache/pip", {".cache", "pip"}), Relation::at);
  EXPECT_EQ(relation(".cache/pip/http/x", {".cache", "pip"}), Relation::below);
  EXPECT_EQ(relation(".cache", {".cache", "pip"}), Relation::above);
  EXPECT_EQ(relation("", {".cache", "pip"}), Relation::above);
  EXPECT_EQ(relation(".cache/pipx", {".cache", "pip"}), Relation::apart);
  EXPECT_EQ(relation(".cache/.pip", {".cache", "*"}), Relation::apart);
  EXPECT_EQ(relation(".cache", {".cache", ""}), Relation::at);
}

TEST(MatchPattern, TellsWhatTheStarsStandFor) {
  const auto path = splitPath("snap/firefox/1234/.cache/x");
  const PatternMatch match = matchPattern(path, {"", "snap/*/*/.cache"});
  EXPECT_EQ(match.relation, Relation::below);
  EXPECT_EQ(match.length, 4U);
  EXPECT_EQ(match.stars, (std::vector<std::string_view>{"firefox", "1234"}));
}

}  // namespace
}  // namespace klarvik
