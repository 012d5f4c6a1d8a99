#include "state/trash_monitor.h"

#include <gtest/gtest.h>

#include <optional>
#include <semaphore>

#include "engine/sizes.h"
#include "signal_count.h"
#include "state/section.h"
#include "support/application/main_loop.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class TrashMonitorTest : public ::testing::Test {
 protected:
  /// Something comes into the Trash, past the program.
  void trash(const std::string& name, std::int64_t bytes = 100'000) {
    around.disk.makeFile("/Users/ann/.Trash/" + name, bytes);
    around.trash.moveStamp();
  }
  void emptyFromOutside() {
    std::filesystem::remove_all(around.disk.onDisk("/Users/ann/.Trash"));
    around.trash.moveStamp();
  }
  [[nodiscard]] std::int64_t sizeOf(const std::string& name) const {
    return allocatedSize(around.files, "/Users/ann/.Trash/" + name);
  }
  void make() { monitor.emplace(around.desktop, notice); }
  void makeAndMeasure() {
    make();
    ASSERT_TRUE(measured());
  }
  [[nodiscard]] bool measured() {
    return turnMainLoopUntil([this] { return !monitor->isMeasuring(); });
  }
  QCoro::Task<> empty() { freed = co_await monitor->emptyTrash(); }

  FakeDesktopOnDisk around;
  RemovalNotice notice;
  std::optional<std::int64_t> freed;
  std::optional<TrashMonitor> monitor;
};

TEST_F(TrashMonitorTest, ARequestEmptiesTheTrashOfAMacAtOnce) {
  trash("a");
  makeAndMeasure();
  const SignalCount asked(*monitor, &TrashMonitor::confirmationWanted);
  monitor->requestEmptying();
  EXPECT_TRUE(turnMainLoopUntil([this] { return !monitor->isEmptying(); }));
  EXPECT_EQ(asked.get(), 0);
  EXPECT_EQ(monitor->itemCount(), 0);
}

TEST(TrashMonitorOfALinuxDisk, ARequestAsksTheUserFirst) {
  TemporaryFolder disk;
  LinuxFileSystem files(disk.path(), "/home/ann");
  LinuxTrash trash(disk.path(), "/home/ann");
  FakeDesktop around(files, trash);
  disk.makeFile("/home/ann/.local/share/Trash/files/a", std::string("content"));
  RemovalNotice notice;
  TrashMonitor monitor(around.desktop, notice);
  const SignalCount asked(monitor, &TrashMonitor::confirmationWanted);
  monitor.requestEmptying();
  EXPECT_EQ(asked.get(), 1);
  EXPECT_FALSE(monitor.isEmptying());
  EXPECT_TRUE(disk.holds("/home/ann/.local/share/Trash/files/a"));
}

TEST_F(TrashMonitorTest, AnEntryThatIsAnotherThingOnceItsTurnComesStaysAndTheUserIsTold) {
  trash("a");
  trash("b");
  makeAndMeasure();
  around.trash.before(TrashOperation::remove, "/Users/ann/.Trash/b", [this] {
    const Path entry = around.disk.onDisk("/Users/ann/.Trash/b");
    std::filesystem::rename(entry, around.disk.onDisk("/Users/ann/b"));
    around.disk.makeFile("/Users/ann/.Trash/b", std::string_view("new"));
  });
  empty();
  ASSERT_TRUE(turnMainLoopUntil([this] { return freed.has_value(); }));
  EXPECT_EQ(around.disk.contentOf("/Users/ann/.Trash/b"), "new");
  EXPECT_EQ(notice.text(),
            "1 item was left alone: something else has taken its place since it was listed.");
  EXPECT_TRUE(measured());
  EXPECT_EQ(monitor->itemCount(), 1);
}

TEST_F(TrashMonitorTest, AnEmptyTrashReadsZeroItemsAndZeroBytes) {
  make();
  EXPECT_EQ(monitor->itemCount(), 0);
  EXPECT_EQ(monitor->bytes(), 0);
  EXPECT_TRUE(monitor->isReadable());
  EXPECT_FALSE(monitor->isMeasuring());
}

