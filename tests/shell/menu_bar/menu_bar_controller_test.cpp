#include "shell/menu_bar/menu_bar_controller.h"

#include <QSignalSpy>
#include <QTimer>

#include "menu_bar_fixture.h"
#include "support/desktop_fakes.h"

namespace klarvik {
namespace {

constexpr const char* key = "showMenuBar";
enum Entry : std::size_t { scanNow, emptyTrash, openKlarvik, preferences, quit };

class MenuBar : public MenuBarFixture {
 protected:
  void trashOneFile() {
    around.disk.makeFile("/Users/ann/.Trash/old", 2'000'000);
    around.trash.moveStamp();
    trash.refresh(true);
    ASSERT_TRUE(turnMainLoopUntil([this] { return !trash.isMeasuring(); }));
  }
};

TEST_F(MenuBar, WithNoShowMenuBarKeyTheItemIsShown) {
  start();
  EXPECT_TRUE(controller->isEnabled());
  EXPECT_TRUE(isShown());
  EXPECT_FALSE(around.defaults.object(key)) << "reading stores nothing";
}

TEST_F(MenuBar, AValueThatIsNoBooleanReadsAsShown) {
  for (const DefaultsValue& value :
       {DefaultsValue(std::string("no")), DefaultsValue(std::int64_t{0}), DefaultsValue(0.0),
        DefaultsValue(Bytes{"\0"})}) {
    around.defaults.set(key, value);
    start();
    EXPECT_TRUE(isShown()) << value.index();
    EXPECT_EQ(around.defaults.object(key), value) << "what somebody wrote there stays";
  }
}

TEST_F(MenuBar, IsNotShownWhereTheUserSaidSo) {
  around.defaults.set(key, false);
  start();
  EXPECT_FALSE(controller->isEnabled());
  EXPECT_FALSE(isShown());
}

TEST_F(MenuBar, TheItemIsTheIconWithTheNameAsItsTip) {
  start();
  EXPECT_EQ(look().toolTip, "Klarvik");
  EXPECT_EQ(look().title, "");
  EXPECT_EQ(look().icon(18, 18).size(), 3U);
}

TEST_F(MenuBar, UncheckingTheRowInSettingsWhileThePopoverIsOpenClosesItAndRemovesTheItem) {
  start();
  around.statusItem.press();
  ASSERT_TRUE(popover->isShown());
  const QSignalSpy changes(&*controller, &MenuBarController::isEnabledChanged);
  around.defaults.set(key, false);
  EXPECT_FALSE(popoverIsOpen);
  EXPECT_FALSE(isShown());
  EXPECT_FALSE(controller->isEnabled());
  EXPECT_EQ(changes.count(), 1);

  around.defaults.set(key, true);
  EXPECT_TRUE(isShown());
  around.statusItem.press();
  EXPECT_TRUE(popoverIsOpen);
  EXPECT_EQ(popoversMade, 2) << "one of its own for each life of the item";
}

TEST_F(MenuBar, FollowsAChangeFromOutsideOnce) {
  start();
  const QSignalSpy changes(&*controller, &MenuBarController::isEnabledChanged);
  around.defaults.set(key, false);
  around.defaults.set(key, false);
  around.notifications.post(defaultsChangedNotification);
  EXPECT_EQ(changes.count(), 1);
  around.defaults.remove(key);
  EXPECT_EQ(changes.count(), 2);
  EXPECT_TRUE(isShown());
}

TEST_F(MenuBar, RubbishWrittenByHandWhileItRunsBringsTheItemBackAndIsLeftAlone) {
  around.defaults.set(key, false);
  start();
  around.defaults.set(key, std::string("maybe"));
  EXPECT_TRUE(isShown());
  EXPECT_EQ(around.defaults.object(key), DefaultsValue(std::string("maybe")));
}

TEST_F(MenuBar, WritingTheWishStoresIt) {
  start();
  controller->setEnabled(true);
  EXPECT_FALSE(around.defaults.object(key)) << "the same value is no change";
  controller->setEnabled(false);
  EXPECT_EQ(around.defaults.object(key), DefaultsValue(false));
  EXPECT_FALSE(isShown());
  controller->setEnabled(true);
  EXPECT_EQ(around.defaults.object(key), DefaultsValue(true));
  EXPECT_TRUE(isShown());
}

TEST_F(MenuBar, AWishThatCannotBeStoredHoldsForThisRun) {
  start();
  around.defaults.refuseWrites(true);
  controller->setEnabled(false);
  EXPECT_FALSE(isShown());
  EXPECT_FALSE(controller->isEnabled());
}

TEST_F(MenuBar, TheIconOpensAndClosesThePopoverBesideItself) {
  start();
  around.statusItem.press({1100, 2, 22, 22});
  ASSERT_NE(popover, nullptr);
  EXPECT_TRUE(popover->isShown());
  EXPECT_EQ(popover->place, (StatusItem::Place{1100, 2, 22, 22}));
  around.statusItem.press();
  EXPECT_FALSE(popover->isShown());
  around.statusItem.press();
  EXPECT_TRUE(popover->isShown());
  EXPECT_EQ(popover->shows, 2);
}

TEST_F(MenuBar, ThePressThatHasJustClosedThePopoverDoesNotOpenItAgain) {
  start();
  around.statusItem.press();
  popover->isOpen = false;
  popover->closedByItself = true;
  around.statusItem.press();
  EXPECT_FALSE(popover->isShown());
  popover->closedByItself = false;
  around.statusItem.press();
  EXPECT_TRUE(popover->isShown());
}

TEST_F(MenuBar, BeforeTheLaunchNothingIsShownAndNothingOpens) {
  controller.emplace(around.desktop, trash, [this] {
    ADD_FAILURE() << "no popover is wanted";
    return std::make_unique<FakePopover>(popoverIsOpen);
  });
  EXPECT_FALSE(isShown());
  around.statusItem.press();
  controller->setEnabled(false);
  controller->setEnabled(true);
  EXPECT_TRUE(isShown());
  around.statusItem.press();
  around.statusItem.choose(openKlarvik);
}

TEST_F(MenuBar, ShowsWhatWasJustReclaimedUntilTheNextScan) {
  start();
  ASSERT_TRUE(scan({cacheOf(3'000'000)}));
  EXPECT_EQ(look().title, "");
  ASSERT_TRUE(cleanAll());
  EXPECT_EQ(look().title, " 3 MB");
  state->startScan();
  EXPECT_EQ(look().title, "");
}

TEST_F(MenuBar, TheMenuOffersEveryActionOfThePopover) {
  start();
  const std::vector<StatusItem::MenuEntry> expected{{"Scan Now"},
                                                    {"Trash is empty", false},
                                                    {"Open Klarvik", true, true},
                                                    {"Preferences"},
                                                    {"Quit"}};
  EXPECT_EQ(look().menu, expected);
  trashOneFile();
  EXPECT_EQ(look().menu[emptyTrash], (StatusItem::MenuEntry{"Empty Trash · 2 MB"}));
  around.trash.readable = false;
  trash.refresh(true);
  EXPECT_EQ(look().menu[emptyTrash],
            (StatusItem::MenuEntry{"Trash · needs Full Disk Access", false}));
}

TEST_F(MenuBar, EmptiesTheTrashWithoutAskingOnce) {
  start();
  trashOneFile();
  around.statusItem.choose(emptyTrash);
  EXPECT_EQ(look().menu[emptyTrash], (StatusItem::MenuEntry{"Emptying Trash…", false}));
  around.statusItem.choose(emptyTrash);
  ASSERT_TRUE(turnMainLoopUntil([this] { return !trash.isEmptying() && trash.itemCount() == 0; }));
  EXPECT_FALSE(around.disk.holds("/Users/ann/.Trash/old"));
  EXPECT_EQ(look().menu[emptyTrash], (StatusItem::MenuEntry{"Trash is empty", false}));
}

TEST_F(MenuBar, EmptyingLeavesThePopoverOpenAndEveryOtherActionClosesIt) {
  start();
  trashOneFile();
  around.statusItem.press();
  popover->shown->perform(emptyTrash);
  EXPECT_TRUE(popover->isShown());
  ASSERT_TRUE(turnMainLoopUntil([this] { return !trash.isEmptying() && trash.itemCount() == 0; }));
  for (const Entry entry : {scanNow, openKlarvik, preferences}) {
    if (!popover->isShown()) around.statusItem.press();
    popover->shown->perform(entry);
    EXPECT_FALSE(popover->isShown()) << entry;
  }
}

TEST_F(MenuBar, ScanNowStartsAScanAndBringsTheMainWindow) {
  start();
  around.statusItem.choose(scanNow);
  EXPECT_TRUE(std::holds_alternative<AppState::Scanning>(state->scanState()));
  EXPECT_EQ(opened, QStringList{"main"});
}

TEST_F(MenuBar, OpenKlarvikWithTheMainWindowClosedGoesThroughOpenWindowHandler) {
  start();
  around.statusItem.choose(openKlarvik);
  EXPECT_EQ(opened, QStringList{"main"});
  around.statusItem.choose(preferences);
  EXPECT_EQ(opened, (QStringList{"main", "settings"}));
}

TEST_F(MenuBar, QuitEndsTheProgram) {
  start();
  QTimer::singleShot(0, &*controller, [this] { around.statusItem.choose(quit); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(MenuBar, AnEntryThatTheMenuDoesNotHaveIsNobodys) {
  start();
  around.statusItem.choose(99);
  around.statusItem.choose(emptyTrash);
  EXPECT_TRUE(opened.isEmpty());
  EXPECT_FALSE(trash.isEmptying());
}

TEST_F(MenuBar, IsReachableWhileItIsShownOnATrayThatIsThere) {
  start();
  const QSignalSpy changes(&*controller, &MenuBarController::isReachableChanged);
  EXPECT_TRUE(controller->isReachable());
  around.statusItem.setTray(false);
  EXPECT_FALSE(controller->isReachable());
  EXPECT_TRUE(isShown()) << "it appears again with the next tray";
  around.statusItem.setTray(true);
  EXPECT_TRUE(controller->isReachable());
  controller->setEnabled(false);
  EXPECT_FALSE(controller->isReachable());
  EXPECT_EQ(changes.count(), 3);
}

}  // namespace
}  // namespace klarvik
