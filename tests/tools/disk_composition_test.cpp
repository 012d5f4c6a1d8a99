#include "tools/disk_composition.h"

#include <gmock/gmock.h>
#include <array>
#include <map>

#include "platform/system_platform.h"
#include "support/fake_desktop.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"
#include "tools/large_file_walker.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Bucket = DiskComposition::Bucket;

constexpr std::int64_t gigabyte = 1'000'000'000;
constexpr double usualShare = 0.015;

DiskComposition diskOf(std::int64_t usedBytes, const std::vector<std::int64_t>& sizes) {
  DiskComposition disk{.usedBytes = usedBytes};
  for (const auto size : sizes) {
    const std::string id = std::to_string(disk.buckets.size());
    disk.buckets.push_back({.id = id, .label = id, .bytes = size});
  }
  return disk;
}

std::vector<std::string> ids(const std::vector<Bucket>& buckets) {
  std::vector<std::string> all;
  for (const Bucket& bucket : buckets) all.push_back(bucket.id);
  return all;
}

TEST(DisplayBuckets, ABucketOfExactlyTheShareStaysAndOneByteLessDoesNot) {
  const auto shown =
      diskOf(100 * gigabyte, {1'500'000'000, 1'499'999'999}).displayBuckets(usualShare);
  ASSERT_THAT(ids(shown), ElementsAre("0", "smaller"));
  EXPECT_EQ(shown[1],
            (Bucket{"smaller", "Smaller folders", 1'499'999'999, {0.42, 0.42, 0.42}, {}}));
}

TEST(DisplayBuckets, WithAllBucketsAboveTheCutThereIsNoRowOfSmallerFolders) {
  EXPECT_THAT(ids(diskOf(10 * gigabyte, {2 * gigabyte, 5 * gigabyte}).displayBuckets(usualShare)),
              ElementsAre("1", "0"));
}

TEST(DisplayBuckets, TheSmallerFoldersComeLastHoweverLargeTheyAre) {
  const auto shown = diskOf(1'000, {300, 200, 290, 280}).displayBuckets(0.295);
  EXPECT_THAT(ids(shown), ElementsAre("0", "smaller"));
  EXPECT_EQ(shown[1].bytes, 770);
}

TEST(DisplayBuckets, BucketsOfOneSizeKeepTheirOrder) {
  EXPECT_THAT(ids(diskOf(10, {3, 4, 3, 4}).displayBuckets(0)), ElementsAre("1", "3", "0", "2"));
}

TEST(DisplayBuckets, EmptyBucketsAreLeftOut) {
  EXPECT_THAT(diskOf(100, {0, 0}).displayBuckets(usualShare), IsEmpty());
}

TEST(DisplayBuckets, OfADiskThatIsSaidToBeEmptyAllStay) {
  EXPECT_THAT(ids(diskOf(0, {1, 5}).displayBuckets(usualShare)), ElementsAre("1", "0"));
  EXPECT_THAT(ids(diskOf(-7, {1, 5}).displayBuckets(usualShare)), ElementsAre("1", "0"));
}

TEST(DisplayBuckets, SizesBeyondWhatADoubleHoldsExactlyStayExact) {
  const std::int64_t large = (std::int64_t{1} << 53) + 1;
  const auto shown = diskOf(4 * large, {large, large + 2}).displayBuckets(usualShare);
  ASSERT_THAT(ids(shown), ElementsAre("1", "0"));
  EXPECT_EQ(shown[0].bytes - shown[1].bytes, 2);
}

using Step = std::pair<std::string, double>;

std::vector<std::string> ids(const DiskComposition& found) {
  std::vector<std::string> all;
  for (const Bucket& bucket : found.buckets) all.push_back(bucket.id);
  return all;
}

class CompositionOfADisk : public testing::Test, protected FakeDesktopInMemory {
 protected:
  const Date now{std::chrono::seconds(1'772'644'000)};
  DiskCompositionEngine engine{desktop, [this] { return now; }};
  std::vector<Step> steps;

  void fill(const Path& folder, std::int64_t bytes) { disk.addFile(folder / "data", bytes); }
  void fillHome(const Path& folder, std::int64_t bytes) { fill("/Users/ann" / folder, bytes); }

  DiskComposition measure(std::stop_token stop = {}) {
    return engine.measureDisk(
        stop, [this](const std::string& label, double part) { steps.emplace_back(label, part); });
  }
};

TEST_F(CompositionOfADisk, HasEveryPlaceInOrderAndThenTheRemainder) {
  fill("/Applications/A.app/Contents", 1);
  fillHome("Documents", 2);
  fillHome("Desktop", 3);
  fillHome("Downloads", 4);
  fillHome("Pictures", 5);
  fillHome("Music", 6);
  fillHome("Movies", 7);
  fillHome("Library/Developer", 8);
  fillHome("Library/Mobile Documents", 9);
  fillHome("Library/Mail", 10);
  fillHome("Library/Containers", 11);
  fillHome("Library/Application Support", 12);
  fillHome("Library/Caches", 13);
  const auto found = measure();
  const RgbColor gray{0.443, 0.443, 0.463};
  const Path home = "/Users/ann";
  EXPECT_THAT(
      found.buckets,
      ElementsAre(
          Bucket{"applications", "Applications", 1, {0.224, 0.529, 0.898}, "/Applications"},
          Bucket{"documents", "Documents", 2, {0.851, 0.349, 0.149}, home / "Documents"},
          Bucket{"desktop", "Desktop", 3, {0.098, 0.62, 0.439}, home / "Desktop"},
          Bucket{"downloads", "Downloads", 4, {0.788, 0.522, 0.0}, home / "Downloads"},
          Bucket{"photos", "Photos", 5, {0.835, 0.318, 0.506}, home / "Pictures"},
          Bucket{"music", "Music", 6, {0.0, 0.514, 0.0}, home / "Music"},
          Bucket{"movies", "Movies", 7, {0.565, 0.522, 0.914}, home / "Movies"},
          Bucket{"developer", "Developer", 8, {0.902, 0.404, 0.404}, home / "Library/Developer"},
          Bucket{"icloud", "iCloud Drive (local)", 9, gray, home / "Library/Mobile Documents"},
          Bucket{"mail", "Mail", 10, gray, home / "Library/Mail"},
          Bucket{"containers", "App containers", 11, gray, home / "Library/Containers"},
          Bucket{"appSupport", "App support", 12, gray, home / "Library/Application Support"},
          Bucket{"caches", "Caches", 13, gray, home / "Library/Caches"},
          Bucket{"system",
                 "macOS and everything else",
                 300 * gigabyte - 91,
                 {0.34, 0.34, 0.34},
                 std::nullopt}));
  EXPECT_EQ(found.usedBytes, 300 * gigabyte);
  EXPECT_EQ(found.freeBytes, 200 * gigabyte);
  EXPECT_EQ(found.measuredAt, now);
}

TEST_F(CompositionOfADisk, TheFractionCountsPlacesHoweverFewOfThemAreThere) {
  measure();
  EXPECT_THAT(steps, ElementsAre(Step("Applications", 0.0), Step("Documents", 1 / 14.0),
                                 Step("Desktop", 2 / 14.0), Step("Downloads", 3 / 14.0),
                                 Step("Photos", 4 / 14.0), Step("Music", 5 / 14.0),
                                 Step("Movies", 6 / 14.0), Step("Developer", 7 / 14.0),
                                 Step("iCloud Drive (local)", 8 / 14.0), Step("Mail", 9 / 14.0),
                                 Step("App containers", 10 / 14.0), Step("App support", 11 / 14.0),
                                 Step("Caches", 12 / 14.0), Step("The rest of the disk", 13 / 14.0),
                                 Step("Done", 1.0)));
}

TEST_F(CompositionOfADisk, AMissingMailFolderIsNoBucketAndDisturbsNothing) {
  fillHome("Library/Containers", 5);
  EXPECT_THAT(ids(measure()), ElementsAre("containers", "system"));
  EXPECT_EQ(steps[9], Step("Mail", 9 / 14.0));
  EXPECT_EQ(steps[10], Step("App containers", 10 / 14.0));
}

TEST_F(CompositionOfADisk, AMeasuredSumAboveTheUsedBytesLeavesNoRemainder) {
  fillHome("Movies", 300 * gigabyte - 1);
  EXPECT_THAT(ids(measure()), ElementsAre("movies", "system"));
  fillHome("Music", 1);
  EXPECT_THAT(ids(measure()), ElementsAre("music", "movies"));
}

TEST_F(CompositionOfADisk, CountsHiddenFilesAndPackagesAndNoLinks) {
  disk.addFile("/Users/ann/Pictures/Library.photoslibrary/originals/a", 100);
  disk.addFile("/Users/ann/Pictures/.hidden/b", 20);
  disk.addLink("/Users/ann/Pictures/link");
  disk.addLink("/Users/ann/Music");
  disk.addFile("/Users/ann/Movies", 3);
  EXPECT_EQ(engine.measure("/Users/ann/Pictures"), 120);
  EXPECT_EQ(engine.measure("/Users/ann/Music"), 0);
  EXPECT_EQ(engine.measure("/Users/ann/Movies"), 3);
  EXPECT_EQ(engine.measure("/Users/ann/missing"), 0);
}

TEST_F(CompositionOfADisk, AFolderThatMayNotBeReadFallsIntoTheRemainder) {
  fillHome("Documents", 5 * gigabyte);
  fillHome("Desktop/secret", 4 * gigabyte);
  fillHome("Desktop", 1 * gigabyte);
  files.makeUnreadable("/Users/ann/Documents");
  files.makeUnreadable("/Users/ann/Desktop/secret");
  const auto found = measure();
  ASSERT_THAT(ids(found), ElementsAre("desktop", "system"));
  EXPECT_EQ(found.buckets[0].bytes, 1 * gigabyte);
  EXPECT_EQ(found.buckets[1].bytes, 299 * gigabyte);
}

TEST_F(CompositionOfADisk, AVolumeThatTellsNothingHasNoRemainder) {
  volume.setTotalBytes(std::nullopt);
  volume.setAvailableBytes(std::nullopt);
  fillHome("Movies", 7);
  const auto found = measure();
  EXPECT_THAT(ids(found), ElementsAre("movies"));
  EXPECT_EQ(found.usedBytes, 0);
  EXPECT_EQ(found.freeBytes, 0);
}

TEST_F(CompositionOfADisk, AVolumeThatDoesNotTellWhatIsFreeCountsAsFull) {
  volume.setAvailableBytes(std::nullopt);
  EXPECT_EQ(measure().usedBytes, 500 * gigabyte);
}

TEST_F(CompositionOfADisk, AStopBeforeTheStartLeavesEverythingToTheRemainder) {
  fillHome("Movies", 7);
  std::stop_source source;
  source.request_stop();
  const auto found = measure(source.get_token());
  EXPECT_THAT(ids(found), ElementsAre("system"));
  EXPECT_EQ(found.buckets[0].bytes, 300 * gigabyte);
  EXPECT_THAT(steps, ElementsAre(Step("The rest of the disk", 13 / 14.0), Step("Done", 1.0)));
  EXPECT_EQ(found.measuredAt, now);
}

TEST_F(CompositionOfADisk, AStopBetweenTwoPlacesKeepsWhatWasMeasured) {
  fillHome("Documents", 1 * gigabyte);
  fillHome("Downloads", 2 * gigabyte);
  std::stop_source source;
  const auto found = engine.measureDisk(source.get_token(), [&](const std::string& label, double) {
    if (label == "Downloads") source.request_stop();
  });
  ASSERT_THAT(ids(found), ElementsAre("documents", "system"));
  EXPECT_EQ(found.buckets[1].bytes, 299 * gigabyte);
}

/// The same on a disk of the machine.
class CompositionOnDisk : public testing::Test, protected FakeDesktopOnDisk {
 protected:
  DiskCompositionEngine engine{desktop};
  const Path music = "/Users/ann/Music";

  DiskComposition measureFolder(const std::stop_token& stop = {}) {
    return engine.measureDisk(stop, [](const std::string&, double) {});
  }
};

TEST_F(CompositionOnDisk, AStopInsideAWalkEndsItAtTheNextEntry) {
  for (const char* const name : {"a", "b", "c", "d"}) {
    disk.makeFile(music / name, 1);
    files.overlaySize(music / name, 10);
  }
  std::stop_source source;
  for (const char* const name : {"a", "b", "c", "d"}) {
    files.before(FileOperation::attributes, music / name, [&] { source.request_stop(); });
  }
  disk.makeFile("/Users/ann/Movies/a", 1'000);
  const auto stopped = measureFolder(source.get_token());
  ASSERT_THAT(ids(stopped), ElementsAre("music", "system"));
  EXPECT_EQ(stopped.buckets[0].bytes, 10);
  EXPECT_EQ(stopped.buckets[1].bytes, 300 * gigabyte - 10);
  EXPECT_THAT(ids(measureFolder()), ElementsAre("music", "movies", "system"));
}

TEST_F(CompositionOnDisk, ALinkAsAPlaceAndLinksInsideOneAddNothing) {
  disk.makeFile("/elsewhere/a", 100'000);
  disk.makeLink("/Users/ann/Movies", disk.onDisk("/elsewhere"));
  disk.makeLink(music / "out", disk.onDisk("/elsewhere"));
  disk.makeLink(music / "loop", "..");
  EXPECT_THAT(ids(measureFolder()), ElementsAre("system"));
}

TEST_F(CompositionOnDisk, ASparseFileOfATerabyteCountsByWhatIsAllocated) {
  disk.makeSparseFile(music / "a", 1'000'000'000'000);
  EXPECT_LT(engine.measure(music), 1'000'000);
}

TEST_F(CompositionOnDisk, AFolderThatVanishesAsItIsMeasuredIsNoBucket) {
  disk.makeFile(music / "a", 1'000);
  files.vanishBefore(FileOperation::walk, music);
  EXPECT_THAT(ids(measureFolder()), ElementsAre("system"));
}

TEST_F(CompositionOnDisk, NamesOfAnyBytesAreCounted) {
  for (const char* const name : {"not utf-8 \xff", "two\nlines", "-rf", "$(id)"}) {
    disk.makeFile(music / name / "a", 1);
    files.overlaySize(music / name / "a", 10);
  }
  EXPECT_EQ(engine.measure(music), 40);
}

TEST_F(CompositionOnDisk, SaysWhenItWasMeasured) {
  const auto before = std::chrono::system_clock::now();
  const auto measured = measureFolder().measuredAt;
  EXPECT_GE(measured, before);
  EXPECT_LE(measured, std::chrono::system_clock::now());
}

TEST(CompositionOfALinuxDisk, NamesNoOtherSystemAndCountsWhatIsKeptForRootAsFree) {
  FakeDesktopInMemory around(linuxHome);
  around.volume.setKeptForRootBytes(25 * gigabyte);
  std::vector<std::string> labels;
  const auto found =
      DiskCompositionEngine(around.desktop).measureDisk({}, [&](const std::string& label, double) {
        labels.push_back(label);
      });
  ASSERT_EQ(found.buckets.size(), 1U);
  EXPECT_EQ(found.buckets.front().label, "The system and everything else");
  EXPECT_EQ(found.buckets.front().bytes, 275 * gigabyte);
  EXPECT_EQ(found.usedBytes, 275 * gigabyte);
  EXPECT_THAT(labels, testing::Contains("Applications"));
  EXPECT_THAT(labels, testing::Not(testing::Contains(testing::HasSubstr("iCloud"))));
}

TEST(CompositionOfALinuxDisk, CountsAFolderOnceThatTheDesktopNamesTwiceOrWithinAnother) {
  const TemporaryFolder disk;
  disk.makeFile("/home/ann/.config/user-dirs.dirs",
                "XDG_DOCUMENTS_DIR=\"$HOME/Files/Texts\"\nXDG_DOWNLOAD_DIR=\"$HOME/Files\"\n"
                "XDG_PICTURES_DIR=\"$HOME/Shots\"\nXDG_VIDEOS_DIR=\"$HOME/Shots\"\n"
                "XDG_MUSIC_DIR=\"$HOME\"\n");
  disk.makeFile("/home/ann/Files/Texts/letter", 40'000'000);
  disk.makeFile("/home/ann/Files/package", 10'000'000);
  disk.makeFile("/home/ann/Shots/film", 20'000'000);
  SystemPlatform machine(disk.path(), "/home/ann");
  const Platform platform = machine.platform();
  std::int64_t inFolders = 0;
  for (const Bucket& bucket :
       DiskCompositionEngine(platform).measureDisk({}, [](auto&&...) {}).buckets) {
    const bool isShown = bucket.id == "downloads" || bucket.id == "documents" ||
                         bucket.id == "photos" || bucket.id == "movies" || bucket.id == "music";
    if (isShown) inFolders += bucket.bytes;
  }
  EXPECT_GE(inFolders, 70'000'000);
  EXPECT_LT(inFolders, 71'000'000);
}

TEST(CompositionOfALinuxDisk, AddsUpToWhatTheFileSystemSaysIsUsed) {
  const TemporaryFolder disk;
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.path(), "size=300m");
    disk.makeFile("/home/ann/Documents/letter", 40'000'000);
    disk.makeFile("/home/ann/Documents/site/package.json");
    disk.makeFile("/home/ann/Documents/site/node_modules/a/a.js", 20'000'000);
    disk.makeFile("/home/ann/.cache/writer/a", 11'000'000);
    disk.makeFile("/home/ann/.local/share/writer/a", 12'000'000);
    disk.makeFile("/home/ann/.local/share/flatpak/a", 13'000'000);
    disk.makeFile("/home/ann/Other/a", 14'000'000);
    disk.makeFile("/usr/bin/program", 15'000'000);
    disk.makeFile("/var/lib/docker/a", 16'000'000);
    disk.makeFile("/srv/a", 17'000'000);
    SystemPlatform machine(disk.path(), "/home/ann");
    const Platform platform = machine.platform();
    const auto found = DiskCompositionEngine(platform).measureDisk({}, [](auto&&...) {});
    std::map<std::string, std::int64_t> megabytes;
    std::int64_t sum = 0;
    for (const Bucket& bucket : found.buckets) {
      megabytes[bucket.id] = (bucket.bytes + 500'000) / 1'000'000;
      sum += bucket.bytes;
    }
    EXPECT_EQ(megabytes, (std::map<std::string, std::int64_t>{{"applications", 28},
                                                              {"appSupport", 12},
                                                              {"artifacts", 20},
                                                              {"caches", 11},
                                                              {"containers", 16},
                                                              {"documents", 40},
                                                              {"home", 14},
                                                              {"system", 17}}));
    EXPECT_EQ(sum, found.usedBytes);
  }));
}

/// Composition and large files ask for the same folders.
TEST(CompositionOfALinuxDisk, WaitsForNoServerThatDoesNotAnswer) {
  if (!canMountDeadServers()) GTEST_SKIP() << "no file system of a process can be mounted";
  const TemporaryFolder disk;
  constexpr std::array<const char*, 5> far{"/home/ann/Documents/far", "/home/ann/Videos",
                                           "/home/ann/Projects/far", "/home/ann/.cache",
                                           "/home/ann/Maildir"};
  std::vector<Path> dead;
  for (const char* folder : far) {
    disk.makeFolder(folder);
    dead.push_back(disk.onDisk(folder));
  }
  disk.makeFile("/home/ann/Documents/letter", 40'000'000);
  SystemPlatform machine(disk.path(), "/home/ann");
  const Platform platform = machine.platform();
  const bool passes = passesWithDeadServers(dead, [&] {
    const auto found = DiskCompositionEngine(platform).measureDisk({}, [](auto&&...) {});
    std::vector<std::string> worthARow;
    for (const Bucket& bucket : found.buckets) {
      if (bucket.bytes >= 1'000'000) worthARow.push_back(bucket.id);
    }
    EXPECT_THAT(worthARow, ElementsAre("documents", "system"));
    const auto large = LargeFileWalker(platform.files).walk(1'000'000, {}, {});
    ASSERT_EQ(large.size(), 1U);
    EXPECT_EQ(large.front()->url, "/home/ann/Documents/letter");
  });
  EXPECT_TRUE(passes);
}

}  // namespace
}  // namespace klarvik
