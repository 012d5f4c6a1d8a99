#include <QUrl>
#include <algorithm>
#include <fstream>
#include <set>
#include <string>

#include "window_fixture.h"

namespace klarvik {
namespace {

class SmartScanWindow : public WindowFixture {
 protected:
  /// Where the things come from that wait in the Trash of the home, each whole with its record.
  [[nodiscard]] std::set<Path> trashedItems() const {
    std::set<Path> origins;
    const Path trash = desk->files.home() / ".local/share/Trash";
    for (const auto& record :
         std::filesystem::directory_iterator(desk->disk.onDisk(trash / "info"))) {
      if (!desk->disk.holds(trash / "files" / record.path().stem())) continue;
      std::ifstream lines(record.path());
      for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("Path=")) continue;
        origins.insert(QByteArray::fromPercentEncoding(line.substr(5).c_str()).toStdString());
      }
    }
    return origins;
  }
};
class SmartScanWindowOverAnEmptyHome : public EmptyHomeWindowFixture {};

TEST_F(SmartScanWindow, PreviewsWhatAScanLooksAt) {
  openWindow();
  EXPECT_EQ(window().title(), "Klarvik");
  EXPECT_EQ(window().minimumSize(), QSize(920, 640));
  EXPECT_TRUE(shows("WHAT A SCAN LOOKS AT"));
  for (const CategoryType type : allCategoryTypes()) {
    EXPECT_TRUE(shows(QString::fromStdString(std::string(rawValue(type)))));
  }
  EXPECT_TRUE(
      shows("Nothing is deleted by a scan. Items move to the Trash, never straight to "
            "permanent deletion, and system folders are refused outright."));
  EXPECT_FALSE(shows("Clean "));
  EXPECT_FALSE(shows("FOUND BY THE OTHER TOOLS"));
  picture("idle_preview");
  window().resize(920, 640);
  picture("idle_preview_920x640");
  window().resize(1600, 1000);
  picture("idle_preview_1600x1000");
}

TEST_F(SmartScanWindow, ShowsAScanWhileItRunsAndKeepsWhatArrivedWhenStopped) {
  desk->commands.holdAt("docker", desk->commandGate);
  desk->commandGate.close();
  openWindow();
  click("Scan");
  ASSERT_TRUE(turnUntil([this] {
    return desk->commandGate.waiting() == 1 &&
           app->appState().scanActivity().categoryName == "Docker";
  }));
  EXPECT_TRUE(shows("Scanning 9 of 11 categories"));
  EXPECT_TRUE(shows("FOUND SO FAR"));
  picture("scanning");
  window().resize(920, 640);
  picture("scanning_920x640");
  const auto found = app->appState().scanResults().size();
  ASSERT_GT(found, 3U);

  click("Stop");
  EXPECT_TRUE(is<AppState::Done>());
  EXPECT_EQ(app->appState().scanResults().size(), found);
  EXPECT_TRUE(shows("Rescan"));
}

TEST_F(SmartScanWindow, OpensACategoryShowsTheRestAndClosesIt) {
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  EXPECT_TRUE(shows("Everything selected is marked Safe. Items move to the Trash."));
  picture("done");
  window().resize(920, 640);
  picture("done_920x640");
  window().resize(1600, 1000);
  picture("done_1600x1000");

  click("App Caches");
  settle();
  EXPECT_TRUE(shows("com.spotify.client"));
  EXPECT_TRUE(shows("Show 2 more"));
  picture("expanded");
  click("Show 2 more");
  settle();
  EXPECT_TRUE(shows("CocoaPods"));
  EXPECT_FALSE(shows("Show 2 more"));
  picture("expanded_all");
  click("App Caches");
  settle();
  EXPECT_FALSE(shows("com.spotify.client"));
}

TEST_F(SmartScanWindow, RevealsAnItemInTheFileManager) {
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  click("App Caches");
  settle();
  click("Show in Finder");
  ASSERT_EQ(desk->workspace.revealedItems.size(), 1U);
  EXPECT_EQ(desk->workspace.revealedItems.front().parent_path(),
            desk->files.home() / "Library/Caches");
}

