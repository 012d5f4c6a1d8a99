#include "tools/duplicate_scanner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "content_hash.h"
#include "platform/linux/linux_file_system.h"
#include "support/fault_injecting_file_system.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;
using Operation = FaultInjectingFileSystem::Operation;

class DuplicateScannerTest : public testing::Test {
 protected:
  using Groups = std::vector<std::vector<Path>>;

  std::vector<DuplicateGroup> scan(const std::vector<Path>& directories,
                                   std::int64_t minimumSize = 1) {
    reports.clear();
    return DuplicateScanner(files).scan(directories, minimumSize, [this](const auto& progress) {
      reports.push_back(progress);
      if (onReport) onReport(progress);
    });
  }

  /// The groups' paths, each group in order of path.
  Groups found(const std::vector<Path>& directories, std::int64_t minimumSize = 1) {
    Groups paths;
    for (const DuplicateGroup& group : scan(directories, minimumSize)) {
      auto& copies = paths.emplace_back();
      for (const DuplicateFile& file : group.files) copies.push_back(file.url);
      std::ranges::sort(copies);
    }
    return paths;
  }

  void setDay(const Path& place, int day) {
    std::filesystem::last_write_time(
        disk.onDisk(place),
        std::filesystem::file_time_type::clock::from_sys(Date(std::chrono::hours(24 * day))));
  }

  [[nodiscard]] std::vector<std::string> lines() const {
    std::vector<std::string> all;
    for (const auto& report : reports) all.push_back(report.line);
    return all;
  }

  TemporaryFolder disk;
  LinuxFileSystem real{disk.path(), "/Users/ann"};
  FaultInjectingFileSystem files{real};
  std::vector<DuplicateProgress> reports;
  DuplicateScanner::ProgressSink onReport;
};

TEST_F(DuplicateScannerTest, AnEmptyFolderListOrFoldersWithoutAnyEligibleFileYieldOneReport) {
  disk.makeFile("/small", "x");
  disk.makeFolder("/empty");
  const DuplicateProgress only{0.05, 0, "Collecting files..."};
  EXPECT_THAT(scan({}), IsEmpty());
  EXPECT_THAT(reports, ElementsAre(only));
  EXPECT_THAT(scan({"/empty", "/missing", "/small"}), IsEmpty());
  EXPECT_THAT(reports, ElementsAre(only));
  EXPECT_THAT(scan({"/"}, 2), IsEmpty());
  EXPECT_THAT(reports, ElementsAre(only));
}

TEST_F(DuplicateScannerTest, SizesThatAreAllDifferentYieldTwoReports) {
  disk.makeFile("/a", "x");
  disk.makeFile("/b", "xx");
  EXPECT_THAT(scan({"/"}), IsEmpty());
  EXPECT_THAT(reports, ElementsAre(DuplicateProgress{0.05, 0, "Collecting files..."},
                                   DuplicateProgress{0.15, 0, "Grouping by size (2 files)..."}));
}

TEST_F(DuplicateScannerTest, ReportsAGroupAsSoonAsItHasTwoFiles) {
  for (const char* name : {"a", "b"}) disk.makeFile(Path("/pair") / name, "the two larger ones");
  for (int number = 0; number < 9; ++number) {
    disk.makeFile("/others/" + std::to_string(number), std::to_string(number));
  }
  scan({"/"});
  ASSERT_EQ(reports.size(), 6U);
  EXPECT_EQ(reports[3].groupsFound, 1) << "after ten of the eleven files, the two largest first";
}

TEST_F(DuplicateScannerTest, ReportsEachStepAndEveryTenthFile) {
  for (int number = 0; number < 21; ++number) {
    disk.makeFile("/folder/" + std::to_string(number), "the same");
  }
  scan({"/folder"});
  ASSERT_EQ(reports.size(), 7U);
  EXPECT_EQ(reports[0], (DuplicateProgress{0.05, 0, "Collecting files..."}));
  EXPECT_EQ(reports[1], (DuplicateProgress{0.15, 0, "Grouping by size (21 files)..."}));
  EXPECT_EQ(reports[2].fraction, 0.15);
  EXPECT_EQ(reports[2].groupsFound, 0);
  EXPECT_DOUBLE_EQ(reports[3].fraction, 0.15 + 10.0 / 21 * 0.8);
  EXPECT_EQ(reports[3].groupsFound, 1);
  EXPECT_DOUBLE_EQ(reports[4].fraction, 0.15 + 20.0 / 21 * 0.8);
  EXPECT_EQ(reports[4].groupsFound, 1);
  for (const std::size_t file : {2, 3, 4}) {
    EXPECT_TRUE(disk.holds(Path("/folder") / reports[file].line.english()));
  }
}

