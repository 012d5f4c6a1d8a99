#include "shell/updates/update_settings_model.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>

#include "panes/kit/symbol.h"
#include "support/desktop_fakes.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

class UpdateSettings : public ::testing::Test {
 protected:
  void deliver() { QCoreApplication::sendPostedEvents(); }
  void expectRow(const char* symbol, const char* title, const char* button) {
    EXPECT_EQ(view.symbol(), symbol);
    EXPECT_EQ(view.title(), title);
    EXPECT_EQ(view.buttonTitle(), button);
    EXPECT_FALSE(glyphOfSymbol(symbol).empty());
  }

  FakeDesktopOnDisk around;
  const Desktop& desktop = around.desktop;
  UpdateManager manager{desktop};
  UpdateSettingsModel view{manager, desktop};
};

TEST_F(UpdateSettings, SayWhichVersionRuns) {
  EXPECT_EQ(view.version(), "1.2.3 (45)");
}

TEST_F(UpdateSettings, SayThatNothingHasBeenCheckedYet) {
  expectRow("circle.dashed", "Not checked yet", "Check Now");
  EXPECT_EQ(view.detail(), "Never checked");
  EXPECT_FALSE(view.isChecking());
}

TEST_F(UpdateSettings, SayThatACheckRuns) {
  view.checkForUpdates();
  EXPECT_EQ(around.updater.checks, 1);
  expectRow("arrow.triangle.2.circlepath", "Checking…", "Check Now");
  EXPECT_TRUE(view.isChecking());
}

TEST_F(UpdateSettings, SayThatNothingIsNewer) {
  const QSignalSpy changes(&view, &UpdateSettingsModel::changed);
  around.updater.delegate->didNotFindUpdate();
  deliver();
  expectRow("checkmark.circle.fill", "Up to date", "Check Now");
  EXPECT_GT(changes.count(), 0);
}

TEST_F(UpdateSettings, OfferAnAvailableUpdateThroughAnotherCheck) {
  around.updater.delegate->didFindValidUpdate("2.0");
  deliver();
  expectRow("arrow.down.circle.fill", "Version 2.0 available", "Install");
  view.checkForUpdates();
  EXPECT_EQ(around.updater.checks, 1);
}

TEST_F(UpdateSettings, ASecondCheckNowWhileTheUpdaterIsBusyReadsCouldNotCheck) {
  around.updater.canCheck = false;
  view.checkForUpdates();
  expectRow("exclamationmark.triangle.fill", "Could not check", "Check Now");
  EXPECT_EQ(view.detail(), "A check is already running. · not configured");
}

TEST_F(UpdateSettings, KeepUpWithTheTimeThatPasses) {
  around.updater.delegate->didNotFindUpdate();
  deliver();
  const QSignalSpy changes(&view, &UpdateSettingsModel::changed);
  around.clock.advance(60s);
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(view.detail(), "Checked 1 min. ago");
}

TEST_F(UpdateSettings, WriteTheSwitchThroughAtOnce) {
  EXPECT_TRUE(view.autoCheck());
  view.toggleAutoCheck();
  EXPECT_FALSE(around.updater.isAutomatic);
  EXPECT_FALSE(view.autoCheck());
  view.toggleAutoCheck();
  EXPECT_TRUE(around.updater.isAutomatic);
}

TEST_F(UpdateSettings, BeginWithTheSwitchAsItIsStored) {
  around.updater.isAutomatic = false;
  EXPECT_FALSE(UpdateSettingsModel(manager, desktop).autoCheck());
}

TEST_F(UpdateSettings, SnapTheSwitchBackWhereNothingCanBeStored) {
  around.updater.canStore = false;
  view.toggleAutoCheck();
  EXPECT_TRUE(view.autoCheck());
}

TEST_F(UpdateSettings, LinkToReleaseNotesWhereThereIsAWebsite) {
  EXPECT_FALSE(view.hasReleaseNotes());
  around.info["KlarvikWebsite"] = std::string("https://example.com/klarvik");
  EXPECT_TRUE(view.hasReleaseNotes());
  view.openReleaseNotes();
  EXPECT_EQ(around.workspace.openedUrls,
            std::vector<std::string>{"https://example.com/klarvik/releases"});
}

}  // namespace
}  // namespace klarvik