TEST_F(SmartScanWindow, CleansSafeItemsWithoutAskingAndTakesThemBack) {
  openWindow();
  const Listing before = listing("/Users/ann/Library/Caches");
  ASSERT_TRUE(scanToTheEnd());
  ASSERT_TRUE(homeHolds("Library/Caches/com.spotify.client"));
  click("App Caches");
  clickSelectionBox("com.spotify.client");
  settle();
  picture("one_deselected");
  click("Clean ");
  EXPECT_FALSE(shows("Your selection includes Review items."));
  ASSERT_TRUE(turnUntil([this] { return is<AppState::CleanDone>(); }));
  settle();
  EXPECT_TRUE(homeHolds("Library/Caches/com.spotify.client"));
  EXPECT_FALSE(homeHolds("Library/Caches/com.acme.writer"));
  EXPECT_TRUE(shows("Restore"));
  picture("cleaned_banner");
  window().resize(920, 640);
  picture("cleaned_banner_920x640");

  const auto restorable = app->appState().lastClean()->restorable;
  ASSERT_FALSE(restorable.empty());
  click("Restore");
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
  for (const TrashedItem& item : restorable) {
    EXPECT_TRUE(desk->disk.holds(item.original)) << item.original;
  }
  EXPECT_FALSE(shows("Restore"));
  EXPECT_EQ(listing("/Users/ann/Library/Caches"), before);
}

TEST_F(SmartScanWindow, AsksBeforeReviewItemsGoAndCancelChangesNothing) {
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  clickSelectionBox("Xcode Archives");
  const std::int64_t selected = app->appState().selectedCount();
  const Listing before = listing();
  click("Clean ");
  settle();
  EXPECT_TRUE(shows("Your selection includes Review items"));
  picture("review_dialog");
  click("Cancel");
  settle();
  EXPECT_FALSE(shows("Clean anyway"));
  EXPECT_TRUE(is<AppState::Done>());
  EXPECT_EQ(app->appState().selectedCount(), selected);
  EXPECT_EQ(listing(), before);

  click("Clean ");
  settle();
  press(Qt::Key_Escape);
  settle();
  EXPECT_FALSE(shows("Clean anyway"));
  EXPECT_TRUE(is<AppState::Done>());
  EXPECT_EQ(listing(), before);

  click("Clean ");
  settle();
  click("Clean anyway");
  ASSERT_TRUE(turnUntil([this] { return is<AppState::CleanDone>(); }));
  EXPECT_FALSE(app->appState().lastClean()->cleanedCategories.empty());
  EXPECT_TRUE(app->appState().lastClean()->cleanedCategories.contains(CategoryType::xcodeArchives));
}

TEST_F(SmartScanWindow, StopsACleanAndTellsWhatWentUntilThen) {
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  desk->trashGate.close();
  click("Clean ");
  ASSERT_TRUE(turnUntil([this] { return desk->trashGate.waiting() > 0; }));
  settle();
  EXPECT_TRUE(shows("Cleaning…"));
  EXPECT_TRUE(shows("Removing "));
  picture("cleaning");
  click("Stop");
  desk->trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return is<AppState::CleanDone>(); }));
  const AppState::CleanSummary& summary = *app->appState().lastClean();
  for (const TrashedItem& item : summary.restorable) {
    EXPECT_FALSE(desk->disk.holds(item.original));
    EXPECT_TRUE(desk->disk.holds(item.trashed));
  }
  EXPECT_FALSE(app->appState().scanResults().empty());
}

TEST_F(SmartScanWindow, QuittingDuringARemovalFinishesTheItemInHandAndLosesNothing) {
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  std::vector<Path> selected;
  for (const CleanCategory& category : app->appState().scanResults()) {
    for (const JunkItem& item : category.items) {
      if (app->appState().selectedItems().contains(item.id) &&
          category.type != CategoryType::trashBin && desk->disk.holds(item.path)) {
        selected.push_back(item.path);
      }
    }
  }
  desk->trashGate.close();
  click("Clean ");
  ASSERT_TRUE(turnUntil([this] { return desk->trashGate.waiting() > 0; }));
  closeWindow();
  const std::set<Path> trashed = trashedItems();
  for (const Path& item : selected) {
    EXPECT_NE(desk->disk.holds(item), trashed.contains(desk->disk.onDisk(item))) << item;
  }
  EXPECT_TRUE(
      std::ranges::any_of(selected, [&](const Path& item) { return !desk->disk.holds(item); }));
}

