#include "tools/folder_sizes.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "platform/file_system.h"
#include "platform/linux/linux_file_system.h"
#include "support/fault_injecting_file_system.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using Row = std::pair<std::string, std::int64_t>;

constexpr std::int64_t kb = 4096;

class FolderSizesTest : public testing::Test {
 protected:
  FolderSizes measure(const std::vector<Path>& starts, const std::vector<Path>& leftOut = {}) {
    return FolderSizes::measure(files, starts, leftOut, {});
  }

  /// Without what folders themselves take.
  static std::vector<Row> rowsOf(const FolderSizes& sizes, FolderSizes::Id folder,
                                 std::size_t most = 1000) {
    std::vector<Row> rows;
    for (const FolderSizes::Row& row : sizes.rows(folder, most)) {
      rows.emplace_back(row.name, row.bytes);
    }
    return rows;
  }

  /// The folder that the names lead to from the top; the top when there is none.
  static FolderSizes::Id find(const FolderSizes& sizes, const std::vector<std::string>& names) {
    FolderSizes::Id at = FolderSizes::top;
    for (const std::string& name : names) {
      const auto rows = sizes.rows(at);
      const auto row = std::ranges::find(rows, name, &FolderSizes::Row::name);
      if (row == rows.end() || !row->folder) return FolderSizes::top;
      at = *row->folder;
    }
    return at;
  }

  /// In memory, where folders take nothing.
  void inMemory(const std::function<void()>& body) {
    EXPECT_TRUE(passesWithPrivateMounts([&] {
      mountTmpfs(disk.path());
      body();
    }));
  }

  const TemporaryFolder disk;
  const LinuxFileSystem files{disk.path(), "/home/ann"};
};

TEST_F(FolderSizesTest, TellsEachLevelLargestFirst) {
  inMemory([&] {
    disk.makeFile("/docs/small/a", kb);
    disk.makeFile("/docs/large/deep/b", 5 * kb);
    disk.makeFile("/docs/large/c", 2 * kb);
    disk.makeFile("/docs/letter", 3 * kb);
    const FolderSizes sizes = measure({"/docs"});
    EXPECT_THAT(rowsOf(sizes, FolderSizes::top), ElementsAre(Row("/docs", 11 * kb)));
    const auto docs = find(sizes, {"/docs"});
    EXPECT_THAT(rowsOf(sizes, docs),
                ElementsAre(Row("large", 7 * kb), Row("letter", 3 * kb), Row("small", kb)));
    const auto large = find(sizes, {"/docs", "large"});
    EXPECT_THAT(rowsOf(sizes, large), ElementsAre(Row("deep", 5 * kb), Row("c", 2 * kb)));
    EXPECT_EQ(sizes.path(find(sizes, {"/docs", "large", "deep"})), Path("/docs/large/deep"));
    EXPECT_EQ(sizes.above(large), docs);
    EXPECT_EQ(sizes.rows(large)[1].path, Path("/docs/large/c"));
    EXPECT_FALSE(sizes.rows(large)[1].folder);
  });
}

TEST_F(FolderSizesTest, FindsItsWayThroughAnyTree) {
  inMemory([&] {
    std::int64_t bytes = 0;
    // Names that are each other's beginnings, and folders of every depth beside one another.
    for (const char* folder :
         {"a", "a/a", "a/a/a", "aa", "aa/a", "a/aa", "b", "b/a/a/a/a", "a/b"}) {
      for (int number = 0; number < 3; ++number) {
        disk.makeFile(Path("/t") / folder / ("f" + std::to_string(number)), kb);
        bytes += kb;
      }
    }
    const FolderSizes sizes = measure({"/t"});
    EXPECT_EQ(sizes.bytes(FolderSizes::top), bytes);
    EXPECT_EQ(sizes.bytes(find(sizes, {"/t", "a"})), 15 * kb);
    EXPECT_EQ(sizes.bytes(find(sizes, {"/t", "aa"})), 6 * kb);
    EXPECT_EQ(sizes.bytes(find(sizes, {"/t", "b", "a", "a", "a"})), 3 * kb);
    EXPECT_EQ(sizes.bytes(find(sizes, {"/t", "a", "a", "a"})), 3 * kb);
  });
}

TEST_F(FolderSizesTest, KeepsTheLargestFilesByNameAndTellsTheOthersTogether) {
  inMemory([&] {
    const int count = static_cast<int>(FolderSizes::keptFiles) + 20;
    for (int number = 1; number <= count; ++number) {
      disk.makeFile("/t/" + std::to_string(number), number * kb);
    }
    const FolderSizes sizes = measure({"/t"});
    const auto rows = sizes.rows(find(sizes, {"/t"}));
    ASSERT_EQ(rows.size(), FolderSizes::keptFiles + 1);
    EXPECT_EQ(rows.front().name, std::to_string(count));
    EXPECT_EQ(rows[FolderSizes::keptFiles - 1].bytes, 21 * kb);
    EXPECT_EQ(rows.back().things, 20U);
    EXPECT_EQ(rows.back().bytes, 210 * kb);
    EXPECT_TRUE(rows.back().path.empty());
    const auto few = sizes.rows(find(sizes, {"/t"}), 2);
    ASSERT_EQ(few.size(), 3U);
    EXPECT_EQ(few.back().things, static_cast<std::size_t>(count) - 2);
    std::int64_t sum = 0;
    for (const FolderSizes::Row& row : few) sum += row.bytes;
    EXPECT_EQ(sum, sizes.bytes(FolderSizes::top));
  });
}

