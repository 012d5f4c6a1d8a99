#include <sys/xattr.h>

#include <filesystem>

#include "window_fixture.h"

namespace klarvik {
namespace {

/// The button in the head of the pane that is seen; the placeholder begins with the same word.
QQuickItem* rescanButton(QQuickItem& item) {
  if (item.opacity() == 0 || !item.isVisible()) return nullptr;
  if (item.objectName() == "mainButton" && item.property("title") == "Rescan") return &item;
  for (QQuickItem* child : item.childItems()) {
    if (QQuickItem* found = rescanButton(*child)) return found;
  }
  return nullptr;
}

class PrivacyWindow : public WindowFixture {
 protected:
  void clickRescan() {
    QQuickItem* button = rescanButton(*window().contentItem());
    ASSERT_NE(button, nullptr);
    clickAt(*button, button->boundingRect().center());
  }
  [[nodiscard]] bool openPane() {
    openWindow();
    click("Privacy");
    settle();
    return shows("No scan yet");
  }
  [[nodiscard]] bool openAndScan() {
    if (!openPane()) return false;
    clickRescan();
    return waitFor("Browser History, ") != nullptr;
  }
  void pictureOfEverySize(const QString& name) {
    picture(name);
    window().resize(920, 640);
    picture(name + "_920x640");
    window().resize(2560, 1440);
    picture(name + "_2560x1440");
  }
};
class PrivacyWindowOverAnEmptyHome : public EmptyHomeWindowFixture {};

class PrivacyWindowOfALinuxDisk : public EmptyHomeWindowFixture {
 protected:
  PrivacyWindowOfALinuxDisk() { home = linuxHome; }