TEST_F(TrashMonitorTest, OneFileCountsAsOneItemAtOnceAndIsMeasuredAfterwards) {
  trash("a");
  make();
  EXPECT_EQ(monitor->itemCount(), 1);
  EXPECT_EQ(monitor->bytes(), 0);
  EXPECT_TRUE(monitor->isMeasuring());
  ASSERT_TRUE(measured());
  EXPECT_EQ(monitor->bytes(), sizeOf("a"));
  EXPECT_GE(monitor->bytes(), 100'000);
}

TEST_F(TrashMonitorTest, AFolderCountsAsOneItemWithAllItHolds) {
  around.disk.makeFile("/Users/ann/.Trash/folder/a", std::int64_t{10'000});
  around.disk.makeFile("/Users/ann/.Trash/folder/deep/b", std::int64_t{20'000});
  makeAndMeasure();
  EXPECT_EQ(monitor->itemCount(), 1);
  EXPECT_EQ(monitor->bytes(), sizeOf("folder"));
}

TEST_F(TrashMonitorTest, LooksEveryTenSecondsAndReadsOnlyWhatHasChanged) {
  makeAndMeasure();
  const int listings = around.trash.listings;
  around.clock.advance(30s);
  EXPECT_EQ(around.trash.listings, listings);

  trash("a");
  around.clock.advance(10s - 1ns);
  EXPECT_EQ(monitor->itemCount(), 0);
  around.clock.advance(1ns);
  EXPECT_EQ(monitor->itemCount(), 1);
  EXPECT_TRUE(measured());
}

TEST_F(TrashMonitorTest, ATrashEmptiedFromOutsideShowsZeroAtTheNextTick) {
  trash("a");
  makeAndMeasure();
  emptyFromOutside();
  around.clock.advance(10s);
  EXPECT_EQ(monitor->itemCount(), 0);
  EXPECT_EQ(monitor->bytes(), 0);
}

TEST_F(TrashMonitorTest, ReadsWhenTheDiskHasChangedAndWhenTheApplicationBecomesActive) {
  makeAndMeasure();
  trash("a");
  around.notifications.post(diskChangedNotification);
  EXPECT_EQ(monitor->itemCount(), 1);
  ASSERT_TRUE(measured());
  trash("b");
  around.notifications.post(applicationActiveNotification);
  EXPECT_EQ(monitor->itemCount(), 2);
  EXPECT_TRUE(measured());
}

TEST_F(TrashMonitorTest, WithoutPermissionTheBytesStayAndTheTrashIsUnreadable) {
  trash("a");
  makeAndMeasure();
  const std::int64_t bytes = monitor->bytes();
  around.trash.readable = false;
  around.trash.moveStamp();
  monitor->refresh(false);
  EXPECT_FALSE(monitor->isReadable());
  EXPECT_EQ(monitor->itemCount(), 0);
  EXPECT_EQ(monitor->bytes(), bytes);

  around.trash.readable = true;
  monitor->refresh(true);
  EXPECT_TRUE(monitor->isReadable());
  EXPECT_EQ(monitor->itemCount(), 1);
  EXPECT_TRUE(measured());
}

TEST_F(TrashMonitorTest, WithAnAbsentStampEveryRefreshLists) {
  makeAndMeasure();
  around.trash.setStamp(std::nullopt);
  const int listings = around.trash.listings;
  monitor->refresh(false);
  monitor->refresh(false);
  EXPECT_EQ(around.trash.listings, listings + 2);
}

TEST_F(TrashMonitorTest, AForcedRefreshListsAlsoWhenNothingHasChanged) {
  makeAndMeasure();
  const int listings = around.trash.listings;
  monitor->refresh(true);
  EXPECT_EQ(around.trash.listings, listings + 1);
}

TEST_F(TrashMonitorTest, AChangeDuringAMeasurementIsPickedUpByTheTimerLater) {
  trash("a");
  make();
  ASSERT_TRUE(monitor->isMeasuring());
  trash("b");
  around.notifications.post(diskChangedNotification);
  EXPECT_EQ(monitor->itemCount(), 1);
  ASSERT_TRUE(measured());
  around.clock.advance(10s);
  EXPECT_EQ(monitor->itemCount(), 2);
  EXPECT_TRUE(measured());
}

TEST_F(TrashMonitorTest, TheMainLoopTicksWhileTheTrashIsMeasured) {
  around.disk.makeFile("/Users/ann/.Trash/folder/a", std::int64_t{10'000});
  std::binary_semaphore letGo(0);
  around.files.beforeEach(FileOperation::walk, [&](const Path&) { letGo.acquire(); });
  make();
  for (int turn = 0; turn < 100; ++turn) turnMainLoop();
  EXPECT_TRUE(monitor->isMeasuring());
  letGo.release();
  EXPECT_TRUE(measured());
}

TEST_F(TrashMonitorTest, EmptyingRemovesEverythingAndAnswersTheBytes) {
  trash("a");
  trash(".hidden");
  const std::int64_t size = sizeOf("a") + sizeOf(".hidden");
  makeAndMeasure();
  int posted = 0;
  const auto subscription =
      around.notifications.observe(diskChangedNotification, [&] { ++posted; });

  empty();
  EXPECT_TRUE(monitor->isEmptying());
  ASSERT_TRUE(turnMainLoopUntil([&] { return freed.has_value(); }));
  EXPECT_EQ(freed, size);
  EXPECT_FALSE(monitor->isEmptying());
  EXPECT_EQ(monitor->emptyProgress(), std::nullopt);
  EXPECT_EQ(monitor->itemCount(), 0);
  EXPECT_EQ(monitor->bytes(), 0);
  EXPECT_EQ(posted, 1);
  EXPECT_FALSE(around.disk.holds("/Users/ann/.Trash/a"));
  EXPECT_FALSE(around.disk.holds("/Users/ann/.Trash/.hidden"));
}

TEST_F(TrashMonitorTest, ASecondEmptyingAnswersZeroAtOnce) {
  trash("a");
  makeAndMeasure();
  empty();
  std::optional<std::int64_t> second;
  const auto again = [&]() -> QCoro::Task<> { second = co_await monitor->emptyTrash(); };
  again();
  EXPECT_EQ(second, 0);
  ASSERT_TRUE(turnMainLoopUntil([&] { return freed.has_value(); }));
  EXPECT_GT(freed, 0);
}

TEST_F(TrashMonitorTest, ShowsTheProgressOfAnEmptying) {
  for (const char* name : {"a", "b", "c"}) trash(name);
  makeAndMeasure();
  std::counting_semaphore<> letGo(0);
  around.trash.beforeEach(TrashOperation::remove, [&](const Path&) { letGo.acquire(); });
  empty();
  for (int turn = 0; turn < 100; ++turn) turnMainLoop();
  EXPECT_EQ(monitor->emptyProgress(), std::nullopt);
  letGo.release();
  ASSERT_TRUE(turnMainLoopUntil([&] { return monitor->emptyProgress().has_value(); }));
  EXPECT_EQ(monitor->emptyProgress()->completed, 1);
  EXPECT_EQ(monitor->emptyProgress()->total, 3);
  letGo.release(2);
  ASSERT_TRUE(turnMainLoopUntil([&] { return freed.has_value(); }));
  EXPECT_EQ(monitor->emptyProgress(), std::nullopt);
}

TEST_F(TrashMonitorTest, AnUnchangedTrashPublishesNothing) {
  trash("a");
  makeAndMeasure();
  const SignalCount changes(*monitor, &TrashMonitor::changed);
  around.clock.advance(1min);
  around.notifications.post(diskChangedNotification);
  EXPECT_EQ(changes.get(), 0);
}

TEST_F(TrashMonitorTest, GoesWhileItMeasures) {
  around.disk.makeFile("/Users/ann/.Trash/folder/a", std::int64_t{10'000});
  make();
  ASSERT_TRUE(monitor->isMeasuring());
  monitor.reset();
  turnMainLoop();
  EXPECT_EQ(around.clock.pendingAlarms(), 0U);
}

TEST_F(TrashMonitorTest, QuittingDuringAnEmptyingFinishesTheItemsInHandAndLosesNoOther) {
  for (int item = 0; item < 20; ++item) trash("item " + std::to_string(item));
  makeAndMeasure();
  std::counting_semaphore<> letGo(0);
  std::atomic<int> removals = 0;
  around.trash.beforeEach(TrashOperation::remove, [&](const Path&) {
    ++removals;
    letGo.acquire();
  });
  empty();
  ASSERT_TRUE(turnMainLoopUntil([&] { return removals == 6; }));
  std::thread later([&] { letGo.release(20); });
  monitor.reset();
  later.join();
  EXPECT_TRUE(freed.has_value());
  int left = 0;
  for (int item = 0; item < 20; ++item) {
    left += around.disk.holds("/Users/ann/.Trash/item " + std::to_string(item)) ? 1 : 0;
  }
  EXPECT_EQ(left, 20 - removals);
}

}  // namespace
}  // namespace klarvik
