#include <set>

#include "support/child_process.h"
#include "uninstaller_fixture.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

class UninstallerResiduals : public UninstallerTest {
 protected:
  const AppInfo writer{.name = "Writer", .bundleID = "com.acme.writer"};
};

TEST_F(UninstallerResiduals, AreFoundInAllTwelveFoldersEachWithItsCategory) {
  const std::vector<std::pair<Path, ResidualCategory>> places{
      {library / "Preferences", ResidualCategory::preferences},
      {library / "Caches", ResidualCategory::caches},
      {library / "Application Support", ResidualCategory::appSupport},
      {library / "Logs", ResidualCategory::logs},
      {library / "Containers", ResidualCategory::containers},
      {library / "Group Containers", ResidualCategory::containers},
      {library / "Saved Application State", ResidualCategory::savedState},
      {library / "Cookies", ResidualCategory::cookies},
      {library / "HTTPStorages", ResidualCategory::caches},
      {"/Library/Preferences", ResidualCategory::preferences},
      {"/Library/Application Support", ResidualCategory::appSupport},
      {"/Library/Caches", ResidualCategory::caches}};
  for (const auto& place : places) disk.makeFile(place.first / "com.acme.writer", 10);
  for (const char* const elsewhere :
       {"/Users/ann/Library/WebKit", "/Users/ann/Library/Application Scripts",
        "/Users/ann/Library/LaunchAgents", "/Users/ann/Documents", "/Library/Logs",
        "/Users/ben/Library/Caches", "/Users/ann/Library"}) {
    disk.makeFile(Path(elsewhere) / "com.acme.writer", 10);
  }

  const auto found = engine.findResiduals(writer);
  ASSERT_THAT(found, SizeIs(places.size()));
  for (std::size_t at = 0; at < places.size(); ++at) {
    EXPECT_EQ(found[at].url, places[at].first / "com.acme.writer");
    EXPECT_EQ(found[at].category, places[at].second);
    EXPECT_EQ(found[at].size, 10);
  }
}

TEST_F(UninstallerResiduals, TheNameFormFindsWhatAPartWithACapitalLetterCannot) {
  disk.makeFile(library / "Caches/tool/a", 10);
  disk.makeFile(library / "Preferences/com.acme.tool.plist", 10);
  disk.makeFile(library / "Caches/toolbox/a", 10);
  EXPECT_THAT(placesFound({.name = "Tool", .bundleID = "com.acme.Tool"}),
              ElementsAre(library / "Caches/tool", library / "Preferences/com.acme.tool.plist"));
  EXPECT_THAT(placesFound({.name = "Xy", .bundleID = "com.xy.Tool"}), IsEmpty());
}

TEST_F(UninstallerResiduals, OfTheSystemsBrowserAreAllProtected) {
  for (const char* const name : {"com.apple.Safari", "com.apple.safari.plist",
                                 "com.apple.Safari.SafeBrowsing", "COM.APPLE.SAFARI"}) {
    disk.makeFile(library / "Caches" / name, 10);
    disk.makeFile(library / "Preferences" / name, 10);
  }
  EXPECT_THAT(engine.findResiduals({.name = "Saf", .bundleID = "com.apple.Safari"}), IsEmpty());
}

TEST_F(UninstallerResiduals, AreLargestFirstAndOfOneSizeInTheOrderOfTheFolders) {
  disk.makeFile(library / "Preferences/writer", 10);
  disk.makeFile(library / "Caches/writer", 30);
  disk.makeFile(library / "Logs/writer/a", 10);
  disk.makeFile("/Library/Caches/writer", 20);
  std::vector<Path> places;
  for (const ResidualFile& each : engine.findResiduals(writer)) places.push_back(each.url);
  EXPECT_THAT(places, ElementsAre(library / "Caches/writer", "/Library/Caches/writer",
                                  library / "Preferences/writer", library / "Logs/writer"));
}

TEST_F(UninstallerResiduals, AnEmptyFolderOrOneThatHoldsOnlyHiddenFilesIsNotReported) {
  disk.makeFolder(library / "Caches/com.acme.writer/deep/er");
  disk.makeFile(library / "Logs/writer/.hidden", 10);
  disk.makeFile(library / "Preferences/com.acme.writer.plist", 0);
  EXPECT_THAT(engine.findResiduals(writer), IsEmpty());
  disk.makeFile(library / "Caches/com.acme.writer/deep/er/a", 1);
  EXPECT_THAT(engine.findResiduals(writer), SizeIs(1));
}

TEST_F(UninstallerResiduals, WhatIsHiddenIsNotFound) {
  disk.makeFile(library / "Caches/.com.acme.writer", 10);
  EXPECT_THAT(engine.findResiduals(writer), IsEmpty());
}

TEST_F(UninstallerResiduals, LieAtTheTopOfAFolderAndNotInside) {
  disk.makeFile(library / "Logs/other/writer.log", 10);
  EXPECT_THAT(engine.findResiduals(writer), IsEmpty());
  disk.makeFile(library / "Logs/acme/x.log", 10);
  EXPECT_THAT(placesFound(writer), ElementsAre(library / "Logs/acme"));
}

TEST_F(UninstallerResiduals, AFolderThatCannotBeReadIsSkipped) {
  disk.makeFile(library / "Caches/com.acme.writer", 10);
  disk.makeFile(library / "Logs/com.acme.writer", 10);
  files.fail(FaultInjectingFileSystem::Operation::list, library / "Caches");
  EXPECT_THAT(placesFound(writer), ElementsAre(library / "Logs/com.acme.writer"));
}

