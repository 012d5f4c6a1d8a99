#include "window_fixture.h"

namespace klarvik {
namespace {

class StorageWindow : public WindowFixture {
 protected:
  /// A disk of a size that the files on it matter to.
  void SetUp() override {
    WindowFixture::SetUp();
    desk->volume.setTotalBytes(400'000'000);
    desk->volume.setAvailableBytes(120'000'000);
    shared->diskMonitor().refreshNow();
  }

  void recordHistory() {
    const auto scanned = [](CategoryType type, std::int64_t size) {
      JunkItem item;
      item.size = size;
      return CleanCategory{.type = type, .items = {item}};
    };
    shared->scanHistory().recordScan({scanned(CategoryType::xcodeCache, 2'000'000'000)});
    shared->scanHistory().recordScan({scanned(CategoryType::xcodeCache, 9'500'000'000),
                                      scanned(CategoryType::dockerData, 3'100'000'000)});
    recordCleans(30);
  }
  void recordCleans(int count) {
    for (std::int64_t number = 0; number < count; ++number) {
      shared->scanHistory().recordClean((number * 37 % 11 + 1) * 400'000'000, {});
    }
  }
  /// The bars are called so for assistive tools in any case.
  [[nodiscard]] bool isWritten(const QString& text) const {
    return isWrittenIn(*window().contentItem(), text);
  }
  static bool isWrittenIn(const QQuickItem& item, const QString& text) {
    if (item.isVisible() && item.property("text").toString() == text) return true;
    return std::ranges::any_of(item.childItems(),
                               [&](const QQuickItem* child) { return isWrittenIn(*child, text); });
  }
  void openStorage() {
    openWindow();
    click("Storage");
    settle();
  }
  [[nodiscard]] bool measureToTheEnd() {
    click("Measure");
    const bool came = turnUntil([this] { return shows("Re-measure"); });
    settle();
    return came;
  }
  void pointAt(QQuickItem& item, QPointF place) {
    QTest::mouseMove(&window(), item.mapToScene(place).toPoint());
    settle();
  }
  [[nodiscard]] bool isHighlighted(const QString& legendRow) {
    const QQuickItem* row = find(legendRow);
    return row != nullptr && row->property("isHighlighted").toBool();
  }
};

TEST_F(StorageWindow, SaysWhatThereIsToSayBeforeAnythingIsMeasured) {
  openStorage();
  EXPECT_TRUE(shows("WHAT FILLS THE DISK"));
  EXPECT_TRUE(
      shows("Nothing measured yet. Walking your folders takes about a minute and reads "
            "sizes only."));
  EXPECT_TRUE(shows("GROWING FASTEST"));
  EXPECT_TRUE(shows("Two scans are needed before growth means anything."));
  EXPECT_TRUE(shows("RECLAIMED PER CLEAN"));
  EXPECT_TRUE(shows("Two cleans are needed before a trend means anything."));
  EXPECT_TRUE(shows("120 MB free of 400 MB"));
  picture("storage-empty");
}

TEST_F(StorageWindow, MeasuresAndExplainsTheDiskWithoutChangingIt) {
  recordHistory();
  openStorage();
  const Listing before = listing();
  ASSERT_TRUE(measureToTheEnd());
  EXPECT_TRUE(shows("280 MB"));
  EXPECT_TRUE(shows("in use"));
  EXPECT_TRUE(shows("macOS and everything else"));
  EXPECT_TRUE(shows("120 MB free of 400 MB · measured "));
  EXPECT_TRUE(shows("Xcode Cache, +7.5 GB"));
  EXPECT_EQ(listing(), before);
  picture("storage-full");
  window().resize(920, 640);
  picture("storage-full_920x640");
  window().resize(2560, 1440);
  picture("storage-full_2560x1440");
}

TEST_F(StorageWindow, WritesTheFigureOverEachOfAFewCleansAndOnlyTheHighestOfMany) {
  recordCleans(4);
  openStorage();
  for (const char* const figure : {"400 MB", "2 GB", "3.6 GB", "800 MB"}) {
    EXPECT_TRUE(isWritten(figure)) << figure;
  }
  picture("storage-few-cleans");
  recordCleans(26);
  settle();
  EXPECT_TRUE(isWritten("4.4 GB"));
  EXPECT_FALSE(isWritten("3.6 GB"));
  picture("storage-many-cleans");
}

TEST_F(StorageWindow, LinksTheChartAndItsLegendByHoverBothWays) {
  openStorage();
  ASSERT_TRUE(measureToTheEnd());
  QQuickItem* chart = find("280 MB")->parentItem()->parentItem();
  // The first slice begins at the top of the ring, where it lies 13 points from the edge.
  QQuickItem* first = find("macOS and everything else");
  ASSERT_NE(first, nullptr);
  pointAt(*chart, {chart->width() / 2 + 4, 13});
  EXPECT_TRUE(isHighlighted("macOS and everything else"));
  picture("storage-hover");
  pointAt(*chart, {chart->width() / 2, chart->height() / 2});
  EXPECT_FALSE(isHighlighted("macOS and everything else"));
  pointAt(*first, first->boundingRect().center());
  EXPECT_TRUE(isHighlighted("macOS and everything else"));
}

TEST_F(StorageWindow, IsUsedFromTheKeyboardAlone) {
  openStorage();
  ASSERT_TRUE(tabTo("Measure"));
  picture("storage-focus");
  desk->walkGate.close();
  press(Qt::Key_Return);
  ASSERT_TRUE(turnUntil([this] { return desk->walkGate.waiting() > 0; }));
  EXPECT_TRUE(shows("Stop"));
  picture("storage-busy");
  desk->walkGate.open();
  ASSERT_TRUE(turnUntil([this] { return shows("Re-measure"); }));
}

class StorageWindowOfALinuxHome : public EmptyHomeWindowFixture {
 protected:
  StorageWindowOfALinuxHome() { home = linuxHome; }

  void SetUp() override {
    EmptyHomeWindowFixture::SetUp();
    for (const char* const film : {"long", "longer", "longest"}) {
      desk->disk.makeFile(home / "Videos/films" / film, std::string(film).size() * 100'000);
    }
    desk->disk.makeFile(home / "Videos/clip", 50'000);
    desk->volume.setTotalBytes(4'000'000);
    desk->volume.setAvailableBytes(1'000'000);
    shared->diskMonitor().refreshNow();
  }
};

TEST_F(StorageWindowOfALinuxHome, OpensAShareDownToItsFilesAndMovesOneToTheTrash) {
  openWindow();
  click("Storage");
  settle();
  click("Measure");
  ASSERT_TRUE(turnUntil([this] { return shows("Re-measure"); }));
  settle();
  click("Videos");
  ASSERT_TRUE(turnUntil([this] { return shows("films"); }));
  settle();
  picture("storage-drill");
  press(Qt::Key_Return);
  settle();
  ASSERT_TRUE(shows("longest"));
  EXPECT_FALSE(shows("clip"));
  press(Qt::Key_Tab);
  ASSERT_TRUE(tabTo("Move to Trash"));
  press(Qt::Key_Space);
  settle();
  EXPECT_TRUE(shows("Move “longest” to Trash?"));
  picture("storage-drill-question");
  click("Cancel");
  settle();
  EXPECT_TRUE(homeHolds("Videos/films/longest"));

  ASSERT_TRUE(tabTo("Move to Trash"));
  press(Qt::Key_Space);
  settle();
  press(Qt::Key_Tab);
  press(Qt::Key_Return);
  ASSERT_TRUE(turnUntil([this] { return shows("1 item moved to the Trash"); }));
  settle();
  EXPECT_FALSE(homeHolds("Videos/films/longest"));
  EXPECT_TRUE(homeHolds("Videos/films/longer"));
  EXPECT_EQ(trashCount(), 1U);
  picture("storage-drill-after");
  click("Restore");
  ASSERT_TRUE(turnUntil([this] { return homeHolds("Videos/films/longest"); }));
  EXPECT_TRUE(turnUntil([this] { return shows("longest"); })) << "in the folder that was open";
  EXPECT_FALSE(shows("clip"));
}

TEST_F(StorageWindow, CanBeClosedInMidMeasurement) {
  const Listing before = listing("/Users/ann/Library");
  openStorage();
  click("Measure");
  ASSERT_TRUE(shows("Stop") || shows("Re-measure"));
  closeWindow();
  EXPECT_EQ(listing("/Users/ann/Library"), before);
}

}  // namespace
}  // namespace klarvik
