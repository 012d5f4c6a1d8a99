#include "platform/update/appcast.h"

#include <gtest/gtest.h>

#include "base/text.h"

namespace klarvik {
namespace {

TEST(ReleaseNotes, AreReadWithoutTheirMarkup) {
  EXPECT_EQ(plainNotesOfHtml("<h2>New in 2.0</h2>\n<ul>\n  <li>Scans   <b>faster</b></li>\n"
                             "  <li>Fewer bugs</li></ul><p>Thanks!</p>"),
            "New in 2.0\n\u2022 Scans faster\n\u2022 Fewer bugs\nThanks!");
  EXPECT_EQ(plainNotesOfHtml("one<br>two<br/>three"), "one\ntwo\nthree");
}

TEST(ReleaseNotes, LeaveOutWhatIsNotForReading) {
  EXPECT_EQ(plainNotesOfHtml("<html><head><title>t</title></head><style>b{}</style>a<script>x()"
                             "</script>b<!-- <p>c</p> -->"),
            "ab");
}

TEST(ReleaseNotes, WriteWhatEntitiesStandForAndKeepUnknownOnes) {
  EXPECT_EQ(plainNotesOfHtml("a &lt; b &amp;&amp; c &gt; &quot;d&quot; &#39;e&#39; &nope; & f"),
            "a < b && c > \"d\" 'e' &nope; & f");
}

TEST(ReleaseNotes, ThatAreTextAlreadyKeepTheirLinesAndSigns) {
  EXPECT_EQ(plainNotes("\n- a <b> & c\n- d\r\n\n"), "- a <b> & c\n- d");
  EXPECT_EQ(plainNotes("a\x1b[31mb\x07"), "a[31mb");
}

TEST(ReleaseNotes, AreCutWhereNobodyReadsOnAndNotWithinACharacter) {
  std::string endless;
  for (int i = 0; i < 100'000; ++i) endless += "\u00E4";
  for (const std::string& cut :
       {plainNotes(endless + "x"), plainNotes("x" + endless), plainNotesOfHtml("<p>" + endless),
        plainNotesOfHtml("x" + endless)}) {
    EXPECT_LT(cut.size(), 20'000U);
    EXPECT_GT(cut.size(), 10'000U);
    EXPECT_TRUE(isUtf8(cut));
  }
}

TEST(ReleaseNotes, BearTagsThatNeverEnd) {
  EXPECT_EQ(plainNotesOfHtml("a<"), "a");
  EXPECT_EQ(plainNotesOfHtml("a<!-- b"), "a");
  EXPECT_EQ(plainNotesOfHtml("a<script>b"), "a");
  EXPECT_EQ(plainNotesOfHtml("a&"), "a&");
}

TEST(ReleaseNotes, ThatReferToOtherFilesAreTheirOwnWordsAndNothingElse) {
  EXPECT_EQ(plainNotesOfHtml("a<img src=\"file:///etc/hostname\" alt=\"b\">"
                             "<link rel=\"stylesheet\" href=\"file:///etc/hostname\">"
                             "<style>@import url(file:///etc/hostname);</style>"
                             "<body background=\"file:///etc/hostname\">c"
                             "<iframe src=\"file:///etc/hostname\"></iframe>"
                             "<object data=\"file:///etc/hostname\"></object>"),
            "ac");
}

// What takes more than one look at each byte takes minutes for these.
TEST(ReleaseNotes, BearLongMarkup) {
  for (const std::string piece :
       {"<", "<b>", "<div>", "<ul>", "<table><tr><td>", "<a name=x>", "</p>", "<!-- -->", "<!--",
        "<style>b{}</style>", "<style>", "<td colspan=2147483647>", " ", "\n"}) {
    std::string html;
    while (html.size() < 400'000) html += piece;
    EXPECT_EQ(plainNotesOfHtml(html), "") << piece;
    EXPECT_EQ(plainNotesOfHtml("<p>a</p>" + html), "a") << piece;
  }
}

}  // namespace
}  // namespace klarvik
