#include "shell/sidebar_texts.h"

#include <gtest/gtest.h>

namespace klarvik::sidebar {
namespace {

const Formatting& english() {
  static const Formatting formatting("en_US");
  return formatting;
}

TEST(DiskBlockTexts, TruncateThePercentage) {
  EXPECT_EQ(percentFull({1000, 999, 1}), "99% full");
  EXPECT_EQ(percentFull({1000, 1000, 0}), "100% full");
  EXPECT_EQ(percentFull({0, 0, 0}), "0% full");
}

TEST(DiskBlockTexts, SayHowMuchIsFree) {
  EXPECT_EQ(freeLine({500'000'000'000, 300'000'000'000, 200'000'000'000}, english()),
            "200 GB free of 500 GB");
}

TEST(DiskBlockTexts, CallTheDiskNearlyFullStrictlyAboveNinetyPercent) {
  EXPECT_FALSE(isNearlyFull({500'000'000'000, 450'000'000'000, 50'000'000'000}));
  EXPECT_TRUE(isNearlyFull({500'000'000'000, 450'000'000'001, 49'999'999'999}));
}

TEST(DiskBlockTexts, NeverFillTheBarBelowNothing) {
  EXPECT_EQ(usedFraction({0, 0, 0}), 0.0);
  EXPECT_EQ(usedFraction({100, -5, 105}), 0.0);
  EXPECT_EQ(usedFraction({100, 25, 75}), 0.25);
}

}  // namespace
}  // namespace klarvik::sidebar
