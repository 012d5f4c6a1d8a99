#include "platform/linux/linux_file_system.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <limits>

#include "deep_tree.h"
#include "platform/linux/file_status.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::Optional;
using testing::UnorderedElementsAre;

const ItemCheck anywhere = [](const Path&, const FileAttributes&) { return true; };

class LinuxFileSystemTest : public testing::Test {
 protected:
  std::string read(const Path& path) const {
    const auto reader = files.openForReading(path);
    if (!reader) return "(not opened)";
    std::string content;
    std::array<std::byte, 3> buffer;
    while (const auto count = reader->read(buffer)) {
      if (*count == 0) return content;
      content.append(reinterpret_cast<const char*>(buffer.data()), *count);
    }
    return "(failed)";
  }

  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
};

TEST_F(LinuxFileSystemTest, CountsPathsFromItsRoot) {
  EXPECT_EQ(files.diskPath("/Users/ann"), disk.path() / "Users/ann");
  EXPECT_EQ(files.diskPath("/"), disk.path());
  EXPECT_THAT(files.logicalPath(disk.path() / "Users/ann"), Optional(Path("/Users/ann")));
  EXPECT_THAT(files.logicalPath(disk.path()), Optional(Path("/")));
  EXPECT_EQ(files.logicalPath(disk.path().parent_path()), std::nullopt);
  EXPECT_EQ(files.logicalPath(disk.path().native() + "2/x"), std::nullopt);
}

/// Wherever the text is divided, a doubled slash does not turn the rest into a path of its own.
TEST_F(LinuxFileSystemTest, FindsWhatLiesDeeperThanTheSystemTakesAtOnceHoweverThePathIsSpelled) {
  constexpr int levels = 120;
  const std::string name(50, 'n');
  makeDeepTree(disk.makeFolder("/start"), levels, name);
  for (const std::string slashes : {"/", "//", "///"}) {
    for (std::size_t shift = 0; shift < 60; ++shift) {
      std::string path = "/start" + std::string(shift + 1, '/');
      for (int level = 0; level < levels; ++level) path.append(name).append(slashes);
      const Path bottom = path + "bottom";
      const auto attributes = files.attributes(bottom);
      ASSERT_TRUE(attributes && attributes->kind == FileKind::regular) << slashes << shift;
      EXPECT_NE(files.openForReading(bottom), nullptr);
      EXPECT_FALSE(files.attributes(path + "missing"));
      const auto folder = files.openFolder(path);
      ASSERT_NE(folder, nullptr);
      EXPECT_EQ(folder->attributes("bottom")->identity, attributes->identity);
    }
  }
}

TEST_F(LinuxFileSystemTest, CountsPathsFromTheRootOfTheMachine) {
  const LinuxFileSystem machine("/", "/home/ann");
  EXPECT_EQ(machine.diskPath("/a/b"), "/a/b");
  EXPECT_EQ(machine.diskPath("/"), "/");
  EXPECT_THAT(machine.logicalPath("/a/b"), Optional(Path("/a/b")));
}

TEST_F(LinuxFileSystemTest, ARootCountedFromTheWorkingFolderIsTheSameFolderToEveryOperation) {
  disk.makeFile("/inner/Users/ann/junk");
  disk.makeFile("/Users/ann/junk");
  EXPECT_TRUE(inChild([this] {
    std::filesystem::current_path(disk.onDisk("/inner"));
    LinuxFileSystem here(".", "/Users/ann");
    return here.diskPath("/") == std::filesystem::canonical(disk.onDisk("/inner")) &&
           here.exists("/Users/ann/junk") && here.realHome() == "/Users/ann" &&
           here.remove("/Users/ann/junk", anywhere) && !here.exists("/Users/ann/junk");
  }));
  EXPECT_TRUE(disk.holds("/Users/ann/junk"));
  EXPECT_FALSE(disk.holds("/inner/Users/ann/junk"));
}