TEST_F(DuplicateScannerTest, ReportsHowMuchOfTheBytesIsRead) {
  for (const char* name : {"a", "b"})
    disk.makeFile(Path("/large") / name, std::string(97'000, 'x'));
  for (int number = 0; number < 20; ++number) {
    disk.makeFile("/small/" + std::to_string(number), std::string(300, 'y'));
  }
  disk.makeFile("/of/no/other/size", std::string(500'000, 'z'));
  scan({"/"});
  ASSERT_GE(reports.size(), 7U);
  EXPECT_EQ(reports[0].readShare, 0);
  EXPECT_EQ(reports[1].readShare, 0);
  EXPECT_EQ(reports[2].readShare, 0);
  EXPECT_DOUBLE_EQ(reports[3].readShare, 0.982) << "after the two large ones and eight others";
  EXPECT_DOUBLE_EQ(reports[4].readShare, 0.997);
  EXPECT_EQ(reports.back().readShare, 1);
}

TEST_F(DuplicateScannerTest, TheGroupCountIsZeroWhileBuildingAndComesBackWithDone) {
  disk.makeFile("/a", "the same");
  disk.makeFile("/b", "the same");
  scan({"/"});
  ASSERT_GE(reports.size(), 2U);
  EXPECT_EQ(reports[reports.size() - 2], (DuplicateProgress{0.97, 0, "Building results...", 1}));
  EXPECT_EQ(reports.back(), (DuplicateProgress{1.0, 1, "Done", 1}));
}

TEST_F(DuplicateScannerTest, FilesOfEqualSizeAndDifferentContentYieldNoGroupAndAreReadOnce) {
  disk.makeFile("/a", "one");
  disk.makeFile("/b", "two");
  int opened = 0;
  for (const Path path : {"/a", "/b"}) {
    files.before(Operation::openForReading, path, [this, path, &opened] {
      ++opened;
      files.before(Operation::openForReading, path, [&opened] { ++opened; });
    });
  }
  EXPECT_THAT(DuplicateScanner(files, 1).scan({"/"}, 1, {}), IsEmpty());
  EXPECT_EQ(opened, 2);
}

TEST_F(DuplicateScannerTest, AFileWithSeveralNamesIsReadOnce) {
  disk.makeFile("/copy", "content");
  const Path first = disk.makeFile("/first", "content");
  for (const Path name : {"/second", "/third"}) {
    std::filesystem::create_hard_link(first, disk.onDisk(name));
  }
  std::vector<Path> opened;
  for (const Path path : {"/copy", "/first", "/second", "/third"}) {
    files.before(Operation::openForReading, path, [path, &opened] { opened.push_back(path); });
  }
  const auto groups = DuplicateScanner(files, 1).scan({"/"}, 1, {});
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0].files.size(), 4U);
  ASSERT_EQ(opened.size(), 2U);
  EXPECT_THAT(opened, testing::Contains("/copy"));
}

TEST_F(DuplicateScannerTest, AFileWhoseSizeIsUniqueIsNeverOpened) {
  disk.makeFile("/a", "one");
  disk.makeFile("/b", "one");
  disk.makeFile("/unique", "something else");
  bool opened = false;
  files.before(Operation::openForReading, "/unique", [&opened] { opened = true; });
  EXPECT_THAT(found({"/"}), ElementsAre(ElementsAre("/a", "/b")));
  EXPECT_FALSE(opened);
}

TEST_F(DuplicateScannerTest, RenamedCopiesInDifferentFoldersFormOneGroup) {
  disk.makeFile("/one/report.pdf", "content");
  disk.makeFile("/two/deep/copy of it", "content");
  const auto groups = scan({"/one", "/two"});
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0].hash, "ed7002b439e9ac845f22357d822bac1444730fbdb6016d3ec9432297b9ec9f73");
  EXPECT_EQ(groups[0].reclaimableBytes(), 7);
  for (const DuplicateFile& file : groups[0].files) {
    EXPECT_EQ(file.size, 7);
    EXPECT_EQ(file.modifiedDate, files.attributes(file.url)->modified);
  }
  EXPECT_NE(groups[0].files[0].id, groups[0].files[1].id);
}

TEST_F(DuplicateScannerTest, AHiddenFileAndAnythingInsideAPackageNeverAppear) {
  disk.makeFile("/a", "content");
  disk.makeFile("/b", "content");
  disk.makeFile("/.hidden", "content");
  disk.makeFile("/.folder/a", "content");
  disk.makeFile("/Acme.app/Contents/binary", "content");
  EXPECT_THAT(found({"/"}), ElementsAre(ElementsAre("/a", "/b")));
}

TEST_F(DuplicateScannerTest, AFileInsideNodeModulesAppearsAndAFileNamedPodsDoesNot) {
  disk.makeFile("/a", "content");
  disk.makeFile("/node_modules/module/b", "content");
  disk.makeFile("/__pycache__/c", "content");
  disk.makeFile("/Pods/d", "content");
  for (const Path name : {"node_modules", "Pods", "__pycache__"}) {
    disk.makeFile("/files" / name, "content");
  }
  EXPECT_THAT(found({"/"}), ElementsAre(ElementsAre("/Pods/d", "/__pycache__/c", "/a",
                                                    "/node_modules/module/b")));
}

