// What becomes of a check, by what the server answers.

#include "updater_fixture.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::SizeIs;

constexpr std::int64_t gigabyte = 1'000'000'000;
constexpr auto insecureSentence =
    "The update server offers no secure connection, so Klarvik does not listen to it.";

class UpdateFeed : public UpdaterFixture {
 protected:
  /// Nothing was offered, and the user was told about an error.
  void expectRefusal() {
    ASSERT_TRUE(check());
    ASSERT_THAT(delegate.calls, SizeIs(2));
    EXPECT_TRUE(delegate.calls[0].starts_with("aborted ")) << delegate.calls[0];
    EXPECT_TRUE(delegate.calls[1].starts_with("finished ")) << delegate.calls[1];
    EXPECT_TRUE(is<update_stage::Failed>());
    EXPECT_TRUE(updater->canCheckForUpdates());
  }
  void expectRefusal(std::int64_t code) {
    expectRefusal();
    EXPECT_EQ(urlCode(), code) << sentence();
  }
  void expectNothingNewer() {
    ASSERT_TRUE(check());
    EXPECT_THAT(delegate.calls, ElementsAre("nothing", "finished"));
    EXPECT_TRUE(is<update_stage::UpToDate>());
  }
};

TEST_F(UpdateFeed, WithANewerSignedVersionOffersIt) {
  ASSERT_TRUE(check());
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0"));
  ASSERT_THAT(stages, SizeIs(2));
  EXPECT_TRUE(std::holds_alternative<update_stage::Checking>(stages[0]));
  const auto& offered = std::get<update_stage::Offered>(stages[1]);
  EXPECT_EQ(offered.version, "2.0");
  EXPECT_EQ(offered.notes, "Faster.");
  EXPECT_EQ(offered.bytes, static_cast<std::int64_t>(archive.size()));
  EXPECT_THAT(server.requests(), ElementsAre("/feed"));
}

TEST_F(UpdateFeed, IsAskedForWithoutATraceOfWhoAsks) {
  ASSERT_TRUE(check());
  EXPECT_THAT(server.lastRequest(),
              ::testing::MatchesRegex("GET /feed HTTP/1.1\r\nHost: 127.0.0.1:[0-9]+\r\n"
                                      "Cache-Control: no-cache\r\nPragma: no-cache\r\n"
                                      "User-Agent: Klarvik\r\nAccept-Language: en\r\n"
                                      "Accept-Encoding: identity\r\n"
                                      "Connection: Keep-Alive\r\n\r\n"));
}

TEST_F(UpdateFeed, ThatIsOlderSaysThatNothingIsNewer) {
  serve({.version = "1.8"});
  expectNothingNewer();
}

TEST_F(UpdateFeed, WithTheSameVersionSaysThatNothingIsNewer) {
  serve({.version = "1.9.0"});
  expectNothingNewer();
}

TEST_F(UpdateFeed, WithAVersionThatIsNoneSaysThatNothingIsNewer) {
  serve({.version = "newest!"});
  expectNothingNewer();
}

TEST_F(UpdateFeed, WithNoItemsSaysThatNothingIsNewer) {
  server.answer("/feed", {.body = rss("")});
  expectNothingNewer();
}

TEST_F(UpdateFeed, ThatIsTruncatedIsRefused) {
  std::string feed = feedOf({.version = "2.0"});
  feed.resize(feed.size() - 20);
  server.answer("/feed", {.body = feed});
  expectRefusal(-1011);
}

TEST_F(UpdateFeed, WhoseConnectionIsCutIsRefused) {
  const std::string feed = feedOf({.version = "2.0"});
  server.answer("/feed", {.body = feed.substr(0, 100),
                          .announcedLength = static_cast<std::int64_t>(feed.size())});
  expectRefusal(-1005);
}

TEST_F(UpdateFeed, ThatAnnounces1GBIsRefusedAtOnce) {
  server.answer("/feed", {.announcedLength = gigabyte, .streamed = gigabyte});
  expectRefusal(-1011);
  ASSERT_TRUE(turnMainLoopUntil([&] { return server.openConnections() == 0; }));
  EXPECT_LT(server.bytesSent(), gigabyte / 50);
}

TEST_F(UpdateFeed, ThatStreams1GBUnannouncedIsCutOff) {
  server.answer("/feed", {.announcesLength = false, .streamed = gigabyte});
  expectRefusal(-1011);
  ASSERT_TRUE(turnMainLoopUntil([&] { return server.openConnections() == 0; }));
  EXPECT_LT(server.bytesSent(), gigabyte / 50);
}

