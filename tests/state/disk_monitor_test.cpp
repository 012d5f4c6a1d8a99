#include "state/disk_monitor.h"

#include <gtest/gtest.h>

#include <optional>

#include "signal_count.h"
#include "state/section.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class DiskMonitorTest : public ::testing::Test {
 protected:
  void free(std::int64_t bytes) { around.volume.setAvailableBytes(bytes); }
  [[nodiscard]] std::int64_t shownFree() const { return monitor->stats().freeBytes; }
  void postDiskChanged() { around.notifications.post(diskChangedNotification); }

  FakeDesktopOnDisk around;
  std::optional<DiskMonitor> monitor{std::in_place, around.desktop};
};

TEST_F(DiskMonitorTest, ReadsTheVolumeWhenItIsMade) {
  EXPECT_EQ(monitor->stats(), (DiskStats{500'000'000'000, 300'000'000'000, 200'000'000'000}));
}

TEST_F(DiskMonitorTest, AVolumeThatTellsNothingOfItsFreeSpaceCountsAsFull) {
  around.volume.setAvailableBytes(std::nullopt);
  monitor->refreshNow();
  EXPECT_EQ(monitor->stats(), (DiskStats{500'000'000'000, 500'000'000'000, 0}));
  around.volume.setTotalBytes(std::nullopt);
  monitor->refreshNow();
  EXPECT_EQ(monitor->stats(), DiskStats{});
}

TEST_F(DiskMonitorTest, ReadsEveryFiveSeconds) {
  free(1);
  around.clock.advance(5s - 1ns);
  EXPECT_NE(shownFree(), 1);
  around.clock.advance(1ns);
  EXPECT_EQ(shownFree(), 1);
  free(2);
  around.clock.advance(5s);
  EXPECT_EQ(shownFree(), 2);
}

TEST_F(DiskMonitorTest, AnUnchangedDiskPublishesNothing) {
  const SignalCount changes(*monitor, &DiskMonitor::statsChanged);
  postDiskChanged();
  around.clock.advance(1min);
  EXPECT_EQ(changes.get(), 0);
}

TEST_F(DiskMonitorTest, ReadsWhenTheApplicationBecomesActive) {
  free(1);
  around.notifications.post(applicationActiveNotification);
  EXPECT_EQ(shownFree(), 1);
}

TEST_F(DiskMonitorTest, AChangeIsReadAtOnceAndAfterHalfOneAndAHalfThreeAndAHalfAndSevenAndAHalf) {
  free(1);
  postDiskChanged();
  EXPECT_EQ(shownFree(), 1);

  // Out of step with the timer, so that only the follow-up readings can have seen the figure.
  std::int64_t figure = 2;
  auto passed = 0ms;
  for (const auto moment : {500ms, 1500ms, 3500ms, 7500ms}) {
    around.clock.advance(moment - passed - 1ms);
    const std::int64_t before = shownFree();
    free(figure);
    EXPECT_EQ(shownFree(), before);
    around.clock.advance(1ms);
    EXPECT_EQ(shownFree(), figure) << moment.count();
    ++figure;
    passed = moment;
  }
  // Nothing but the timer is left.
  EXPECT_EQ(around.clock.pendingAlarms(), 1U);
}

TEST_F(DiskMonitorTest, TwoChangesWithinASecondGiveOneSequenceFromTheSecond) {
  postDiskChanged();
  around.clock.advance(400ms);
  postDiskChanged();
  EXPECT_EQ(around.clock.pendingAlarms(), 2U);

  free(1);
  around.clock.advance(499ms);
  EXPECT_NE(shownFree(), 1);
  around.clock.advance(1ms);
  EXPECT_EQ(shownFree(), 1);
}

TEST_F(DiskMonitorTest, GoesInTheMiddleOfItsFollowUpReadings) {
  postDiskChanged();
  around.clock.advance(600ms);
  monitor.reset();
  EXPECT_EQ(around.clock.pendingAlarms(), 0U);
  postDiskChanged();
  around.clock.advance(1min);
}

TEST(DiskMonitorOnALinuxDisk, CountsWhatIsKeptForRootAsNeitherUsedNorFree) {
  FakeDesktopOnDisk around(std::nullopt, linuxHome);
  around.volume.setKeptForRootBytes(25'000'000'000);
  const DiskMonitor monitor(around.desktop);
  EXPECT_EQ(monitor.stats(), (DiskStats{500'000'000'000, 275'000'000'000, 200'000'000'000}));
}

TEST_F(DiskMonitorTest, OnAMacsDiskWhatIsKeptForRootIsUsed) {
  around.volume.setKeptForRootBytes(25'000'000'000);
  monitor->refreshNow();
  EXPECT_EQ(monitor->stats(), (DiskStats{500'000'000'000, 300'000'000'000, 200'000'000'000}));
}

}  // namespace
}  // namespace klarvik
