#include "base/text.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(Lowercased, FollowsUnicodeAndNoOneLanguage) {
  EXPECT_EQ(lowercased("ÄPFEL Iota ΣΑΣ"), "äpfel iota σας");
  EXPECT_EQ(lowercased(""), "");
}

TEST(ComparableName, OfALetterWithItsAccentsIsOneWhicheverWayItIsWritten) {
  EXPECT_EQ(comparableName("Cafe\u0301"), "caf\u00e9");
  EXPECT_EQ(comparableName("CAF\u00c9"), "caf\u00e9");
  EXPECT_EQ(comparableName("\u1100\u1161"), "\uac00");
  EXPECT_NE(comparableName("cafe"), comparableName("caf\u00e9"));
  EXPECT_EQ(comparableName(""), "");
}

TEST(ComparableName, KeepsBytesThatAreNotUtf8) {
  EXPECT_EQ(comparableName("E\u0301\xff\xfeX"), "\u00e9\xff\xfex");
  EXPECT_NE(comparableName("a\xff"), comparableName("a\xfe"));
}

TEST(Lowercased, KeepsBytesThatAreNotUtf8) {
  EXPECT_EQ(lowercased("A\xff\xfe\xc3"), "a\xff\xfe\xc3");
}

TEST(Capitalized, ChangesTheFirstCharacterOnly) {
  EXPECT_EQ(capitalized("mail"), "Mail");
  EXPECT_EQ(capitalized("äpfel iota"), "Äpfel iota");
  EXPECT_EQ(capitalized("ßa"), "SSa");
  EXPECT_EQ(capitalized("3com"), "3com");
  EXPECT_EQ(capitalized(""), "");
}

TEST(Capitalized, KeepsBytesThatAreNotUtf8) {
  EXPECT_EQ(capitalized("\xff mail"), "\xff mail");
  EXPECT_EQ(capitalized("a\xff"), "A\xff");
}

TEST(CharacterCount, CountsWhatAReaderSees) {
  EXPECT_EQ(characterCount(""), 0U);
  EXPECT_EQ(characterCount("acme"), 4U);
  EXPECT_EQ(characterCount("äöü"), 3U);
  EXPECT_EQ(characterCount("e\u0301"), 1U);
  EXPECT_EQ(characterCount("👩‍👩‍👧"), 1U);
  EXPECT_EQ(characterCount("a\xff\xfe"), 3U);
}

TEST(Printable, LeavesUtf8AsItIs) {
  EXPECT_EQ(printable("Ärger 👩"), "Ärger 👩");
}

TEST(Printable, ReplacesWhatIsNotUtf8) {
  EXPECT_EQ(printable("a\xff"
                      "b"),
            "a\uFFFDb");
  EXPECT_EQ(printable("\xe2\x82"), "\uFFFD");
  EXPECT_EQ(printable("\xed\xa0\x80").substr(0, 3), "\uFFFD");
}

TEST(Printable, ReplacesWhatBreaksTheLineOrTurnsTheTextAround) {
  EXPECT_EQ(printable(std::string_view("a\0b", 3)), "a\uFFFDb");
  EXPECT_EQ(printable("a\nb\tc\u0085"), "a\uFFFDb\uFFFDc\uFFFD");
  EXPECT_EQ(printable("a\u2028b\u2029"), "a\uFFFDb\uFFFD");
  EXPECT_EQ(printable("\u202Egnp.exe\u202C"), "\uFFFDgnp.exe\uFFFD");
  EXPECT_EQ(printable("\u2066a\u2069"), "\uFFFDa\uFFFD");
  EXPECT_EQ(printable("\u200Fשלום"), "\u200Fשלום");
}

}  // namespace
}  // namespace klarvik