TEST_F(LinuxFileSystemTest, BelowARelativeRootThatIsNotThereNothingIs) {
  disk.makeFile("/missing/Users/ann/junk");
  LinuxFileSystem nothing("missing", "/Users/ann");
  EXPECT_FALSE(nothing.exists("/Users"));
  EXPECT_FALSE(nothing.remove("/Users/ann/junk", anywhere));
  EXPECT_FALSE(nothing.createDirectories("/Users"));
}

TEST_F(LinuxFileSystemTest, TellsTheRealHomeBehindALink) {
  EXPECT_EQ(files.realHome(), "/Users/ann");
  disk.makeFolder("/volumes/two/ann");
  disk.makeLink("/Users/ann", disk.onDisk("/volumes/two/ann"));
  EXPECT_EQ(files.home(), "/Users/ann");
  EXPECT_EQ(files.realHome(), "/volumes/two/ann");
}

TEST_F(LinuxFileSystemTest, FollowsLinksToTellWhatExists) {
  disk.makeFile("/file");
  disk.makeLink("/good", "file");
  disk.makeLink("/dangling", "gone");
  EXPECT_TRUE(files.exists("/"));
  EXPECT_TRUE(files.exists("/file"));
  EXPECT_TRUE(files.exists("/good"));
  EXPECT_FALSE(files.exists("/dangling"));
  EXPECT_FALSE(files.exists("/missing"));
  EXPECT_FALSE(files.exists("file"));
  EXPECT_FALSE(files.exists(""));
  EXPECT_FALSE(files.exists(Path(std::string("/file\0x", 7))));
}

TEST_F(LinuxFileSystemTest, TellsTheAttributesOfALinkRatherThanItsTarget) {
  disk.makeFile("/folder/file", 5000);
  disk.makeLink("/link", "folder");
  EXPECT_EQ(files.attributes("/link")->kind, FileKind::symbolicLink);
  EXPECT_EQ(files.attributes("/link/")->kind, FileKind::symbolicLink);
  EXPECT_EQ(files.attributes("/folder")->kind, FileKind::directory);
  EXPECT_EQ(files.attributes("/folder")->allocatedBytes, 0);
  const auto file = files.attributes("/folder/file");
  EXPECT_EQ(file->kind, FileKind::regular);
  EXPECT_EQ(file->logicalBytes, 5000);
  EXPECT_EQ(file->allocatedBytes, 8192);
  EXPECT_FALSE(files.attributes("/missing"));
}

