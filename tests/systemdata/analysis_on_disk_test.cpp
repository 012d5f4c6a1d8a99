// The analysis on real disks, sound and broken ones.

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <array>

#include "places/disk_layout.h"
#include "platform/system_platform.h"
#include "support/child_process.h"
#include "support/fake_desktop.h"
#include "support/private_mounts.h"
#include "support/sample_disk.h"
#include "support/temporary_folder.h"
#include "systemdata/system_data_engine.h"
#include "systemdata/system_data_search.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;
using Kind = SystemDataSubCategory;
using Operation = FaultInjectingFileSystem::Operation;

/// An analysis of a disk on the machine, with faults and sizes put over it.
struct DiskAnalysis {
  DiskAnalysis(const Path& root, const Path& home) : disk(root, home), trash(root, home) {}

  LinuxFileSystem disk;
  LinuxTrash trash;
  FakeDesktop around{disk, trash};
  FaultInjectingFileSystem& files = around.files;
  SystemDataEngine engine{around.desktop};

  [[nodiscard]] std::vector<SystemDataItem> children(const Path& folder, std::int64_t minimumSize) {
    return SystemDataSearch(around.desktop).children(folder, Kind::caches, minimumSize);
  }
  std::vector<SystemDataItem> items() {
    return engine.analyse([](const std::string&, double) {}).items();
  }
  std::vector<std::string> names() {
    std::vector<std::string> all;
    for (const SystemDataItem& item : items()) all.push_back(item.name);
    return all;
  }
};

class AnalysisOnDisk : public testing::Test {
 protected:
  TemporaryFolder folder;
  DiskAnalysis analysis{folder.path(), "/Users/ann"};
  const Path caches = "/Users/ann/Library/Caches";

  /// A file of a few bytes that says it has `bytes`.
  void makeFileOf(const Path& place, std::int64_t bytes) {
    folder.makeFile(place, 1);
    analysis.files.overlaySize(place, bytes);
  }
};

std::optional<Path> firstFileBelow(const FileSystem& files, const Path& folder) {
  std::optional<Path> first;
  files.walk(folder, {}, [&](WalkEntry& entry) {
    if (entry.kind() != FileKind::regular) return WalkStep::proceed;
    first = entry.path();
    return WalkStep::stop;
  });
  return first;
}

/// A sample disk is made once for all of these.
class AnalysisOfASampleDisk : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder = new TemporaryFolder;
    sample = new SampleDisk(buildSampleDisk(folder->path()));
  }
  static void TearDownTestSuite() {
    delete sample;
    delete folder;
  }

  static inline TemporaryFolder* folder = nullptr;
  static inline SampleDisk* sample = nullptr;
};

TEST_F(AnalysisOfASampleDisk, EachWholePlaceIsARowFromItsSizeOnAndNoneBelow) {
  for (const Pass& pass : layoutFor("/Users/ann").analysisPasses) {
    const auto* const places = std::get_if<std::span<const WholePlace>>(&pass.places);
    if (places == nullptr) continue;
    for (const WholePlace& place : *places) {
      // The Mac's /tmp is a link, which takes nothing; here it can be a folder.
      if (place.path == "/tmp") continue;
      DiskAnalysis analysis(sample->root, sample->home);
      const Path path = sample->home / place.path;
      const auto file = firstFileBelow(analysis.disk, path);
      ASSERT_TRUE(file) << place.path;
      analysis.files.overlaySize(*file, 0);
      const auto others = analysis.engine.measure(path);
      const auto rowOfThePlace = [&](std::int64_t bytes) {
        analysis.files.overlaySize(*file, bytes - others);
        auto found = SystemDataSearch(analysis.around.desktop).find(pass);
        std::erase_if(found, [&](const SystemDataItem& item) { return item.path != path; });
        return found;
      };
      EXPECT_THAT(rowOfThePlace(place.minimumSize - 1), IsEmpty()) << place.path;
      const auto rows = rowOfThePlace(place.minimumSize);
      ASSERT_THAT(rows, SizeIs(1)) << place.path;
      EXPECT_EQ(rows[0].name, place.name);
      EXPECT_EQ(rows[0].size, place.minimumSize);
      EXPECT_EQ(rows[0].subCategory, pass.kind);
      EXPECT_EQ(rows[0].safetyOverride, place.safetyOverride);
    }
  }
}

