#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/linux_file_system.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class DirectoryWalkTest : public testing::Test {
 protected:
  std::vector<std::string> pathsBelow(const Path& folder, WalkOptions options = {}) const {
    std::vector<std::string> paths;
    EXPECT_EQ(files.walk(folder, options,
                         [&](WalkEntry& entry) {
                           paths.push_back(entry.path());
                           return WalkStep::proceed;
                         }),
              WalkOutcome::completed);
    return paths;
  }

  WalkOutcome outcomeFor(const Path& folder) const {
    int visits = 0;
    const WalkOutcome outcome = files.walk(folder, {}, [&](WalkEntry&) {
      ++visits;
      return WalkStep::proceed;
    });
    EXPECT_TRUE(outcome != WalkOutcome::refused || visits == 0);
    return outcome;
  }

  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
};

TEST_F(DirectoryWalkTest, VisitsEveryEntryBelowTheStartByItsLogicalPath) {
  disk.makeFile("/a/b/c/deep");
  disk.makeFile("/a/x");
  disk.makeFile("/a/.hidden/y");
  EXPECT_THAT(pathsBelow("/a"), UnorderedElementsAre("/a/b", "/a/b/c", "/a/b/c/deep", "/a/x",
                                                     "/a/.hidden", "/a/.hidden/y"));
  EXPECT_THAT(pathsBelow("/a/"), testing::SizeIs(6));
}

TEST_F(DirectoryWalkTest, StartsAtTheRoot) {
  disk.makeFile("/a/x");
  EXPECT_THAT(pathsBelow("/"), ElementsAre("/a", "/a/x"));
}

TEST_F(DirectoryWalkTest, ShowsAFolderBeforeWhatItHolds) {
  disk.makeFile("/start/a/b/c/d");
  EXPECT_THAT(pathsBelow("/start"),
              ElementsAre("/start/a", "/start/a/b", "/start/a/b/c", "/start/a/b/c/d"));
}

TEST_F(DirectoryWalkTest, TellsNameKindAndDepth) {
  disk.makeFile("/start/folder/file");
  disk.makeLink("/start/folder/link", "file");
  std::vector<std::tuple<std::string, FileKind, std::size_t>> seen;
  files.walk("/start", {}, [&](WalkEntry& entry) {
    seen.emplace_back(entry.name(), entry.kind(), entry.depth());
    return WalkStep::proceed;
  });
  EXPECT_THAT(seen, UnorderedElementsAre(std::tuple("folder", FileKind::directory, 1),
                                         std::tuple("file", FileKind::regular, 2),
                                         std::tuple("link", FileKind::symbolicLink, 2)));
}

