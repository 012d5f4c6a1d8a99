#include "platform/packages.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(PackagesTest, KnowsTheUsualBundles) {
  for (const char* name :
       {"Mail.app", "Photos Library.photoslibrary", "AppKit.framework", "a.bundle", "a.plugin",
        "a.kext", "a.xpc", "a.pkg", "a.mpkg", "note.rtfd", "Windows.pvm", "a.vmwarevm", "a.utm",
        "Novel.scriv", "a.pages", "a.xcodeproj", "two.dots.app"}) {
    EXPECT_TRUE(isPackageName(name)) << name;
  }
}

TEST(PackagesTest, DoesNotMindCapitals) {
  EXPECT_TRUE(isPackageName("Mail.APP"));
  EXPECT_TRUE(isPackageName("A.PhotosLibrary"));
}

TEST(PackagesTest, TakesOnlyAWholeExtension) {
  for (const char* name : {"app", ".app", "Mail.app2", "Mail.xapp", "Mail.app.d", "Mail.", "",
                           "Mail", "com.example.tool", "Mail.ap"}) {
    EXPECT_FALSE(isPackageName(name)) << name;
  }
}

}  // namespace
}  // namespace klarvik