  [[nodiscard]] bool openAndScan() {
    for (const char* place :
         {".config/chromium/Default/Cookies", ".config/chromium/Default/History",
          ".mozilla/firefox/ab.default/cookies.sqlite"}) {
      desk->disk.makeFile(home / place, 90'000);
    }
    openWindow();
    click("Privacy");
    settle();
    clickMainButton("Rescan");
    return waitFor("Browser Cookies — Firefox, ") != nullptr;
  }
};

TEST_F(PrivacyWindow, OffersAScanWhereThereWasNone) {
  ASSERT_TRUE(openPane());
  EXPECT_TRUE(shows("Rescan to see what your Mac has recorded."));
  EXPECT_TRUE(
      shows("Clearing a trail is not the same as freeing space. Each "
            "row says what it costs you."));
  for (const char* text : {"TRAIL", "WHAT CLEARING COSTS", "ITEMS", "SIZE"}) {
    EXPECT_FALSE(shows(text)) << text << " stands over no rows";
  }
  EXPECT_FALSE(shows("Clear 0 trails"));
  picture("privacy-empty");
}

TEST_F(PrivacyWindow, ShowsEveryTrailAndWhatClearingItCosts) {
  desk->pasteboard.isFilled = true;
  ASSERT_TRUE(openAndScan());
  settle();
  for (const char* text :
       {"SAFARI, CHROME, FIREFOX", "MACOS RECENTS", "SYSTEM TRAILS", "Browser Cookies, ",
        "Recent Files, ", "Recent Apps, ", "Downloads List, ", "Quarantine DB, ", "Clipboard, ",
        "Clearing a trail is permanent, but nothing you rely on is removed."}) {
    EXPECT_TRUE(shows(text)) << text;
  }
  pictureOfEverySize("privacy-full");
}

TEST_F(PrivacyWindow, ClearsWhatIsSelectedAndTouchesNoFile) {
  desk->pasteboard.isFilled = true;
  ASSERT_TRUE(openAndScan());
  clickSelectionBox("Browser Cookies, ");
  settle();
  EXPECT_TRUE(shows("Your selection signs you out of sites. This cannot be undone."));
  picture("privacy-cookies");
  clickSelectionBox("Browser Cookies, ");
  settle();
  EXPECT_TRUE(shows("Clearing a trail is permanent, but nothing you rely on is removed."));
  clickSelectionBox("Recent Apps, ");
  clickSelectionBox("Clipboard, ");
  const Listing before = listing();
  const std::size_t trashed = trashCount();
  click("Clear ");
  ASSERT_NE(waitFor("Cleared "), nullptr);
  settle();
  picture("privacy-after");
  EXPECT_TRUE(shows("Recent Apps, "));
  EXPECT_FALSE(shows("Quarantine DB, "));

  EXPECT_EQ(listing(), before);
  EXPECT_EQ(trashCount(), trashed);
  EXPECT_FALSE(desk->pasteboard.isFilled);
  EXPECT_EQ(desk->recentDocuments.clearings, 1);
}

TEST_F(PrivacyWindow, RevealsATrailWithoutDeselectingIt) {
  ASSERT_TRUE(openAndScan());
  settle();
  QQuickItem* row = find("Recent Apps, ");
  ASSERT_NE(row, nullptr);
  QQuickItem* reveal = nullptr;
  for (QQuickItem* part : row->findChildren<QQuickItem*>()) {
    if (part->property("title") == "Show in Finder") reveal = part;
  }
  ASSERT_NE(reveal, nullptr);
  clickAt(*reveal, reveal->boundingRect().center());
  EXPECT_EQ(desk->workspace.revealedItems,
            std::vector<Path>{desk->files.home() / "Library/Preferences/com.apple.dock.plist"});
  EXPECT_TRUE(row->property("isSelected").toBool());
}

TEST_F(PrivacyWindow, IsUsedFromTheKeyboardAlone) {
  ASSERT_TRUE(openPane());
  ASSERT_TRUE(tabTo("Rescan"));
  press(Qt::Key_Space);
  ASSERT_NE(waitFor("Browser History, "), nullptr);
  settle();
  ASSERT_TRUE(tabTo("SAFARI, CHROME, FIREFOX"));
  while (!focused().startsWith("Browser History, ")) press(Qt::Key_Down);
  press(Qt::Key_Space);
  settle();
  EXPECT_FALSE(find("Browser History, ")->property("isSelected").toBool());
  picture("privacy-keyboard");
  ASSERT_TRUE(tabTo("Clear "));
  press(Qt::Key_Return);
  ASSERT_NE(waitFor("Cleared "), nullptr);
  settle();
  EXPECT_TRUE(shows("Browser History, "));
  EXPECT_FALSE(shows("Recent Files, "));
  EXPECT_EQ(desk->recentDocuments.clearings, 1);
}

TEST_F(PrivacyWindow, HomeEndAndThePageKeysMoveThroughTheTrails) {
  ASSERT_TRUE(openAndScan());
  expectPageKeysToMoveThroughTheRowsFrom("SAFARI, CHROME, FIREFOX");
}

TEST_F(PrivacyWindow, ScansInItsTurnAtLaunch) {
  desk->defaults.remove("backgroundScanOnLaunch");
  openWindow();
  ASSERT_TRUE(
      turnUntilItsTurn([this] { return shared->scanCoordinator().totals().contains("privacy"); }));
  EXPECT_GT(shared->scanCoordinator().totals().at("privacy").items, 5);
}

TEST_F(PrivacyWindow, SaysThatItReadsTheTrails) {
  ASSERT_TRUE(openPane());
  desk->walkGate.close();
  clickRescan();
  ASSERT_NE(waitFor("Reading trails"), nullptr);
  settle();
  EXPECT_FALSE(shows("No scan yet"));
  picture("privacy-scanning");
  desk->walkGate.open();
  EXPECT_NE(waitFor("Browser History, "), nullptr);
  EXPECT_FALSE(shows("Reading trails"));
}

TEST_F(PrivacyWindow, ClosedDuringAClearingFinishesIt) {
  ASSERT_TRUE(openAndScan());
  settle();
  click("Clear ");
  closeWindow();
  EXPECT_EQ(desk->recentDocuments.clearings, 1);
}

TEST_F(PrivacyWindowOfALinuxDisk, AsksOnceMoreBeforeItSignsAnybodyOut) {
  ASSERT_TRUE(openAndScan());
  clickSelectionBox("Browser Cookies — Firefox, ");
  settle();
  click("Clear 2 trails");
  settle();
  EXPECT_TRUE(shows("Sign out of sites?"));
  EXPECT_TRUE(shows("Every site forgets that you are signed in"));
  picture("privacy-sign-out");
  EXPECT_TRUE(focused().startsWith("Cancel")) << focused().toStdString();
  press(Qt::Key_Return);
  settle();
  EXPECT_FALSE(shows("Sign out of sites?"));
  EXPECT_TRUE(homeHolds(".mozilla/firefox/ab.default/cookies.sqlite"));
  EXPECT_TRUE(homeHolds(".config/chromium/Default/History"));

  click("Clear 2 trails");
  settle();
  click("Clear and Sign Out");
  ASSERT_NE(waitFor("Cleared 2 trails"), nullptr);
  EXPECT_FALSE(homeHolds(".mozilla/firefox/ab.default/cookies.sqlite"));
  EXPECT_TRUE(homeHolds(".config/chromium/Default/Cookies"));
}

TEST_F(PrivacyWindowOfALinuxDisk, TakesFromDownloadsWhereTheyCameFrom) {
  const char* attribute = "user.xdg.origin.url";
  std::vector<Path> downloads;
  for (const char* name : {"report.pdf", "setup.AppImage", "photos/beach.jpg"}) {
    downloads.push_back(desk->disk.makeFile(home / "Downloads" / name, 40'000));
    if (::setxattr(downloads.back().c_str(), attribute, "x", 1, 0) != 0) {
      GTEST_SKIP() << "this file system has no extended attributes";
    }
  }
  ASSERT_TRUE(openAndScan());
  ASSERT_NE(waitFor("Origin of downloads, "), nullptr);
  settle();
  EXPECT_TRUE(shows("Downloaded-from records go"));
  picture("privacy-origins");
  window().resize(920, 640);
  settle();
  picture("privacy-origins_920x640");
  click("Clear 2 trails");
  ASSERT_NE(waitFor("Cleared 2 trails"), nullptr);
  EXPECT_FALSE(shows("Origin of downloads, "));
  for (const Path& each : downloads) {
    EXPECT_LT(::getxattr(each.c_str(), attribute, nullptr, 0), 0) << each;
    EXPECT_EQ(std::filesystem::file_size(each), 40'000U);
  }
}

TEST_F(PrivacyWindowOverAnEmptyHome, SaysThatThereIsNothingToClear) {
  openWindow();
  click("Privacy");
  settle();
  QQuickItem* button = rescanButton(*window().contentItem());
  ASSERT_NE(button, nullptr);
  clickAt(*button, button->boundingRect().center());
  ASSERT_NE(waitFor("Nothing to clear"), nullptr);
  picture("privacy-nothing");
}

}  // namespace
}  // namespace klarvik
