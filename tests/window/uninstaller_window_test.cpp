#include "window_fixture.h"

namespace klarvik {
namespace {

class UninstallerWindow : public WindowFixture {
 protected:
  /// Until the row is there, and the others that come with it.
  [[nodiscard]] bool waitForRows(const QString& row) {
    if (waitFor(row) == nullptr) return false;
    settle();
    return true;
  }
  [[nodiscard]] bool openPane() {
    openWindow();
    click("Uninstaller");
    return waitForRows("Acme Writer, ");
  }
  [[nodiscard]] QString appsAfterwards() const {
    return QString("%1 apps · ").arg(desk->sample->applications - 1);
  }
  [[nodiscard]] bool openAcmeWriter() {
    if (!openPane()) return false;
    click("Acme Writer, ");
    return waitForRows("com.acme.writer.plist, ");
  }
  void clickUninstall() {
    settle();
    clickMainButton("Uninstall ");
  }
  void pictureOfEverySize(const QString& name) {
    picture(name);
    window().resize(920, 640);
    picture(name + "_920x640");
    window().resize(2560, 1440);
    picture(name + "_2560x1440");
  }
};
class UninstallerWindowOverAnEmptyHome : public EmptyHomeWindowFixture {};

TEST_F(UninstallerWindow, SaysThatItReadsTheApplications) {
  openWindow();
  desk->walkGate.close();
  click("Uninstaller");
  ASSERT_NE(waitFor("Reading applications"), nullptr);
  settle();
  picture("uninstaller-scanning");
  desk->walkGate.open();
  EXPECT_NE(waitFor("Acme Writer, "), nullptr);
  EXPECT_FALSE(shows("Reading applications"));
}

TEST_F(UninstallerWindow, ListsEveryApplicationTheLargestFirst) {
  ASSERT_TRUE(openPane());
  EXPECT_TRUE(shows(QString("%1 apps · dragging one to the Trash leaves its support files behind")
                        .arg(desk->sample->applications)));
  for (const char* text : {"Sorted by total size", "BUNDLE", "TOTAL", "Mini Tool, "}) {
    EXPECT_TRUE(shows(text)) << text;
  }
  EXPECT_FALSE(shows("All apps"));
  EXPECT_FALSE(shows("LEFTOVER"));
  pictureOfEverySize("uninstaller-full");
}

TEST_F(UninstallerWindow, FindsAppsByTheirName) {
  ASSERT_TRUE(openPane());
  click("Search apps");
  for (const Qt::Key key : {Qt::Key_N, Qt::Key_O, Qt::Key_T, Qt::Key_E}) press(key);
  settle();
  EXPECT_TRUE(shows("Notebook, "));
  EXPECT_FALSE(shows("Acme Writer, "));
  picture("uninstaller-searched");
  press(Qt::Key_X);
  settle();
  EXPECT_TRUE(shows("No apps match"));
  EXPECT_TRUE(shows("Nothing matches “notex”"));
  picture("uninstaller-no-match");
  press(Qt::Key_Escape);
  settle();
  EXPECT_TRUE(shows("Acme Writer, "));
}

TEST_F(UninstallerWindow, RemovesAnApplicationWithItsSelectedLeftoversAndNothingElse) {
  ASSERT_TRUE(openAcmeWriter());
  EXPECT_TRUE(shows("Uninstall Acme Writer"));
  for (const char* text :
       {"LEFTOVER", "WHAT IT IS", "SIZE", "Settings and licence keys", "Rebuilt on next launch",
        "Documents and unsynced data",
        "Preferences and app data left behind on purpose. Everything goes to Trash."}) {
    EXPECT_TRUE(shows(text)) << text;
  }
  pictureOfEverySize("uninstaller-detail");
  window().resize(1080, 720);
  settle();
  clickSelectionBox("com.acme.writer, 4.2 MB");
  settle();
  picture("uninstaller-selected");
  const Listing before = listing();
  const std::size_t trashed = trashCount();

  desk->trashGate.close();
  clickUninstall();
  ASSERT_TRUE(turnUntil([this] { return desk->trashGate.waiting() == 1; }));
  EXPECT_TRUE(shows("Working…"));
  picture("uninstaller-busy");
  desk->trashGate.open();
  ASSERT_TRUE(turnUntil([this] { return shows("BUNDLE"); }));
  settle();
  EXPECT_FALSE(shows("Acme Writer, "));
  EXPECT_TRUE(shows(appsAfterwards()));
  EXPECT_TRUE(shows("“Acme Writer” is uninstalled"));
  picture("uninstaller-after");

  EXPECT_EQ(trashCount(), trashed + 1);
  EXPECT_FALSE(desk->disk.holds("/Applications/Acme Writer.app"));
  EXPECT_TRUE(homeHolds("Library/Caches/com.acme.writer"));
  EXPECT_FALSE(homeHolds("Library/HTTPStorages/com.acme.writer"));
  EXPECT_FALSE(desk->disk.holds("/Library/Caches/com.acme.writer"));
  EXPECT_FALSE(homeHolds("Library/Containers/com.acme.writer"));
  EXPECT_TRUE(homeHolds("Library/Application Support/Acme Writer"));
  EXPECT_TRUE(homeHolds("Library/Preferences/com.acme.writer.plist"));
  const Listing after = listing();
  for (const auto& [place, size] : before) {
    const bool isTheApps = place.find("acme.writer") != std::string::npos ||
                           place.find("Acme Writer") != std::string::npos;
    EXPECT_TRUE(isTheApps || after.contains(place)) << place;
  }
}

TEST_F(UninstallerWindow, GoesBackToTheListAndChangesNothing) {
  ASSERT_TRUE(openAcmeWriter());
  const Listing before = listing();
  click("All apps");
  settle();
  EXPECT_TRUE(shows("BUNDLE"));
  EXPECT_FALSE(shows("Uninstall Acme Writer"));
  EXPECT_EQ(listing(), before);
}

TEST_F(UninstallerWindow, RevealsALeftoverWithoutDeselectingIt) {
  ASSERT_TRUE(openAcmeWriter());
  settle();
  QQuickItem* row = find("com.acme.writer, 4.2 MB");
  ASSERT_NE(row, nullptr);
  QQuickItem* reveal = nullptr;
  for (QQuickItem* part : row->findChildren<QQuickItem*>()) {
    if (part->property("title") == "Show in Finder") reveal = part;
  }
  ASSERT_NE(reveal, nullptr);
  clickAt(*reveal, reveal->boundingRect().center());
  EXPECT_EQ(desk->workspace.revealedItems,
            std::vector<Path>{"/Users/ann/Library/Caches/com.acme.writer"});
  EXPECT_TRUE(row->property("isSelected").toBool());
  clickAt(*row, QPointF(200, row->height() / 2));
  EXPECT_FALSE(row->property("isSelected").toBool());
}

TEST_F(UninstallerWindow, IsUsedFromTheKeyboardAlone) {
  ASSERT_TRUE(openPane());
  ASSERT_TRUE(tabTo("Acme Writer, "));
  picture("uninstaller-keyboard");
  press(Qt::Key_Return);
  ASSERT_NE(waitFor("com.acme.writer.plist, "), nullptr);
  settle();
  EXPECT_EQ(focused(), "All apps");
  ASSERT_TRUE(tabTo("Preferences, "));
  while (!focused().startsWith("Caches, ")) press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_TRUE(focused().startsWith("com.acme.writer, 4.2 MB"));
  press(Qt::Key_Space);
  settle();
  EXPECT_FALSE(find("com.acme.writer, 4.2 MB")->property("isSelected").toBool());
  picture("uninstaller-keyboard-leftover");
  ASSERT_TRUE(tabTo("All apps"));
  press(Qt::Key_Space);
  settle();
  EXPECT_TRUE(focused().startsWith("Acme Writer, "));
  press(Qt::Key_Return);
  ASSERT_NE(waitFor("com.acme.writer.plist, "), nullptr);
  settle();
  ASSERT_TRUE(tabTo("Uninstall Acme Writer"));
  press(Qt::Key_Return);
  ASSERT_TRUE(turnUntil([this] { return shows(appsAfterwards()); }));
  EXPECT_FALSE(desk->disk.holds("/Applications/Acme Writer.app"));
}

TEST_F(UninstallerWindow, HomeEndAndThePageKeysMoveThroughTheApps) {
  ASSERT_TRUE(openPane());
  expectPageKeysToMoveThroughTheRowsFrom("Acme Writer, ");
}

TEST_F(UninstallerWindow, HomeEndAndThePageKeysMoveThroughTheLeftovers) {
  ASSERT_TRUE(openAcmeWriter());
  expectPageKeysToMoveThroughTheRowsFrom("Preferences, ");
}

TEST_F(UninstallerWindow, IsReadInItsTurnAtLaunch) {
  desk->defaults.remove("backgroundScanOnLaunch");
  openWindow();
  ASSERT_TRUE(turnUntilItsTurn(
      [this] { return shared->scanCoordinator().totals().contains("uninstaller"); }));
  EXPECT_EQ(shared->scanCoordinator().totals().at("uninstaller").items,
            static_cast<std::int64_t>(desk->sample->applications));
}

TEST_F(UninstallerWindow, ClosedDuringARemovalFinishesItAndLosesNothing) {
  ASSERT_TRUE(openAcmeWriter());
  settle();
  const std::size_t trashed = trashCount();
  desk->trashGate.close();
  clickUninstall();
  ASSERT_TRUE(turnUntil([this] { return desk->trashGate.waiting() == 1; }));
  closeWindow();
  EXPECT_FALSE(desk->disk.holds("/Applications/Acme Writer.app"));
  EXPECT_EQ(trashCount(), trashed + 1);
  EXPECT_TRUE(homeHolds("Library/Preferences/com.acme.writer.plist"));
}

TEST_F(UninstallerWindowOverAnEmptyHome, SaysThatThereAreNoApplications) {
  openWindow();
  click("Uninstaller");
  ASSERT_NE(waitFor("Nothing found in /Applications."), nullptr);
  picture("uninstaller-empty");
}

TEST_F(UninstallerWindowOverAnEmptyHome,
       ShowsNamesOfFourThousandCharactersAndAnAppWithoutLeftovers) {
  const auto addApp = [this](const std::string& folder, const std::string& name) {
    desk->disk.makeFile(Path("/Applications") / folder / "Contents/Info.plist",
                        "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>x.y." +
                            folder + "</string><key>CFBundleName</key><string>" + name +
                            "</string></dict></plist>");
  };
  addApp("Long.app", std::string(4'000, 'x'));
  addApp("Odd.app", "שלום 📱 עולם");
  openWindow();
  click("Uninstaller");
  ASSERT_NE(waitFor("xxxx"), nullptr);
  settle();
  picture("uninstaller-long-names");
  click("xxxx");
  ASSERT_NE(waitFor("No leftovers"), nullptr);
  picture("uninstaller-no-leftovers");
  window().resize(920, 640);
  picture("uninstaller-no-leftovers_920x640");
  click("All apps");
  settle();
  click("שלום");
  ASSERT_NE(waitFor("Uninstall שלום 📱 עולם"), nullptr);
}

}  // namespace
}  // namespace klarvik
