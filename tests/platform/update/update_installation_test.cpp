// From the offer to the file in the user's downloads.

#include <sys/stat.h>

#include <filesystem>

#include "updater_fixture.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int64_t gigabyte = 1'000'000'000;

class UpdateInstallation : public UpdaterFixture {
 protected:
  void expectRefusal(const char* expected) {
    ASSERT_TRUE(check());
    ASSERT_THAT(delegate.calls, ElementsAre("found 2.0"));
    ASSERT_TRUE(install());
    EXPECT_TRUE(is<update_stage::Failed>());
    EXPECT_EQ(sentence(), expected);
    EXPECT_THAT(downloads(), IsEmpty());
    EXPECT_THAT(workspace.revealedItems, IsEmpty());
    EXPECT_TRUE(updater->canCheckForUpdates());
  }
  /// The download has begun, and waits for the rest.
  void downloadHalf() {
    server.answer("/k.deb", {.body = archive.substr(0, 1000),
                             .announcedLength = static_cast<std::int64_t>(archive.size()),
                             .staysOpen = true});
    ASSERT_TRUE(check());
    updater->install();
    ASSERT_TRUE(turnMainLoopUntil([&] {
      const auto* running = std::get_if<update_stage::Downloading>(&stages.back());
      return running != nullptr && running->received == 1000;
    }));
  }
};

TEST_F(UpdateInstallation, PutsASignedArchiveIntoTheDownloadsAndShowsIt) {
  ASSERT_TRUE(check());
  ASSERT_TRUE(install());
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0", "finished"));
  EXPECT_THAT(downloads(), ElementsAre("Klarvik-2.0.deb"));
  EXPECT_EQ(disk.contentOf("/Users/ann/Downloads/Klarvik-2.0.deb"), archive);
  EXPECT_THAT(workspace.revealedItems, ElementsAre("/Users/ann/Downloads/Klarvik-2.0.deb"));
  ASSERT_TRUE(is<update_stage::Delivered>());
  EXPECT_EQ(std::get<update_stage::Delivered>(stages.back()).fileName, "Klarvik-2.0.deb");
}

TEST_F(UpdateInstallation, ShowsEachStepOnItsWay) {
  ASSERT_TRUE(check());
  ASSERT_TRUE(install());
  ASSERT_EQ(stages.size(), 5U);
  const auto& downloading = std::get<update_stage::Downloading>(stages[2]);
  EXPECT_EQ(downloading.received, downloading.total);
  EXPECT_EQ(downloading.total, static_cast<std::int64_t>(archive.size()));
  EXPECT_TRUE(std::holds_alternative<update_stage::Verifying>(stages[3]));
}

TEST_F(UpdateInstallation, HandsWhatItHasDeliveredToTheSystemsInstaller) {
  ASSERT_TRUE(check());
  ASSERT_TRUE(install());
  updater->install();
  EXPECT_THAT(
      workspace.openedUrls,
      ElementsAre("file://" + disk.onDisk("/Users/ann/Downloads/Klarvik-2.0.deb").native()));
  EXPECT_TRUE(is<update_stage::Hidden>());
  updater->install();
  EXPECT_EQ(workspace.openedUrls.size(), 1U);
}

TEST_F(UpdateInstallation, OpensNothingThatIsNotTheFileThatWasChecked) {
  const Path file = "/Users/ann/Downloads/Klarvik-2.0.deb";
  for (const bool isReplaced : {true, false}) {
    std::filesystem::remove(disk.onDisk(file));
    delegate.calls.clear();
    ASSERT_TRUE(check());
    ASSERT_TRUE(install());
    std::filesystem::remove(disk.onDisk(file));
    if (isReplaced) disk.makeFile(file, archive);
    updater->install();
    EXPECT_THAT(workspace.openedUrls, IsEmpty());
    EXPECT_TRUE(is<update_stage::Failed>());
    EXPECT_EQ(sentence(),
              "The update is no longer the file that was checked, so Klarvik does not open it.");
    EXPECT_TRUE(updater->canCheckForUpdates());
  }
}