TEST_F(SmartScanWindowOverAnEmptyHome, SaysThatNothingIsWorthRemoving) {
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  settle();
  EXPECT_TRUE(shows("Nothing worth removing"));
  EXPECT_TRUE(shows("Klarvik found no junk in the places it looks."));
  EXPECT_FALSE(shows("Clean "));
  picture("nothing_found");
}

TEST_F(SmartScanWindowOverAnEmptyHome, ShowsALongNameAndAnOddOneWithoutBreakingTheRow) {
  const std::string longName(240, 'x');
  desk->disk.makeFile(desk->files.home() / "Library/Caches" / longName / "data", 3'000'000);
  desk->disk.makeFile(desk->files.home() / "Library/Caches" / "odd\xff\nname" / "data", 2'000'000);
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  click("App Caches");
  settle();
  EXPECT_TRUE(shows(QStringLiteral("odd\uFFFD\uFFFDname")));
  picture("long_names");
  click("Clean ");
  ASSERT_TRUE(turnUntil([this] { return is<AppState::CleanDone>(); }));
  EXPECT_FALSE(desk->disk.holds(desk->files.home() / "Library/Caches" / "odd\xff\nname"));
}

TEST_F(SmartScanWindow, IsUsedFromTheKeyboardAlone) {
  openWindow();
  ASSERT_TRUE(tabTo("Scan"));
  press(Qt::Key_Space);
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
  settle();
  const auto& results = app->appState().scanResults();
  const QString first = QString::fromStdString(std::string(rawValue(results.front().type)));
  ASSERT_TRUE(tabTo(first));
  picture("keyboard_focus");
  press(Qt::Key_Return);
  settle();
  EXPECT_TRUE(app->appState().expandedCategories().contains(results.front().type));
  press(Qt::Key_Down);
  const std::int64_t selected = app->appState().selectedCount();
  press(Qt::Key_Space);
  EXPECT_NE(app->appState().selectedCount(), selected);
  press(Qt::Key_Space);
  EXPECT_EQ(app->appState().selectedCount(), selected);
  picture("keyboard_item");
  ASSERT_TRUE(tabTo("Clean "));
  press(Qt::Key_Return);
  ASSERT_TRUE(turnUntil([this] { return !is<AppState::Done>(); }));
  ASSERT_TRUE(turnUntil([this] { return is<AppState::CleanDone>(); }));
  ASSERT_TRUE(tabTo("Restore"));
  press(Qt::Key_Space);
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
}

TEST_F(SmartScanWindow, HomeEndAndThePageKeysMoveThroughTheCategories) {
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  const CategoryType first = app->appState().scanResults().front().type;
  expectPageKeysToMoveThroughTheRowsFrom(QString::fromStdString(std::string(rawValue(first))));
}

TEST_F(SmartScanWindow, ScansByItselfAtLaunchUnlessThatIsTurnedOff) {
  desk->defaults.remove("backgroundScanOnLaunch");
  openWindow();
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
  EXPECT_FALSE(app->appState().scanResults().empty());
}

TEST_F(SmartScanWindow, StaysIdleAtLaunchWhenAutomaticScansAreOff) {
  openWindow();
  settle();
  EXPECT_TRUE(is<AppState::Idle>());
}

/// A Linux home with something that only a tool may remove.
class SmartScanWindowOfALinuxDisk : public EmptyHomeWindowFixture {
 protected:
  SmartScanWindowOfALinuxDisk() { home = linuxHome; }

  void SetUp() override {
    EmptyHomeWindowFixture::SetUp();
    desk->disk.makeFile(home / "go/pkg/mod/module/file", 12'000'000);
    desk->disk.makeFile(home / ".npm/_cacache/index", 18'000'000);
  }
};

TEST_F(SmartScanWindowOfALinuxDisk, ShowsACommandThatCanBeCopied) {
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  const QString note = "Klarvik never asks for your password.";
  EXPECT_FALSE(shows(note));
  click("Package Caches");
  EXPECT_TRUE(shows("go clean -modcache"));
  EXPECT_TRUE(shows(note));
  picture("hints");
  click("Copy");
  EXPECT_EQ(desk->pasteboard.copied, "go clean -modcache");
  EXPECT_TRUE(shows("Copied"));
  EXPECT_EQ(app->appState().selectedCount(), 1);

  // The list takes the command's row like any other.
  press(Qt::Key_Return);
  EXPECT_EQ(desk->pasteboard.copied, "go clean -modcache");
  picture("hint_copied");
  window().resize(920, 640);
  picture("hint_copied_920x640");
}

