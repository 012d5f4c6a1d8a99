#include "window_fixture.h"

namespace klarvik {
namespace {

QQuickItem* visibleButton(QQuickItem& item, const QString& title) {
  if (item.isVisible() && item.isEnabled() && item.property("title").toString() == title) {
    return &item;
  }
  for (QQuickItem* child : item.childItems()) {
    if (QQuickItem* found = visibleButton(*child, title)) return found;
  }
  return nullptr;
}

/// What the pane does, wherever the disk came from.
template <typename Fixture>
class WithLargeFiles : public Fixture {
 protected:
  void openLargeFiles() {
    this->openWindow();
    this->click("Large Files");
    this->settle();
  }
  /// By its whole title: rows and placeholders use the same words.
  void clickButton(const QString& title) {
    QQuickItem* const button = visibleButton(*this->window().contentItem(), title);
    ASSERT_NE(button, nullptr) << title.toStdString() << " is not there";
    this->clickAt(*button, button->boundingRect().center());
  }
  /// The first scan, and what it found put in order: with a row or a placeholder called so.
  [[nodiscard]] bool rescan(const QString& found) {
    clickButton("Rescan");
    const bool ended = this->turnUntil([this, found] {
      return !this->shows("Finds the biggest files") && !this->shows("Scanning your home folder") &&
             this->shows(found);
    });
    this->settle();
    return ended;
  }
  void addFile(const std::string& place, std::int64_t mebibytes) const {
    this->desk->disk.makeSparseFile(this->desk->files.home() / place, mebibytes * 1'048'576);
  }
};

class LargeFilesWindow : public WithLargeFiles<WindowFixture> {};
class LargeFilesWindowOverAnEmptyHome : public WithLargeFiles<EmptyHomeWindowFixture> {};

TEST_F(LargeFilesWindow, SaysWhatItIsForBeforeAScan) {
  openLargeFiles();
  EXPECT_TRUE(shows("Finds the biggest files in your home folder. Nothing is pre-selected."));
  EXPECT_TRUE(shows("No scan yet"));
  for (const char* column : {"FILE", "KIND", "LAST OPENED", "SIZE"}) EXPECT_FALSE(shows(column));
  for (const char* part : {"Over", "100 MB", "All kinds", "Size"}) EXPECT_TRUE(shows(part)) << part;
  EXPECT_FALSE(shows("Zero KB selected · 0 files"));
  picture("large-files-empty");
}

TEST_F(LargeFilesWindow, ListsTheFilesAndMovesThePickedOneToTheTrash) {
  openLargeFiles();
  const Listing before = listing("/Users/ann/Documents");
  const std::size_t trashed = trashCount();
  ASSERT_TRUE(rescan("holiday.MOV"));
  const std::string found = std::to_string(desk->sample->largeFiles);
  EXPECT_TRUE(shows(QString::fromStdString(found + " files over 100 MB in your home folder")));
  picture("large-files-full");
  window().resize(920, 640);
  picture("large-files-full_920x640");
  window().resize(2560, 1440);
  picture("large-files-full_2560x1440");
  window().resize(1180, 760);
  settle();

  clickSelectionBox("holiday.MOV");
  settle();
  EXPECT_TRUE(shows("734 MB selected · 1 file"));
  picture("large-files-selected");
  click("Move 734 MB to Trash");
  ASSERT_TRUE(turnUntil([this] { return shows("Zero KB selected"); }));
  EXPECT_TRUE(turnUntil([this] { return !shows("holiday.MOV"); }));
  EXPECT_FALSE(homeHolds("Movies/holiday.MOV"));
  EXPECT_TRUE(homeHolds("Movies/birthday.mp4"));
  EXPECT_EQ(trashCount(), trashed + 1);
  EXPECT_EQ(listing("/Users/ann/Documents"), before);
  picture("large-files-after");
}

TEST_F(LargeFilesWindow, SaysThatAFileStaysWhoseNameCameToAnotherOne) {
  openLargeFiles();
  ASSERT_TRUE(rescan("holiday.MOV"));
  const Path film = desk->disk.onDisk("/Users/ann/Movies/holiday.MOV");
  desk->disk.makeFile("/Users/ann/another film", std::string_view("nobody was shown this"));
  std::filesystem::rename(desk->disk.onDisk("/Users/ann/another film"), film);
  clickSelectionBox("holiday.MOV");
  settle();
  click("Move 734 MB to Trash");
  ASSERT_NE(waitFor("Something was left as it was"), nullptr);
  settle();
  EXPECT_TRUE(shows("1 item was left alone: something else has taken its place"));
  EXPECT_TRUE(shows("holiday.MOV"));
  EXPECT_EQ(desk->disk.contentOf("/Users/ann/Movies/holiday.MOV"), "nobody was shown this");
  picture("large-files-left-alone");
  window().resize(920, 640);
  picture("large-files-left-alone_920x640");

  ASSERT_TRUE(tabTo("Dismiss"));
  press(Qt::Key_Space);
  settle();
  EXPECT_FALSE(shows("Something was left as it was"));
}

TEST_F(LargeFilesWindow, FiltersByKindAndOrdersByName) {
  openLargeFiles();
  ASSERT_TRUE(rescan("holiday.MOV"));
  clickButton("Archive");
  EXPECT_TRUE(turnUntil([this] { return !shows("holiday.MOV"); }));
  EXPECT_TRUE(shows("2019.zip"));
  picture("large-files-filtered");
  click("All kinds");
  ASSERT_NE(waitFor("holiday.MOV"), nullptr);

  const auto isAbove = [this](const char* row, const char* other) {
    const QQuickItem* const upper = find(row);
    const QQuickItem* const lower = find(other);
    return upper && lower && upper->mapToScene({}).y() < lower->mapToScene({}).y();
  };
  ASSERT_TRUE(isAbove("holiday.MOV", "birthday.mp4"));
  click("Size");
  settle();
  picture("large-files-sort-menu");
  click("Name");
  EXPECT_TRUE(turnUntil([&] { return isAbove("birthday.mp4", "holiday.MOV"); }));
}

TEST_F(LargeFilesWindow, RevealsAFileInTheFileManager) {
  openLargeFiles();
  ASSERT_TRUE(rescan("holiday.MOV"));
  click("Show in Finder");
  EXPECT_EQ(desk->workspace.revealedItems.size(), 1U);
}

TEST_F(LargeFilesWindow, IsUsedFromTheKeyboardAlone) {
  openLargeFiles();
  ASSERT_TRUE(tabTo("Rescan"));
  press(Qt::Key_Space);
  ASSERT_TRUE(turnUntil([this] { return shows("holiday.MOV"); }));
  settle();
  ASSERT_TRUE(tabTo("100 MB"));
  press(Qt::Key_Return);
  press(Qt::Key_Escape);
  EXPECT_EQ(focused(), "100 MB") << "the menu gives the focus back";
  ASSERT_TRUE(tabTo("ubuntu.iso"));
  press(Qt::Key_Down);
  press(Qt::Key_Space);
  EXPECT_TRUE(shows("734 MB selected · 1 file"));
  picture("large-files-focus");
  press(Qt::Key_End);
  press(Qt::Key_Return);
  EXPECT_TRUE(shows("838.9 MB selected · 2 files"));
  ASSERT_TRUE(tabTo("Show in Finder"));
  ASSERT_TRUE(tabTo("birthday.mp4")) << "the row is passed over the second time";
  ASSERT_TRUE(tabTo("Move "));
  press(Qt::Key_Return);
  ASSERT_TRUE(turnUntil([this] { return !homeHolds("Movies/holiday.MOV"); }));
}

TEST_F(LargeFilesWindow, SaysThatFilesAreMeasuredUntilThereIsOne) {
  openLargeFiles();
  desk->walkGate.close();
  clickButton("Rescan");
  ASSERT_NE(waitFor("Measuring"), nullptr);
  settle();
  EXPECT_FALSE(shows("No scan yet"));
  picture("large-files-scanning");
  desk->walkGate.open();
  ASSERT_TRUE(turnUntil([this] { return shows("holiday.MOV"); }));
  EXPECT_FALSE(shows("Measuring"));
}

TEST_F(LargeFilesWindow, IsClosedDuringARemovalWithoutLosingAFile) {
  openLargeFiles();
  ASSERT_TRUE(rescan("holiday.MOV"));
  clickSelectionBox("holiday.MOV");
  settle();
  desk->trashGate.close();
  const std::size_t trashed = trashCount();
  click("Move 734 MB to Trash");
  ASSERT_TRUE(turnUntil([this] { return desk->trashGate.waiting() == 1; }));
  picture("large-files-busy");
  EXPECT_TRUE(shows("Removing 1 of 1"));
  closeWindow();
  EXPECT_FALSE(homeHolds("Movies/holiday.MOV"));
  EXPECT_EQ(trashCount(), trashed + 1);
}

TEST_F(LargeFilesWindow, ScansByItselfAtLaunch) {
  desk->defaults.remove("backgroundScanOnLaunch");
  openWindow();
  click("Large Files");
  EXPECT_TRUE(turnUntilItsTurn([this] { return shows("holiday.MOV"); }));
}

TEST_F(LargeFilesWindowOverAnEmptyHome, SaysThatNothingIsThatBig) {
  openLargeFiles();
  ASSERT_TRUE(rescan("Nothing that big"));
  EXPECT_TRUE(shows("No files over 100 MB matched."));
  click("100 MB");
  settle();
  picture("large-files-threshold-menu");
  click("1000 MB");
  settle();
  EXPECT_TRUE(shows("No files over 1000 MB matched."));
  picture("large-files-nothing");
}

TEST_F(LargeFilesWindowOverAnEmptyHome, ShowsLongOddAndForeignNamesWithoutBreakingTheRow) {
  const std::string longFolder = "Documents/" + std::string(200, 'd') + "/" + std::string(200, 'e');
  addFile(longFolder + "/" + std::string(240, 'x') + ".mov", 400);
  addFile("Documents/odd\xff\nname.zip", 300);
  addFile("Documents/\u05E9\u05DC\u05D5\u05DD.pdf", 250);
  addFile("Documents/\U0001F3AC film.mp4", 200);
  openLargeFiles();
  ASSERT_TRUE(rescan(QStringLiteral("odd\uFFFD\uFFFDname.zip")));
  window().resize(920, 640);
  picture("large-files-names_920x640");
}

TEST_F(LargeFilesWindowOverAnEmptyHome, AFileThatGoesAboveTheScreenLeavesTheRowsOnItWhereTheyAre) {
  for (int number = 0; number < 200; ++number) {
    addFile("Documents/" + std::to_string(number) + ".zip", 100 + number);
  }
  openLargeFiles();
  ASSERT_TRUE(rescan("199.zip"));
  EXPECT_FALSE(shows("0.zip"));
  clickSelectionBox("199.zip");
  for (int page = 0; page < 5; ++page) press(Qt::Key_PageDown);
  settle();
  ASSERT_FALSE(shows("199.zip"));
  QQuickItem* const row = window().activeFocusItem();
  const QString name = focused();
  const QPointF place = row->mapToScene({});
  const QQuickItem* const list = row->parentItem()->parentItem();
  ASSERT_EQ(list->property("count").toInt(), 200);
  picture("large-files-scrolled");

  click("Move ");
  ASSERT_TRUE(turnUntil([list] { return list->property("count").toInt() == 199; }));
  EXPECT_FALSE(homeHolds("Documents/199.zip"));
  settle();
  QQuickItem* const after = find(name);
  ASSERT_NE(after, nullptr);
  EXPECT_EQ(after->mapToScene({}), place);
}

}  // namespace
}  // namespace klarvik
