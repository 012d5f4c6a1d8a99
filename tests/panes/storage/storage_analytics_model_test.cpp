#include "panes/storage/storage_analytics_model.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "../pane_fixture.h"
#include "places/colors.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

constexpr std::int64_t gigabyte = 1'000'000'000;

/// The pane in a program of its own with a main loop, over measurements that a test lays down and
/// can hold half-way.
class StorageAnalyticsModelTest : public PaneFixture {
 protected:
  static DiskComposition compositionOf(std::vector<std::pair<std::string, std::int64_t>> sizes,
                                       std::int64_t usedBytes = 100 * gigabyte) {
    DiskComposition composition;
    composition.usedBytes = usedBytes;
    for (auto& [id, bytes] : sizes) {
      composition.buckets.push_back(
          {.id = id, .label = "Label of " + id, .bytes = bytes, .color = storage_palette::teal});
    }
    return composition;
  }

  DiskComposition measureAsLaidDown(std::stop_token,
                                    const DiskCompositionEngine::ProgressSink& progress) {
    ++measurements;
    progress("Documents", 0.25);
    waitAtGate();
    progress("Done", 1.0);
    return answer;
  }

  [[nodiscard]] bool measureToTheEnd() {
    pane.performAction();
    return turnUntil([this] { return !pane.isMeasuring(); });
  }
  [[nodiscard]] bool measureAndHold() {
    gate.close();
    pane.performAction();
    return turnUntil([this] { return pane.measureProgress() == 0.25; });
  }
  [[nodiscard]] QStringList legendIds() const {
    QStringList ids;
    for (const StorageLegendRow& row : pane.legend()) ids << row.slice.id;
    return ids;
  }

 protected:
  DiskComposition answer = compositionOf({{"documents", 60 * gigabyte}, {"music", 20 * gigabyte}});
  std::atomic<int> measurements = 0;
  StorageAnalyticsModel pane{
      shared, desktop, nullptr,
      [this](std::stop_token stop, const DiskCompositionEngine::ProgressSink& progress) {
        return measureAsLaidDown(std::move(stop), progress);
      }};
};

TEST_F(StorageAnalyticsModelTest, StartsUnmeasuredAndNeverMeasuresByItself) {
  desk.defaults.set("backgroundScanOnLaunch", true);
  desk.clock.advance(30min);
  QCoreApplication::processEvents();
  EXPECT_EQ(measurements, 0);
  EXPECT_FALSE(pane.isMeasured());
  EXPECT_FALSE(pane.isMeasuring());
  EXPECT_EQ(pane.subtitle(), "200 GB free of 500 GB");
  EXPECT_EQ(pane.actionTitle(), "Measure");
  EXPECT_TRUE(pane.slices().isEmpty());
  EXPECT_EQ(pane.usedText(), "");
}

TEST_F(StorageAnalyticsModelTest, ShowsARunningMeasurementAndThenItsResult) {
  ASSERT_TRUE(measureAndHold());
  EXPECT_TRUE(pane.isMeasuring());
  EXPECT_EQ(pane.subtitle(), "Measuring Documents…");
  EXPECT_EQ(pane.actionTitle(), "Stop");
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return !pane.isMeasuring(); }));
  EXPECT_TRUE(pane.isMeasured());
  EXPECT_EQ(pane.actionTitle(), "Re-measure");
  EXPECT_EQ(pane.usedText(), "100 GB");
  EXPECT_TRUE(pane.subtitle().startsWith("200 GB free of 500 GB · measured "));
}

TEST_F(StorageAnalyticsModelTest, DrawsOneSliceForEachBucketAndItsShareOfTheirSum) {
  ASSERT_TRUE(measureToTheEnd());
  ASSERT_EQ(legendIds(), (QStringList{"documents", "music"}));
  EXPECT_EQ(pane.legend()[0].share, 0.75);
  EXPECT_EQ(pane.legend()[1].share, 0.25);
  EXPECT_EQ(pane.legend()[0].size, "60 GB");
  EXPECT_EQ(pane.legend()[0].slice.label, "Label of documents");
  EXPECT_EQ(pane.legend()[0].slice.color, QColor::fromRgbF(0.098F, 0.62F, 0.439F));
  EXPECT_EQ(pane.slices().size(), 2);
  EXPECT_EQ(pane.slices()[1].value, 20 * gigabyte);
}

TEST_F(StorageAnalyticsModelTest, MergesWhatIsBelowOneAndAHalfPercentOfTheUsedBytes) {
  answer = compositionOf({{"mail", 1'499'999'999}, {"caches", 1'500'000'000}});
  ASSERT_TRUE(measureToTheEnd());
  EXPECT_EQ(legendIds(), (QStringList{"caches", "smaller"}));
}