TEST_F(SmartScanWindowOfALinuxDisk, ShowsWhatItWouldRunAsRootAndWhatThatPrinted) {
  const std::string line = "pkexec --disable-internal-agent /usr/bin/apt-get clean";
  const Path archives = desk->disk.onDisk("/var/cache/apt/archives");
  desk->disk.makeFile("/var/cache/apt/archives/a.deb", 60'000'000);
  desk->disk.makeFile("/usr/bin/apt-get", 1);
  desk->tools.answer("pkexec --version", "pkexec version 122\n");
  desk->tools.act(line, [] {
    return ToolResult{.end = ToolResult::End::exited,
                      .status = 126,
                      .errors = "Error executing command as another user: Request dismissed\n"};
  });
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  click("Installed Packages");
  picture("run_as_root_row");
  window().resize(920, 640);
  settle();
  picture("run_as_root_row_920x640");
  click("Run…");
  settle();
  EXPECT_TRUE(shows("Run this command as administrator?"));
  EXPECT_TRUE(shows(QString::fromStdString(line)));
  picture("run_as_root_question");
  EXPECT_TRUE(focused().startsWith("Cancel")) << focused().toStdString();
  press(Qt::Key_Return);
  settle();
  EXPECT_FALSE(shows("Run this command as administrator?"));
  EXPECT_THAT(desk->tools.commandsRun(), testing::Not(testing::Contains(line)));

  click("Run…");
  settle();
  click("Run");
  ASSERT_NE(waitFor("The question for the password was cancelled."), nullptr);
  EXPECT_TRUE(shows("Nothing was run"));
  settle();
  picture("run_as_root_cancelled");
  click("Close");
  settle();
  EXPECT_TRUE(shows("sudo apt-get clean"));

  desk->tools.act(line, [archives] {
    std::filesystem::remove_all(archives);
    return FakeToolRunner::printed("Removed 1 package\nfreed 60 MB\n");
  });
  click("Run…");
  settle();
  click("Run");
  ASSERT_NE(waitFor("The command has run"), nullptr);
  settle();
  EXPECT_TRUE(shows("Removed 1 package"));
  picture("run_as_root_done");
  click("Close");
  ASSERT_TRUE(turnUntil([this] { return !shows("sudo apt-get clean"); }));
  settle();
  EXPECT_FALSE(shows("Klarvik never asks for your password."));
}

TEST_F(SmartScanWindowOfALinuxDisk, SaysHowMuchComesBackWhereThatIsLessThanAnItemTakes) {
  std::filesystem::create_hard_link(desk->disk.makeFile(home / "project/module", 30'000'000),
                                    desk->disk.onDisk(home / ".npm/_cacache/module"));
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  click("Package Caches");
  settle();
  EXPECT_TRUE(shows("Frees about 18 MB of 48 MB: other files share the rest."));
  EXPECT_TRUE(shows("Clean 18 MB"));
  window().resize(920, 640);
  settle();
  picture("frees_about_920x640");
}

TEST_F(SmartScanWindowOfALinuxDisk, SaysWhichToolRemovesAnItemForGood) {
  desk->tools.answer("go env GOMODCACHE", desk->disk.onDisk(home / "go/pkg/mod").native() + "\n");
  desk->tools.act("go clean -modcache", [this] {
    std::filesystem::remove_all(desk->disk.onDisk(home / "go/pkg/mod"));
    return FakeToolRunner::printed("");
  });
  openWindow();
  ASSERT_TRUE(scanToTheEnd());
  click("Package Caches");
  EXPECT_TRUE(shows("Go removes it for good. "));
  EXPECT_TRUE(
      shows("Everything selected is marked Safe. 18 MB moves to the Trash, 12 MB is removed "
            "for good."));
  EXPECT_FALSE(shows("Klarvik never asks for your password."));
  picture("tool_items");
  app->appState().performClean();
  ASSERT_TRUE(turnUntil([this] { return is<AppState::CleanDone>(); }));
  EXPECT_FALSE(homeHolds("go/pkg/mod"));
  EXPECT_FALSE(homeHolds(".npm/_cacache"));
  EXPECT_EQ(trashCount(), 1U);
  EXPECT_GE(app->appState().lastClean()->freed, 30'000'000);
}

}  // namespace
}  // namespace klarvik