TEST_F(UpdateInstallation, ShowsTheFileWhereTheSystemHasNoInstaller) {
  ASSERT_TRUE(check());
  ASSERT_TRUE(install());
  workspace.canOpen = false;
  updater->install();
  EXPECT_EQ(workspace.revealedItems.size(), 2U);
}

TEST_F(UpdateInstallation, NeverReplacesAFileOfTheUser) {
  disk.makeFile("/Users/ann/Downloads/Klarvik-2.0.deb", "mine");
  ASSERT_TRUE(check());
  ASSERT_TRUE(install());
  EXPECT_EQ(disk.contentOf("/Users/ann/Downloads/Klarvik-2.0.deb"), "mine");
  EXPECT_EQ(disk.contentOf("/Users/ann/Downloads/Klarvik-2.0-2.deb"), archive);
}

TEST_F(UpdateInstallation, NamesTheFileItselfWhateverTheAddressSays) {
  server.answer("/..%2F..%2Fevil.desktop", {.body = archive});
  serve({.version = "2.0", .url = server.address("/..%2F..%2Fevil.desktop")});
  ASSERT_TRUE(check());
  ASSERT_TRUE(install());
  EXPECT_THAT(downloads(), ElementsAre("Klarvik-2.0"));
}

TEST_F(UpdateInstallation, RefusesAnArchiveInWhichAByteHasChanged) {
  std::string changed = archive;
  changed.back() = 'x';
  server.answer("/k.deb", {.body = changed});
  expectRefusal(
      "The update is not what the makers of Klarvik have signed, so Klarvik has thrown it away.");
}

TEST_F(UpdateInstallation, RefusesAnArchiveThatIsShorterThanAnnounced) {
  server.answer("/k.deb", {.body = archive.substr(1)});
  expectRefusal("The update is shorter than announced, so Klarvik has thrown it away.");
}

TEST_F(UpdateInstallation, RefusesAnArchiveThatSaysAtOnceThatItIsLonger) {
  server.answer("/k.deb", {.announcedLength = gigabyte, .streamed = gigabyte});
  expectRefusal("The update is longer than announced, so Klarvik has thrown it away.");
  EXPECT_LT(server.bytesSent(), gigabyte / 50);
}

TEST_F(UpdateInstallation, StopsAnArchiveOf1GBWhereItGetsLongerThanAnnounced) {
  server.answer("/k.deb", {.announcesLength = false, .streamed = gigabyte});
  expectRefusal("The update is longer than announced, so Klarvik has thrown it away.");
  ASSERT_TRUE(turnMainLoopUntil([&] { return server.openConnections() == 0; }));
  EXPECT_LT(server.bytesSent(), gigabyte / 50);
}

TEST_F(UpdateInstallation, RefusesAnArchiveThatIsRedirectedToHttp) {
  QTcpServer plain;
  ASSERT_TRUE(plain.listen(QHostAddress::LocalHost));
  server.answer("/k.deb", {.status = "302 Found",
                           .location = "http://127.0.0.1:" + std::to_string(plain.serverPort())});
  expectRefusal("The update server offers no secure connection, so Klarvik does not listen to it.");
  EXPECT_EQ(std::get<update_stage::Failed>(stages.back()).error.code, updater_code::downloadFailed);
  EXPECT_FALSE(plain.hasPendingConnections());
}

TEST_F(UpdateInstallation, RefusesAnArchiveWhoseConnectionIsCut) {
  server.answer("/k.deb", {.body = archive.substr(0, 1000),
                           .announcedLength = static_cast<std::int64_t>(archive.size())});
  expectRefusal("The update could not be downloaded.");
  EXPECT_EQ(urlCode(), -1005);
}

