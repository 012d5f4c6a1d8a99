#include "window_fixture.h"

namespace klarvik {
namespace {

class SidebarWindow : public WindowFixture {
 protected:
  [[nodiscard]] bool trashIsMeasured() {
    return turnUntil([this] { return !shared->trashMonitor().isMeasuring(); });
  }
};
class SidebarWindowOverAnEmptyHome : public EmptyHomeWindowFixture {};

TEST_F(SidebarWindow, ListsEverySectionBelowItsHeading) {
  openWindow();
  for (const char* row : {"Smart Scan", "STORAGE", "Storage", "Duplicates", "Large Files",
                          "System Data", "APPS", "Uninstaller", "Privacy"}) {
    EXPECT_TRUE(shows(row)) << row;
  }
}

TEST_F(SidebarWindow, SaysHowFullTheDiskIs) {
  openWindow();
  EXPECT_TRUE(shows("Macintosh HD"));
  EXPECT_TRUE(shows("60% full"));
  EXPECT_TRUE(shows("200 GB free of 500 GB"));
  desk->volume.setAvailableBytes(20'000'000'000);
  shared->diskMonitor().refreshNow();
  settle();
  EXPECT_TRUE(shows("96% full"));
  picture("disk_nearly_full");
}

TEST_F(SidebarWindow, EmptiesTheTrashAfterAskingAndTouchesNothingElse) {
  openWindow();
  ASSERT_TRUE(trashIsMeasured());
  const std::size_t entries = desk->sample->trashEntries;
  ASSERT_GT(entries, 1U);
  settle();
  EXPECT_TRUE(shows("Empty"));
  picture("trash_full");
  const Listing before = listing();

  click("Empty");
  settle();
  EXPECT_TRUE(shows("Empty the Trash?"));
  EXPECT_TRUE(shows(QString("%1 items · ").arg(entries)));
  picture("trash_dialog");
  click("Cancel");
  settle();
  EXPECT_FALSE(shared->trashMonitor().isEmptying());
  EXPECT_EQ(listing(), before);

  click("Empty");
  settle();
  click("Empty Trash");
  ASSERT_TRUE(turnUntil([this] {
    return !shared->trashMonitor().isEmptying() && shared->trashMonitor().itemCount() == 0;
  }));
  settle();
  EXPECT_EQ(trashCount(), 0U);
  picture("trash_empty");
  for (const auto& [place, size] : before) {
    const bool isTrash =
        place.find(".Trash") != std::string::npos || place.find("share/Trash") != std::string::npos;
    EXPECT_TRUE(isTrash || desk->disk.holds("/" + place)) << place;
  }
}

TEST_F(SidebarWindow, ShowsTheTrashWhenPressedBesideItsButton) {
  openWindow();
  ASSERT_TRUE(trashIsMeasured());
  QQuickItem* block = find("Trash, ");
  ASSERT_NE(block, nullptr);
  clickAt(*block, QPointF(20, block->height() / 2));
  EXPECT_EQ(desk->workspace.openedFolders,
            std::vector<Path>{desk->desktop.trash.folders().front()});
}

class TrashOfALinuxDisk : public EmptyHomeWindowFixture {
 protected:
  TrashOfALinuxDisk() { home = "/home/ann"; }
};

TEST_F(TrashOfALinuxDisk, IsEmptiedFromTheTrayOnlyOnceTheUserHasAgreed) {
  desk->disk.makeFile(home / ".local/share/Trash/files/film", 2'000'000);
  openWindow();
  const TrashMonitor& trash = shared->trashMonitor();
  ASSERT_TRUE(turnUntil([&] { return trash.itemCount() > 0 && !trash.isMeasuring(); }));
  constexpr std::size_t emptyTrash = 1;
  desk->statusItem.choose(emptyTrash);
  ASSERT_NE(waitFor("Empty the Trash?"), nullptr);
  settle();
  picture("trash_confirmation");
  EXPECT_LT(find("Cancel")->mapToScene({}).x(), find("Empty Trash")->mapToScene({}).x());
  click("Cancel");
  settle();
  EXPECT_TRUE(homeHolds(".local/share/Trash/files/film"));
  desk->statusItem.choose(emptyTrash);
  ASSERT_NE(waitFor("Empty the Trash?"), nullptr);
  settle();
  click("Empty Trash");
  EXPECT_TRUE(turnUntil([this] { return !homeHolds(".local/share/Trash/files/film"); }));
}

TEST_F(SidebarWindowOverAnEmptyHome, OffersNothingForAnEmptyTrash) {
  openWindow();
  ASSERT_TRUE(turnUntil([this] { return !shared->trashMonitor().isMeasuring(); }));
  EXPECT_TRUE(shows("Trash, Empty"));
  EXPECT_FALSE(shows("Empty Trash"));
}

TEST_F(SidebarWindow, ShowsThePercentageOfARunningScanAndThenWhatItFound) {
  desk->commands.holdAt("docker", desk->commandGate);
  desk->commandGate.close();
  openWindow();
  click("Scan");
  ASSERT_TRUE(turnUntil([this] {
    return desk->commandGate.waiting() == 1 &&
           app->appState().scanActivity().categoryName == "Docker";
  }));
  const auto percent =
      static_cast<int>(std::get<AppState::Scanning>(app->appState().scanState()).progress * 100);
  EXPECT_TRUE(shows(QString("Smart Scan, %1%").arg(percent)));
  desk->commandGate.open();
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
  const QString size =
      QString::fromStdString(desk->formatting.byteText(app->appState().totalSpaceFreeable()));
  EXPECT_TRUE(shows("Smart Scan, " + size));
  desk->clock.advance(std::chrono::seconds(7));
  settle();
  EXPECT_TRUE(shows("Smart Scan, " + size));
}

TEST_F(SidebarWindow, AnotherSectionDuringAScanLeavesItRunningWhereNoClickReachesIt) {
  desk->commands.holdAt("docker", desk->commandGate);
  desk->commandGate.close();
  openWindow();
  click("Scan");
  ASSERT_TRUE(turnUntil([this] { return desk->commandGate.waiting() == 1; }));
  const QQuickItem* stop = waitFor("Stop");
  ASSERT_NE(stop, nullptr);
  const QPoint place = stop->mapToScene(stop->boundingRect().center()).toPoint();

  // Its panes lie above that of the scan, and the one of Privacy above all others.
  click("Storage");
  settle();
  const QQuickItem* measure = find("Measure");
  ASSERT_NE(measure, nullptr);
  ASSERT_TRUE(measure->mapRectToScene(measure->boundingRect()).contains(place));
  QTest::mouseClick(&window(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(shows("Stop") || shows("Re-measure")) << "the pane in sight heard nothing of it";
  EXPECT_TRUE(is<AppState::Scanning>());
  EXPECT_EQ(shared->toolActivity().state("privacy"), ToolActivity::State(ToolActivity::Idle{}));

  desk->commandGate.open();
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
  click("Smart Scan");
  settle();
  EXPECT_TRUE(shows("App Caches"));
  EXPECT_TRUE(shows("Clean "));
}

TEST_F(SidebarWindow, ForgetsTheKeysThatAFormerFeatureLeftBehind) {
  desk->defaults.set("clean_schedule", std::string("weekly"));
  desk->defaults.set("last_auto_clean", std::int64_t{5});
  openWindow();
  EXPECT_FALSE(desk->defaults.object("clean_schedule"));
  EXPECT_FALSE(desk->defaults.object("last_auto_clean"));
}

TEST_F(SidebarWindow, ReadsTheDiskAnewWhenTheApplicationComesToTheFront) {
  openWindow();
  desk->volume.setAvailableBytes(100'000'000'000);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
  settle();
  EXPECT_TRUE(shows("80% full"));
}

}  // namespace
}  // namespace klarvik