TEST_F(UninstallerResiduals, AFolderThatTheUserMayNotReadIsSkipped) {
  for (const auto& place : std::filesystem::recursive_directory_iterator(disk.path())) {
    std::filesystem::permissions(place, std::filesystem::perms::all);
  }
  std::filesystem::permissions(disk.path(), std::filesystem::perms::all);
  disk.makeFile(library / "Caches/com.acme.writer", 10);
  disk.makeFile(library / "Logs/com.acme.writer", 10);
  disk.makeFile(library / "Cookies/com.acme.writer/a", 10);
  std::filesystem::permissions(disk.onDisk(library / "Caches"), std::filesystem::perms::none);
  std::filesystem::permissions(disk.onDisk(library / "Cookies/com.acme.writer"),
                               std::filesystem::perms::none);
  EXPECT_TRUE(inChildWithoutPrivileges(
      [&] { return placesFound(writer) == std::vector<Path>{library / "Logs/com.acme.writer"}; }));
  for (const Path& place : {library / "Caches", library / "Cookies/com.acme.writer"}) {
    std::filesystem::permissions(disk.onDisk(place), std::filesystem::perms::owner_all);
  }
}

TEST_F(UninstallerResiduals, ALinkIsAResidualOfItsOwnLength) {
  disk.makeFile("/Users/ann/Documents/letter", 5'000);
  disk.makeLink(library / "Caches/com.acme.writer", "../../Documents");
  const auto found = engine.findResiduals(writer);
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].size, std::int64_t{std::string_view("../../Documents").size()});
}

TEST_F(UninstallerResiduals, NeighboursDoNotFindOneAnothersFiles) {
  disk.makeFile(library / "Caches/com.a.b", 10);
  disk.makeFile(library / "Caches/com.a.bc", 10);
  disk.makeFile(library / "Caches/App", 10);
  disk.makeFile(library / "Caches/App 11", 10);
  EXPECT_THAT(placesFound({.name = "A", .bundleID = "com.a.b"}),
              ElementsAre(library / "Caches/com.a.b"));
  EXPECT_THAT(placesFound({.name = "A", .bundleID = "com.a.bc"}),
              ElementsAre(library / "Caches/com.a.bc"));
  EXPECT_THAT(placesFound({.name = "App", .bundleID = "io.x.y"}), IsEmpty());
  EXPECT_THAT(placesFound({.name = "App 11", .bundleID = "io.x.z"}),
              ElementsAre(library / "Caches/App 11"));
}

TEST_F(UninstallerResiduals, OfOtherInstalledApplicationsAreNotFound) {
  install("Note", "com.paper.note");
  installAt("/Users/ann/Applications/Notes.app", "Notes", "com.note.app");
  install("Painter", "com.acme.painter");
  for (const char* const name : {"com.note.app.plist", "com.paper.note.plist", "com.acme.plist",
                                 "com.acme.painter.plist", "com.acme.writer.plist"}) {
    disk.makeFile(library / "Preferences" / name, 10);
  }
  EXPECT_THAT(placesFound({.name = "Note", .bundleID = "com.paper.note"}),
              ElementsAre(library / "Preferences/com.paper.note.plist"));
  EXPECT_THAT(placesFound(writer), ElementsAre(library / "Preferences/com.acme.writer.plist"));
  std::filesystem::remove_all(disk.onDisk("/Users/ann/Applications/Notes.app"));
  EXPECT_THAT(placesFound({.name = "Note", .bundleID = "com.paper.note"}),
              ElementsAre(library / "Preferences/com.note.app.plist",
                          library / "Preferences/com.paper.note.plist"));
}

TEST_F(UninstallerResiduals, OfAHomeThatIsNotThereAreThoseOutsideOfIt) {
  std::filesystem::remove_all(disk.onDisk("/Users/ann"));
  disk.makeFile("/Library/Caches/com.acme.writer", 10);
  EXPECT_THAT(engine.findResiduals(writer), SizeIs(1));
}

TEST(UninstallerOnTheSampleDisk, FindsWhatIsThereAndLeavesTheRestAsItIs) {
  FakeDesktopOnDisk world{SampleDiskOptions{}};
  const SampleDisk& sample = *world.sample;
  const FileSystem& files = world.files;
  UninstallerEngine engine(world.desktop);

  const auto apps = engine.listApps();
  EXPECT_THAT(apps, SizeIs(sample.applications));
  const auto writer = std::ranges::find(apps, "com.acme.writer", &AppInfo::bundleID);
  ASSERT_NE(writer, apps.end());
  const auto residuals = engine.findResiduals(*writer);
  EXPECT_THAT(residuals, SizeIs(sample.residuals));

  std::int64_t bytes = writer->appSize;
  std::set<Path> gone{writer->appURL};
  for (const ResidualFile& each : residuals) {
    bytes += each.size;
    gone.insert(each.url);
  }
  EXPECT_EQ(engine.uninstall(*writer, residuals), bytes);
  for (const Path& place : gone) EXPECT_FALSE(files.attributes(place)) << place;
  EXPECT_THAT(engine.listApps(), SizeIs(sample.applications - 1));
  EXPECT_THAT(engine.findResiduals(*writer), IsEmpty());
  EXPECT_TRUE(files.exists("/Users/ann/Library/Preferences/notebook.plist"));
  EXPECT_TRUE(files.exists("/Users/ann/.local/share/Trash/files/Acme Writer.app/Contents"));
}

}  // namespace
}  // namespace klarvik