TEST_F(AnalysisOfASampleDisk, FindsWhatIsLargeEnough) {
  DiskAnalysis analysis(sample->root, sample->home);
  EXPECT_THAT(analysis.names(),
              testing::IsSupersetOf({"npm Cache", "System Temp Folders", "Cookies", "sleepimage",
                                     "Acme.writer", "Acme Writer"}));
}

TEST_F(AnalysisOfASampleDisk, NoRowLiesInsideAnotherAndTheShortestPathComesFirst) {
  DiskAnalysis analysis(sample->root, sample->home);
  const auto items = analysis.items();
  ASSERT_GT(items.size(), 5U);
  for (std::size_t later = 1; later < items.size(); ++later) {
    const std::string path = items[later].path;
    EXPECT_LE(characterCount(items[later - 1].path.native()), characterCount(path));
    for (std::size_t earlier = 0; earlier < later; ++earlier) {
      EXPECT_FALSE((path + "/").starts_with(items[earlier].path.native() + "/")) << path;
    }
  }
}

TEST_F(AnalysisOnDisk, SwapCountsByItsLengthAndFromItsSizeOn) {
  folder.makeSparseFile("/private/var/vm/swapfile0", 100'000'001);
  folder.makeSparseFile("/private/var/vm/swapfile1", 100'000'000);
  folder.makeFile("/private/var/vm/folder/a", 10);
  folder.makeLink("/private/var/vm/link", "swapfile0");
  const auto items = analysis.items();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].name, "swapfile0");
  EXPECT_EQ(items[0].size, 100'000'001);
  EXPECT_EQ(items[0].subCategory, Kind::vmSwap);
}

TEST_F(AnalysisOnDisk, TheTmpFolderIsARowFromItsSizeOnAndWhatLiesInItIsNone) {
  const Path file = "/tmp/folder/a";
  makeFileOf(file, 10'000'000);
  EXPECT_THAT(analysis.items(), IsEmpty());
  analysis.files.overlaySize(file, 10'000'001);
  const auto items = analysis.items();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].name, "Temp Files");
  EXPECT_EQ(items[0].path, Path("/tmp"));
  EXPECT_EQ(items[0].size, 10'000'001);
  EXPECT_EQ(items[0].subCategory, Kind::systemTemp);
  EXPECT_EQ(items[0].safetyOverride, std::nullopt);
}

TEST_F(AnalysisOnDisk, FirmwareIsARowFromItsSizeOn) {
  const Path updates = "/Users/ann/Library/iTunes/iPad Software Updates";
  makeFileOf(updates / "a.ipsw", 50'000'001);
  makeFileOf(updates / "b.ipa", 50'000'000);
  makeFileOf(updates / "c.IPSW", 60'000'000);
  makeFileOf(updates / ".ipsw", 60'000'000);
  const auto* const pass =
      std::ranges::find(layoutFor("/Users/ann").analysisPasses, Kind::firmware, &Pass::kind).base();
  const auto items = SystemDataSearch(analysis.around.desktop).find(*pass);
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].name, "Firmware: a.ipsw");
}

TEST_F(AnalysisOnDisk, TheFolderThatFirmwareLiesInIsTheRowInTheEnd) {
  makeFileOf("/Users/ann/Library/iTunes/iPhone Software Updates/a.ipsw", 50'000'001);
  EXPECT_THAT(analysis.names(), ElementsAre("ITunes"));
}

