#include <filesystem>

#include "window_fixture.h"

namespace klarvik {
namespace {

/// What the pane does, wherever the disk came from.
template <typename Fixture>
class WithDuplicates : public Fixture {
 protected:
  void openDuplicates() {
    this->openWindow();
    this->click("Duplicates");
    this->settle();
  }
  [[nodiscard]] bool rescan() {
    this->click("Rescan");
    const bool came = this->turnUntil([this] { return this->shows("Rescan"); });
    this->settle();
    return came;
  }
  /// Files of one size are equal; the later one is the older one.
  void addFile(const std::string& place, std::int64_t mebibytes) {
    const Path path = this->desk->files.home() / place;
    this->desk->disk.makeSparseFile(path, mebibytes * 1'048'576);
    std::filesystem::last_write_time(
        this->desk->disk.onDisk(path),
        std::filesystem::file_time_type::clock::now() - std::chrono::hours(++_hours));
  }
  void clickRight(const QString& row) {
    QQuickItem* item = this->waitFor(row);
    ASSERT_NE(item, nullptr) << row.toStdString() << " is not on the screen";
    QTest::mouseClick(&this->window(), Qt::RightButton, {},
                      item->mapToScene(item->boundingRect().center()).toPoint());
    this->settle();
  }

 private:
  int _hours = 0;
};

class DuplicatesWindow : public WithDuplicates<WindowFixture> {};
class DuplicatesWindowOverAnEmptyHome : public WithDuplicates<EmptyHomeWindowFixture> {};

TEST_F(DuplicatesWindow, SaysWhatItIsForBeforeAScan) {
  openDuplicates();
  EXPECT_TRUE(shows("Compares file contents with SHA-256, not names."));
  EXPECT_TRUE(shows("Choose where to look"));
  for (const char* column : {"FILE", "COPIES", "EACH", "RECLAIMABLE"}) {
    EXPECT_FALSE(shows(column)) << "over no rows";
  }
  for (const char* part : {"Folders", "Documents", "Downloads", "Desktop", "Add folder…", "Keep",
                           "Newest copy", "Min size 1 MB", "Add a folder…"}) {
    EXPECT_TRUE(shows(part)) << part;
  }
  EXPECT_FALSE(shows("Delete Zero KB"));
  picture("duplicates-empty");
  window().resize(920, 640);
  picture("duplicates-empty_920x640");
}

TEST_F(DuplicatesWindow, FindsEqualFilesAndMovesAllButOneToTheTrash) {
  openDuplicates();
  const Listing music = listing("/Users/ann/Music");
  const std::size_t trashed = trashCount();
  ASSERT_TRUE(rescan());
  picture("duplicates-full");
  window().resize(920, 640);
  picture("duplicates-full_920x640");
  window().resize(2560, 1440);
  picture("duplicates-full_2560x1440");
  window().resize(1180, 760);
  settle();

  const std::size_t before = listing("/Users/ann").size();
  click("Delete ");
  ASSERT_TRUE(turnUntil([this] { return shows("No duplicates"); }));
  settle();
  EXPECT_GT(trashCount(), trashed);
  EXPECT_EQ(listing("/Users/ann/Music"), music);
  EXPECT_GE(listing("/Users/ann").size(), before);
  EXPECT_TRUE(shows("No duplicates"));
  ASSERT_TRUE(turnUntil([this] { return shows("Restore"); }));
  EXPECT_EQ(trashCount(), trashed + 1);
  EXPECT_TRUE(shows("1 item moved to the Trash"));
  picture("duplicates-after");

  click("Restore");
  ASSERT_TRUE(turnUntil([this] { return !shows("Restore"); }));
  ASSERT_TRUE(turnUntil([&] { return trashCount() == trashed; }));
  settle();
  EXPECT_TRUE(shows("1 item is back where it was"));
  ASSERT_TRUE(turnUntil([this] { return shows("1 groups"); })) << "what is there again is told";
  EXPECT_FALSE(shows("No duplicates"));
  picture("duplicates-restored");
  click("Dismiss");
  settle();
  EXPECT_FALSE(shows("1 item is back where it was"));
}

TEST_F(DuplicatesWindowOverAnEmptyHome, KeepsTheCopyThatTheUserNames) {
  addFile("Documents/report.pdf", 5);
  addFile("Downloads/report copy.pdf", 5);
  addFile("Desktop/report old.pdf", 5);
  openDuplicates();
  ASSERT_TRUE(rescan());
  EXPECT_TRUE(shows("report copy.pdf, 5.2 MB, delete, ~/Downloads/"));
  clickRight("report copy.pdf, 5.2 MB");
  EXPECT_TRUE(shows("Keep this copy instead"));
  picture("duplicates-menu");
  click("Keep this copy instead");
  settle();
  EXPECT_TRUE(shows("report copy.pdf, 5.2 MB, keep, ~/Downloads/"));
  QQuickItem* row = find("report copy.pdf, 5.2 MB, keep");
  ASSERT_NE(row, nullptr);
  EXPECT_TRUE(row->hasActiveFocus());
  EXPECT_FALSE(row->property("isMarked").toBool()) << "no key was used";
  press(Qt::Key_Down);
  EXPECT_FALSE(row->hasActiveFocus());
  EXPECT_TRUE(find(focused())->property("isMarked").toBool());
  EXPECT_TRUE(shows("report.pdf, 5.2 MB, delete, ~/Documents/"));
  clickSelectionBox("report old.pdf, 5.2 MB");
  settle();
  EXPECT_TRUE(shows("5.2 MB selected · 1 copies"));
  EXPECT_TRUE(shows("Duplicates · 10.5 MB reclaimable"));
  picture("duplicates-partial");
  click("Delete 5.2 MB");
  ASSERT_TRUE(turnUntil([this] { return !homeHolds("Documents/report.pdf"); }));
  EXPECT_TRUE(turnUntil([this] { return shows("1 groups · 1 extra copies"); }));
  EXPECT_TRUE(homeHolds("Downloads/report copy.pdf"));
  EXPECT_TRUE(homeHolds("Desktop/report old.pdf"));
  EXPECT_EQ(trashCount(), 1U);
}

TEST_F(DuplicatesWindowOverAnEmptyHome, ChangesTheRuleAndTheFolders) {
  addFile("Documents/new.pdf", 5);
  addFile("Downloads/old.pdf", 5);
  openDuplicates();
  ASSERT_TRUE(rescan());
  click("Newest copy");
  settle();
  picture("duplicates-rule-menu");
  click("Oldest copy");
  settle();
  EXPECT_TRUE(shows("old.pdf, 5.2 MB, keep"));

  click("Add folder…");
  ASSERT_EQ(desk->openPanel.requests.size(), 1U);
  addFile("Music/third.pdf", 5);
  desk->openPanel.choose({"/Users/ann/Music"});
  ASSERT_TRUE(turnUntil([this] { return shows("1 groups · 2 extra copies"); }));
  click("Downloads");
  settle();
  EXPECT_FALSE(shows("Downloads"));
  EXPECT_TRUE(shows("Music"));
  for (const char* folder : {"Documents", "Desktop", "Music"}) {
    click(folder);
    settle();
  }
  EXPECT_TRUE(shows("Music")) << "the last folder stays";
  EXPECT_NE(waitFor("~/Music — the last folder cannot be removed"), nullptr);
  picture("duplicates-one-folder");
}

TEST_F(DuplicatesWindowOverAnEmptyHome, AFolderTakenAwayCanBePutBack) {
  openDuplicates();
  EXPECT_FALSE(shows("Undo"));
  click("Downloads");
  settle();
  EXPECT_FALSE(shows("Downloads"));
  picture("duplicates-undo");
  click("Undo");
  settle();
  EXPECT_TRUE(shows("Downloads"));
  EXPECT_FALSE(shows("Undo"));
  EXPECT_LT(find("Downloads")->mapToScene({}).x(), find("Desktop")->mapToScene({}).x());
}

TEST_F(DuplicatesWindowOverAnEmptyHome, LeftAndRightCloseAndOpenAGroup) {
  addFile("Documents/report.pdf", 5);
  addFile("Downloads/report copy.pdf", 5);
  openDuplicates();
  ASSERT_TRUE(rescan());
  ASSERT_TRUE(tabTo("report.pdf, 2 copies"));
  press(Qt::Key_Right);
  EXPECT_TRUE(shows("report copy.pdf, 5.2 MB")) << "stands open already";
  press(Qt::Key_End);
  press(Qt::Key_Left);
  EXPECT_EQ(focused(), "report.pdf, 2 copies, 5.2 MB reclaimable");
  press(Qt::Key_Left);
  settle();
  EXPECT_FALSE(shows("report copy.pdf, 5.2 MB"));
  press(Qt::Key_Right);
  settle();
  EXPECT_TRUE(shows("report copy.pdf, 5.2 MB"));
}

TEST_F(DuplicatesWindowOverAnEmptyHome, ManyFoldersLeaveRoomForWhatStandsBehindThem) {
  openDuplicates();
  click("Add folder…");
  std::vector<Path> folders;
  for (int number = 0; number < 20; ++number) {
    folders.push_back("/Users/ann/A rather long folder name " + std::to_string(number));
  }
  desk->openPanel.choose(folders);
  window().resize(920, 640);
  settle();
  EXPECT_TRUE(shows("Min size 1 MB"));
  EXPECT_LE(find("Min size 1 MB")->mapToScene({}).x() + find("Min size 1 MB")->width(), 920);
  EXPECT_FALSE(shows("A rather long folder name 19"));
  picture("duplicates-many-folders_920x640");
  ASSERT_TRUE(tabTo("+")) << "says how many more there are";
  press(Qt::Key_Space);
  settle();
  EXPECT_TRUE(shows("A rather long folder name 19"));
  EXPECT_TRUE(shows("Min size 1 MB"));
  picture("duplicates-all-folders_920x640");
  click("Fewer");
  settle();
  EXPECT_FALSE(shows("A rather long folder name 19"));
}

TEST_F(DuplicatesWindowOverAnEmptyHome, IsUsedFromTheKeyboardAlone) {
  addFile("Documents/report.pdf", 5);
  addFile("Downloads/report copy.pdf", 5);
  openDuplicates();
  ASSERT_TRUE(tabTo("Rescan"));
  press(Qt::Key_Space);
  ASSERT_TRUE(turnUntil([this] { return shows("report copy.pdf, 5.2 MB"); }));
  settle();
  ASSERT_TRUE(tabTo("report.pdf, 2 copies"));
  press(Qt::Key_Return);
  settle();
  EXPECT_FALSE(shows("report copy.pdf, 5.2 MB"));
  press(Qt::Key_Return);
  settle();
  press(Qt::Key_End);
  press(Qt::Key_Space);
  EXPECT_TRUE(shows("Zero KB selected · 0 copies"));
  picture("duplicates-focus");
  press(Qt::Key_Menu);
  settle();
  press(Qt::Key_Return);
  settle();
  EXPECT_TRUE(shows("report copy.pdf, 5.2 MB, keep"));
  ASSERT_TRUE(tabTo("Delete "));
  press(Qt::Key_Return);
  ASSERT_TRUE(turnUntil([this] { return !homeHolds("Documents/report.pdf"); }));
  EXPECT_TRUE(homeHolds("Downloads/report copy.pdf"));
}

TEST_F(DuplicatesWindow, SaysThatFilesAreHashedUntilThereIsAGroup) {
  openDuplicates();
  desk->walkGate.close();
  click("Rescan");
  ASSERT_NE(waitFor("Hashing files"), nullptr);
  ASSERT_NE(waitFor("5%"), nullptr) << "how far it is";
  settle();
  EXPECT_FALSE(shows("Choose where to look"));
  picture("duplicates-scanning");
  desk->walkGate.open();
  ASSERT_TRUE(turnUntil([this] { return shows("Rescan"); }));
  EXPECT_FALSE(shows("Hashing files"));
  EXPECT_FALSE(shows("No duplicates"));
}

TEST_F(DuplicatesWindowOverAnEmptyHome, IsClosedDuringADeletionWithoutLosingAFile) {
  addFile("Documents/report.pdf", 5);
  addFile("Downloads/report copy.pdf", 5);
  openDuplicates();
  ASSERT_TRUE(rescan());
  desk->trashGate.close();
  click("Delete 5.2 MB");
  ASSERT_TRUE(turnUntil([this] { return desk->trashGate.waiting() == 1; }));
  EXPECT_TRUE(shows("Removing 1 of 1"));
  picture("duplicates-busy");
  closeWindow();
  EXPECT_TRUE(homeHolds("Documents/report.pdf"));
  EXPECT_EQ(homeHolds("Downloads/report copy.pdf"), trashCount() == 0);
}

TEST_F(DuplicatesWindowOverAnEmptyHome, ShowsLongOddAndForeignNamesWithoutBreakingTheRow) {
  addFile("Documents/" + std::string(200, 'd') + "/" + std::string(240, 'x') + ".mov", 2);
  addFile("Documents/odd\xff\nname.zip", 2);
  addFile("Documents/\u05E9\u05DC\u05D5\u05DD.pdf", 2);
  addFile("Documents/\U0001F3AC film.mp4", 2);
  openDuplicates();
  ASSERT_TRUE(rescan());
  EXPECT_TRUE(shows(QStringLiteral("odd\uFFFD\uFFFDname.zip")));
  window().resize(920, 640);
  picture("duplicates-names_920x640");
}

TEST_F(DuplicatesWindow, ScansByItselfAtLaunch) {
  desk->defaults.remove("backgroundScanOnLaunch");
  openWindow();
  click("Duplicates");
  EXPECT_TRUE(turnUntilItsTurn([this] { return shows("Duplicates · "); }));
}

}  // namespace
}  // namespace klarvik