TEST_F(UpdateInstallation, RefusesAnArchiveThatIsNotThere) {
  serve({.version = "2.0", .url = server.address("/missing.deb")});
  expectRefusal("The update could not be downloaded.");
  EXPECT_EQ(urlCode(), -1100);
}

TEST_F(UpdateInstallation, SaysThatItCannotBeSaved) {
  disk.makeFile("/Users/ann/Downloads", "a file in the folder's place");
  ASSERT_TRUE(check());
  ASSERT_TRUE(install());
  EXPECT_EQ(sentence(), "The update could not be saved in your Downloads folder.");
  EXPECT_EQ(disk.contentOf("/Users/ann/Downloads"), "a file in the folder's place");
}

TEST_F(UpdateInstallation, LeavesNothingWhenItIsCancelledHalfWay) {
  downloadHalf();
  EXPECT_FALSE(updater->canCheckForUpdates());
  EXPECT_THAT(downloads(), IsEmpty());
  updater->dismiss();
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0", "aborted 4007", "finished 4007"));
  EXPECT_TRUE(is<update_stage::Hidden>());
  EXPECT_THAT(downloads(), IsEmpty());
  EXPECT_TRUE(updater->canCheckForUpdates());
}

TEST_F(UpdateInstallation, IsGivenUpWhenTheServerFallsSilent) {
  downloadHalf();
  clock.advance(30s);
  EXPECT_EQ(urlCode(), -1001);
  EXPECT_TRUE(is<update_stage::Failed>());
  EXPECT_THAT(downloads(), IsEmpty());
}

TEST_F(UpdateInstallation, LeavesNothingWhenTheProgramEndsHalfWay) {
  downloadHalf();
  updater.reset();
  EXPECT_THAT(downloads(), IsEmpty());
}

TEST_F(UpdateInstallation, LeavesNothingAndTellsNobodyWhenTheUpdaterIsStoppedHalfWay) {
  downloadHalf();
  updater->stop();
  EXPECT_THAT(downloads(), IsEmpty());
  EXPECT_TRUE(is<update_stage::Hidden>());
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0"));
  EXPECT_TRUE(turnMainLoopUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(UpdateInstallation, LeavesNothingWhenItIsCancelledWhileTheSignatureIsChecked) {
  ASSERT_TRUE(check());
  updater->present([this](const UpdateStage& stage) {
    stages.push_back(stage);
    if (is<update_stage::Verifying>()) updater->dismiss();
  });
  ASSERT_TRUE(install());
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0", "aborted 4007", "finished 4007"));
  server.answer("/feed", {.body = rss("")});
  delegate.calls.clear();
  ASSERT_TRUE(check());
  EXPECT_THAT(delegate.calls, ElementsAre("nothing", "finished"));
  EXPECT_THAT(downloads(), IsEmpty());
}

TEST_F(UpdateInstallation, PutOffTellsSoAndAsksTheServerForNothing) {
  ASSERT_TRUE(check());
  updater->dismiss();
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0", "aborted 4008", "finished 4008"));
  EXPECT_TRUE(is<update_stage::Hidden>());
  EXPECT_THAT(server.requests(), ElementsAre("/feed"));
}

TEST_F(UpdateInstallation, IsOfferedAgainByACheckWhileTheOfferStands) {
  ASSERT_TRUE(check());
  ASSERT_TRUE(updater->canCheckForUpdates());
  updater->checkForUpdates();
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0", "found 2.0"));
  EXPECT_TRUE(is<update_stage::Offered>());
  EXPECT_THAT(server.requests(), ElementsAre("/feed"));
  ASSERT_TRUE(install());
  EXPECT_THAT(downloads(), ElementsAre("Klarvik-2.0.deb"));
}

TEST_F(UpdateInstallation, DoesNothingUnlessSomethingIsOffered) {
  updater->install();
  updater->dismiss();
  EXPECT_THAT(delegate.calls, IsEmpty());
  EXPECT_THAT(server.requests(), IsEmpty());
}

}  // namespace
}  // namespace klarvik