TEST_F(FolderSizesTest, LeavesOutWhatCountsElsewhereAndOtherVolumes) {
  inMemory([&] {
    disk.makeFile("/home/ann/docs/a", 2 * kb);
    disk.makeFile("/home/ann/other/a", 3 * kb);
    disk.makeFile("/home/ann/other/skipped", 4 * kb);
    disk.makeFolder("/home/ann/stick");
    mountTmpfs(disk.onDisk("/home/ann/stick"));
    disk.makeFile("/home/ann/stick/a", 9 * kb);
    const FolderSizes sizes = measure({"/home/ann"}, {"/home/ann/docs", "/home/ann/other/skipped"});
    EXPECT_THAT(rowsOf(sizes, find(sizes, {"/home/ann"})), ElementsAre(Row("other", 3 * kb)));
  });
}

TEST_F(FolderSizesTest, CountsAFileWithSeveralNamesOnceAndAStartThatIsAFile) {
  inMemory([&] {
    disk.makeFile("/a/file", 8 * kb);
    disk.makeFolder("/b");
    std::filesystem::create_hard_link(disk.onDisk("/a/file"), disk.onDisk("/b/file"));
    disk.makeFile("/alone", kb);
    const FolderSizes sizes = measure({"/a", "/b", "/alone", "/missing"});
    EXPECT_EQ(sizes.bytes(FolderSizes::top), 9 * kb);
    EXPECT_EQ(sizes.rows(FolderSizes::top)[1].path, Path("/alone"));
  });
}

TEST_F(FolderSizesTest, TakesOutWhatHasGoneUpToTheTop) {
  inMemory([&] {
    disk.makeFile("/t/a/b", 2 * kb);
    disk.makeFile("/t/a/c", 3 * kb);
    disk.makeFile("/t/d/e", kb);
    FolderSizes sizes = measure({"/t"});
    sizes.remove(find(sizes, {"/t", "a"}), "/t/a/b");
    EXPECT_EQ(sizes.bytes(FolderSizes::top), 4 * kb);
    sizes.remove(find(sizes, {"/t"}), "/t/d");
    EXPECT_THAT(rowsOf(sizes, find(sizes, {"/t"})), ElementsAre(Row("a", 3 * kb)));
    sizes.remove(find(sizes, {"/t"}), "/t/nothing");
    EXPECT_EQ(sizes.bytes(FolderSizes::top), 3 * kb);
  });
}

TEST_F(FolderSizesTest, KnowsEachThingAgain) {
  disk.makeFile("/t/a/b", kb);
  const FolderSizes sizes = measure({"/t"});
  const auto folder = sizes.rows(find(sizes, {"/t"})).front();
  const auto file = sizes.rows(find(sizes, {"/t", "a"})).front();
  EXPECT_EQ(folder.identity, entryIdentity(files, "/t/a"));
  EXPECT_EQ(file.identity, entryIdentity(files, "/t/a/b"));
}

TEST_F(FolderSizesTest, EndsAtAStopAndWaitsForNoServer) {
  disk.makeFile("/t/a/b", kb);
  std::stop_source stop;
  stop.request_stop();
  EXPECT_EQ(
      FolderSizes::measure(files, std::vector<Path>{"/t"}, {}, stop.get_token()).folderCount(), 1U);
  if (!canMountDeadServers()) GTEST_SKIP() << "no file system of a process can be mounted";
  disk.makeFolder("/t/far");
  disk.makeFolder("/far");
  EXPECT_TRUE(passesWithDeadServers({disk.onDisk("/t/far"), disk.onDisk("/far")}, [&] {
    const FolderSizes sizes = measure({"/t", "/far"});
    EXPECT_THAT(sizes.rows(FolderSizes::top), testing::SizeIs(1));
  }));
}

TEST_F(FolderSizesTest, AFolderThatTellsNothingIsLeftOutAndNotEntered) {
  inMemory([&] {
    disk.makeFile("/docs/closed/deep/a", kb);
    disk.makeFile("/docs/open/b", 2 * kb);
    LinuxFileSystem real{disk.path(), "/home/ann"};
    FaultInjectingFileSystem faulty(real);
    faulty.fail(FileOperation::attributes, "/docs/closed");
    const FolderSizes sizes = FolderSizes::measure(faulty, {{Path("/docs")}}, {}, {});
    EXPECT_THAT(rowsOf(sizes, find(sizes, {"/docs"})), ElementsAre(Row("open", 2 * kb)));
  });
}

}  // namespace
}  // namespace klarvik
