#include "platform/base64.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(Base64, WritesPaddedText) {
  EXPECT_EQ(base64(""), "");
  EXPECT_EQ(base64("f"), "Zg==");
  EXPECT_EQ(base64("fo"), "Zm8=");
  EXPECT_EQ(base64("foo"), "Zm9v");
}

TEST(Base64, BringsEveryByteBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    bytes += static_cast<char>(byte);
    EXPECT_EQ(bytesOfBase64(base64(bytes)), bytes);
  }
}

TEST(Base64, ReadsOnlyWhatItWouldWrite) {
  for (const std::string_view text :
       {"Zg", "Zg=", "Zg===", "Z", "=", "==", "====", "Zm9v\n", " Zm9v", "Zm9v====", "Zm 9",
        "Zh==", "Zm9v!A==", "Zg==Zg=="}) {
    EXPECT_EQ(bytesOfBase64(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace klarvik
