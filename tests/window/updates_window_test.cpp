#include <QEvent>
#include <QTimer>

#include "window_fixture.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

/// Hears whether the program is asked to end.
class EndListener : public QObject {
 public:
  EndListener() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    hasHeard = hasHeard || (watched == qApp && event->type() == QEvent::Quit);
    return false;
  }

  bool hasHeard = false;
};

class UpdatesWindow : public EmptyHomeWindowFixture {
 protected:
  UpdateStage offered(std::string notes = {}, std::string link = {}) const {
    return update_stage::Offered{"2.0", std::move(notes), std::move(link), 12'300'000};
  }
  void openPage() {
    openWindow();
    press(Qt::Key_Comma, Qt::ControlModifier);
    lookAt(app->window(settingsWindowId));
    click("Updates");
    settle();
  }
  /// What the updater's window shows next.
  void show(const UpdateStage& stage) {
    if (!app) openWindow();
    desk->updater.show(stage);
    lookAt(app->window(updateWindowId));
    ASSERT_NE(app->window(updateWindowId), nullptr);
    settle();
  }
  /// Whether the program ends once the user has answered with the button of that title.
  [[nodiscard]] bool endsWith(const QString& button) {
    const EndListener listener;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
          click(button);
          QCoreApplication::exit();
        },
        Qt::QueuedConnection);
    QCoreApplication::exec();
    return listener.hasHeard;
  }
  void expectButtons(const char* primary, const char* secondary) {
    EXPECT_TRUE(shows(secondary)) << secondary;
    EXPECT_TRUE(*primary == '\0' || shows(primary)) << primary;
  }
};

TEST_F(UpdatesWindow, PageSaysThatNothingHasBeenCheckedYet) {
  desk->info["KlarvikWebsite"] = std::string("https://example.com");
  openPage();
  for (const char* text : {"Updates", "Version", "1.2.3 (45)", "Not checked yet", "Never checked",
                           "Check Now", "Check automatically",
                           "Klarvik checks for new versions in the background", "Release notes"}) {
    EXPECT_TRUE(shows(text)) << text;
  }
  picture("updates_page_unknown");
  click("Release notes");
  EXPECT_EQ(desk->workspace.openedUrls, std::vector<std::string>{"https://example.com/releases"});
}

TEST_F(UpdatesWindow, PageWithoutAWebsiteHasNoLink) {
  openPage();
  EXPECT_FALSE(shows("Release notes"));
}

TEST_F(UpdatesWindow, PageChecksAndCannotBeAskedTwice) {
  openPage();
  click("Check Now");
  EXPECT_EQ(desk->updater.checks, 1);
  EXPECT_TRUE(shows("Checking…"));
  picture("updates_page_checking");
  click("Check Now");
  EXPECT_EQ(desk->updater.checks, 1);
}

TEST_F(UpdatesWindow, PageSaysThatNothingIsNewer) {
  openPage();
  desk->updater.delegate->didNotFindUpdate();
  settle();
  desk->clock.advance(6min);
  settle();
  EXPECT_TRUE(shows("Up to date"));
  EXPECT_TRUE(shows("Checked 5 min. ago"));
  picture("updates_page_up_to_date");
}

TEST_F(UpdatesWindow, PageOffersAnAvailableVersion) {
  openPage();
  desk->updater.delegate->didFindValidUpdate("2.0");
  settle();
  EXPECT_TRUE(shows("Version 2.0 available"));
  picture("updates_page_available");
  click("Install");
  EXPECT_EQ(desk->updater.checks, 1);
}

TEST_F(UpdatesWindow, PageSaysWhatWentWrongAndWhereTheFeedIs) {
  desk->info["SUFeedURL"] = std::string(
      "https://updates.example.com/klarvik/channels/stable/a-rather-long-path/appcast.xml");
  openPage();
  desk->updater.delegate->didAbortWithError({urlErrorDomain, -1011, ""});
  settle();
  EXPECT_TRUE(shows("Could not check"));
  EXPECT_TRUE(shows("The update feed is missing or malformed. · https://updates.example.com"));
  picture("updates_page_failed");
}

TEST_F(UpdatesWindow, PageSwitchesBackgroundChecksByKeyboardAlone) {
  openPage();
  ASSERT_TRUE(tabTo("Check automatically"));
  picture("updates_page_focus");
  press(Qt::Key_Space);
  EXPECT_FALSE(desk->updater.isAutomatic);
  settle();
  picture("updates_page_switched_off");
  press(Qt::Key_Return);
  EXPECT_TRUE(desk->updater.isAutomatic);
}

