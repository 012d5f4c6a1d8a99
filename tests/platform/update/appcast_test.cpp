#include "platform/update/appcast.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

std::string rss(const std::string& channel) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<rss version=\"2.0\"><channel>"
         "<title>Klarvik</title>" +
         channel + "</channel></rss>";
}

AppcastItem only(const std::string& item) {
  const auto items = parseAppcast(rss("<item>" + item + "</item>"));
  EXPECT_TRUE(items && items->size() == 1U);
  return items && !items->empty() ? items->front() : AppcastItem{};
}

TEST(Appcast, ReadsAnItemWithTheVersionInElementsOfItsOwn) {
  const AppcastItem item = only(
      "<title>Version 2.0</title>"
      "<sparkle:version>200</sparkle:version>"
      "<sparkle:shortVersionString> 2.0 </sparkle:shortVersionString>"
      "<sparkle:minimumSystemVersion>5.10</sparkle:minimumSystemVersion>"
      "<sparkle:maximumSystemVersion>7</sparkle:maximumSystemVersion>"
      "<sparkle:channel>beta</sparkle:channel>"
      "<sparkle:releaseNotesLink>https://example.com/notes</sparkle:releaseNotesLink>"
      "<description><![CDATA[<p>Better &amp; faster</p>]]></description>"
      "<enclosure url=\"https://example.com/k.deb\" length=\"12\" type=\"x\""
      " klarvik:sha256=\"ZGln\" klarvik:signature=\"c2ln\" sparkle:os=\"linux\"/>");
  EXPECT_EQ(item.version, "200");
  EXPECT_EQ(item.displayVersion, "2.0");
  EXPECT_EQ(item.minimumSystem, "5.10");
  EXPECT_EQ(item.maximumSystem, "7");
  EXPECT_EQ(item.channel, "beta");
  EXPECT_EQ(item.notesLink, "https://example.com/notes");
  EXPECT_EQ(item.notes, "Better & faster");
  EXPECT_EQ(item.address, "https://example.com/k.deb");
  EXPECT_EQ(item.length, "12");
  EXPECT_EQ(item.digest, "ZGln");
  EXPECT_EQ(item.signature, "c2ln");
  EXPECT_EQ(item.system, "linux");
}

TEST(Appcast, ReadsTheVersionFromTheEnclosureAsOlderFeedsHaveIt) {
  const AppcastItem item = only(
      "<enclosure url=\"https://example.com/k.deb\" sparkle:version=\"7\""
      " sparkle:shortVersionString=\"1.7\"/>");
  EXPECT_EQ(item.version, "7");
  EXPECT_EQ(item.displayVersion, "1.7");
}

TEST(Appcast, DoesNotTakeAPatchForTheWholeArchive) {
  const AppcastItem item = only(
      "<sparkle:deltas><enclosure url=\"https://example.com/patch\" length=\"1\"/></sparkle:deltas>"
      "<enclosure url=\"https://example.com/whole\" length=\"2\"/>"
      "<enclosure url=\"https://example.com/second\" length=\"3\"/>");
  EXPECT_EQ(item.address, "https://example.com/whole");
  EXPECT_EQ(item.length, "2");
}

TEST(Appcast, KeepsNotesThatSayTheyAreText) {
  EXPECT_EQ(only("<description sparkle:format=\"plain-text\">a &lt;b&gt;</description>").notes,
            "a <b>");
}

TEST(Appcast, KeepsTheItemsInTheirOrder) {
  const auto items =
      parseAppcast(rss("<item><sparkle:version>1</sparkle:version></item>"
                       "<item><sparkle:version>2</sparkle:version></item>"));
  ASSERT_TRUE(items);
  ASSERT_EQ(items->size(), 2U);
  EXPECT_EQ(items->at(0).version, "1");
  EXPECT_EQ(items->at(1).version, "2");
}

TEST(Appcast, WithoutItemsIsAFeedAllTheSame) {
  const auto items = parseAppcast(rss(""));
  ASSERT_TRUE(items);
  EXPECT_TRUE(items->empty());
}

TEST(Appcast, ThatIsEmptyTruncatedOrNoFeedAtAllIsRefused) {
  for (const std::string& feed :
       {std::string(), std::string(" \n"), std::string("no XML"), std::string("<html/>"),
        std::string("<rss/>"), std::string("<feed><entry/></feed>"), std::string("{\"a\": 1}"),
        rss("<item>").substr(0, 80), rss("<item></itme>"), rss("") + "<rss/>",
        std::string("\xFF\xFE<rss>"), std::string("<rss>\0</rss>", 12), rss("&unknown;")}) {
    EXPECT_FALSE(parseAppcast(feed)) << feed;
  }
}

TEST(Appcast, IsReadAsUtf8WhateverItSaysOfItself) {
  const auto items = parseAppcast(
      "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><rss><channel><item>"
      "<description>\u00E4</description></item></channel></rss>");
  ASSERT_TRUE(items);
  EXPECT_EQ(items->front().notes, "\u00E4");
}

TEST(Appcast, WithADocumentTypeIsRefusedBeforeAnyOfItIsRead) {
  std::string bomb = "<!DOCTYPE rss [<!ENTITY a \"ha\">";
  for (char name = 'b'; name <= 'z'; ++name) {
    bomb += std::string("<!ENTITY ") + name + " \"";
    for (int i = 0; i < 10; ++i) bomb += std::string("&") + static_cast<char>(name - 1) + ";";
    bomb += "\">";
  }
  bomb += "]>";
  const std::string body =
      "<rss><channel><item><description>&z;</description></item></channel></rss>";
  EXPECT_FALSE(parseAppcast("<?xml version=\"1.0\"?>" + bomb + body));
  EXPECT_FALSE(parseAppcast(bomb + body));
  EXPECT_FALSE(parseAppcast("<!-- a --> <?b?>\n" + bomb + body));
  EXPECT_FALSE(
      parseAppcast("<!DOCTYPE rss SYSTEM \"file:///etc/passwd\"><rss><channel></channel></rss>"));
  EXPECT_FALSE(parseAppcast(
      "<!DOCTYPE rss [<!ENTITY % x SYSTEM \"file:///etc/passwd\"> %x;]><rss><channel/></rss>"));
  EXPECT_FALSE(parseAppcast("<rss><!DOCTYPE a><channel/></rss>"));
  EXPECT_FALSE(parseAppcast("<!-- -->" + bomb + "<!-- -->" + body));
}

TEST(Appcast, MayQuoteADocumentTypeInItsNotes) {
  const AppcastItem item = only("<description><![CDATA[<!DOCTYPE html><p>a</p>]]></description>");
  EXPECT_EQ(item.notes, "a");
}

TEST(Appcast, NestedAMillionBytesDeepIsRefused) {
  std::string deep = "<rss><channel>";
  while (deep.size() < 1'000'000) deep += "<a>";
  EXPECT_FALSE(parseAppcast(deep));
}

}  // namespace
}  // namespace klarvik
