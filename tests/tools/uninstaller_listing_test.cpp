#include "uninstaller_fixture.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class UninstallerListing : public UninstallerTest {
 protected:
  [[nodiscard]] std::vector<std::string> names() {
    std::vector<std::string> found;
    for (const AppInfo& app : engine.listApps()) found.push_back(app.name);
    return found;
  }
};

TEST_F(UninstallerListing, OfNothingIsEmpty) {
  EXPECT_THAT(engine.listApps(), IsEmpty());
}

TEST_F(UninstallerListing, TellsWhatAnApplicationIs) {
  const AppInfo writer = install("Writer", "com.acme.writer");
  const auto found = engine.listApps();
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].name, "Writer");
  EXPECT_EQ(found[0].bundleID, "com.acme.writer");
  EXPECT_EQ(found[0].appURL, "/Applications/Writer.app");
  EXPECT_EQ(found[0].appSize, writer.appSize);
  EXPECT_NE(found[0].id, engine.listApps()[0].id);
}

TEST_F(UninstallerListing, LooksAtBothFoldersAndSortsByNameWithCapitalsFirst) {
  install("beta", "com.b");
  install("Zeta", "com.z");
  installAt("/Users/ann/Applications/alpha.app", "alpha", "com.a");
  EXPECT_THAT(names(), ElementsAre("Zeta", "alpha", "beta"));
}

TEST_F(UninstallerListing, DoesNotLookIntoSubfoldersNorAtWhatIsHiddenOrHasAnotherExtension) {
  installAt("/Applications/Suite/Inner.app", "Inner", "com.inner");
  installAt("/Applications/.Hidden.app", "Hidden", "com.hidden");
  installAt("/Applications/Other.APP", "Other", "com.other");
  installAt("/Applications/Other.bundle", "Other", "com.other");
  installAt("/Applications/app", "Other", "com.other");
  installAt("/Applications/.app", "Other", "com.other");
  installAt("/Users/ben/Applications/His.app", "His", "com.his");
  EXPECT_THAT(engine.listApps(), IsEmpty());
}

TEST_F(UninstallerListing, LeavesOutWhatHasNoBundleIdentifier) {
  disk.makeFolder("/Applications/Empty.app");
  disk.makeFile("/Applications/File.app", "text");
  disk.makeFile("/Applications/Broken.app/Contents/Info.plist", "<plist><dict>");
  disk.makeFile("/Applications/Nameless.app/Contents/Info.plist",
                xmlPropertyList({{"CFBundleName", "Nameless"}}));
  disk.makeLink("/Applications/Dangling.app", "missing");
  disk.makeLink("/Applications/Loop.app", "Loop.app");
  EXPECT_THAT(engine.listApps(), IsEmpty());
}

TEST_F(UninstallerListing, PrefersTheDisplayNameToTheNameAndThatToTheFolders) {
  disk.makeFile("/Applications/One.app/Contents/Info.plist",
                binaryPropertyList({{"CFBundleIdentifier", "com.one"},
                                    {"CFBundleDisplayName", "Shown One"},
                                    {"CFBundleName", "Named One"}}));
  disk.makeFile(
      "/Applications/Two.app/Contents/Info.plist",
      binaryPropertyList({{"CFBundleIdentifier", "com.two"}, {"CFBundleName", "Named Two"}}));
  disk.makeFile("/Applications/Three.2.app/Contents/Info.plist",
                binaryPropertyList({{"CFBundleIdentifier", "com.three"}}));
  EXPECT_THAT(names(), ElementsAre("Named Two", "Shown One", "Three.2"));
}

TEST_F(UninstallerListing, MeasuresContentWithoutWhatIsHiddenAndWithPackagesInside) {
  const AppInfo writer = install("Writer", "com.acme.writer");
  disk.makeFile(writer.appURL / ".hidden", 1'000);
  disk.makeFile(writer.appURL / "Contents/Frameworks/Ink.framework/Ink", 50);
  disk.makeLink(writer.appURL / "Contents/linked", "Frameworks");
  const std::int64_t lengthOfTheLink = std::string_view("Frameworks").size();
  EXPECT_EQ(engine.listApps().at(0).appSize, writer.appSize + 50 + lengthOfTheLink);
}

TEST_F(UninstallerListing, ABundleThatIsALinkIsListedAndMeasuresTheLink) {
  installAt("/Users/ann/Projects/Mine.app", "Mine", "com.mine");
  disk.makeLink("/Applications/Mine.app", "../Users/ann/Projects/Mine.app");
  const auto found = engine.listApps();
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].appURL, "/Applications/Mine.app");
  EXPECT_EQ(found[0].appSize,
            std::int64_t{std::string_view("../Users/ann/Projects/Mine.app").size()});
}

TEST_F(UninstallerListing, AFolderThatCannotBeReadIsSkipped) {
  install("Writer", "com.acme.writer");
  installAt("/Users/ann/Applications/Mini.app", "Mini", "com.mini");
  files.fail(FaultInjectingFileSystem::Operation::list, "/Applications");
  EXPECT_THAT(names(), ElementsAre("Mini"));
  files.heal(FaultInjectingFileSystem::Operation::list, "/Applications");
  files.fail(FaultInjectingFileSystem::Operation::list, "/Users/ann/Applications");
  EXPECT_THAT(names(), ElementsAre("Writer"));
}

TEST_F(UninstallerListing, AnApplicationThatVanishesMeanwhileIsLeftOut) {
  const AppInfo writer = install("Writer", "com.acme.writer");
  install("Booth", "com.shutter.booth");
  files.before(FaultInjectingFileSystem::Operation::openForReading,
               writer.appURL / "Contents/Info.plist",
               [&] { std::filesystem::remove_all(disk.onDisk(writer.appURL)); });
  EXPECT_THAT(names(), ElementsAre("Booth"));
}

TEST_F(UninstallerListing, TakesNamesOfAnyBytes) {
  disk.makeFile("/Applications/\xff\n.app/Contents/Info.plist",
                xmlPropertyList({{"CFBundleIdentifier", "com.odd"}}));
  EXPECT_THAT(names(), ElementsAre("\xff\n"));
}

}  // namespace
}  // namespace klarvik
