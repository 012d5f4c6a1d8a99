#include "places/mac/scan_places.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(FirmwareFiles, AreToldByTheirExtension) {
  for (const char* name : {"a.ipsw", "a.ipa", "folder/a.b.ipsw"}) {
    EXPECT_TRUE(mac::isFirmware(name)) << name;
  }
  for (const char* name : {"a.IPSW", "a.ipsw.zip", "ipsw", ".ipa", "a.ipsw/part"}) {
    EXPECT_FALSE(mac::isFirmware(name)) << name;
  }
}

}  // namespace
}  // namespace klarvik