TEST_F(UpdateFeed, WhoseErrorPageNeverEndsIsCutOff) {
  server.answer("/feed",
                {.status = "404 Not Found", .announcesLength = false, .streamed = gigabyte});
  expectRefusal(-1011);
  ASSERT_TRUE(turnMainLoopUntil([&] { return server.openConnections() == 0; }));
  EXPECT_LT(server.bytesSent(), gigabyte / 50);
}

TEST_F(UpdateFeed, WithAnEntityBombIsRefused) {
  server.answer("/feed", {.body = "<!DOCTYPE rss [<!ENTITY a \"1234567890\">"
                                  "<!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">"
                                  "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\">]>"
                                  "<rss><channel><title>&c;</title></channel></rss>"});
  expectRefusal(-1011);
}

TEST_F(UpdateFeed, ThatIsNotXmlIsRefused) {
  server.answer("/feed", {.body = "It works!"});
  expectRefusal(-1011);
}

TEST_F(UpdateFeed, ThatIsEmptyIsRefused) {
  server.answer("/feed", {});
  expectRefusal(-1011);
}

TEST_F(UpdateFeed, ThatIsNotThereIsRefused) {
  info["SUFeedURL"] = server.address("/missing");
  expectRefusal(-1100);
}

TEST_F(UpdateFeed, WhoseServerIsBrokenIsRefused) {
  server.answer("/feed", {.body = feedOf({.version = "2.0"}), .status = "500 Oops"});
  expectRefusal(-1011);
}

TEST_F(UpdateFeed, ThatComesWithAnotherStatusThanOkIsRefused) {
  server.answer("/feed", {.body = feedOf({.version = "2.0"}), .status = "203 Altered"});
  expectRefusal(-1011);
}

TEST_F(UpdateFeed, OverHttpIsNotEvenAskedFor) {
  QTcpServer plain;
  ASSERT_TRUE(plain.listen(QHostAddress::LocalHost));
  info["SUFeedURL"] = "http://127.0.0.1:" + std::to_string(plain.serverPort()) + "/feed";
  expectRefusal();
  EXPECT_EQ(sentence(), insecureSentence);
  EXPECT_FALSE(plain.hasPendingConnections());
}

TEST_F(UpdateFeed, RedirectedToHttpIsRefusedAndHttpIsNotAsked) {
  QTcpServer plain;
  ASSERT_TRUE(plain.listen(QHostAddress::LocalHost));
  const std::string target = "http://127.0.0.1:" + std::to_string(plain.serverPort()) + "/feed";
  for (const char* const status : {"301 Moved", "302 Found", "303 See", "307 Now", "308 Always"}) {
    delegate.calls.clear();
    server.answer("/feed", {.status = status, .location = target});
    expectRefusal();
    EXPECT_EQ(sentence(), insecureSentence) << status;
  }
  EXPECT_FALSE(plain.hasPendingConnections());
}

TEST_F(UpdateFeed, RedirectedToAFileOfThisMachineIsRefused) {
  server.answer("/feed", {.status = "302 Found", .location = "file:///etc/hostname"});
  expectRefusal();
  EXPECT_EQ(sentence(), insecureSentence);
}

TEST_F(UpdateFeed, RedirectedWithinHttpsIsRead) {
  server.answer("/moved", {.body = feedOf({.version = "2.0"})});
  server.answer("/feed", {.status = "301 Moved", .location = "/moved"});
  ASSERT_TRUE(check());
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0"));
}

TEST_F(UpdateFeed, ThatRedirectsInALoopIsGivenUp) {
  server.answer("/feed", {.status = "302 Found", .location = "/other"});
  server.answer("/other", {.status = "302 Found", .location = "/feed"});
  expectRefusal(-1007);
  EXPECT_THAT(server.requests(), SizeIs(6));
}