TEST_F(LinuxFileSystemTest, KeepsTheModificationDateToTheNanosecond) {
  const Path file = disk.makeFile("/file");
  const struct timespec times[] = {{.tv_sec = 5, .tv_nsec = 7},
                                   {.tv_sec = 1'700'000'000, .tv_nsec = 123'456'789}};
  ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
  const auto attributes = files.attributes("/file");
  EXPECT_EQ(attributes->modified->time_since_epoch(),
            std::chrono::nanoseconds(1'700'000'000'123'456'789));
  EXPECT_EQ(attributes->accessed->time_since_epoch(), std::chrono::nanoseconds(5'000'000'007));
}

TEST_F(LinuxFileSystemTest, HoldsDatesThatAreTooFarAwayAtTheFurthest) {
  EXPECT_EQ(dateOf(1'700'000'000, 5), Date(std::chrono::nanoseconds(1'700'000'000'000'000'005)));
  const Date soon = dateOf(9'000'000'000, 0);
  const Date far = dateOf(13'000'000'000, 999'999'999);
  EXPECT_GT(far, soon);
  EXPECT_EQ(dateOf(std::numeric_limits<std::int64_t>::max(), 999'999'999), far);
  const Date longAgo = dateOf(-13'000'000'000, 0);
  EXPECT_LT(longAgo, dateOf(-9'000'000'000, 0));
  EXPECT_EQ(dateOf(std::numeric_limits<std::int64_t>::min(), 0), longAgo);
  EXPECT_GT(longAgo, Date::min());
}

TEST_F(LinuxFileSystemTest, ListsHiddenEntriesToo) {
  disk.makeFile("/a/x");
  disk.makeFile("/a/.hidden/y");
  disk.makeLink("/link", "a");
  EXPECT_THAT(files.list("/a"), Optional(UnorderedElementsAre(Path("/a/x"), Path("/a/.hidden"))));
  EXPECT_THAT(files.list("/link"),
              Optional(UnorderedElementsAre(Path("/link/x"), Path("/link/.hidden"))));
  EXPECT_THAT(files.list("/a/x"), std::nullopt);
  EXPECT_THAT(files.list("/missing"), std::nullopt);
}

TEST_F(LinuxFileSystemTest, ReadsAFileFromFrontToBack) {
  disk.makeFile("/file", "seven b");
  disk.makeFile("/empty");
  EXPECT_EQ(read("/file"), "seven b");
  EXPECT_EQ(read("/empty"), "");
}

TEST_F(LinuxFileSystemTest, OpensNothingButRegularFiles) {
  disk.makeFile("/file", "x");
  disk.makeFolder("/folder");
  disk.makeLink("/link", "file");
  EXPECT_EQ(read("/folder"), "(not opened)");
  EXPECT_EQ(read("/link"), "(not opened)");
  EXPECT_EQ(read("/missing"), "(not opened)");
}

TEST_F(LinuxFileSystemTest, MakesFoldersWithTheirParents) {
  EXPECT_TRUE(files.createDirectories("/a/b/c"));
  EXPECT_TRUE(files.createDirectories("/a/b/c"));
  EXPECT_TRUE(files.createDirectories("/a/b/d/"));
  EXPECT_TRUE(disk.holds("/a/b/c"));
  EXPECT_TRUE(disk.holds("/a/b/d"));
}

TEST_F(LinuxFileSystemTest, MakesNoFolderInPlaceOfAFile) {
  disk.makeFile("/a", "kept");
  EXPECT_FALSE(files.createDirectories("/a"));
  EXPECT_FALSE(files.createDirectories("/a/b"));
  EXPECT_EQ(disk.contentOf("/a"), "kept");
}

TEST_F(LinuxFileSystemTest, MovesAFileAndAFolder) {
  disk.makeFile("/a/file", "one");
  disk.makeFile("/a/folder/x", "two");
  disk.makeFolder("/b");
  EXPECT_TRUE(files.move("/a/file", "/b/file"));
  EXPECT_TRUE(files.move("/a/folder", "/b/other"));
  EXPECT_EQ(disk.contentOf("/b/file"), "one");
  EXPECT_EQ(disk.contentOf("/b/other/x"), "two");
  EXPECT_FALSE(disk.holds("/a/file"));
}

TEST_F(LinuxFileSystemTest, NeverReplacesWhatStandsAtTheTargetOfAMove) {
  disk.makeFile("/from", "from");
  disk.makeFile("/file", "kept");
  disk.makeFolder("/empty");
  disk.makeLink("/dangling", "gone");
  EXPECT_FALSE(files.move("/from", "/file"));
  EXPECT_FALSE(files.move("/from", "/dangling"));
  EXPECT_FALSE(files.move("/empty", "/file"));
  disk.makeFolder("/other");
  EXPECT_FALSE(files.move("/other", "/empty"));
  EXPECT_EQ(disk.contentOf("/file"), "kept");
  EXPECT_EQ(disk.contentOf("/from"), "from");
}

TEST_F(LinuxFileSystemTest, MovesALinkWithoutItsTarget) {
  disk.makeFile("/target", "kept");
  disk.makeLink("/link", "target");
  EXPECT_TRUE(files.move("/link", "/moved"));
  EXPECT_EQ(files.attributes("/moved")->kind, FileKind::symbolicLink);
  EXPECT_EQ(disk.contentOf("/target"), "kept");
}

TEST_F(LinuxFileSystemTest, MovesNothingWithoutAParentToMoveTo) {
  disk.makeFile("/file", "kept");
  EXPECT_FALSE(files.move("/file", "/gone/file"));
  EXPECT_FALSE(files.move("/file", "/"));
  EXPECT_FALSE(files.move("/missing", "/x"));
  EXPECT_EQ(disk.contentOf("/file"), "kept");
}

}  // namespace
}  // namespace klarvik
