#include "platform/formatting.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <thread>
#include <vector>

namespace klarvik {
namespace {

using namespace std::chrono_literals;

// Formatters take the time zone of the machine, which these tests fix.
const bool zoneIsUtc = [] { return ::setenv("TZ", "UTC", 1) == 0; }();

constexpr std::string_view narrowSpace = "\u202F";          // what the locale puts before AM and PM
const Date afternoon{std::chrono::seconds(1'772'644'000)};  // 2026-03-04 17:06:40 UTC

std::string english(std::int64_t bytes) {
  return Formatting("en_US").byteText(bytes);
}

struct ByteCase {
  std::int64_t bytes;
  std::string_view text;
};

class ByteText : public testing::TestWithParam<ByteCase> {};

TEST_P(ByteText, IsExact) {
  EXPECT_EQ(english(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(OfBytesAndKilobytes, ByteText,
                         testing::Values(ByteCase{0, "Zero KB"}, ByteCase{1, "1 byte"},
                                         ByteCase{2, "2 bytes"}, ByteCase{999, "999 bytes"},
                                         ByteCase{1'000, "1 KB"}, ByteCase{1'499, "1 KB"},
                                         ByteCase{1'500, "2 KB"}, ByteCase{1'501, "2 KB"},
                                         ByteCase{2'500, "2 KB"}, ByteCase{2'501, "3 KB"},
                                         ByteCase{12'345, "12 KB"}, ByteCase{998'500, "998 KB"},
                                         ByteCase{999'499, "999 KB"}, ByteCase{999'500, "1 MB"},
                                         ByteCase{999'999, "1 MB"}));

INSTANTIATE_TEST_SUITE_P(
    OfMegabytes, ByteText,
    testing::Values(ByteCase{1'000'000, "1 MB"}, ByteCase{1'049'999, "1 MB"},
                    ByteCase{1'050'000, "1 MB"}, ByteCase{1'050'001, "1.1 MB"},
                    ByteCase{1'150'000, "1.2 MB"}, ByteCase{1'250'000, "1.2 MB"},
                    ByteCase{1'500'000, "1.5 MB"}, ByteCase{9'950'001, "10 MB"},
                    ByteCase{123'456'789, "123.5 MB"}, ByteCase{999'850'000, "999.8 MB"},
                    ByteCase{999'949'999, "999.9 MB"}, ByteCase{999'950'000, "1 GB"}));

INSTANTIATE_TEST_SUITE_P(
    OfGigabytesAndUp, ByteText,
    testing::Values(
        ByteCase{1'000'000'000, "1 GB"}, ByteCase{1'005'000'000, "1 GB"},
        ByteCase{1'005'000'001, "1.01 GB"}, ByteCase{1'015'000'000, "1.02 GB"},
        ByteCase{1'100'000'000, "1.1 GB"}, ByteCase{2'250'000'000, "2.25 GB"},
        ByteCase{5'368'709'120, "5.37 GB"}, ByteCase{999'985'000'000, "999.98 GB"},
        ByteCase{999'994'999'999, "999.99 GB"}, ByteCase{999'995'000'000, "1 TB"},
        ByteCase{1'000'000'000'000, "1 TB"}, ByteCase{1'234'567'890'123, "1.23 TB"},
        ByteCase{999'995'000'000'000, "1 PB"}, ByteCase{9'007'199'254'740'993, "9.01 PB"},
        ByteCase{999'994'999'999'999'999, "999.99 PB"}, ByteCase{999'995'000'000'000'000, "1 EB"},
        ByteCase{1'005'000'000'000'000'000, "1 EB"}, ByteCase{1'005'000'000'000'000'001, "1.01 EB"},
        ByteCase{std::numeric_limits<std::int64_t>::max(), "9.22 EB"}));

INSTANTIATE_TEST_SUITE_P(BelowZero, ByteText,
                         testing::Values(ByteCase{-1, "-1 byte"}, ByteCase{-999, "-999 bytes"},
                                         ByteCase{-1'500'000, "-1.5 MB"},
                                         ByteCase{std::numeric_limits<std::int64_t>::min(),
                                                  "-9.22 EB"}));

TEST(Formatting, WritesSizesWithTheDecimalSeparatorOfTheLocale) {
  EXPECT_EQ(Formatting("de_DE").byteText(1'500'000), "1,5 MB");
  EXPECT_EQ(Formatting("en_GB").byteText(2'250'000'000), "2.25 GB");
}

TEST(Formatting, WritesMediumDateAndShortTime) {
  EXPECT_EQ(Formatting("en_US").dateAndTime(afternoon),
            "Mar 4, 2026, 5:06" + std::string(narrowSpace) + "PM");
  EXPECT_EQ(Formatting("de_DE").dateAndTime(afternoon), "04.03.2026, 17:06");
  EXPECT_EQ(Formatting("en_US").dayAndMonth(afternoon), "Mar 4");
  EXPECT_EQ(Formatting("de_DE").dayAndMonth(afternoon), "4. März");
}

TEST(Formatting, WritesAMomentBefore1970) {
  EXPECT_EQ(Formatting("de_DE").dateAndTime(Date(-1ms)), "31.12.1969, 23:59");
}

struct RelativeCase {
  std::chrono::seconds age;
  std::string_view full;
  std::string_view abbreviated;
};

class RelativeDate : public testing::TestWithParam<RelativeCase> {};

TEST_P(RelativeDate, IsWrittenInTheLargestUnitThatFitsInWhole) {
  const Formatting formatting("en_US");
  const Date date = afternoon - GetParam().age;
  EXPECT_EQ(formatting.relative(date, afternoon), GetParam().full);
  EXPECT_EQ(formatting.relativeAbbreviated(date, afternoon), GetParam().abbreviated);
}

INSTANTIATE_TEST_SUITE_P(Of, RelativeDate,
                         testing::Values(RelativeCase{0s, "0 seconds ago", "0 sec. ago"},
                                         RelativeCase{1s, "1 second ago", "1 sec. ago"},
                                         RelativeCase{59s, "59 seconds ago", "59 sec. ago"},
                                         RelativeCase{60s, "1 minute ago", "1 min. ago"},
                                         RelativeCase{3min, "3 minutes ago", "3 min. ago"},
                                         RelativeCase{59min + 59s, "59 minutes ago", "59 min. ago"},
                                         RelativeCase{1h, "1 hour ago", "1 hr. ago"},
                                         RelativeCase{23h + 59min, "23 hours ago", "23 hr. ago"},
                                         RelativeCase{24h, "1 day ago", "1 day ago"},
                                         RelativeCase{36h, "1 day ago", "1 day ago"},
                                         RelativeCase{6 * 24h, "6 days ago", "6 days ago"},
                                         RelativeCase{7 * 24h, "1 week ago", "1 wk. ago"},
                                         RelativeCase{20 * 24h, "2 weeks ago", "2 wk. ago"},
                                         RelativeCase{28 * 24h, "1 month ago", "1 mo. ago"},
                                         RelativeCase{364 * 24h, "11 months ago", "11 mo. ago"},
                                         RelativeCase{365 * 24h, "1 year ago", "1 yr. ago"},
                                         RelativeCase{3653 * 24h, "10 years ago", "10 yr. ago"},
                                         RelativeCase{-60s, "in 1 minute", "in 1 min."},
                                         RelativeCase{-48h, "in 2 days", "in 2 days"}));

TEST(Formatting, ParsesADateThatFollowsThePattern) {
  EXPECT_EQ(Formatting::parseDate("2026-03-04-170640", "yyyy-MM-dd-HHmmss"), afternoon);
}

TEST(Formatting, ParsesNothingElse) {
  for (const std::string text :
       {"", "2026-03-04", "2026-03-04-170640 ", " 2026-03-04-170640", "2026-03-04-170640.local",
        "2026-13-04-170640", "2026-02-30-170640", "2026-03-04-250640", "2026-03-04T170640",
        "2026-03-04-1706", "2026-3-04-170640", "2026- 3-04-170640", "com.apple.TimeMachine",
        "\xff\xfe"}) {
    EXPECT_EQ(Formatting::parseDate(text, "yyyy-MM-dd-HHmmss"), std::nullopt) << text;
  }
}

TEST(Formatting, OrdersNamesWithoutRegardToCase) {
  const Formatting formatting("en_US");
  EXPECT_EQ(formatting.compareNames("Safari", "sAFARI"), 0);
  EXPECT_LT(formatting.compareNames("apple", "Banana"), 0);
  EXPECT_GT(formatting.compareNames("Zebra", "apple"), 0);
  EXPECT_LT(formatting.compareNames("a", "ä"), 0);
  EXPECT_LT(formatting.compareNames("ä", "b"), 0);
}

TEST(Formatting, OrdersNamesAsTheLocaleDoes) {
  EXPECT_LT(Formatting("de_DE").compareNames("ä", "z"), 0);
  EXPECT_GT(Formatting("sv_SE").compareNames("ä", "z"), 0);
}

TEST(Formatting, OrdersNamesThatAreNotUtf8) {
  const Formatting formatting("en_US");
  EXPECT_GT(formatting.compareNames("a\xff", "a"), 0);
  EXPECT_LT(formatting.compareNames("a", "a\xff"), 0);
}

TEST(Formatting, SortsWithoutRegardToCaseWhereNoLanguageIsChosen) {
  EXPECT_LT(Formatting("en_US").compareNames("apple", "Banana"), 0);
  EXPECT_LT(Formatting().compareNames("apple", "Banana"), 0);
}

TEST(Formatting, GivesTheSameTextsToManyThreadsAtOnce) {
  const Formatting formatting("en_US");
  std::vector<int> wrong(4, -1);
  {
    std::vector<std::jthread> threads;
    for (int& count : wrong) {
      threads.emplace_back([&] {
        count = 0;
        for (int turn = 0; turn < 200; ++turn) {
          count += formatting.byteText(1'500'000) != "1.5 MB";
          count += formatting.dateAndTime(afternoon).substr(0, 11) != "Mar 4, 2026";
          count += formatting.relative(afternoon - 3min, afternoon) != "3 minutes ago";
          count += formatting.compareNames("apple", "Banana") >= 0;
        }
      });
    }
  }
  EXPECT_EQ(wrong, std::vector<int>(4, 0));
}

}  // namespace
}  // namespace klarvik