TEST_F(AnalysisOnDisk, FoldersWithAPassOfTheirOwnAreNotPartOfTheRemainder) {
  const std::vector<std::string> covered{"Application Support",
                                         "Containers",
                                         "Group Containers",
                                         "Caches",
                                         "Developer",
                                         "Mail",
                                         "Logs",
                                         "Preferences",
                                         "Cookies",
                                         "HTTPStorages",
                                         "Saved Application State",
                                         "Mobile Documents"};
  const Path library = "/Users/ann/Library";
  for (const std::string& name : covered) makeFileOf(library / name / "a", 60'000'000);
  makeFileOf(library / "caches/a", 10'000'001);
  makeFileOf(library / "com.apple.odd/a", 10'000'002);
  makeFileOf(library / "Small/a", 10'000'000);
  makeFileOf(library / "plain file", 10'000'003);
  const auto* const pass =
      std::ranges::find(layoutFor("/Users/ann").analysisPasses, Kind::otherLibrary, &Pass::kind)
          .base();
  std::vector<std::string> names;
  for (const auto& item : SystemDataSearch(analysis.around.desktop).find(*pass))
    names.push_back(item.name);
  EXPECT_THAT(names, ElementsAre("Plain file", "Odd", "Caches"));
}

TEST_F(AnalysisOnDisk, ICloudFoldersAreRowsFromTenMillionBytesOn) {
  const Path documents = "/Users/ann/Library/Mobile Documents";
  makeFileOf(documents / "com~apple~Pages/a", 10'000'000);
  makeFileOf(documents / "com~apple~Keynote/a", 9'999'999);
  const auto items = analysis.items();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].name, "Com~apple~Pages");
  EXPECT_EQ(items[0].safety(), ItemSafety::protected_);
}

TEST_F(AnalysisOnDisk, ChildrenComeLargestFirstWithoutLinksAndSmallOnes) {
  makeFileOf(caches / "small/a", 10);
  makeFileOf(caches / "large/a", 30);
  makeFileOf(caches / "large/.hidden", 3);
  makeFileOf(caches / "large/Some.app/Contents/a", 7);
  makeFileOf(caches / "tiny/a", 9);
  makeFileOf(caches / "plain file", 20);
  folder.makeLink(caches / "link", "large");
  EXPECT_THAT(analysis.children(caches, 0), SizeIs(4));
  std::vector<std::pair<std::string, std::int64_t>> found;
  for (const auto& item : analysis.children(caches, 10)) {
    found.emplace_back(item.name, item.size);
  }
  using Row = std::pair<std::string, std::int64_t>;
  EXPECT_THAT(found, ElementsAre(Row("Large", 40), Row("Plain file", 20), Row("Small", 10)));
}

TEST_F(AnalysisOnDisk, AFolderThatCannotBeListedHasNoChildren) {
  makeFileOf(caches / "a/a", 10'000'000);
  analysis.files.fail(Operation::list, caches);
  EXPECT_THAT(analysis.items(), IsEmpty());
  EXPECT_THAT(analysis.children("/missing", 0), IsEmpty());
}

TEST_F(AnalysisOnDisk, AnErrorInAskingForALinkCountsAsNoLink) {
  makeFileOf(caches / "a/a", 10'000'000);
  analysis.files.fail(Operation::attributes, caches / "a");
  EXPECT_THAT(analysis.names(), ElementsAre("A"));
}

TEST_F(AnalysisOnDisk, AFolderThatMayNotBeReadIsPassedOverAndTheRestCounted) {
  makeFileOf(caches / "closed/a", 6'000'000);
  makeFileOf(caches / "open/inside/a", 6'000'000);
  makeFileOf(caches / "open/a", 5'000'000);
  analysis.files.fail(Operation::walk, caches / "closed");
  analysis.files.fail(Operation::walk, caches / "open/inside");
  const auto items = analysis.items();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].name, "Open");
  EXPECT_EQ(items[0].size, 5'000'000);
}