TEST_F(DirectoryWalkTest, TellsWhatAnEntryTakesOnTheDisk) {
  disk.makeFile("/start/file", 10'000);
  files.walk("/start", {}, [&](WalkEntry& entry) {
    EXPECT_EQ(entry.allocatedBytes(), 12'288);
    const auto attributes = entry.attributes();
    EXPECT_TRUE(attributes);
    EXPECT_EQ(attributes->allocatedBytes, 12'288);
    EXPECT_EQ(attributes->logicalBytes, 10'000);
    EXPECT_TRUE(attributes->modified);
    return WalkStep::proceed;
  });
}

TEST_F(DirectoryWalkTest, CountsNothingForAFolder) {
  disk.makeFolder("/start/folder");
  files.walk("/start", {}, [&](WalkEntry& entry) {
    EXPECT_EQ(entry.allocatedBytes(), 0);
    EXPECT_EQ(entry.attributes()->allocatedBytes, 0);
    return WalkStep::proceed;
  });
}

TEST_F(DirectoryWalkTest, LeavesOutHiddenEntriesWhenAsked) {
  disk.makeFile("/.start/.hidden/x");
  disk.makeFile("/.start/.file");
  disk.makeFile("/.start/shown");
  EXPECT_THAT(pathsBelow("/.start", {.skipHidden = true}), ElementsAre("/.start/shown"));
}

TEST_F(DirectoryWalkTest, ShowsAPackageButNotItsContentsWhenAsked) {
  disk.makeFile("/start/Some.APP/Contents/x");
  disk.makeFile("/start/file.app");
  disk.makeFile("/start/folder.d/x");
  EXPECT_THAT(pathsBelow("/start", {.skipPackageContents = true}),
              UnorderedElementsAre("/start/Some.APP", "/start/file.app", "/start/folder.d",
                                   "/start/folder.d/x"));
}

TEST_F(DirectoryWalkTest, WalksAPackageThatIsItselfTheStart) {
  disk.makeFile("/Some.app/x");
  EXPECT_THAT(pathsBelow("/Some.app", {.skipPackageContents = true}), ElementsAre("/Some.app/x"));
}

TEST_F(DirectoryWalkTest, SkipsDescendantsOnRequest) {
  disk.makeFile("/start/a/x");
  disk.makeFile("/start/b/y");
  std::vector<std::string> names;
  files.walk("/start", {}, [&](WalkEntry& entry) {
    names.emplace_back(entry.name());
    return entry.name() == "a" ? WalkStep::skipDescendants : WalkStep::proceed;
  });
  EXPECT_THAT(names, UnorderedElementsAre("a", "b", "y"));
}

TEST_F(DirectoryWalkTest, StopsOnRequest) {
  disk.makeFile("/start/a/b/c");
  int visits = 0;
  EXPECT_EQ(
      files.walk("/start", {},
                 [&](WalkEntry&) { return ++visits == 2 ? WalkStep::stop : WalkStep::proceed; }),
      WalkOutcome::stopped);
  EXPECT_EQ(visits, 2);
}

TEST_F(DirectoryWalkTest, RefusesAStartThatIsNoFolder) {
  disk.makeFile("/file");
  disk.makeFile("/folder/x");
  disk.makeLink("/link", "folder");
  EXPECT_EQ(outcomeFor("/missing"), WalkOutcome::refused);
  EXPECT_EQ(outcomeFor("/file"), WalkOutcome::refused);
  EXPECT_EQ(outcomeFor("/link"), WalkOutcome::refused);
  EXPECT_EQ(outcomeFor("/link/"), WalkOutcome::refused);
  EXPECT_EQ(outcomeFor("relative"), WalkOutcome::refused);
  EXPECT_EQ(outcomeFor(""), WalkOutcome::refused);
  EXPECT_EQ(outcomeFor(Path(std::string("/folder\0", 8))), WalkOutcome::refused);
}

TEST_F(DirectoryWalkTest, VisitsNothingInAnEmptyFolder) {
  disk.makeFolder("/empty");
  EXPECT_THAT(pathsBelow("/empty"), IsEmpty());
}

TEST_F(DirectoryWalkTest, AllowsAWalkWithinAWalk) {
  disk.makeFile("/start/a/x");
  disk.makeFile("/start/b/y");
  std::vector<std::string> inner;
  files.walk("/start", {}, [&](WalkEntry& entry) {
    if (entry.kind() != FileKind::directory) return WalkStep::proceed;
    for (std::string& path : pathsBelow(entry.path())) inner.push_back(std::move(path));
    return WalkStep::proceed;
  });
  EXPECT_THAT(inner, UnorderedElementsAre("/start/a/x", "/start/b/y"));
}

TEST(DirectoryWalk, StaysOnTheVolumeWhereItIsToldTo) {
  const TemporaryFolder disk;
  disk.makeFile("/home/ann/cache/own", 10);
  disk.makeFolder("/home/ann/cache/mounted");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.onDisk("/home/ann/cache/mounted"));
    disk.makeFile("/home/ann/cache/mounted/far", 10);
    const LinuxFileSystem files(disk.path(), "/home/ann");
    const auto names = [&](WalkOptions options) {
      std::set<std::string> seen;
      files.walk("/home/ann/cache", options, [&](WalkEntry& entry) {
        seen.emplace(entry.name());
        return WalkStep::proceed;
      });
      return seen;
    };
    EXPECT_EQ(names({.stayOnMount = true}), (std::set<std::string>{"mounted", "own"}));
    EXPECT_EQ(names({}), (std::set<std::string>{"far", "mounted", "own"}));
    EXPECT_TRUE(files.isMountPoint("/home/ann/cache/mounted"));
    EXPECT_FALSE(files.isMountPoint("/home/ann/cache"));
    EXPECT_FALSE(files.isMountPoint("/home/ann/cache/nowhere"));
  }));
}

}  // namespace
}  // namespace klarvik
