#include "engine/sizes.h"

#include <gtest/gtest.h>

#include "platform/linux/linux_file_system.h"
#include "support/fake_file_system.h"
#include "support/fault_injecting_file_system.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

TEST(AllocatedSize, AddsUpTheFilesOfATree) {
  FakeFileSystem files;
  files.addFile("/x/a", 4'096);
  files.addFile("/x/deep/er/b", 8'192);
  EXPECT_EQ(allocatedSize(files, "/x"), 12'288);
}

TEST(AllocatedSize, OfALinkIsNothingWhateverItPointsAt) {
  FakeFileSystem files;
  files.addLink("/x");
  EXPECT_EQ(allocatedSize(files, "/x"), 0);
}

TEST(AllocatedSize, LeavesOutLinksInATree) {
  FakeFileSystem files;
  files.addFile("/x/a", 4'096);
  files.addLink("/x/link");
  EXPECT_EQ(allocatedSize(files, "/x"), 4'096);
}

TEST(AllocatedSize, OfHiddenFilesOnlyIsNothing) {
  FakeFileSystem files;
  files.addFile("/x/.hidden", 4'096);
  files.addFile("/x/.folder/inside", 4'096);
  EXPECT_EQ(allocatedSize(files, "/x"), 0);
}

TEST(AllocatedSize, CountsAHiddenFolderThatIsMeasuredItself) {
  FakeFileSystem files;
  files.addFile("/.Trash/a", 4'096);
  EXPECT_EQ(allocatedSize(files, "/.Trash"), 4'096);
}

TEST(AllocatedSize, DoesNotLookIntoAPackageInATree) {
  FakeFileSystem files;
  files.addFile("/x/Acme.app/Contents/binary", 4'096);
  files.addFile("/x/Photos.photoslibrary/originals/1.jpg", 4'096);
  files.addFile("/x/a", 512);
  EXPECT_EQ(allocatedSize(files, "/x"), 512);
}

TEST(AllocatedSize, LooksIntoAPackageThatIsMeasuredItself) {
  FakeFileSystem files;
  files.addFile("/x/Acme.app/Contents/binary", 4'096);
  EXPECT_EQ(allocatedSize(files, "/x/Acme.app"), 4'096);
}

TEST(AllocatedSize, OfAPlainFileIsItsOwn) {
  FakeFileSystem files;
  files.addFile("/x/a", 4'096);
  EXPECT_EQ(allocatedSize(files, "/x/a"), 4'096);
}

TEST(AllocatedSize, OfNothingIsNothing) {
  const FakeFileSystem files;
  EXPECT_EQ(allocatedSize(files, "/missing"), 0);
}

TEST(AllocatedSize, PassesOverAFolderThatCannotBeRead) {
  FakeFileSystem disk;
  disk.addFile("/x/secret/a", 4'096);
  disk.addFile("/x/open/b", 512);
  FaultInjectingFileSystem files(disk);
  files.makeUnreadable("/x/secret");
  EXPECT_EQ(allocatedSize(files, "/x"), 512);
  EXPECT_EQ(allocatedSize(files, "/x/secret"), 0);
}

TEST(AllocatedSize, SumsBeyond2To53AreExact) {
  FakeFileSystem files;
  files.addFile("/x/a", 9'007'199'254'740'993);
  files.addFile("/x/b", 2);
  EXPECT_EQ(allocatedSize(files, "/x"), 9'007'199'254'740'995);
}

TEST(AllocatedSizeDeathTest, ASumBeyond64BitsEndsTheProgram) {
  FakeFileSystem files;
  files.addFile("/x/a", std::numeric_limits<std::int64_t>::max());
  files.addFile("/x/b", 1);
  EXPECT_DEATH(static_cast<void>(allocatedSize(files, "/x")), "");
}

class AllocatedSizeOnADisk : public testing::Test {
 protected:
  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
};

TEST_F(AllocatedSizeOnADisk, CountsTheBlocksOfASparseFileAndNotItsLength) {
  disk.makeSparseFile("/x/sparse", 5'368'709'120);
  EXPECT_LT(allocatedSize(files, "/x"), 1'000'000);
}

TEST_F(AllocatedSizeOnADisk, CountsAFileWithTwoNamesOnceForEach) {
  const Path first = disk.makeFile("/x/first", 40'960);
  const auto once = allocatedSize(files, "/x");
  std::filesystem::create_hard_link(first, disk.onDisk("/x/second"));
  EXPECT_GE(once, 40'960);
  EXPECT_EQ(allocatedSize(files, "/x"), 2 * once);
}

TEST_F(AllocatedSizeOnADisk, OfALinkToALargeFolderIsNothing) {
  disk.makeFile("/big/a", 100'000);
  disk.makeLink("/link", "big");
  disk.makeLink("/x/inside", "../big");
  EXPECT_EQ(allocatedSize(files, "/link"), 0);
  EXPECT_EQ(allocatedSize(files, "/x"), 0);
}

TEST_F(AllocatedSizeOnADisk, CountsNamesThatAreNotUtf8) {
  disk.makeFile("/x/\xff\n-rf$(id)", 10'000);
  EXPECT_GE(allocatedSize(files, "/x"), 10'000);
}

TEST(AllocatedSize, OfTheWholeCountsWhatIsHiddenAndWhatIsInPackages) {
  FakeFileSystem files;
  files.addFile("/x/a", 512);
  files.addFile("/x/.hidden/b", 4'096);
  files.addFile("/x/Acme.app/Contents/binary", 8'192);
  files.addLink("/x/link");
  EXPECT_EQ(wholeAllocatedSize(files, "/x"), 512 + 4'096 + 8'192);
  EXPECT_EQ(wholeAllocatedSize(files, "/x/link"), 0);
}

TEST(AllocatedSize, OfTheWholeEndsAtAStopWithWhatItHas) {
  FakeFileSystem files;
  files.addFile("/x/a", 512);
  std::stop_source stop;
  stop.request_stop();
  EXPECT_EQ(wholeAllocatedSize(files, "/x", stop.get_token()), 0);
}

class FileSize : public testing::Test {
 protected:
  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
};

TEST_F(FileSize, IsTheLengthOfTheContentAndNotWhatTheDiskGivesForIt) {
  disk.makeSparseFile("/a", 5'368'709'120);
  EXPECT_EQ(fileSize(files, "/a"), 5'368'709'120);
}

TEST_F(FileSize, OfAFolderOrOfNothingIsZero) {
  disk.makeFile("/folder/a", 10);
  EXPECT_EQ(fileSize(files, "/folder"), 0);
  EXPECT_EQ(fileSize(files, "/missing"), 0);
}

TEST_F(FileSize, OfAFoldersContentLeavesOutWhatIsHiddenAndEntersPackages) {
  disk.makeFile("/folder/a", 10);
  disk.makeFile("/folder/Acme.app/Contents/binary", 100);
  disk.makeFile("/folder/.hidden", 1'000);
  disk.makeFile("/folder/.deep/a", 10'000);
  EXPECT_EQ(contentSize(files, "/folder"), 110);
}

TEST_F(FileSize, OfAPlainFilesContentIsItsOwn) {
  disk.makeFile("/a", 10);
  EXPECT_EQ(contentSize(files, "/a"), 10);
}

TEST_F(FileSize, DoesNotFollowLinks) {
  disk.makeFile("/elsewhere/a", 1'000);
  disk.makeLink("/folder/link", "/elsewhere/a");
  disk.makeLink("/root", disk.onDisk("/elsewhere"));
  EXPECT_EQ(contentSize(files, "/folder"), std::int64_t(Path("/elsewhere/a").native().size()));
  EXPECT_EQ(contentSize(files, "/root"), std::int64_t(disk.onDisk("/elsewhere").native().size()));
}

}  // namespace
}  // namespace klarvik