TEST_F(DuplicateScannerTest, AFileOfExactlyTheMinimumSizeCounts) {
  disk.makeFile("/a", "1234");
  disk.makeFile("/b", "1234");
  disk.makeFile("/c", "123");
  disk.makeFile("/d", "123");
  EXPECT_THAT(found({"/"}, 4), ElementsAre(ElementsAre("/a", "/b")));
}

TEST_F(DuplicateScannerTest, WithMinimumSizeZeroEmptyFilesFormOneGroup) {
  for (const Path name : {"/a", "/b", "/c"}) disk.makeFile(name);
  const auto groups = scan({"/"}, 0);
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0].hash, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(groups[0].files.size(), 3U);
  EXPECT_EQ(groups[0].reclaimableBytes(), 0);
}

TEST_F(DuplicateScannerTest, ASymbolicLinkIsIgnoredAndTwoHardLinksFormAGroup) {
  const Path first = disk.makeFile("/first", "content");
  std::filesystem::create_hard_link(first, disk.onDisk("/second"));
  disk.makeLink("/link", first);
  EXPECT_THAT(found({"/"}), ElementsAre(ElementsAre("/first", "/second")));
}

TEST_F(DuplicateScannerTest, FilesAreSortedNewestFirst) {
  for (const Path name : {"/a", "/b", "/c"}) disk.makeFile(name, "content");
  setDay("/a", 2);
  setDay("/b", 9);
  setDay("/c", 5);
  const auto groups = scan({"/"});
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0].files[0].url, "/b");
  EXPECT_EQ(groups[0].files[1].url, "/c");
  EXPECT_EQ(groups[0].files[2].url, "/a");
}

TEST_F(DuplicateScannerTest, FilesOfOneDateKeepTheOrderInWhichTheyWereFound) {
  for (const Path folder : {"/1", "/3", "/2"}) {
    disk.makeFile(folder / "x", "content");
    setDay(folder / "x", 7);
  }
  const auto groups = scan({"/3", "/1", "/2"});
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0].files[0].url, "/3/x");
  EXPECT_EQ(groups[0].files[1].url, "/1/x");
  EXPECT_EQ(groups[0].files[2].url, "/2/x");
}

TEST_F(DuplicateScannerTest, GroupsAreSortedByWhatTheyReclaim) {
  for (const int copy : {1, 2})
    disk.makeFile("/large" + std::to_string(copy), std::string(50, 'l'));
  for (const int copy : {1, 2}) disk.makeFile("/small" + std::to_string(copy), std::string(9, 's'));
  for (int copy = 0; copy < 12; ++copy) {
    disk.makeFile("/many" + std::to_string(copy), std::string(10, 'm'));
  }
  std::vector<std::int64_t> reclaimable;
  for (const auto& group : scan({"/"})) reclaimable.push_back(group.reclaimableBytes());
  EXPECT_THAT(reclaimable, ElementsAre(110, 50, 9));
}

TEST_F(DuplicateScannerTest, AFileThatFillsSeveralChunksIsHashedWhole) {
  std::string content(std::size_t{9} * 1024 * 1024, 'x');
  disk.makeFile("/a", content);
  disk.makeFile("/b", content);
  content.back() = 'y';
  disk.makeFile("/c", content);
  EXPECT_THAT(found({"/"}), ElementsAre(ElementsAre("/a", "/b")));
}

TEST_F(DuplicateScannerTest, AGroupNamesTheDigestOfTheWholeContent) {
  for (const char* const name : {"/a", "/b"}) disk.makeFile(name, "abc");
  const auto groups = scan({"/"}, 0);
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups.front().hash,
            "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(contentHash(files, "/missing"), std::nullopt);
}

TEST_F(DuplicateScannerTest, AFolderGivenTwiceOrInsideAnotherIsSearchedOnce) {
  disk.makeFile("/a/one", "content");
  disk.makeFile("/a/b/two", "another content");
  EXPECT_THAT(found({"/a", "/a"}), IsEmpty());
  EXPECT_THAT(found({"/a", "/a/b"}), IsEmpty());
  EXPECT_THAT(found({"/a/b", "/a"}), IsEmpty());
}

TEST_F(DuplicateScannerTest, AFolderThatIsReachedThroughALinkAsWellIsSearchedOnce) {
  disk.makeFile("/a/b/one", "content");
  disk.makeLink("/link", disk.onDisk("/a"));
  EXPECT_THAT(found({"/a", "/link/b"}), IsEmpty());
}

TEST_F(DuplicateScannerTest, AHiddenFolderOrAPackageThatIsNamedItselfIsSearched) {
  disk.makeFile("/a/one", "content");
  disk.makeFile("/a/.hidden/two", "content");
  disk.makeFile("/a/Acme.app/three", "content");
  EXPECT_THAT(found({"/a", "/a/.hidden", "/a/Acme.app"}),
              ElementsAre(ElementsAre("/a/.hidden/two", "/a/Acme.app/three", "/a/one")));
}

}  // namespace
}  // namespace klarvik
