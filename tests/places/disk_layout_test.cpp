#include "places/disk_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "base/paths.h"
#include "core/catalogue.h"
#include "places/path_pattern.h"

namespace klarvik {
namespace {

const Path ann = "/home/ann";
const DiskLayout& linuxLayout = layoutFor(ann);
const Catalogue catalogue(linuxLayout, UserFolders::in(ann));

std::vector<std::string_view> insides(const Place& place) {
  if (!place.details.only.empty()) {
    return {place.details.only.begin(), place.details.only.end()};
  }
  const bool isOfChildren = place.unit == Unit::children || place.unit == Unit::unknown;
  return {isOfChildren ? "*" : ""};
}

/// A path that the place names, with `star` where a "*" stands.
std::string example(const Place& place, std::string_view inside, std::string_view star) {
  std::string text;
  for (const std::string_view part :
       {catalogue.folder(place.base).value_or(""), place.pattern, inside}) {
    for (const std::string_view piece : splitPath(part)) {
      text += '/';
      for (const char character : piece) {
        if (character == '*') {
          text += star;
        } else {
          text += character;
        }
      }
    }
  }
  return text;
}

TEST(LayoutFor, IsAMacsForAHomeBelowUsersAndLinuxForEveryOther) {
  const DiskLayout& mac = layoutFor("/Users/ann");
  EXPECT_EQ(&layoutFor("/Users/ann/deep/er"), &mac);
  EXPECT_NE(&linuxLayout, &mac);
  for (const char* home : {"/home/ann", "/root", "/var/home/ann", "/Users", "/Users/", "", "/",
                           "Users/ann", "/data/Users/ann", "/users/ann"}) {
    EXPECT_EQ(&layoutFor(home), &linuxLayout) << home;
  }
}

TEST(LayoutFor, NamesACategoryAsTheDiskDoes) {
  EXPECT_EQ(layoutFor("/Users/ann").label(CategoryType::dockerData), "Docker");
  EXPECT_EQ(linuxLayout.label(CategoryType::dockerData), "Containers");
  EXPECT_EQ(linuxLayout.label(CategoryType::timeMachine), "Snapshots");
  EXPECT_EQ(linuxLayout.label(CategoryType::buildArtifacts), "Build Artifacts");
}

TEST(TheLinuxTable, NamesEachRowOnceAndSaysWhy) {
  std::set<std::string_view> ids;
  for (const Place& place : linuxLayout.places) {
    EXPECT_TRUE(ids.insert(place.id).second) << place.id;
    EXPECT_TRUE(place.reason.ends_with('.')) << place.id;
  }
  for (const ProjectArtifact& artifact : linuxLayout.artifacts) {
    EXPECT_TRUE(ids.insert(artifact.id).second) << artifact.id;
    EXPECT_TRUE(artifact.reason.ends_with('.')) << artifact.id;
    EXPECT_FALSE(artifact.beside.empty()) << artifact.id;
  }
}

TEST(TheLinuxTable, HasPlainPatternsWithAStarOnlyWhereThingsAreMatched) {
  for (const Place& place : linuxLayout.places) {
    EXPECT_EQ(place.pattern.find(".."), std::string_view::npos) << place.id;
    EXPECT_FALSE(place.pattern.starts_with('/')) << place.id;
    if (place.unit == Unit::whole) {
      EXPECT_EQ(place.pattern.find('*'), std::string_view::npos) << place.id;
      EXPECT_TRUE(place.details.only.empty()) << place.id;
    }
    for (const std::string_view piece : splitPath(place.pattern)) {
      EXPECT_LE(std::ranges::count(piece, '*'), 1) << place.id;
    }
  }
}

TEST(TheLinuxTable, ListsEveryPlaceInACategoryThatTheScanHas) {
  for (const Place& place : linuxLayout.places) {
    EXPECT_NE(std::ranges::find(linuxLayout.scanRows, place.category, &ScanRow::type),
              linuxLayout.scanRows.end())
        << place.id;
  }
}

// A row that reached a key would be refused when it is asked for; it must not be there at all.
TEST(TheLinuxTable, ReachesNoSecretWhateverAStarStandsFor) {
  std::vector<std::string> stars{"x", "Default", "1.2"};
  for (const PlacePattern& secret : linuxLayout.guard.secrets) {
    for (const std::string_view piece : splitPath(secret.pattern)) stars.emplace_back(piece);
  }
  for (const Place& place : linuxLayout.places) {
    if (place.base == Base::root) continue;
    for (const std::string_view inside : insides(place)) {
      for (const std::string& star : stars) {
        const std::string path = example(place, inside, star);
        const auto pieces = splitPath(path);
        if (catalogue.placesOf(pieces, /*inHome=*/true).empty()) continue;
        EXPECT_FALSE(catalogue.reachesSecret(pieces)) << place.id << ' ' << path;
      }
    }
  }
}

TEST(TheLinuxTable, NamesWhatItIsAskedFor) {
  for (const Place& place : linuxLayout.places) {
    if (place.details.removal == Removal::byTool) continue;
    for (const std::string_view inside : insides(place)) {
      const std::string path = example(place, inside, "some-thing1.2");
      const auto named = catalogue.placesOf(splitPath(path), place.base != Base::root);
      EXPECT_NE(std::ranges::find(named, place.id, &Place::id), named.end()) << path;
    }
  }
}

TEST(Catalogue, TakesTheStandardFoldersWhereTheUserHasPutThem) {
  UserFolders folders = UserFolders::in(ann);
  folders.cache = "/home/ann/.my caches";
  const Catalogue own(linuxLayout, folders);
  EXPECT_EQ(own.folder(Base::cache), ".my caches");
  EXPECT_FALSE(own.placesOf(splitPath(".my caches/pip"), true).empty());
  EXPECT_TRUE(own.placesOf(splitPath(".cache/pip"), true).empty());
}

TEST(Catalogue, KeepsToTheUsualFolderWhereTheChosenOneHoldsOtherThings) {
  for (const Path cache :
       {"/home/ann/Documents", "/home/ann", "/data/cache", "/home/ann/.ssh", "/home/ann/.config",
        "/home/ann/.config/x", "/home/ann/.local", "/home/ann/.local/share/x", "/home/ann/.npm",
        "/home/ann/.npm/_cacache/x", "/home/ann/.a/../..", "/home/ann/.mozilla", "relative", ""}) {
    UserFolders folders = UserFolders::in(ann);
    folders.cache = cache;
    EXPECT_EQ(Catalogue(linuxLayout, folders).folder(Base::cache), ".cache") << cache;
  }
}

TEST(Catalogue, KeepsSecretsWhereTheyUsuallyAreAsWellAsWhereTheUserHasPutThem) {
  UserFolders folders = UserFolders::in(ann);
  folders.data = "/home/ann/.mydata";
  const Catalogue own(linuxLayout, folders);
  EXPECT_TRUE(own.reachesSecret(splitPath(".mydata/keyrings/login.keyring")));
  EXPECT_TRUE(own.reachesSecret(splitPath(".local/share/keyrings/login.keyring")));
}

}  // namespace
}  // namespace klarvik
