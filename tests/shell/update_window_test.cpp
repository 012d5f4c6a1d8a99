#include "shell/updates/update_window_model.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "support/desktop_fakes.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

class UpdateWindowTest : public ::testing::Test {
 protected:
  void show(const UpdateStage& stage) { around.updater.show(stage); }

  FakeDesktopOnDisk around;
  const Desktop& desktop = around.desktop;
  UpdateWindowModel window{desktop};
};

TEST_F(UpdateWindowTest, IsHiddenUntilTheUpdaterHasSomethingToShow) {
  EXPECT_FALSE(window.isShown());
  show(update_stage::UpToDate{});
  EXPECT_TRUE(window.isShown());
  show(update_stage::Hidden{});
  EXPECT_FALSE(window.isShown());
  EXPECT_EQ(window.title(), "Klarvik is up to date");
}

TEST_F(UpdateWindowTest, ComesToTheFrontOnlyForACheckThatTheUserAskedFor) {
  const QSignalSpy asked(&window, &UpdateWindowModel::isAskedFor);
  show(update_stage::Offered{"2.0", "", "", 1});
  EXPECT_EQ(asked.count(), 0);
  show(update_stage::Checking{});
  EXPECT_EQ(asked.count(), 1);
}

TEST_F(UpdateWindowTest, OffersAVersionWithItsNotes) {
  show(update_stage::Offered{"2.0", "Faster.", "https://example.com/notes", 12'300'000});
  EXPECT_EQ(window.title(), "Klarvik 2.0 is available");
  EXPECT_EQ(window.detail(), "You have 1.2.3. The download is 12.3 MB.");
  EXPECT_EQ(window.notes(), "Faster.");
  EXPECT_EQ(window.primary(), "Install");
  EXPECT_EQ(window.secondary(), "Later");
  EXPECT_FALSE(window.hasBar());
  ASSERT_TRUE(window.hasNotesLink());
  window.openNotes();
  EXPECT_EQ(around.workspace.openedUrls, std::vector<std::string>{"https://example.com/notes"});
}

TEST_F(UpdateWindowTest, ShowsHowFarADownloadIs) {
  show(update_stage::Downloading{"2.0", 3'000'000, 12'000'000});
  EXPECT_EQ(window.title(), "Downloading Klarvik 2.0…");
  EXPECT_EQ(window.detail(), "3 MB of 12 MB");
  EXPECT_TRUE(window.hasBar());
  EXPECT_TRUE(window.barHasEnd());
  EXPECT_DOUBLE_EQ(window.progress(), 0.25);
  EXPECT_EQ(window.primary(), "");
  EXPECT_EQ(window.secondary(), "Cancel");
}

TEST_F(UpdateWindowTest, ShowsThatSomethingRunsWithoutAnEndInSight) {
  for (const UpdateStage& stage :
       {UpdateStage(update_stage::Checking{}), UpdateStage(update_stage::Verifying{"2.0"})}) {
    show(stage);
    EXPECT_TRUE(window.hasBar());
    EXPECT_FALSE(window.barHasEnd());
    EXPECT_EQ(window.primary(), "");
    EXPECT_EQ(window.secondary(), "Cancel");
  }
}

TEST_F(UpdateWindowTest, SaysWhereTheArchiveIs) {
  show(update_stage::Delivered{"2.0", "Klarvik-2.0.deb"});
  EXPECT_EQ(window.title(), "Klarvik 2.0 is ready to install");
  EXPECT_EQ(window.detail(), "Klarvik-2.0.deb is in your Downloads folder.");
  EXPECT_EQ(window.primary(), "Open Installer");
}

TEST_F(UpdateWindowTest, SaysWhatWentWrongInTheWordsOfTheSettings) {
  UpdaterError error{updaterErrorDomain, 1002, "The update feed could not be read."};
  error.underlying = std::make_shared<const UpdaterError>(UpdaterError{urlErrorDomain, -1009, ""});
  show(update_stage::Failed{error});
  EXPECT_EQ(window.title(), "Could not check for updates");
  EXPECT_EQ(window.detail(), "No internet connection.");
  EXPECT_EQ(window.primary(), "");
  EXPECT_EQ(window.secondary(), "OK");
}

TEST_F(UpdateWindowTest, SaysWhyAVersionCannotBeInstalled) {
  show(update_stage::Failed{{updaterErrorDomain, 1003, "It is not signed."}});
  EXPECT_EQ(window.title(), "The update cannot be installed");
  EXPECT_EQ(window.detail(), "It is not signed.");
}

TEST_F(UpdateWindowTest, PassesTheAnswersOn) {
  show(update_stage::Offered{"2.0", "", "", 1});
  window.goOn();
  EXPECT_EQ(around.updater.installs, 1);
  window.dismiss();
  EXPECT_EQ(around.updater.dismissals, 1);
  EXPECT_FALSE(window.isShown());
}

}  // namespace
}  // namespace klarvik