TEST_F(StorageAnalyticsModelTest, DrawsNothingForADiskOnWhichNothingWasFound) {
  answer = compositionOf({}, 0);
  ASSERT_TRUE(measureToTheEnd());
  EXPECT_TRUE(pane.isMeasured());
  EXPECT_TRUE(pane.slices().isEmpty());
  EXPECT_EQ(pane.usedText(), "Zero KB");
}

TEST_F(StorageAnalyticsModelTest, KeepsTheEarlierResultWhenStoppedInMidMeasurement) {
  ASSERT_TRUE(measureToTheEnd());
  const QString measured = pane.subtitle();
  answer = compositionOf({{"movies", 5 * gigabyte}});
  ASSERT_TRUE(measureAndHold());
  EXPECT_EQ(pane.subtitle(), "Measuring Documents…");
  pane.performAction();
  EXPECT_FALSE(pane.isMeasuring());
  EXPECT_TRUE(pane.subtitle().startsWith("200 GB free of 500 GB · measured "));
  EXPECT_EQ(pane.actionTitle(), "Re-measure");
  ASSERT_TRUE(letGo());
  EXPECT_EQ(legendIds(), (QStringList{"documents", "music"}));
  EXPECT_FALSE(pane.isMeasuring());
}

TEST_F(StorageAnalyticsModelTest, IsUnmeasuredAgainWhenTheFirstMeasurementIsStopped) {
  ASSERT_TRUE(measureAndHold());
  pane.performAction();
  ASSERT_TRUE(letGo());
  EXPECT_FALSE(pane.isMeasured());
  EXPECT_EQ(pane.actionTitle(), "Measure");
  EXPECT_EQ(pane.subtitle(), "200 GB free of 500 GB");
}

TEST_F(StorageAnalyticsModelTest, DropsWhatAStoppedMeasurementStillSaysWhileTheNextOneRuns) {
  ASSERT_TRUE(measureAndHold());
  pane.performAction();
  pane.performAction();
  ASSERT_TRUE(turnUntil([this] { return measurements == 2 && gate.waiting() == 2; }));
  ASSERT_TRUE(pane.isMeasuring());
  QSignalSpy results(&pane, &StorageAnalyticsModel::compositionChanged);
  ASSERT_TRUE(letGo());
  EXPECT_FALSE(pane.isMeasuring());
  EXPECT_EQ(results.count(), 1);
}

TEST_F(StorageAnalyticsModelTest, AsksForThePermissionBeforeItMeasures) {
  denyFullDiskAccess();
  EXPECT_TRUE(pane.nothingMeasured().contains("waits for you to ask"));

  pane.performAction();
  EXPECT_TRUE(shared.permissionsManager().isRequestingAccess());
  EXPECT_FALSE(pane.isMeasuring());
  EXPECT_EQ(measurements, 0);
  shared.permissionsManager().finishAccessRequest();
  EXPECT_TRUE(pane.isMeasuring());
  ASSERT_TRUE(turnUntil([this] { return pane.isMeasured(); }));

  // It asks once: after that it measures with what can be read.
  pane.performAction();
  EXPECT_FALSE(shared.permissionsManager().isRequestingAccess());
  EXPECT_TRUE(pane.isMeasuring());
}

TEST_F(StorageAnalyticsModelTest, SaysWhenThePermissionHasCome) {
  denyFullDiskAccess();
  QSignalSpy changed(&pane, &StorageAnalyticsModel::nothingMeasuredChanged);
  grantFullDiskAccess();
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(pane.nothingMeasured(),
            "Nothing measured yet. Walking your folders takes about a minute and reads sizes "
            "only.");
}

TEST_F(StorageAnalyticsModelTest, TellsFreeAndTotalOfThisMomentAndNotOfTheMeasurement) {
  ASSERT_TRUE(measureToTheEnd());
  desk.volume.setAvailableBytes(150 * gigabyte);
  shared.diskMonitor().refreshNow();
  EXPECT_TRUE(pane.subtitle().startsWith("150 GB free of 500 GB · measured "));
}

