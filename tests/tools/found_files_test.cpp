#include "tools/found_files.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "platform/linux/linux_file_system.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class FoundFilesTest : public testing::Test {
 protected:
  void find(const Path& start) {
    found.beginWalk(start);
    files.walk(start, {}, [this](WalkEntry& entry) {
      if (entry.kind() == FileKind::regular) found.add(entry);
      return WalkStep::proceed;
    });
  }

  [[nodiscard]] std::vector<Path> paths() const {
    std::vector<Path> all;
    FoundFilePaths paths(found);
    for (std::size_t number = 0; number < found.size(); ++number) all.push_back(paths.path(number));
    std::ranges::sort(all);
    return all;
  }

  /// Also in an order in which nobody found them.
  void expectEachIsReadAsItIs() {
    FoundFileAccess access(files, found);
    FoundFilePaths paths(found);
    for (const std::size_t step : {1U, 7U, 13U}) {
      for (std::size_t at = 0; at < found.size(); ++at) {
        const std::size_t number = at * step % found.size();
        const Path path = paths.path(number);
        EXPECT_EQ(found.name(number), path.filename().native());
        const auto attributes = access.attributes(number);
        ASSERT_TRUE(attributes) << path;
        EXPECT_EQ(attributes->identity, files.attributes(path)->identity) << path;
        const auto reader = access.openForReading(number);
        ASSERT_TRUE(reader) << path;
        EXPECT_EQ(reader->attributes()->identity, attributes->identity);
      }
    }
  }

  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
  FoundFiles found;
};

TEST_F(FoundFilesTest, KeepsTheFilesOfSeveralWalks) {
  const std::vector<Path> all{"/one/a",       "/one/b/c",   "/one/b/d/e/f", "/one/b/g",
                              "/one/bb/h",    "/one/b.c/i", "/two/a",       "/two/b/d/e/f",
                              "/two/x/y/z/a", "/two/x/b",   "/two/x/y/c"};
  for (const Path& place : all) disk.makeFile(place, place.native());
  find("/one");
  find("/two");
  std::vector<Path> sorted = all;
  std::ranges::sort(sorted);
  EXPECT_EQ(paths(), sorted);
  expectEachIsReadAsItIs();
}

TEST_F(FoundFilesTest, KeepsWhatLiesBelowTheRoot) {
  disk.makeFile("/a", "1");
  disk.makeFile("/b/c", "2");
  find("/");
  EXPECT_EQ(paths(), (std::vector<Path>{"/a", "/b/c"}));
  expectEachIsReadAsItIs();
}

TEST_F(FoundFilesTest, ReadsFilesThatLieDeeperThanAnyPathTheSystemTakes) {
  Path folder = "/start";
  for (int level = 0; level < 40; ++level) {
    folder /= std::string(120, 'n') + std::to_string(level);
    if (folder.native().size() < 3500) disk.makeFile(folder / "file", std::to_string(level));
  }
  find("/start");
  EXPECT_GT(found.size(), 20U);
  expectEachIsReadAsItIs();
}

TEST_F(FoundFilesTest, AFolderThatIsGoneTakesOnlyItsOwnFilesAlong) {
  disk.makeFile("/start/a/one", "1");
  disk.makeFile("/start/b/two", "2");
  find("/start");
  std::filesystem::remove_all(disk.onDisk("/start/a"));
  FoundFileAccess access(files, found);
  for (const bool again : {false, true}) {
    for (std::size_t number = 0; number < found.size(); ++number) {
      const bool isThere = found.name(number) == "two";
      EXPECT_EQ(access.attributes(number).has_value(), isThere) << again;
      EXPECT_EQ(access.openForReading(number) != nullptr, isThere) << again;
    }
  }
}

}  // namespace
}  // namespace klarvik
