#include "tools/file_size.h"

#include <gtest/gtest.h>

#include "platform/linux/linux_file_system.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

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