TEST_F(StorageAnalyticsModelTest, KeepsTheAgeOfTheMeasurementFresh) {
  ASSERT_TRUE(measureToTheEnd());
  desk.clock.advance(5min);
  EXPECT_EQ(pane.subtitle(), "200 GB free of 500 GB · measured 5 min. ago");
  QSignalSpy changed(&pane, &StorageAnalyticsModel::subtitleChanged);
  desk.clock.advance(1min);
  EXPECT_EQ(pane.subtitle(), "200 GB free of 500 GB · measured 6 min. ago");
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(StorageAnalyticsModelTest, HighlightsTheBucketUnderThePointer) {
  ASSERT_TRUE(measureToTheEnd());
  QSignalSpy changed(&pane, &StorageAnalyticsModel::highlightedChanged);
  pane.hover("documents", true);
  pane.hover("documents", true);
  EXPECT_EQ(pane.highlighted(), "documents");
  EXPECT_EQ(changed.count(), 1);
  pane.hover("music", true);
  pane.hover("documents", false);
  EXPECT_EQ(pane.highlighted(), "music");
  pane.hover("music", false);
  EXPECT_EQ(pane.highlighted(), "");
}

TEST_F(StorageAnalyticsModelTest, KeepsTheHighlightThroughANewMeasurementAsLongAsTheBucketIsThere) {
  ASSERT_TRUE(measureToTheEnd());
  pane.hover("music", true);
  ASSERT_TRUE(measureToTheEnd());
  EXPECT_EQ(pane.highlighted(), "music");
  answer = compositionOf({{"movies", 5 * gigabyte}});
  ASSERT_TRUE(measureToTheEnd());
  EXPECT_EQ(pane.highlighted(), "");
}

TEST_F(StorageAnalyticsModelTest, AnimatesItsChartsOnceTheyHaveComeIntoSight) {
  QSignalSpy changed(&pane, &StorageAnalyticsModel::animateChartsChanged);
  EXPECT_FALSE(pane.animateCharts());
  pane.chartsAppeared();
  pane.chartsAppeared();
  EXPECT_TRUE(pane.animateCharts());
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(StorageAnalyticsModelTest, FollowsTheHistoryOfScans) {
  const auto record = [this](std::int64_t size) {
    JunkItem item;
    item.size = size;
    shared.scanHistory().recordScan({{.type = CategoryType::dockerData, .items = {item}}});
  };
  EXPECT_EQ(pane.noGrowth(), "Two scans are needed before growth means anything.");
  record(5'000'000);
  EXPECT_EQ(pane.noGrowth(), "Two scans are needed before growth means anything.");
  record(5'000'000);
  EXPECT_EQ(pane.noGrowth(), "Nothing has grown since your first scan on record.");
  record(7'000'000);
  EXPECT_EQ(pane.noGrowth(), "");
  ASSERT_EQ(pane.growth().size(), 1);
  EXPECT_EQ(pane.growth()[0].figure, "+2 MB");
}

TEST_F(StorageAnalyticsModelTest, FollowsTheHistoryOfCleans) {
  shared.scanHistory().recordClean(10'000, {});
  EXPECT_EQ(pane.noTrend(), "Two cleans are needed before a trend means anything.");
  EXPECT_TRUE(pane.cleanBars().isEmpty());
  shared.scanHistory().recordClean(20'000, {});
  EXPECT_EQ(pane.noTrend(), "");
  ASSERT_EQ(pane.cleanBars().size(), 2);
  EXPECT_EQ(pane.cleanBars()[0].height, 0.5);
  EXPECT_EQ(pane.cleanBars()[1].height, 1);
}

TEST_F(StorageAnalyticsModelTest, SurvivesAPermissionThatComesAfterThePaneHasGone) {
  denyFullDiskAccess();
  {
    StorageAnalyticsModel other(shared, desktop);
    other.performAction();
  }
  shared.permissionsManager().finishAccessRequest();
  EXPECT_FALSE(shared.permissionsManager().isRequestingAccess());
}

TEST_F(StorageAnalyticsModelTest, MeasuresTheDiskItselfAndSurvivesAFolderThatGoesMeanwhile) {
  desk.disk.makeFile("/Users/ann/Documents/letter", 3'000'000);
  desk.disk.makeFile("/Users/ann/Music/song", 2'000'000);
  desk.volume.setTotalBytes(20'000'000);
  desk.volume.setAvailableBytes(10'000'000);
  StorageAnalyticsModel real(shared, desktop);
  real.performAction();
  std::filesystem::remove_all(desk.disk.onDisk("/Users/ann/Music"));
  ASSERT_TRUE(turnUntil([&] { return real.isMeasured(); }));
  QStringList ids;
  for (const DonutSlice& slice : real.slices()) ids << slice.id;
  EXPECT_TRUE(ids.contains("documents"));
  EXPECT_TRUE(ids.contains("system"));
}

}  // namespace
}  // namespace klarvik
