#include "tools/large_file_walker.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <array>

#include "support/fake_desktop.h"
#include "support/sample_disk.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

constexpr std::int64_t limit = 1'000;

class LargeFileWalkerTest : public testing::Test {
 protected:
  FakeDesktopOnDisk world;
  TemporaryFolder& disk = world.disk;
  std::vector<LargeFileUpdate> updates;

  void makeLarge(const Path& inHome, std::int64_t bytes = limit) const {
    disk.makeSparseFile(Path("/Users/ann") / inHome, bytes);
  }

  void makeSmall(const Path& folderInHome, int count) const {
    for (int number = 0; number < count; ++number) {
      disk.makeFile(Path("/Users/ann") / folderInHome / ("small-" + std::to_string(number)));
    }
  }

  LargeFileList walk(std::int64_t threshold = limit, std::stop_token stop = {}) {
    return LargeFileWalker(world.files).walk(threshold, std::move(stop), [&](const auto& update) {
      updates.push_back(update);
    });
  }

  /// Paths below the home, in the order of the list.
  static std::vector<std::string> places(const LargeFileList& files) {
    std::vector<std::string> all;
    for (const auto& file : files) all.push_back(file->url.lexically_relative("/Users/ann"));
    return all;
  }
};

TEST_F(LargeFileWalkerTest, LooksIntoEightFoldersOfTheHome) {
  const std::vector<std::string> roots{
      "Documents", "Downloads", "Desktop",           "Movies",
      "Music",     "Pictures",  "Library/Developer", "Library/Caches"};
  std::vector<std::string> expected;
  for (const auto& root : roots) {
    makeLarge(root + "/deep/er/file");
    expected.push_back(root + "/deep/er/file");
  }
  makeLarge("file");
  makeLarge("Public/file");
  makeLarge("Library/Logs/file");
  disk.makeSparseFile("/Users/ben/Documents/file", limit);
  EXPECT_EQ(places(walk()), expected) << "files of one size stand in walking order";
}

TEST_F(LargeFileWalkerTest, LeavesOutAFolderThatDoesNotExistWithoutAMessage) {
  makeLarge("Documents/file");
  EXPECT_FALSE(world.files.exists("/Users/ann/Movies"));
  EXPECT_THAT(places(walk()), ElementsAre("Documents/file"));
  EXPECT_THAT(updates, IsEmpty());
}

TEST_F(LargeFileWalkerTest, ListsAFileOfExactlyTheThresholdAndNotOneByteLess) {
  makeLarge("Documents/exact", limit);
  makeLarge("Documents/less", limit - 1);
  EXPECT_THAT(places(walk()), ElementsAre("Documents/exact"));
}

