#include "platform/linux/mounts.h"

#include <gmock/gmock.h>

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint64_t disk = 8;
constexpr std::uint64_t server = 9;

TEST(VolumeTopsOfMounts, TheRootIsTheOneTopOfAPlainMachine) {
  const VolumeTops tops = volumeTopsFrom({{1, "/", disk, "/"}, {2, "/proc", 5, "/"}}, {"/", 1}, 1);
  EXPECT_THAT(tops.folders, ElementsAre("/"));
  EXPECT_THAT(tops.seenElsewhere, IsEmpty());
}

TEST(VolumeTopsOfMounts, ASubvolumeForTheHomesIsATopOfItsOwn) {
  const VolumeTops tops = volumeTopsFrom(
      {{1, "/", disk, "/@"}, {2, "/home", disk, "/@home"}, {3, "/boot", 7, "/"}}, {"/", 1}, 2);
  EXPECT_THAT(tops.folders, ElementsAre("/home", "/"));
}

TEST(VolumeTopsOfMounts, OnlyTheVolumeOfTheHomeCounts) {
  const VolumeTops tops = volumeTopsFrom({{1, "/", 7, "/"}, {2, "/home", disk, "/"}}, {"/", 1}, 2);
  EXPECT_THAT(tops.folders, ElementsAre("/home"));
}

TEST(VolumeTopsOfMounts, WhatAnotherTopShowsIsLeftOut) {
  const VolumeTops tops = volumeTopsFrom(
      {{1, "/", disk, "/"}, {2, "/home", disk, "/data/people"}, {3, "/mnt/again", disk, "/usr"}},
      {"/", 1}, 2);
  EXPECT_THAT(tops.folders, ElementsAre("/home", "/"));
  EXPECT_THAT(tops.seenElsewhere, ElementsAre("/data/people"));
}

TEST(VolumeTopsOfMounts, NoWayLeadsThroughAServer) {
  const VolumeTops tops = volumeTopsFrom(
      {{1, "/", disk, "/@"}, {2, "/far", server, "/"}, {3, "/far/near", disk, "/@other"}}, {"/", 1},
      1);
  EXPECT_THAT(tops.folders, ElementsAre("/"));
}

TEST(VolumeTopsOfMounts, CountsFromAFolderOfTheMachine) {
  const VolumeTops tops = volumeTopsFrom(
      {{1, "/", disk, "/"}, {2, "/tmp/disk/home", disk, "/people"}, {3, "/other", disk, "/x"}},
      {"/tmp/disk", 1}, 2);
  EXPECT_THAT(tops.folders, ElementsAre("/tmp/disk/home", "/tmp/disk"));
  EXPECT_THAT(tops.seenElsewhere, IsEmpty());
}

TEST(VolumeTopsOfMounts, AHomeOnNoMountHasNone) {
  EXPECT_THAT(volumeTopsFrom({{1, "/", disk, "/"}}, {"/", 1}, 4).folders, IsEmpty());
}

}  // namespace
}  // namespace klarvik
