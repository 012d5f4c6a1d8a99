#include "tools/disk_composition.h"

#include <gmock/gmock.h>

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Bucket = DiskComposition::Bucket;

constexpr std::int64_t gigabyte = 1'000'000'000;
constexpr double usualShare = 0.015;

DiskComposition diskOf(std::int64_t usedBytes, const std::vector<std::int64_t>& sizes) {
  DiskComposition disk{.usedBytes = usedBytes};
  for (const auto size : sizes) {
    const std::string id = std::to_string(disk.buckets.size());
    disk.buckets.push_back({.id = id, .label = id, .bytes = size});
  }
  return disk;
}

std::vector<std::string> ids(const std::vector<Bucket>& buckets) {
  std::vector<std::string> all;
  for (const Bucket& bucket : buckets) all.push_back(bucket.id);
  return all;
}

TEST(DisplayBuckets, ABucketOfExactlyTheShareStaysAndOneByteLessDoesNot) {
  const auto shown =
      diskOf(100 * gigabyte, {1'500'000'000, 1'499'999'999}).displayBuckets(usualShare);
  ASSERT_THAT(ids(shown), ElementsAre("0", "smaller"));
  EXPECT_EQ(shown[1],
            (Bucket{"smaller", "Smaller folders", 1'499'999'999, {0.42, 0.42, 0.42}, {}}));
}

TEST(DisplayBuckets, WithAllBucketsAboveTheCutThereIsNoRowOfSmallerFolders) {
  EXPECT_THAT(ids(diskOf(10 * gigabyte, {2 * gigabyte, 5 * gigabyte}).displayBuckets(usualShare)),
              ElementsAre("1", "0"));
}

TEST(DisplayBuckets, TheSmallerFoldersComeLastHoweverLargeTheyAre) {
  const auto shown = diskOf(1'000, {300, 200, 290, 280}).displayBuckets(0.295);
  EXPECT_THAT(ids(shown), ElementsAre("0", "smaller"));
  EXPECT_EQ(shown[1].bytes, 770);
}

TEST(DisplayBuckets, BucketsOfOneSizeKeepTheirOrder) {
  EXPECT_THAT(ids(diskOf(10, {3, 4, 3, 4}).displayBuckets(0)), ElementsAre("1", "3", "0", "2"));
}

TEST(DisplayBuckets, EmptyBucketsAreLeftOut) {
  EXPECT_THAT(diskOf(100, {0, 0}).displayBuckets(usualShare), IsEmpty());
}

TEST(DisplayBuckets, OfADiskThatIsSaidToBeEmptyAllStay) {
  EXPECT_THAT(ids(diskOf(0, {1, 5}).displayBuckets(usualShare)), ElementsAre("1", "0"));
  EXPECT_THAT(ids(diskOf(-7, {1, 5}).displayBuckets(usualShare)), ElementsAre("1", "0"));
}

TEST(DisplayBuckets, SizesBeyondWhatADoubleHoldsExactlyStayExact) {
  const std::int64_t large = (std::int64_t{1} << 53) + 1;
  const auto shown = diskOf(4 * large, {large, large + 2}).displayBuckets(usualShare);
  ASSERT_THAT(ids(shown), ElementsAre("1", "0"));
  EXPECT_EQ(shown[0].bytes - shown[1].bytes, 2);
}

}  // namespace
}  // namespace klarvik