TEST_F(AnalysisOnDisk, AnOrdinaryUserIsNotStoppedByFoldersOfOthers) {
  folder.makeFile(caches / "closed/a", 6'000'000);
  folder.makeFile(caches / "open/a", 6'000'000);
  std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
  std::filesystem::permissions(folder.onDisk(caches / "closed"), std::filesystem::perms::none);
  EXPECT_TRUE(inChildWithoutPrivileges(
      [&] { return analysis.names() == std::vector<std::string>{"Open"}; }));
  std::filesystem::permissions(folder.onDisk(caches / "closed"), std::filesystem::perms::owner_all);
}

TEST_F(AnalysisOnDisk, AFolderThatVanishesBetweenListingAndMeasuringIsNoRow) {
  makeFileOf(caches / "gone/a", 6'000'000);
  makeFileOf(caches / "stays/a", 6'000'000);
  analysis.files.vanishBefore(Operation::walk, caches / "gone");
  EXPECT_THAT(analysis.names(), ElementsAre("Stays"));
}

TEST_F(AnalysisOnDisk, AFolderThatBecomesALinkBetweenListingAndMeasuringIsNoRow) {
  makeFileOf("/elsewhere/a", 6'000'000);
  makeFileOf(caches / "swapped/a", 6'000'000);
  analysis.files.becomeLinkBefore(Operation::walk, caches / "swapped", folder.onDisk("/elsewhere"));
  EXPECT_THAT(analysis.items(), IsEmpty());
}

TEST_F(AnalysisOnDisk, ALinkLoopAndALinkToTheOutsideAddNothing) {
  makeFileOf("/elsewhere/a", 60'000'000);
  makeFileOf(caches / "a/a", 5'000'000);
  folder.makeLink(caches / "a/loop", "..");
  folder.makeLink(caches / "a/itself", "itself");
  folder.makeLink(caches / "a/outside", folder.onDisk("/elsewhere"));
  folder.makeLink("/Users/ann/.npm", folder.onDisk("/elsewhere"));
  const auto items = analysis.items();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].size, 5'000'000);
}

TEST_F(AnalysisOnDisk, NamesWithANewlineOrBadUtf8AreRowsWithTheirBytes) {
  makeFileOf(caches / "two\nlines/a", 5'000'000);
  makeFileOf(caches / "com.apple.\xff\xfe/\xc3", 5'000'000);
  makeFileOf(caches / "$(touch hit)/-rf", 5'000'000);
  EXPECT_THAT(analysis.names(), UnorderedElementsAre("Two\nlines", "\xff\xfe", "$(touch hit)"));
}

TEST_F(AnalysisOnDisk, AFifoASocketAndADeviceAreNeverOpened) {
  makeFileOf(caches / "a/a", 5'000'000);
  for (const char* const place : {"a/fifo", "fifo"}) {
    ASSERT_EQ(::mkfifo(folder.onDisk(caches / place).c_str(), 0644), 0);
  }
  const Path home = "/Users/ann";
  ASSERT_EQ(::mkfifo(folder.onDisk(home / ".npm").c_str(), 0644), 0);
  ASSERT_EQ(::mknod(folder.onDisk(home / ".yarn").c_str(), S_IFSOCK | 0644, 0), 0);
  // Opening one for reading would wait for ever.
  EXPECT_THAT(analysis.names(), ElementsAre("A"));
}

TEST_F(AnalysisOnDisk, ASparseFileOfATerabyteCountsByWhatIsAllocated) {
  folder.makeSparseFile(caches / "disk images/a", 1'000'000'000'000);
  EXPECT_THAT(analysis.items(), IsEmpty());
  EXPECT_LT(analysis.engine.measure(caches), 5'000'000);
}