TEST_F(UpdatesWindow, MenuChecksForUpdates) {
  openWindow();
  ASSERT_TRUE(tabTo("Klarvik menu"));
  press(Qt::Key_Space);
  settle();
  click("Check for Updates…");
  EXPECT_EQ(desk->updater.checks, 1);
}

TEST_F(UpdatesWindow, ComesUpForEachStageAndGoes) {
  show(update_stage::Checking{});
  expectButtons("", "Cancel");
  picture("update_window_checking");
  show(
      offered("New in 2.0\n\u2022 Scans twice as fast\n\u2022 The Trash is measured while it is "
              "being emptied, and its figure follows every single item that goes\n\u2022 Fewer "
              "bugs\n\nThanks to everybody who wrote.\n\u2022 One\n\u2022 Two\n\u2022 Three\n"
              "\u2022 Four\n\u2022 Five\n\u2022 Six",
              "https://example.com/notes"));
  expectButtons("Install", "Later");
  picture("update_window_offered");
  show(update_stage::Downloading{"2.0", 4'200'000, 12'300'000});
  EXPECT_TRUE(shows("4.2 MB of 12.3 MB"));
  expectButtons("", "Cancel");
  picture("update_window_downloading");
  show(update_stage::Verifying{"2.0"});
  picture("update_window_verifying");
  show(update_stage::Delivered{"2.0", "Klarvik-2.0.deb"});
  expectButtons("Open Installer", "Done");
  picture("update_window_delivered");
  show(update_stage::UpToDate{});
  expectButtons("", "OK");
  picture("update_window_up_to_date");
  show(update_stage::Failed{{updaterErrorDomain, 1003,
                             "The update is not signed by the makers of Klarvik, so Klarvik has "
                             "thrown it away."}});
  expectButtons("", "OK");
  picture("update_window_failed");
  click("OK");
  EXPECT_EQ(desk->updater.dismissals, 1);
  EXPECT_FALSE(window().isVisible());
}

TEST_F(UpdatesWindow, OffersWithoutNotesToo) {
  show(offered());
  EXPECT_FALSE(shows("Release notes"));
  picture("update_window_without_notes");
}

TEST_F(UpdatesWindow, ShowsNotesAsTextWhateverStandsInThem) {
  show(offered("<b>bold</b> <img src=\"https://example.com/x.png\"> <a href=\"x\">link</a>"));
  EXPECT_TRUE(shows("<b>bold</b> <img"));
}

TEST_F(UpdatesWindow, InstallsAtAPressOfReturnAndIsPutOffByEscape) {
  show(offered());
  window().requestActivate();
  settle();
  press(Qt::Key_Return);
  EXPECT_EQ(desk->updater.installs, 1);
  press(Qt::Key_Escape);
  EXPECT_EQ(desk->updater.dismissals, 1);
  EXPECT_FALSE(window().isVisible());
}

TEST_F(UpdatesWindow, ClosedByItsFrameIsDismissed) {
  show(offered());
  window().close();
  settle();
  EXPECT_EQ(desk->updater.dismissals, 1);
  EXPECT_FALSE(window().isVisible());
  show(offered());
  EXPECT_TRUE(window().isVisible());
}

TEST_F(UpdatesWindow, AnsweredAsTheLastWindowEndsTheProgram) {
  desk->statusItem.setTray(false);
  show(update_stage::UpToDate{});
  app->window(mainWindowId)->close();
  EXPECT_TRUE(endsWith("OK"));
}

TEST_F(UpdatesWindow, AnsweredBesideAnotherWindowEndsNothing) {
  desk->statusItem.setTray(false);
  show(update_stage::UpToDate{});
  EXPECT_FALSE(endsWith("OK"));
  EXPECT_TRUE(app->window(mainWindowId)->isVisible());
}

TEST_F(UpdatesWindow, AnsweredAsTheLastWindowEndsNothingThatAStatusItemKeeps) {
  show(update_stage::UpToDate{});
  app->window(mainWindowId)->close();
  EXPECT_FALSE(endsWith("OK"));
}

TEST_F(UpdatesWindow, HoldsNobodyUpWhoQuits) {
  show(offered());
  QMetaObject::invokeMethod(
      qApp,
      [] {
        QCoreApplication::quit();
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(1); });
      },
      Qt::QueuedConnection);
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_EQ(desk->updater.dismissals, 1);
}

}  // namespace
}  // namespace klarvik