TEST_F(LargeFileWalkerTest, PutsTheLargestFirst) {
  makeLarge("Documents/b", 2'000);
  makeLarge("Downloads/c", 3'000);
  makeLarge("Music/a", 1'000);
  EXPECT_THAT(places(walk()), ElementsAre("Downloads/c", "Documents/b", "Music/a"));
}

TEST_F(LargeFileWalkerTest, TellsOfAFileWhatTheFileSystemKnows) {
  const Path onDisk = disk.makeSparseFile("/Users/ann/Movies/a.mov", 5'000);
  const std::array<timespec, 2> times{timespec{1'700'000'000, 5}, timespec{1'600'000'000, 7}};
  ASSERT_EQ(::utimensat(AT_FDCWD, onDisk.c_str(), times.data(), 0), 0);
  const auto found = walk();
  ASSERT_THAT(found, SizeIs(1));
  const LargeFile& file = *found.front();
  EXPECT_EQ(file.url, "/Users/ann/Movies/a.mov");
  EXPECT_EQ(file.size, 5'000);
  EXPECT_EQ(file.lastOpened, Date(std::chrono::nanoseconds(1'700'000'000'000'000'005)));
  EXPECT_EQ(file.modifiedDate, Date(std::chrono::nanoseconds(1'600'000'000'000'000'007)));
}

TEST_F(LargeFileWalkerTest, ListsNothingBelowBuildAndDependencyFoldersAtAnyDepth) {
  for (const std::string name : {"node_modules", ".git", ".build", "DerivedData", "Pods", ".gradle",
                                 "build", "__pycache__"}) {
    disk.makeSparseFile("/Users/ann/Documents/" + name + "/file", 2'147'483'648);
    disk.makeSparseFile("/Users/ann/Documents/a/b/" + name + "/c/d/file", 2'147'483'648);
  }
  EXPECT_THAT(walk(), IsEmpty());
}

TEST_F(LargeFileWalkerTest, ComparesWholeComponentsAsTheyAreWritten) {
  makeLarge("Documents/build.zip");
  makeLarge("Documents/Build/a");
  makeLarge("Documents/my node_modules/b");
  makeLarge("Documents/build");
  EXPECT_THAT(places(walk()), UnorderedElementsAre("Documents/build.zip", "Documents/Build/a",
                                                   "Documents/my node_modules/b"));
}

TEST_F(LargeFileWalkerTest, ListsNothingOfAHomeThatItselfLiesBelowSuchAFolder) {
  disk.makeSparseFile("/Users/build/ann/Documents/file", limit);
  disk.makeSparseFile("/Users/x.band/ann/Documents/file", limit);
  for (const auto* home : {"/Users/build/ann", "/Users/x.band/ann"}) {
    const LinuxFileSystem files(disk.path(), home);
    EXPECT_THAT(LargeFileWalker(files).walk(limit, {}, {}), IsEmpty()) << home;
  }
}

TEST_F(LargeFileWalkerTest, ListsNothingInPhotoMusicAndFilmLibraries) {
  for (const std::string extension :
       {"photoslibrary", "musiclibrary", "tvlibrary", "aplibrary", "photolibrary",
        "migratedphotolibrary", "imovielibrary", "theater", "logicx", "band"}) {
    makeLarge("Pictures/x." + extension + "/originals/a");
    makeLarge("Pictures/single." + extension);
  }
  makeLarge("Pictures/Photos Library.photoslibrary/file");
  makeLarge("Music/Music Library.musiclibrary/file");
  makeLarge("Movies/TV Library.tvlibrary/file");
  EXPECT_THAT(walk(), IsEmpty());
}

TEST_F(LargeFileWalkerTest, LowersTheCaseOfAComponentBeforeItsExtensionIsTaken) {
  makeLarge("Music/My.Band/file");
  makeLarge("Music/MUSIC LIBRARY.MusicLibrary/file");
  makeLarge("Music/band/file");
  makeLarge("Music/My.bands/file");
  EXPECT_THAT(places(walk()), UnorderedElementsAre("Music/band/file", "Music/My.bands/file"));
}

TEST(LargeFileWalker, KnowsAMediaLibraryByAnyComponentOfAPath) {
  for (const auto* path :
       {"/a/My.Band", "/My.Band/a/b", "/a/Photos Library.photoslibrary/x", "/a/x.y.LOGICX",
        "/.band", "/a/music library.musiclibrary", "/a/\xff.theater/\xfe"}) {
    EXPECT_TRUE(LargeFileWalker::isMediaLibrary(path)) << path;
  }
  for (const auto* path : {"/", "", "/band", "/a/theater/b", "/a.band.zip", "/a.", "/a.ban",
                           "/a.bandx", "/Photos Library/photoslibrary"}) {
    EXPECT_FALSE(LargeFileWalker::isMediaLibrary(path)) << path;
  }
}

TEST_F(LargeFileWalkerTest, NeverListsAHiddenFileNorEntersAHiddenFolder) {
  makeLarge("Movies/.hidden.mov");
  makeLarge("Movies/.folder/a.mov");
  makeLarge("Movies/shown.mov");
  EXPECT_THAT(places(walk()), ElementsAre("Movies/shown.mov"));
}

TEST_F(LargeFileWalkerTest, NeverEntersOrListsAPackage) {
  makeLarge("Documents/Acme.app/Contents/MacOS/Acme");
  makeLarge("Documents/disk.sparsebundle/bands/0");
  makeLarge("Documents/plain.app");  // no folder
  EXPECT_THAT(places(walk()), ElementsAre("Documents/plain.app"));
}

TEST_F(LargeFileWalkerTest, DoesNotListASymbolicLinkToALargeFile) {
  makeLarge("Movies/film.mov");
  disk.makeSparseFile("/elsewhere/file", limit);
  disk.makeLink("/Users/ann/Movies/link.mov", "film.mov");
  disk.makeLink("/Users/ann/Movies/folder", disk.onDisk("/elsewhere"));
  disk.makeLink("/Users/ann/Desktop", "Movies");
  EXPECT_THAT(places(walk()), ElementsAre("Movies/film.mov"));
}

TEST_F(LargeFileWalkerTest, ListsEachNameOfAFileThatHasTwo) {
  makeLarge("Movies/one");
  std::filesystem::create_hard_link(disk.onDisk("/Users/ann/Movies/one"),
                                    disk.onDisk("/Users/ann/Movies/two"));
  EXPECT_THAT(places(walk()), UnorderedElementsAre("Movies/one", "Movies/two"));
}

TEST_F(LargeFileWalkerTest, ReportsNothingBeforeTheEndWithFewerThan499ThingsInFront) {
  makeSmall("Documents", 498);
  makeLarge("Documents/large");
  EXPECT_THAT(walk(), SizeIs(1));
  EXPECT_THAT(updates, IsEmpty());
}

TEST_F(LargeFileWalkerTest, ReportsBeforeEvery500thThingOfAllFoldersTogether) {
  makeSmall("Documents", 300);
  makeSmall("Downloads/inside", 299);  // the folder is a thing as well
  makeSmall("Music", 900);
  EXPECT_THAT(walk(), IsEmpty());
  ASSERT_THAT(updates, SizeIs(3));
  EXPECT_EQ(updates[0].fraction, 500 / 80000.0);
  EXPECT_EQ(updates[1].fraction, 1000 / 80000.0);
  EXPECT_EQ(updates[2].fraction, 1500 / 80000.0);
  for (const auto& update : updates) EXPECT_THAT(update.currentName, testing::StartsWith("small-"));
}

TEST_F(LargeFileWalkerTest, CountsNothingThatIsPassedOver) {
  makeSmall("Documents", 499);
  makeSmall("Documents/build", 600);
  makeSmall("Documents/.hidden", 600);
  makeSmall("Documents/x.band", 600);
  walk();
  EXPECT_THAT(updates, IsEmpty());
}

TEST_F(LargeFileWalkerTest, AReportHoldsWhatWasFoundBeforeItLargestFirst) {
  makeLarge("Documents/b", 2'000);
  makeLarge("Documents/c", 3'000);
  makeSmall("Downloads", 600);
  makeLarge("Music/a", 4'000);
  makeSmall("Pictures", 600);
  const auto found = walk();
  ASSERT_THAT(updates, SizeIs(2));
  EXPECT_THAT(places(updates[0].files), ElementsAre("Documents/c", "Documents/b"));
  EXPECT_THAT(places(updates[1].files), ElementsAre("Music/a", "Documents/c", "Documents/b"));
  EXPECT_EQ(found, updates[1].files);
}

TEST_F(LargeFileWalkerTest, DoesNotYetListTheFileThatAReportNames) {
  for (int number = 0; number < 500; ++number) makeLarge("Music/" + std::to_string(number));
  EXPECT_THAT(walk(), SizeIs(500));
  ASSERT_THAT(updates, SizeIs(1));
  EXPECT_THAT(updates[0].files, SizeIs(499));
  EXPECT_THAT(places(updates[0].files),
              testing::Not(testing::Contains("Music/" + updates[0].currentName)));
}

TEST_F(LargeFileWalkerTest, AFileKeepsItsIdBetweenTheReportsOfOneWalkAndGetsANewOneInTheNext) {
  makeLarge("Documents/file");
  makeSmall("Music", 600);
  const auto first = walk();
  ASSERT_THAT(updates, SizeIs(1));
  EXPECT_EQ(updates[0].files.front()->id, first.front()->id);
  EXPECT_NE(walk().front()->id, first.front()->id);
}

TEST_F(LargeFileWalkerTest, TheFractionStaysAt95PercentHoweverMuchThereIs) {
  // Names of two files: making so many files would take a while.
  for (const std::string folder : {"/Users/ann/Documents", "/Users/ann/Music"}) {
    const Path file = disk.makeFile(folder + "/file");
    for (int number = 0; number < 40'249; ++number) {
      std::filesystem::create_hard_link(file, disk.onDisk(folder) / std::to_string(number));
    }
  }
  walk();
  ASSERT_THAT(updates, SizeIs(161));
  EXPECT_EQ(updates[150].fraction, 75'500 / 80000.0);
  EXPECT_EQ(updates[151].fraction, 0.95);
  EXPECT_EQ(updates[160].fraction, 0.95);
}

TEST_F(LargeFileWalkerTest, AStopRequestBeforeTheWalkListsNothing) {
  makeLarge("Documents/file");
  std::stop_source source;
  source.request_stop();
  EXPECT_THAT(walk(limit, source.get_token()), IsEmpty());
}

TEST_F(LargeFileWalkerTest, AStopRequestInTheWalkAnswersWhatWasFoundUntilThen) {
  makeLarge("Documents/b", 2'000);
  makeLarge("Documents/c", 3'000);
  makeSmall("Downloads", 700);
  makeLarge("Music/never reached");
  std::stop_source source;
  int reports = 0;
  const auto found = LargeFileWalker(world.files).walk(limit, source.get_token(), [&](const auto&) {
    ++reports;
    source.request_stop();
  });
  EXPECT_EQ(reports, 1);
  EXPECT_THAT(places(found), ElementsAre("Documents/c", "Documents/b"));
}

TEST_F(LargeFileWalkerTest, FindsWhatTheSampleDiskHolds) {
  const TemporaryFolder folder;
  const SampleDisk sample = buildSampleDisk(folder.path());
  const LinuxFileSystem files(sample.root, sample.home);
  const auto found = LargeFileWalker(files).walk(104'857'600, {}, {});
  EXPECT_THAT(found, SizeIs(sample.largeFiles));
}

}  // namespace
}  // namespace klarvik
