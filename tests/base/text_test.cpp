#include "base/text.h"

#include <gmock/gmock.h>

#include <limits>

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Text, TrimsWhiteSpaceOfEveryScriptAtBothEnds) {
  EXPECT_EQ(trimmed(" \t\r\n a b \v\f\n"), "a b");
  EXPECT_EQ(trimmed("\u00a0\u2003wide\u3000\u2028"), "wide");
  EXPECT_EQ(trimmed(" \n "), "");
  EXPECT_EQ(trimmed(""), "");
}

TEST(Text, TrimmingLeavesBytesThatAreNotUtf8Alone) {
  EXPECT_EQ(trimmed(" \xff\xa0 "), "\xff\xa0");
  EXPECT_EQ(trimmed("\x80"), "\x80");
}

TEST(Text, TrimsOnlyBlanksWhereOnlyBlanksAreMeant) {
  EXPECT_EQ(trimmed(" \ta b\r\t ", " \t"), "a b\r");
  EXPECT_EQ(trimmed(" \t", " \t"), "");
}

TEST(Text, SplitsLinesAndKeepsEmptyOnes) {
  EXPECT_THAT(splitLines("a\n\nb\n"), ElementsAre("a", "", "b", ""));
  EXPECT_THAT(splitLines(""), ElementsAre(""));
}

TEST(Text, SplitsWordsAndDropsEmptyOnes) {
  EXPECT_THAT(splitWords("  Images \t 5\u00a02  "), ElementsAre("Images", "5", "2"));
  EXPECT_THAT(splitWords(" \t "), IsEmpty());
}

TEST(Text, CountsCharactersNotBytes) {
  EXPECT_EQ(firstCharacters("äöüß", 2), "äö");
  EXPECT_EQ(firstCharacters("short", 8), "short");
  EXPECT_EQ(firstCharacters("\xff\xfe\xfd", 2), "\xff\xfe");
}

TEST(Text, ReadsAWholeSignedIntegerThatFits64Bits) {
  EXPECT_EQ(decimalInteger("42"), 42);
  EXPECT_EQ(decimalInteger("+42"), 42);
  EXPECT_EQ(decimalInteger("-42"), -42);
  EXPECT_EQ(decimalInteger("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
}

TEST(Text, ReadsNoIntegerFromAnythingElse) {
  for (const char* const text : {"", "+", "-", "+-1", "--1", " 1", "1 ", "1.5", "12a", "0x10",
                                 "9223372036854775808", "99999999999999999999999"}) {
    EXPECT_EQ(decimalInteger(text), std::nullopt) << text;
  }
}

TEST(Text, ReadsADecimalNumber) {
  EXPECT_EQ(decimalNumber("1.5"), 1.5);
  EXPECT_EQ(decimalNumber(".5"), 0.5);
  EXPECT_EQ(decimalNumber("-2"), -2);
  EXPECT_EQ(decimalNumber("+2"), 2);
  EXPECT_EQ(decimalNumber("2e3"), 2000);
}

TEST(Text, ReadsANumberBeyondTheRangeAsZero) {
  EXPECT_EQ(decimalNumber("1e999"), 0);
  EXPECT_EQ(decimalNumber("1e-999"), 0);
}

TEST(Text, ReadsNoNumberFromAnythingElse) {
  for (const char* const text :
       {"", "+", ".", "inf", "-inf", "nan", "infinity", "0x1p3", "1.5.2", "1 ", " 1", "+-1", "k"}) {
    EXPECT_EQ(decimalNumber(text), std::nullopt) << text;
  }
}

TEST(Text, GivesUpOneLineAfterTheOther) {
  std::string_view text = "a\n\nb";
  EXPECT_EQ(takeLine(text), "a");
  EXPECT_EQ(takeLine(text), "");
  EXPECT_EQ(text, "b");
  EXPECT_EQ(takeLine(text), "b");
  EXPECT_EQ(text, "");
  EXPECT_EQ(takeLine(text), "");
}

TEST(Text, IsAWholeNumberOnlyAsAWholeAndWhereItFits) {
  EXPECT_EQ(wholeNumber<std::uint64_t>("18446744073709551615"), 18446744073709551615U);
  EXPECT_EQ(wholeNumber<unsigned char>("ff", 16), 255);
  EXPECT_EQ(wholeNumber<std::int64_t>("-7"), -7);
  for (const std::string_view text : {"", "+1", "-1", "1 ", " 1", "1x", "0x1", "256"}) {
    EXPECT_FALSE(wholeNumber<unsigned char>(text)) << text;
  }
}

}  // namespace
}  // namespace klarvik
