#include "panes/storage/storage_rows.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/formatting.h"

namespace klarvik {
namespace {

using Categories = std::map<std::string, std::int64_t>;

ScanHistoryEntry scan(Categories categories) {
  ScanHistoryEntry entry;
  entry.categories = std::move(categories);
  return entry;
}

std::vector<std::string> names(const std::vector<Growth>& grown) {
  std::vector<std::string> names;
  for (const Growth& growth : grown) names.push_back(growth.name);
  return names;
}

TEST(StorageGrowth, IsNoneWithFewerThanTwoScansOnRecord) {
  EXPECT_TRUE(fastestGrowing({}).empty());
  EXPECT_TRUE(fastestGrowing({scan({{"Logs", 5}})}).empty());
}

TEST(StorageGrowth, IsNoneBetweenTwoScansWithTheSameFigures) {
  EXPECT_TRUE(fastestGrowing({scan({{"Logs", 5}}), scan({{"Logs", 5}})}).empty());
}

TEST(StorageGrowth, IsNoneWhenTheNewestAndTheOldestAreTheSameRecord) {
  ScanHistoryEntry first = scan({{"Logs", 9}});
  ScanHistoryEntry second = first;
  second.categories["Logs"] = 1;
  EXPECT_TRUE(fastestGrowing({first, second}).empty());
}

TEST(StorageGrowth, ComparesTheNewestScanWithTheOldestAndNotWithTheOneBefore) {
  const auto grown =
      fastestGrowing({scan({{"Logs", 50}}), scan({{"Logs", 49}}), scan({{"Logs", 20}})});
  ASSERT_EQ(grown.size(), 1U);
  EXPECT_EQ(grown[0].delta, 30);
  EXPECT_EQ(grown[0].current, 50);
}

TEST(StorageGrowth, CountsACategoryNewInTheLatestScanInFull) {
  const auto grown = fastestGrowing({scan({{"Logs", 5}, {"Docker", 70}}), scan({{"Logs", 5}})});
  ASSERT_EQ(names(grown), std::vector<std::string>{"Docker"});
  EXPECT_EQ(grown[0].delta, 70);
}

TEST(StorageGrowth, ShowsNeitherWhatHasShrunkNorWhatHasGone) {
  const auto grown = fastestGrowing({scan({{"Logs", 4}}), scan({{"Logs", 5}, {"Docker", 70}})});
  EXPECT_TRUE(grown.empty());
}

TEST(StorageGrowth, KeepsTheLargestFiveOfSevenThatGrewLargestFirst) {
  const Categories latest{{"a", 10}, {"b", 70}, {"c", 30}, {"d", 40},
                          {"e", 50}, {"f", 20}, {"g", 60}};
  EXPECT_EQ(names(fastestGrowing({scan(latest), scan({})})),
            (std::vector<std::string>{"b", "g", "e", "d", "c"}));
}

TEST(StorageGrowth, SurvivesFiguresOfAHistoryThatNoScanCouldHaveWritten) {
  using Limits = std::numeric_limits<std::int64_t>;
  const auto grown = fastestGrowing({scan({{"up", Limits::max()}, {"down", Limits::min()}}),
                                     scan({{"up", Limits::min()}, {"down", Limits::max()}})});
  ASSERT_EQ(names(grown), std::vector<std::string>{"up"});
  EXPECT_EQ(grown[0].delta, Limits::max());
}

TEST(StorageGrowthRows, SayTheNameAndHowMuchMoreItIs) {
  const Formatting formatting("en_US");
  const auto rows =
      growthRows(fastestGrowing({scan({{"App\xff\nCaches", 1'500'000}}), scan({})}), formatting);
  ASSERT_EQ(rows.size(), 1);
  EXPECT_EQ(rows[0].name, QStringLiteral("App\uFFFD\uFFFDCaches"));
  EXPECT_EQ(rows[0].figure, "+1.5 MB");
}

std::vector<ScanHistoryEntry> cleansOf(const std::vector<std::int64_t>& totals) {
  std::vector<ScanHistoryEntry> cleans;
  for (const std::int64_t total : totals) {
    ScanHistoryEntry entry;
    entry.totalJunk = total;
    cleans.push_back(entry);
  }
  return cleans;
}

class CleanBars : public ::testing::Test {
 protected:
  [[nodiscard]] std::vector<double> heights(const std::vector<std::int64_t>& totals) const {
    std::vector<double> heights;
    for (const CleanBar& bar : cleanBars(cleansOf(totals), formatting)) {
      heights.push_back(bar.height);
    }
    return heights;
  }

  Formatting formatting{"en_US"};
};

TEST_F(CleanBars, AreNoneForFewerThanTwoCleans) {
  EXPECT_TRUE(heights({}).empty());
  EXPECT_TRUE(heights({50}).empty());
}

TEST_F(CleanBars, RunFromTheOldestToTheNewestAndReachUpToTheLargest) {
  EXPECT_EQ(heights({10, 40, 20}), (std::vector<double>{0.5, 1.0, 0.25}));
}

TEST_F(CleanBars, AreThirtyForFortyCleansOnRecordTheNewestOnes) {
  std::vector<std::int64_t> totals(40, 50);
  totals.front() = 100;
  totals.back() = 1'000'000;
  const auto drawn = heights(totals);
  ASSERT_EQ(drawn.size(), 30U);
  EXPECT_EQ(drawn.front(), 0.5);
  EXPECT_EQ(drawn.back(), 1.0);
}

TEST_F(CleanBars, AreDrawnForAListOfZeros) {
  EXPECT_EQ(heights({0, 0}), (std::vector<double>{0, 0}));
}

TEST_F(CleanBars, NeverReachBelowTheirGround) {
  EXPECT_EQ(heights({-7, 4}), (std::vector<double>{1, 0}));
}

TEST_F(CleanBars, SayWhatTheyStandFor) {
  auto cleans = cleansOf({2'000'000, 1'000});
  const CleanBar newest = cleanBars(cleans, formatting).back();
  EXPECT_TRUE(newest.description.startsWith("2 MB · "));
  EXPECT_EQ(newest.size, "2 MB");
  EXPECT_EQ(newest.date, QString::fromStdString(formatting.dayAndMonth(cleans.front().date)));
}

}  // namespace
}  // namespace klarvik
