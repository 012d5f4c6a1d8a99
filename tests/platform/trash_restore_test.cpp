#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "trash_fixture.h"

namespace klarvik {
namespace {

class TrashRestore : public TrashFixture {
 protected:
  /// Trashes a file of that name at `original` and answers where it waits.
  Path trashed(const Path& original) {
    disk.makeFile(original, "content");
    const auto place = trash.moveToTrash(original, anywhere);
    EXPECT_TRUE(place);
    return place.value_or(Path());
  }

  void expectRefusedAndBothStay(const Path& waiting, const Path& original) {
    const DiskSnapshot before = snapshot();
    EXPECT_FALSE(trash.putBack(waiting, original, anywhere));
    EXPECT_EQ(snapshot(), before);
  }

  void writeRecord(const std::string& name, const std::string& text) {
    disk.makeFile(recordOf(name), text);
  }
};

TEST_F(TrashRestore, MovesTheItemBackAndDropsItsRecord) {
  const Path waiting = trashed("/Users/ann/folder/a");
  EXPECT_TRUE(trash.putBack(waiting, "/Users/ann/folder/a", anywhere));
  EXPECT_EQ(disk.contentOf("/Users/ann/folder/a"), "content");
  EXPECT_EQ(countIn(kFiles) + countIn(kInfo), 0u);
}

TEST_F(TrashRestore, KeepsModesDatesAndLinks) {
  const Path folder = disk.makeFolder("/Users/ann/folder");
  disk.makeFile("/Users/ann/folder/a", "content");
  disk.makeLink("/Users/ann/folder/link", "a");
  std::filesystem::permissions(folder, std::filesystem::perms{0711});
  const timespec times[] = {{1000, 5}, {2000, 7}};
  ASSERT_EQ(::utimensat(AT_FDCWD, folder.c_str(), times, 0), 0);
  const DiskSnapshot before = snapshot("/Users/ann/folder");

  const auto waiting = trash.moveToTrash("/Users/ann/folder", anywhere);
  ASSERT_TRUE(waiting && trash.putBack(*waiting, "/Users/ann/folder", anywhere));
  EXPECT_EQ(snapshot("/Users/ann/folder"), before);
  struct stat status {};
  ASSERT_EQ(::stat(folder.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0711u);
  EXPECT_EQ(status.st_mtim.tv_sec, 2000);
  EXPECT_EQ(status.st_mtim.tv_nsec, 7);
}

TEST_F(TrashRestore, OntoAnExistingFileRefusedBothStay) {
  const Path waiting = trashed("/Users/ann/a");
  disk.makeFile("/Users/ann/a", "new");
  expectRefusedAndBothStay(waiting, "/Users/ann/a");
}

TEST_F(TrashRestore, OntoAnExistingFolderRefusedBothStay) {
  const Path waiting = trashed("/Users/ann/a");
  disk.makeFolder("/Users/ann/a");
  expectRefusedAndBothStay(waiting, "/Users/ann/a");
}

TEST_F(TrashRestore, OntoADanglingLinkRefusedBothStay) {
  const Path waiting = trashed("/Users/ann/a");
  disk.makeLink("/Users/ann/a", "nowhere");
  expectRefusedAndBothStay(waiting, "/Users/ann/a");
}

TEST_F(TrashRestore, WithTheParentGoneMadeAgain) {
  const Path waiting = trashed("/Users/ann/one/two/three/a");
  std::filesystem::remove_all(disk.onDisk("/Users/ann/one"));
  EXPECT_TRUE(trash.putBack(waiting, "/Users/ann/one/two/three/a", anywhere));
  EXPECT_EQ(disk.contentOf("/Users/ann/one/two/three/a"), "content");
}

TEST_F(TrashRestore, ParentNowALinkToElsewhereRefused) {
  const Path waiting = trashed("/Users/ann/one/two/a");
  disk.makeFolder("/Users/ann/elsewhere/two");
  std::filesystem::remove_all(disk.onDisk("/Users/ann/one"));
  disk.makeLink("/Users/ann/one", disk.onDisk("/Users/ann/elsewhere"));
  expectRefusedAndBothStay(waiting, "/Users/ann/one/two/a");
}

TEST_F(TrashRestore, ParentNowALinkToElsewhereRefusedBeforeAFolderIsMadeThere) {
  const Path waiting = trashed("/Users/ann/one/two/a");
  disk.makeFolder("/Users/ann/elsewhere");
  std::filesystem::remove_all(disk.onDisk("/Users/ann/one"));
  disk.makeLink("/Users/ann/one", disk.onDisk("/Users/ann/elsewhere"));
  expectRefusedAndBothStay(waiting, "/Users/ann/one/two/a");
}

TEST_F(TrashRestore, ParentNowALinkToElsewhereRefusedWithoutARecordToo) {
  const Path waiting = trashed("/Users/ann/one/a");
  std::filesystem::remove(disk.onDisk(recordOf("a")));
  disk.makeFolder("/Users/ann/elsewhere");
  std::filesystem::remove_all(disk.onDisk("/Users/ann/one"));
  disk.makeLink("/Users/ann/one", disk.onDisk("/Users/ann/elsewhere"));
  expectRefusedAndBothStay(waiting, "/Users/ann/one/a");
}

TEST_F(TrashRestore, AnotherThingThatCameToTheNameInTheTrashIsRefused) {
  const Path waiting = trashed("/Users/ann/one/a");
  std::filesystem::remove(disk.onDisk(waiting));
  std::filesystem::remove(disk.onDisk(recordOf("a")));
  ASSERT_EQ(trashed("/Users/ann/two/a"), waiting);
  expectRefusedAndBothStay(waiting, "/Users/ann/one/a");
  EXPECT_TRUE(trash.putBack(waiting, "/Users/ann/two/a", anywhere));
}

TEST_F(TrashRestore, AParentThatWasALinkAllAlongIsNoHindrance) {
  disk.makeFolder("/Users/ann/real");
  disk.makeLink("/Users/ann/named", "real");
  const Path waiting = trashed("/Users/ann/named/a");
  EXPECT_TRUE(trash.putBack(waiting, "/Users/ann/named/a", anywhere));
  EXPECT_EQ(disk.contentOf("/Users/ann/real/a"), "content");
}

TEST_F(TrashRestore, AHomeThatIsALinkIsNoHindranceWithoutARecord) {
  disk.makeFolder("/data/bob");
  disk.makeLink("/Users/bob", disk.onDisk("/data/bob"));
  LinuxTrash ofBob(disk.path(), "/Users/bob");
  disk.makeFile("/Users/bob/.Trash/a", "content");
  EXPECT_TRUE(ofBob.putBack("/Users/bob/.Trash/a", "/Users/bob/folder/a", anywhere));
  EXPECT_EQ(disk.contentOf("/data/bob/folder/a"), "content");
}

TEST_F(TrashRestore, BringsBackFromATrashFolderOfTheHomeAndTouchesNoRecord) {
  disk.makeFile("/Users/ann/.Trash/a", "content");
  writeRecord("a", "of another");
  EXPECT_TRUE(trash.putBack("/Users/ann/.Trash/a", "/Users/ann/a", anywhere));
  EXPECT_EQ(disk.contentOf("/Users/ann/a"), "content");
  EXPECT_EQ(disk.contentOf(recordOf("a")), "of another");
}

TEST_F(TrashRestore, MovesNothingThatIsNotInATrash) {
  disk.makeFile("/Users/ann/a", "content");
  expectRefusedAndBothStay("/Users/ann/a", "/Users/ann/b");
  expectRefusedAndBothStay(inFiles("../../../../a"), "/Users/ann/b");
}

TEST_F(TrashRestore, AnItemThatIsGoneIsNotPutBack) {
  const Path waiting = trashed("/Users/ann/a");
  EXPECT_TRUE(trash.putBack(waiting, "/Users/ann/a", anywhere));
  EXPECT_FALSE(trash.putBack(waiting, "/Users/ann/b", anywhere));
}

class BadRecord : public TrashRestore, public testing::WithParamInterface<std::string> {};

TEST_P(BadRecord, ARecordThatIsMalformedOrPointsOutsideIsNeverFollowed) {
  const Path waiting = trashed("/Users/ann/folder/a");
  writeRecord("a", GetParam());
  disk.makeFolder("/Users/ann/elsewhere");
  std::filesystem::remove_all(disk.onDisk("/Users/ann/folder"));
  disk.makeLink("/Users/ann/folder", disk.onDisk("/Users/ann/elsewhere"));
  expectRefusedAndBothStay(waiting, "/Users/ann/folder/a");

  std::filesystem::remove(disk.onDisk("/Users/ann/folder"));
  EXPECT_TRUE(trash.putBack(waiting, "/Users/ann/folder/a", anywhere));
  EXPECT_EQ(disk.contentOf("/Users/ann/folder/a"), "content");
  EXPECT_FALSE(disk.holds("/Users/ann/elsewhere/a"));
}

INSTANTIATE_TEST_SUITE_P(TrashRestore, BadRecord,
                         testing::Values("", "[Trash Info]\n", "[Trash Info]\nPath=elsewhere/a\n",
                                         "[Trash Info]\nPath=../../Users/ann/elsewhere/a\n",
                                         "[Trash Info]\nPath=/etc/cron.d/a\n",
                                         "[Trash Info]\nPath=/a%00\n", "[Trash Info]\nPath=/a%2\n",
                                         std::string(2 << 20, 'x')));

TEST_F(TrashRestore, ARecordThatIsALinkIsNotRead) {
  const Path waiting = trashed("/Users/ann/one/a");
  const Path elsewhere = disk.makeFolder("/Users/ann/elsewhere");
  disk.makeFile("/Users/ann/forged", "[Trash Info]\nPath=" + elsewhere.native() + "/a\n");
  std::filesystem::remove(disk.onDisk(recordOf("a")));
  disk.makeLink(recordOf("a"), disk.onDisk("/Users/ann/forged"));
  std::filesystem::remove_all(disk.onDisk("/Users/ann/one"));
  disk.makeLink("/Users/ann/one", elsewhere);
  expectRefusedAndBothStay(waiting, "/Users/ann/one/a");
}

}  // namespace
}  // namespace klarvik
