#include "tools/duplicate_group.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <unordered_set>

namespace klarvik {
namespace {

using KeepRule = DuplicateSelection::KeepRule;
using Dates = std::vector<std::optional<int>>;

Date day(int number) {
  return Date(std::chrono::hours(24 * number));
}

DuplicateGroup groupOf(const std::vector<Path>& paths) {
  DuplicateGroup group;
  for (const Path& path : paths) group.files.push_back({.url = path, .size = 10});
  return group;
}

DuplicateGroup groupOf(const Dates& days) {
  DuplicateGroup group;
  for (const auto& number : days) {
    group.files.push_back({.url = "/" + std::to_string(group.files.size()), .size = 10});
    if (number) group.files.back().modifiedDate = day(*number);
  }
  return group;
}

std::size_t keptPlace(const DuplicateGroup& group, KeepRule rule,
                      const std::optional<Uuid>& override = std::nullopt) {
  const auto kept = DuplicateSelection::keeper(group, rule, override);
  for (std::size_t place = 0; place < group.files.size(); ++place) {
    if (kept == group.files[place]) return place;
  }
  ADD_FAILURE() << "nothing of the group is kept";
  return group.files.size();
}

TEST(DuplicateSelection, OffersNewestOldestAndShallowestInThisOrder) {
  std::vector<std::string_view> raw;
  std::vector<std::string_view> labels;
  for (const KeepRule rule : DuplicateSelection::allKeepRules) {
    raw.push_back(DuplicateSelection::rawValue(rule));
    labels.push_back(DuplicateSelection::label(rule));
  }
  EXPECT_EQ(raw, (std::vector<std::string_view>{"newest", "oldest", "shallowest"}));
  EXPECT_EQ(labels,
            (std::vector<std::string_view>{"Newest copy", "Oldest copy", "Shallowest path"}));
}

TEST(DuplicateSelection, KeepsTheNewestOrTheOldest) {
  const auto group = groupOf(Dates{5, 9, 2, 7});
  EXPECT_EQ(keptPlace(group, KeepRule::newest), 1U);
  EXPECT_EQ(keptPlace(group, KeepRule::oldest), 2U);
}

TEST(DuplicateSelection, AFileWithoutADateLosesToEveryFileWithOne) {
  const auto group = groupOf(Dates{std::nullopt, 3});
  EXPECT_EQ(keptPlace(group, KeepRule::newest), 1U);
  EXPECT_EQ(keptPlace(group, KeepRule::oldest), 1U);
}

TEST(DuplicateSelection, WithAllDatesAbsentTheFirstFileStays) {
  const auto group = groupOf(Dates{std::nullopt, std::nullopt, std::nullopt});
  EXPECT_EQ(keptPlace(group, KeepRule::newest), 0U);
  EXPECT_EQ(keptPlace(group, KeepRule::oldest), 0U);
}

TEST(DuplicateSelection, WithEqualDatesTheFirstFileStays) {
  const auto group = groupOf(Dates{4, 4, 4});
  EXPECT_EQ(keptPlace(group, KeepRule::newest), 0U);
  EXPECT_EQ(keptPlace(group, KeepRule::oldest), 0U);
}

TEST(DuplicateSelection, ShallowestKeepsTheFewestPathComponents) {
  EXPECT_EQ(keptPlace(groupOf(std::vector<Path>{"/a/b/x", "/a/b/c/x"}), KeepRule::shallowest), 0U);
  EXPECT_EQ(keptPlace(groupOf(std::vector<Path>{"/a/b/c/x", "/a/b/x"}), KeepRule::shallowest), 1U);
}

TEST(DuplicateSelection, ShallowestKeepsTheFirstOfEquallyDeepPaths) {
  EXPECT_EQ(keptPlace(groupOf(std::vector<Path>{"/a/x", "/b/x"}), KeepRule::shallowest), 0U);
}

TEST(DuplicateSelection, AnOverrideWinsWhateverTheRule) {
  const auto group = groupOf(Dates{5, 9, 2});
  for (const KeepRule rule : DuplicateSelection::allKeepRules) {
    EXPECT_EQ(keptPlace(group, rule, group.files[0].id), 0U);
    EXPECT_EQ(keptPlace(group, rule, group.files[2].id), 2U);
  }
}

TEST(DuplicateSelection, AnOverrideThatNamesAFileOfAnotherGroupFollowsTheRule) {
  const auto group = groupOf(Dates{5, 9, 2});
  const auto other = groupOf(Dates{1});
  EXPECT_EQ(keptPlace(group, KeepRule::newest, other.files[0].id), 1U);
}

TEST(DuplicateSelection, AnEmptyGroupHasNoKeeperAndNothingRemovable) {
  const DuplicateGroup empty;
  EXPECT_EQ(DuplicateSelection::keeper(empty, KeepRule::newest), std::nullopt);
  EXPECT_TRUE(DuplicateSelection::removable(empty, KeepRule::newest, Uuid::random()).empty());
}

TEST(DuplicateSelection, RemovableAreTheOthersInTheOrderOfTheGroup) {
  const auto group = groupOf(Dates{5, 9, 2});
  EXPECT_EQ(DuplicateSelection::removable(group, KeepRule::newest),
            (std::vector{group.files[0], group.files[2]}));
}

TEST(DuplicateSelection, AGroupOfOneFileHasNothingReclaimableAndNothingRemovable) {
  const auto group = groupOf(Dates{5});
  EXPECT_EQ(group.reclaimableBytes(), 0);
  EXPECT_TRUE(DuplicateSelection::removable(group, KeepRule::newest).empty());
}

TEST(DuplicateGroup, ReclaimsAllSizesButTheLargestWhereverItStands) {
  DuplicateGroup group;
  EXPECT_EQ(group.reclaimableBytes(), 0);
  for (const std::int64_t size : {5, 40, 0, 7}) group.files.push_back({.size = size});
  EXPECT_EQ(group.reclaimableBytes(), 12);
}

TEST(DuplicateFile, IsItsWholeValue) {
  const DuplicateFile file{.url = "/a", .size = 10, .modifiedDate = day(1)};
  DuplicateFile other = file;
  EXPECT_EQ(std::unordered_set<DuplicateFile>({file, other}).size(), 1U);
  other.size = 11;
  EXPECT_NE(file, other);
  EXPECT_NE(file, (DuplicateFile{.url = "/a", .size = 10, .modifiedDate = day(1)}));
}

TEST(DuplicateSelection, EveryCopyOfAGroupCanNeverGo) {
  std::mt19937 random(44);  // always the same groups
  for (int round = 0; round < 2'000; ++round) {
    DuplicateGroup group;
    const std::size_t count = 1 + random() % 6;
    while (group.files.size() < count) {
      Path path = "/";
      for (auto depth = random() % 5; depth > 0; --depth) path /= "d";
      group.files.push_back({.url = path / std::to_string(group.files.size())});
      if (random() % 3 != 0) group.files.back().modifiedDate = day(static_cast<int>(random() % 4));
    }
    std::vector<std::optional<Uuid>> overrides{std::nullopt, Uuid::random()};
    for (const DuplicateFile& file : group.files) overrides.emplace_back(file.id);
    for (const KeepRule rule : DuplicateSelection::allKeepRules) {
      for (const auto& override : overrides) {
        const auto kept = DuplicateSelection::keeper(group, rule, override);
        ASSERT_TRUE(kept);
        std::set<Path> left{kept->url};
        for (const auto& file : DuplicateSelection::removable(group, rule, override)) {
          EXPECT_NE(file, *kept);
          left.insert(file.url);
        }
        EXPECT_EQ(left.size(), count);
      }
    }
  }
}

}  // namespace
}  // namespace klarvik
