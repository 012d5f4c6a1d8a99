#include "engine/volume_census.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "platform/linux/linux_file_system.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

constexpr std::int64_t kb = 4096;

class VolumeCensus : public testing::Test {
 protected:
  /// Sizes of plain files by the place that they count in; folders have no size of their own here.
  std::map<Path, std::int64_t> rows(const std::vector<CensusPlace>& places) {
    std::map<Path, std::int64_t> found;
    const Census census = takeCensus(files, places, {});
    for (const CensusRow& row : census.rows) {
      if (row.bytes > 0) found[row.path] += row.bytes;
    }
    return found;
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

using Rows = std::map<Path, std::int64_t>;

TEST_F(VolumeCensus, CountsInTheDeepestPlace) {
  inMemory([&] {
    disk.makeFile("/home/ann/a/b/c", 3 * kb);
    disk.makeFile("/home/ann/a/d", 2 * kb);
    disk.makeFile("/e", kb);
    EXPECT_EQ(rows({{.pattern = ""}, {.pattern = "home/ann/a"}, {.pattern = "home/*/a/b"}}),
              (Rows{{"/", kb}, {"/home/ann/a", 2 * kb}, {"/home/ann/a/b", 3 * kb}}));
  });
}

TEST_F(VolumeCensus, AnExactNameComesBeforeAPatternAndTheFirstBeforeTheNext) {
  inMemory([&] {
    disk.makeFile("/home/ann/a", kb);
    const std::vector<CensusPlace> places{
        {.pattern = "home/*"}, {.pattern = "home/ann"}, {.pattern = "home/ann"}};
    const Census census = takeCensus(files, places, {});
    for (const CensusRow& row : census.rows) {
      EXPECT_EQ(row.bytes, row.place == 1 ? kb : 0);
    }
  });
}

TEST_F(VolumeCensus, CountsChildByChild) {
  inMemory([&] {
    disk.makeFile("/home/ann/docs/a", kb);
    disk.makeFile("/home/ann/.hidden/a", 2 * kb);
    disk.makeFile("/home/ann/large", 5 * kb);
    disk.makeFile("/home/ann/small", kb);
    disk.makeLink("/home/ann/link", "docs");
    EXPECT_EQ(rows({{.pattern = "home/ann", .unit = LedgerUnit::visibleChildren, .above = kb},
                    {.pattern = "home/ann", .unit = LedgerUnit::hiddenChildren}}),
              (Rows{{"/home/ann/docs", kb},
                    {"/home/ann/.hidden", 2 * kb},
                    {"/home/ann/large", 5 * kb},
                    {"", kb}}));
  });
}

TEST_F(VolumeCensus, CountsAFileWithSeveralNamesOnce) {
  inMemory([&] {
    disk.makeFile("/home/ann/a/file", 8 * kb);
    disk.makeFolder("/home/ann/b");
    std::filesystem::create_hard_link(disk.onDisk("/home/ann/a/file"),
                                      disk.onDisk("/home/ann/b/file"));
    const Census census =
        takeCensus(files, std::vector<CensusPlace>{{.pattern = "home/ann/*"}}, {});
    EXPECT_EQ(census.bytes, 8 * kb);
  });
}

TEST_F(VolumeCensus, SaysOfARowThatPartsOfItCountElsewhere) {
  inMemory([&] {
    disk.makeFile("/home/ann/a/b/c", kb);
    const Census census = takeCensus(
        files, std::vector<CensusPlace>{{.pattern = "home/ann/a"}, {.pattern = "home/ann/a/b"}},
        {});
    ASSERT_EQ(census.rows.size(), 2U);
    EXPECT_TRUE(census.rows[0].isPartly);
    EXPECT_FALSE(census.rows[1].isPartly);
    EXPECT_TRUE(census.rows[1].identity);
  });
}

TEST_F(VolumeCensus, StaysOnTheVolumeAndMeetsAFolderThatIsSeenTwiceOnce) {
  inMemory([&] {
    disk.makeFile("/home/ann/file", 2 * kb);
    disk.makeFolder("/media/stick");
    disk.makeFolder("/mnt/again");
    mountTmpfs(disk.onDisk("/media/stick"));
    disk.makeFile("/media/stick/film", 64 * kb);
    mountBind(disk.onDisk("/home/ann"), disk.onDisk("/mnt/again"));
    EXPECT_EQ(rows({{.pattern = ""}}), (Rows{{"/", 2 * kb}}));
  });
}

TEST_F(VolumeCensus, AHomeThatIsMountedFromElsewhereOnTheVolumeCountsUnderItsName) {
  inMemory([&] {
    disk.makeFile("/data/people/ann/file", 2 * kb);
    disk.makeFile("/data/other", kb);
    disk.makeFolder("/home");
    mountBind(disk.onDisk("/data/people"), disk.onDisk("/home"));
    EXPECT_EQ(rows({{.pattern = ""}, {.pattern = "home/ann"}}),
              (Rows{{"/", kb}, {"/home/ann", 2 * kb}}));
  });
}

TEST_F(VolumeCensus, AFolderTakesWhatItsNamesTake) {
  disk.makeFolder("/home/ann/a");
  const auto folder = files.attributes("/home/ann/a");
  ASSERT_TRUE(folder);
  EXPECT_EQ(folder->allocatedBytes, 0);
  const Census census = takeCensus(files, std::vector<CensusPlace>{{.pattern = "home/ann/a"}}, {});
  ASSERT_EQ(census.rows.size(), 1U);
  EXPECT_EQ(census.rows[0].bytes, folder->folderBytes);
}

TEST_F(VolumeCensus, EndsAtAStop) {
  disk.makeFile("/home/ann/a", kb);
  std::stop_source stop;
  stop.request_stop();
  EXPECT_EQ(takeCensus(files, std::vector<CensusPlace>{{.pattern = ""}}, stop.get_token()).bytes,
            0);
}

}  // namespace
}  // namespace klarvik