TEST_F(UpdateFeed, ThatNeverAnswersIsGivenUp) {
  server.answer("/feed", {.staysSilent = true});
  updater->checkForUpdates();
  ASSERT_TRUE(turnMainLoopUntil([&] { return !server.requests().empty(); }));
  clock.advance(19s);
  EXPECT_TRUE(delegate.calls.empty());
  EXPECT_FALSE(updater->canCheckForUpdates());
  clock.advance(1s);
  EXPECT_TRUE(delegate.isFinished());
  EXPECT_EQ(urlCode(), -1001);
  ASSERT_TRUE(turnMainLoopUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(UpdateFeed, ThatNeverEndsIsGivenUp) {
  server.answer("/feed", {.body = "<rss>", .announcesLength = false, .staysOpen = true});
  updater->checkForUpdates();
  ASSERT_TRUE(turnMainLoopUntil([&] { return server.bytesSent() > 0; }));
  clock.advance(60s);
  EXPECT_TRUE(delegate.isFinished());
  EXPECT_EQ(urlCode(), -1001);
}

TEST_F(UpdateFeed, OfAServerThatNobodyVouchesForIsNotRead) {
  trusts = false;
  makeUpdater();
  expectRefusal(-1200);
  EXPECT_TRUE(server.requests().empty());
}

TEST_F(UpdateFeed, OfAServerThatIsNotThereIsRefused) {
  QTcpServer gone;
  ASSERT_TRUE(gone.listen(QHostAddress::LocalHost));
  info["SUFeedURL"] = "https://127.0.0.1:" + std::to_string(gone.serverPort()) + "/";
  gone.close();
  expectRefusal(-1004);
}

TEST_F(UpdateFeed, ThatHasNoAddressIsMissing) {
  info.erase("SUFeedURL");
  expectRefusal(-1100);
  info["SUFeedURL"] = true;
  delegate.calls.clear();
  expectRefusal(-1100);
  EXPECT_TRUE(server.requests().empty());
}

TEST_F(UpdateFeed, WithAnUnsignedVersionOffersNothingAndSaysSo) {
  serve({.version = "2.0", .signature = "-"});
  expectRefusal();
  EXPECT_EQ(sentence(), "Version 2.0 is not signed, so Klarvik leaves it alone.");
}

TEST_F(UpdateFeed, WithAVersionOfAnotherSignerOffersNothingAndSaysSo) {
  serve({.version = "2.0", .signature = SigningKey().sign(archive)});
  expectRefusal();
  EXPECT_EQ(sentence(),
            "Version 2.0 is not signed by the makers of Klarvik, so Klarvik leaves it alone.");
}

TEST_F(UpdateFeed, WithAnOldSignedArchiveUnderANewNumberOffersNothingAndSaysSo) {
  serve({.version = "3.0", .signedAs = "1.0"});
  expectRefusal();
  EXPECT_EQ(sentence(),
            "Version 3.0 is not signed by the makers of Klarvik, so Klarvik leaves it alone.");
}

TEST_F(UpdateFeed, WithoutAKeyInTheProgramOffersNothingAndSaysSo) {
  for (const char* const noKey : {"", "garbage", "c2hvcnQ="}) {
    info["SUPublicEDKey"] = std::string(noKey);
    delegate.calls.clear();
    expectRefusal();
    EXPECT_EQ(sentence(),
              "There is a newer version, but this copy of Klarvik has no key to check it with.");
  }
}

TEST_F(UpdateFeed, CanBeCancelledWhileItIsRead) {
  server.answer("/feed", {.staysSilent = true});
  updater->checkForUpdates();
  ASSERT_TRUE(turnMainLoopUntil([&] { return !server.requests().empty(); }));
  updater->dismiss();
  EXPECT_THAT(delegate.calls, ElementsAre("aborted 4007", "finished 4007"));
  EXPECT_TRUE(is<update_stage::Hidden>());
  EXPECT_TRUE(updater->canCheckForUpdates());
  ASSERT_TRUE(turnMainLoopUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(UpdateFeed, IsReadAgainByTheNextCheckAfterAFailure) {
  server.answer("/feed", {.body = "garbage"});
  expectRefusal(-1011);
  delegate.calls.clear();
  serve({.version = "2.0"});
  ASSERT_TRUE(check());
  EXPECT_THAT(delegate.calls, ElementsAre("found 2.0"));
}

TEST_F(UpdateFeed, IsReadByOneCheckAtATime) {
  updater->checkForUpdates();
  EXPECT_FALSE(updater->canCheckForUpdates());
  updater->checkForUpdates();
  ASSERT_TRUE(turnMainLoopUntil([&] { return is<update_stage::Offered>(); }));
  EXPECT_THAT(server.requests(), SizeIs(1));
}

}  // namespace
}  // namespace klarvik
