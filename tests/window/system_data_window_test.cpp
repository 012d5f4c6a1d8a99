#include "window_fixture.h"

namespace klarvik {
namespace {

class SystemDataWindow : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    makeFile("Library/Caches/com.acme.reader/data", 30);
    makeFile("Library/Application Support/Studio/library", 24);
    makeFile("Library/Preferences/com.acme.settings", 12);
    makeFile("Library/Mobile Documents/Letters/all", 14);
    makeFile(".npm/cache", 18);
  }
  void makeFile(const std::string& place, std::int64_t megabytes) {
    desk->disk.makeFile(desk->files.home() / place, megabytes * 1'000'000);
  }
  void openSystemData() {
    openWindow();
    click("System Data");
    settle();
  }
  [[nodiscard]] bool analyseToTheEnd() {
    click("Analyse");
    const bool came = turnUntil([this] { return shows("Re-analyse"); });
    settle();
    return came;
  }
  void pointAt(QQuickItem& item, QPointF place) {
    QTest::mouseMove(&window(), item.mapToScene(place).toPoint());
    settle();
  }
  [[nodiscard]] bool isHighlighted(const QString& row) {
    const QQuickItem* item = find(row);
    return item != nullptr && item->property("isHighlighted").toBool();
  }
};

TEST_F(SystemDataWindow, SaysWhatAnAnalysisWillLookAt) {
  openSystemData();
  for (const char* text :
       {"WHAT THE ANALYSIS WILL LOOK AT",
        "Device backups, Mail downloads, Homebrew and other caches, Safe to remove",
        "Local Time Machine snapshots, Review first",
        "Swap, iCloud local copies, system frameworks, Shown, not offered",
        "Walking these folders takes about 40 seconds, which is why it is not part of a normal "
        "scan. It reads sizes only — nothing is selected, moved or deleted until you say so.",
        "System Data · after analysis, Unknown until it is measured"}) {
    EXPECT_TRUE(shows(text)) << text;
  }
  EXPECT_FALSE(shows("Needs Full Disk Access"));
  EXPECT_FALSE(shows("Nothing selected"));
  picture("system_data-empty");
}

TEST_F(SystemDataWindow, SaysThatThePermissionIsMissing) {
  desk->denyFullDiskAccess();
  shared->permissionsManager().refreshAccess();
  openSystemData();
  EXPECT_TRUE(shows("Needs Full Disk Access, Not granted"));
  picture("system_data-no_access");
}

TEST_F(SystemDataWindow, ShowsAnAnalysisWhileItRuns) {
  desk->commands.holdAt("tmutil", desk->commandGate);
  desk->commandGate.close();
  openSystemData();
  click("Analyse");
  ASSERT_TRUE(turnUntil([this] { return shows("Scanning Time Machine..."); }));
  EXPECT_TRUE(shows("Stop"));
  picture("system_data-busy");
  click("Stop");
  settle();
  EXPECT_TRUE(shows("WHAT THE ANALYSIS WILL LOOK AT"));
}

TEST_F(SystemDataWindow, MovesASelectedRowToTheTrashAfterAskingAndEmptiesIt) {
  openSystemData();
  const Listing before = listing();
  ASSERT_TRUE(analyseToTheEnd());
  EXPECT_EQ(listing(), before);
  EXPECT_TRUE(shows("Nothing selected"));
  picture("system_data-full");

  click("App Caches");
  settle();
  EXPECT_TRUE(shows("WHAT IT IS"));
  picture("system_data-open");
  clickSelectionBox("Acme.reader");
  settle();
  EXPECT_TRUE(shows("1 items"));
  picture("system_data-selected");
  window().resize(920, 640);
  picture("system_data-selected_920x640");
  window().resize(2560, 1440);
  picture("system_data-selected_2560x1440");
  window().resize(1080, 720);

  click("30 MB to Trash");
  settle();
  EXPECT_TRUE(shows("Move 1 item to Trash?"));
  picture("system_data-dialog");
  click("Cancel");
  settle();
  EXPECT_FALSE(shows("Removing "));
  EXPECT_EQ(listing(), before);

  const std::size_t trashed = trashCount();
  click("30 MB to Trash");
  settle();
  click("Move to Trash");
  ASSERT_TRUE(turnUntil([this] { return shows("1 item moved to Trash · 30 MB"); }));
  settle();
  EXPECT_FALSE(homeHolds("Library/Caches/com.acme.reader"));
  EXPECT_TRUE(homeHolds("Library/Application Support/Studio"));
  EXPECT_EQ(trashCount(), trashed + 1);
  EXPECT_FALSE(shows("Acme.reader"));
  EXPECT_TRUE(shows("The Trash still holds this space until you empty it."));
  picture("system_data-after");

  click("Empty Trash");
  ASSERT_TRUE(turnUntil([this] { return shows("The space is back."); }));
  EXPECT_EQ(trashCount(), 0U);
  picture("system_data-space_back");
  click("Dismiss");
  settle();
  EXPECT_FALSE(shows("The space is back."));
}