TEST_F(AnalysisOnDisk, TwoNamesOfOneFileCountForEachName) {
  const Path file = folder.makeFile(caches / "a/a", 3'000'000);
  std::filesystem::create_hard_link(file, folder.onDisk(caches / "a/b"));
  EXPECT_GE(analysis.engine.measure(caches / "a"), 6'000'000);
}

TEST_F(AnalysisOnDisk, SizesBeyondWhatADoubleHoldsExactlyAreExact) {
  const std::int64_t large = (std::int64_t{1} << 53) + 1;
  makeFileOf(caches / "a/a", large);
  makeFileOf(caches / "a/b", 2);
  const auto items = analysis.items();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].size, large + 2);
}

TEST_F(AnalysisOnDisk, WhenHandlesRunOutLessIsFoundAndNothingCrashes) {
  makeFileOf(caches / "a/a", 5'000'000);
  EXPECT_TRUE(inChild([&] {
    const struct rlimit none = {.rlim_cur = 0, .rlim_max = 0};
    return ::setrlimit(RLIMIT_NOFILE, &none) == 0 && analysis.items().empty();
  }));
}

TEST_F(AnalysisOnDisk, ManyChildrenInOneFolderAreEachLookedAt) {
  const int count = 5'000;
  for (int number = 0; number < count; ++number) {
    const Path child = folder.onDisk(caches / std::to_string(number));
    if (number == 0) std::filesystem::create_directories(child.parent_path());
    ASSERT_EQ(::mknod(child.c_str(), S_IFREG | 0644, 0), 0);
  }
  EXPECT_THAT(analysis.children(caches, 0), SizeIs(count));
  EXPECT_THAT(analysis.items(), IsEmpty());
}

TEST_F(AnalysisOnDisk, ToolsThatAreAbsentPrintRubbishOrTooMuchFindNothingThatIsNotThere) {
  const std::string listing = "tmutil listlocalsnapshots / 2>/dev/null";
  analysis.around.commands.failToStart(listing);
  EXPECT_THAT(analysis.items(), IsEmpty());
  analysis.around.commands.answer(listing, "\xff\xfe.\n");
  EXPECT_THAT(analysis.items(), IsEmpty());
  std::string much;
  for (int number = 0; number < 20'000; ++number)
    much += "line of " + std::to_string(number) + "\n";
  analysis.around.commands.answer(listing, much + std::string(1'000'000, 'x'));
  EXPECT_THAT(analysis.items(), IsEmpty());
  analysis.around.commands.answer(listing, much + std::string(1'000'000, '.') + "\n");
  const auto items = analysis.items();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].name, "Snapshot: " + std::string(30, '.'));
}

TEST(AnalysisOfALinuxDisk, WaitsForNoServerThatDoesNotAnswer) {
  if (!canMountDeadServers()) GTEST_SKIP() << "no file system of a process can be mounted";
  const TemporaryFolder disk;
  constexpr std::array<const char*, 5> far{"/home/ann/.local/share/far", "/home/ann/.cache/far",
                                           "/home/ann/.var/app", "/home/ann/.hidden", "/tmp/far"};
  std::vector<Path> dead;
  for (const char* folder : far) {
    disk.makeFolder(folder);
    dead.push_back(disk.onDisk(folder));
  }
  disk.makeFile("/home/ann/.local/share/writer/data", 40'000'000);
  SystemPlatform machine(disk.path(), "/home/ann");
  const Platform platform = machine.platform();
  const bool passes = passesWithDeadServers(dead, [&] {
    SystemDataEngine engine(platform);
    std::vector<Path> found;
    const SystemDataResult result = engine.analyse([](const std::string&, double) {});
    for (const SystemDataItem& item : result.items()) {
      if (item.path.native().starts_with("/home")) found.push_back(item.path);
    }
    EXPECT_THAT(found, ElementsAre("/home/ann/.local/share/writer"));
  });
  EXPECT_TRUE(passes);
}

}  // namespace
}  // namespace klarvik
