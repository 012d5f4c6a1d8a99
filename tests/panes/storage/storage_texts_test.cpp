#include "panes/storage/storage_texts.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

using namespace std::chrono_literals;

constexpr DiskStats stats{
    .totalBytes = 500'000'000'000, .usedBytes = 300'000'000'000, .freeBytes = 200'000'000'000};
const Date now{std::chrono::seconds(1'772'644'000)};

TEST(StorageTexts, NameWhatIsBeingMeasured) {
  EXPECT_EQ(storage::measuringSubtitle("Documents"), "Measuring Documents…");
}

TEST(StorageTexts, SayHowMuchIsFreeAndHowOldTheMeasurementIs) {
  const Formatting formatting("en_US");
  EXPECT_EQ(storage::restingSubtitle(stats, std::nullopt, now, formatting),
            "200 GB free of 500 GB");
  DiskStats withKeptBlocks = stats;
  withKeptBlocks.usedBytes -= 7'000'000'000;
  EXPECT_EQ(storage::restingSubtitle(withKeptBlocks, std::nullopt, now, formatting, "kept"),
            "200 GB free of 500 GB · 7 GB kept");
  EXPECT_EQ(storage::restingSubtitle(stats, now - 3min, now, formatting),
            "200 GB free of 500 GB · measured 3 min. ago");
}

TEST(StorageTexts, CallTheActionByWhatItWillDo) {
  EXPECT_EQ(storage::actionTitle(false, false), "Measure");
  EXPECT_EQ(storage::actionTitle(false, true), "Re-measure");
  EXPECT_EQ(storage::actionTitle(true, false), "Stop");
  EXPECT_EQ(storage::actionTitle(true, true), "Stop");
}

TEST(StorageTexts, SayWhyNothingIsMeasuredYet) {
  EXPECT_EQ(storage::nothingMeasured(true),
            "Nothing measured yet. Walking your folders takes about a minute and reads sizes "
            "only.");
  EXPECT_EQ(storage::nothingMeasured(false),
            "Nothing measured yet. Measuring reads Documents, Desktop and Downloads, which macOS "
            "guards separately, so Klarvik waits for you to ask. It reads sizes only.");
}

TEST(StorageTexts, SayWhyThereIsNoGrowthToShow) {
  EXPECT_EQ(storage::noGrowth(0, 0), "Two scans are needed before growth means anything.");
  EXPECT_EQ(storage::noGrowth(1, 0), "Two scans are needed before growth means anything.");
  EXPECT_EQ(storage::noGrowth(2, 0), "Nothing has grown since your first scan on record.");
  EXPECT_EQ(storage::noGrowth(2, 3), "");
}

TEST(StorageTexts, SayWhyThereIsNoTrendToShow) {
  EXPECT_EQ(storage::noTrend(1), "Two cleans are needed before a trend means anything.");
  EXPECT_EQ(storage::noTrend(2), "");
}

TEST(StorageTexts, MarkGrowthWithAPlus) {
  EXPECT_EQ(storage::growthFigure(1, Formatting("en_US")), "+1 byte");
}

}  // namespace
}  // namespace klarvik