TEST_F(SystemDataWindow, GivesProtectedRowsNoBoxThatWorks) {
  openSystemData();
  ASSERT_TRUE(analyseToTheEnd());
  QQuickItem* kind = waitFor("Preferences & Config");
  ASSERT_NE(kind, nullptr);
  EXPECT_FALSE(kind->property("canToggle").toBool());
  clickAt(*kind, QPointF(32, kind->height() / 2));
  settle();
  QQuickItem* item = waitFor("User Preferences");
  ASSERT_NE(item, nullptr);
  clickAt(*item, QPointF(58, item->height() / 2));
  clickAt(*item, item->boundingRect().center());
  settle();
  EXPECT_TRUE(shows("Nothing selected"));
  EXPECT_TRUE(shows("User Preferences, 12"));
}

TEST_F(SystemDataWindow, LinksTheChartAndTheRowsByHoverBothWays) {
  openSystemData();
  ASSERT_TRUE(analyseToTheEnd());
  QQuickItem* largest = waitFor("VM & Swap, ");
  ASSERT_NE(largest, nullptr);
  pointAt(*largest, QPointF(300, largest->height() / 2));
  EXPECT_TRUE(isHighlighted("VM & Swap, "));
  picture("system_data-hover");
  const QString total = find("System Data · ")->property("title").toString().section("· ", 1);
  QQuickItem* chart = find(total)->parentItem()->parentItem();
  pointAt(*chart, QPointF(chart->width() / 2, chart->height() / 2));
  EXPECT_FALSE(isHighlighted("VM & Swap, "));
  // The first slice begins at the top of the ring.
  pointAt(*chart, QPointF(chart->width() / 2 + 4, 11));
  EXPECT_TRUE(isHighlighted("VM & Swap, "));
}

TEST_F(SystemDataWindow, IsUsedFromTheKeyboardAlone) {
  openSystemData();
  ASSERT_TRUE(tabTo("Analyse"));
  press(Qt::Key_Space);
  ASSERT_TRUE(turnUntil([this] { return shows("Re-analyse"); }));
  settle();
  ASSERT_TRUE(tabTo("VM & Swap"));
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  settle();
  EXPECT_TRUE(shows("WHAT IT IS"));
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Space);
  settle();
  EXPECT_TRUE(shows("1 items"));
  picture("system_data-keyboard");
  ASSERT_TRUE(tabTo("30 MB to Trash"));
  press(Qt::Key_Return);
  settle();
  EXPECT_TRUE(shows("Move 1 item to Trash?"));
  press(Qt::Key_Escape);
  settle();
  EXPECT_FALSE(shows("Move 1 item to Trash?"));
  EXPECT_FALSE(shows("Removing "));
  EXPECT_TRUE(homeHolds("Library/Caches/com.acme.reader"));
}

TEST_F(SystemDataWindow, HomeEndAndThePageKeysMoveThroughTheKinds) {
  openSystemData();
  ASSERT_TRUE(analyseToTheEnd());
  expectPageKeysToMoveThroughTheRowsFrom("VM & Swap");
}

TEST_F(SystemDataWindow, ClosedDuringARemovalFinishesTheFileInHand) {
  openSystemData();
  ASSERT_TRUE(analyseToTheEnd());
  click("App Caches");
  settle();
  clickSelectionBox("Acme.reader");
  desk->trashGate.close();
  click("30 MB to Trash");
  settle();
  click("Move to Trash");
  ASSERT_TRUE(turnUntil([this] { return desk->trashGate.waiting() > 0; }));
  settle();
  EXPECT_TRUE(shows("Removing "));
  picture("system_data-removing");
  const std::size_t trashed = trashCount();
  closeWindow();
  EXPECT_FALSE(homeHolds("Library/Caches/com.acme.reader"));
  EXPECT_EQ(trashCount(), trashed + 1);
}

}  // namespace
}  // namespace klarvik
