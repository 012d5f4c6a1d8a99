#include "platform/update/version.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace klarvik {
namespace {

Version version(const char* text) {
  return Version::parse(text).value();
}

TEST(UpdateVersion, IsComparedFieldByField) {
  constexpr auto inOrder = std::to_array<const char*>(
      {"0", "0.0.9", "0.9", "0.10", "1", "1.0.1", "1.2", "1.9", "1.9.9", "1.10", "1.100", "2", "10",
       "2026.11", "2147483648", "202611221433", "202611221434", "99999999999999999999999998",
       "99999999999999999999999999"});
  for (std::size_t left = 0; left < inOrder.size(); ++left) {
    for (std::size_t right = 0; right < inOrder.size(); ++right) {
      EXPECT_EQ(version(inOrder[left]) <=> version(inOrder[right]),
                std::weak_ordering(left <=> right))
          << inOrder[left] << " and " << inOrder[right];
    }
  }
}

TEST(UpdateVersion, MissingFieldsAreZeroAndZerosInFrontDoNotCount) {
  EXPECT_EQ(version("1"), version("1.0.0"));
  EXPECT_EQ(version("1.010"), version("1.10"));
  EXPECT_EQ(version("0.0"), version("0"));
  EXPECT_EQ(version(" 1.2\n"), version("1.2"));
}

TEST(UpdateVersion, APreReleaseComesBeforeItsRelease) {
  constexpr auto inOrder = std::to_array<const char*>(
      {"1.9", "2.0-1", "2.0-alpha", "2.0-alpha.1", "2.0-alpha.beta", "2.0-beta.2", "2.0-beta.11",
       "2.0~rc1", "2.0rc2", "2.0", "2.0.1-beta", "2.0.1"});
  for (std::size_t at = 0; at + 1 < inOrder.size(); ++at) {
    EXPECT_LT(version(inOrder[at]), version(inOrder[at + 1])) << inOrder[at];
  }
  EXPECT_LT(version("2.0a2"), version("2.0b1"));
  EXPECT_EQ(version("2.0-RC1"), version("2.0rc1"));
}

TEST(UpdateVersion, HowItWasBuiltDoesNotCount) {
  EXPECT_EQ(version("1.2+45"), version("1.2"));
  EXPECT_EQ(version("1.2-beta+45"), version("1.2-beta+46"));
}

TEST(UpdateVersion, TextThatIsNoneIsRefused) {
  for (const std::string text :
       {"", " ", "latest", "v2.0", ".1", "1.", "1..2", "-1", "1,2", "1 2", "1.0 (45)", "1.0-",
        "1.0-\xC3\xA4", "1.0/2", "1.x", "\xD9\xA1", "1.0_1"}) {
    EXPECT_FALSE(Version::parse(text)) << text;
  }
  EXPECT_FALSE(Version::parse(std::string(65, '9')));
  EXPECT_FALSE(Version::parse(std::string("1\0", 2)));
}

}  // namespace
}  // namespace klarvik
