#include "panes/kit/row_text.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(TextOverSeveralLines, HoldsASizeAndItsUnitTogether) {
  EXPECT_EQ(withSizesUnbroken("Poorly. 134 MB of it can go."),
            QString::fromUtf8("Poorly. 134\u00A0MB of it can go."));
  EXPECT_EQ(withSizesUnbroken("Zero KB, 1 byte, 512 bytes, 1.5 TB"),
            QString::fromUtf8("Zero KB, 1\u00A0byte, 512\u00A0bytes, 1.5\u00A0TB"));
}

TEST(TextOverSeveralLines, IsOtherwiseAsItWas) {
  for (const char* text : {"", "3 items · 2 MBits", "MB 12", "12  MB", "1 bytesize", "12 files"}) {
    EXPECT_EQ(withSizesUnbroken(text), text);
  }
}

}  // namespace
}  // namespace klarvik
