#include "platform/linux/linux_trash.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <set>

#include "trash_fixture.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class LinuxTrashTest : public TrashFixture {};

mode_t modeOf(const Path& onDisk) {
  struct stat status {};
  EXPECT_EQ(::lstat(onDisk.c_str(), &status), 0) << onDisk;
  return status.st_mode & 07777;
}

TEST_F(LinuxTrashTest, MakesTheHomeTrashForTheUserAloneWhenFirstAskedFor) {
  EXPECT_THAT(trash.folders(), ElementsAre(Path(kFiles)));
  EXPECT_EQ(trash.list(), std::vector<Path>());
  EXPECT_EQ(modeOf(disk.onDisk("/Users/ann/.local/share/Trash")), 0700u);
  EXPECT_EQ(modeOf(disk.onDisk(kFiles)), 0700u);
  EXPECT_EQ(modeOf(disk.onDisk(kInfo)), 0700u);
}

TEST_F(LinuxTrashTest, MakesNoTrashForAHomeThatIsMissing) {
  LinuxTrash other(disk.path(), "/Users/bob");
  EXPECT_EQ(other.list(), std::nullopt);
  EXPECT_EQ(other.modificationDate(), std::nullopt);
  EXPECT_FALSE(disk.holds("/Users/bob"));
}

TEST_F(LinuxTrashTest, UsesTheDataFolderThatItIsGiven) {
  disk.makeFile("/Users/ann/a", "content");
  LinuxTrash other(disk.path(), kHome, "/data/of ann");
  EXPECT_EQ(other.moveToTrash("/Users/ann/a", anywhere), Path("/data/of ann/Trash/files/a"));
  EXPECT_EQ(disk.contentOf("/data/of ann/Trash/files/a"), "content");
}

TEST_F(LinuxTrashTest, MovesAFileTogetherWithARecordOfItsPlaceOnTheMachine) {
  const Path original = disk.makeFile("/Users/ann/Library/Caches/a b", "content");
  EXPECT_EQ(trash.moveToTrash("/Users/ann/Library/Caches/a b", anywhere), inFiles("a b"));
  EXPECT_FALSE(disk.holds("/Users/ann/Library/Caches/a b"));
  EXPECT_EQ(disk.contentOf(inFiles("a b")), "content");
  const std::string record = disk.contentOf(recordOf("a b"));
  EXPECT_THAT(record, testing::StartsWith("[Trash Info]\nPath=" + original.parent_path().native() +
                                          "/a%20b\n"));
  EXPECT_THAT(record, testing::ContainsRegex("DeletionDate=[0-9-]{10}T[0-9:]{8}\n$"));
}

TEST_F(LinuxTrashTest, MovesAFolderWithAllItHolds) {
  disk.makeFile("/Users/ann/folder/deep/a", "content");
  const DiskSnapshot before = snapshot("/Users/ann/folder");
  EXPECT_EQ(trash.moveToTrash("/Users/ann/folder", anywhere), inFiles("folder"));
  EXPECT_EQ(snapshot(inFiles("folder")), before);
}

TEST_F(LinuxTrashTest, TheItemIsALinkTheLinkGoesItsTargetStays) {
  disk.makeFile("/Users/ann/target/a", "content");
  disk.makeLink("/Users/ann/link", disk.onDisk("/Users/ann/target"));
  disk.makeLink("/Users/ann/dangling", "nothing");
  EXPECT_TRUE(trash.moveToTrash("/Users/ann/link", anywhere));
  EXPECT_TRUE(trash.moveToTrash("/Users/ann/dangling", anywhere));
  EXPECT_TRUE(std::filesystem::is_symlink(disk.onDisk(inFiles("link"))));
  EXPECT_TRUE(std::filesystem::is_symlink(disk.onDisk(inFiles("dangling"))));
  EXPECT_EQ(disk.contentOf("/Users/ann/target/a"), "content");
}

TEST_F(LinuxTrashTest, RecordsTheRealPlaceOfAnItemBehindALink) {
  disk.makeFile("/Users/ann/real/a", "content");
  disk.makeLink("/Users/ann/named", "real");
  std::vector<Path> asked;
  EXPECT_TRUE(
      trash.moveToTrash("/Users/ann/named/a", [&](const Path& place, const FileAttributes&) {
        asked.push_back(place);
        return true;
      }));
  EXPECT_THAT(asked, ElementsAre(Path("/Users/ann/real/a")));
  EXPECT_THAT(disk.contentOf(recordOf("a")), testing::HasSubstr("/Users/ann/real/a\n"));
}

TEST_F(LinuxTrashTest, ARefusedPlaceChangesNothing) {
  disk.makeFile("/Users/ann/a", "content");
  const DiskSnapshot before = snapshot();
  EXPECT_EQ(trash.moveToTrash("/Users/ann/a", nowhere), std::nullopt);
  EXPECT_EQ(snapshot(), before);
}

TEST_F(LinuxTrashTest, AnItemThatIsGoneAlreadyIsNotRemoved) {
  EXPECT_EQ(trash.moveToTrash("/Users/ann/gone", anywhere), std::nullopt);
  EXPECT_EQ(trash.moveToTrash("/Users/ann/gone/deeper", anywhere), std::nullopt);
  EXPECT_FALSE(trash.remove(inFiles("gone"), anywhere));
  EXPECT_EQ(countIn(kInfo), 0u);
}

TEST_F(LinuxTrashTest, ASelectionThatHoldsAFolderAndSomethingInsideItMovesEachOnce) {
  disk.makeFile("/Users/ann/folder/a", "content");
  EXPECT_TRUE(trash.moveToTrash("/Users/ann/folder", anywhere));
  EXPECT_FALSE(trash.moveToTrash("/Users/ann/folder/a", anywhere));
  EXPECT_EQ(disk.contentOf(inFiles("folder/a")), "content");
  EXPECT_EQ(countIn(kInfo), 1u);
}

class NoItem : public LinuxTrashTest, public testing::WithParamInterface<const char*> {};

TEST_P(NoItem, IsNeitherMovedNorRemoved) {
  const DiskSnapshot before = snapshot();
  EXPECT_FALSE(trash.moveToTrash(GetParam(), anywhere));
  EXPECT_FALSE(trash.remove(GetParam(), anywhere));
  EXPECT_FALSE(trash.putBack(GetParam(), "/Users/ann/a", anywhere));
  EXPECT_EQ(snapshot(), before);
}

INSTANTIATE_TEST_SUITE_P(LinuxTrash, NoItem,
                         testing::Values("", "/", "//", "/.", "/..", "Users/ann", "/Users/ann/..",
                                         "/Users/ann/.Trash/", "/Users/ann/.Trash/.."));

TEST_F(LinuxTrashTest, NoPartOfATrashIsMovedToTheTrash) {
  disk.makeFile("/Users/ann/a", "content");
  ASSERT_TRUE(trash.moveToTrash("/Users/ann/a", anywhere));
  disk.makeFile("/Users/ann/.Trash/b", "content");
  const DiskSnapshot before = snapshot();
  for (const char* item :
       {"/Users/ann/.local", "/Users/ann/.local/share/Trash", kFiles, kInfo,
        "/Users/ann/.local/share/Trash/files/a", "/Users/ann/.local/share/Trash/info/a.trashinfo",
        "/Users/ann/.Trash/b"}) {
    EXPECT_FALSE(trash.moveToTrash(item, anywhere)) << item;
  }
  EXPECT_EQ(snapshot(), before);
}

TEST_F(LinuxTrashTest, ANameOf255BytesIsTrashed) {
  for (const std::string& name :
       {std::string(255, 'n'), std::string(246, 'n'), "n" + std::string(254, '\xff'),
        std::string(250, 'n') + ".text"}) {
    disk.makeFile(Path(kHome) / name, name);
    const auto first = trash.moveToTrash(Path(kHome) / name, anywhere);
    ASSERT_TRUE(first);
    disk.makeFile(Path(kHome) / name, "second");
    const auto second = trash.moveToTrash(Path(kHome) / name, anywhere);
    ASSERT_TRUE(second);
    EXPECT_EQ(disk.contentOf(*first), name);
    EXPECT_EQ(disk.contentOf(*second), "second");
    EXPECT_TRUE(trash.putBack(*first, Path(kHome) / name, anywhere));
    EXPECT_EQ(disk.contentOf(Path(kHome) / name), name);
  }
}

TEST_F(LinuxTrashTest, AFileInFilesWithoutARecordIsNeverOverwritten) {
  disk.makeFile(inFiles("a.txt"), "orphan");
  disk.makeLink(inFiles("b"), "nowhere");
  disk.makeFolder(inFiles("c"));
  for (const char* name : {"a.txt", "b", "c"}) disk.makeFile(Path(kHome) / name, "new");
  EXPECT_EQ(trash.moveToTrash("/Users/ann/a.txt", anywhere), inFiles("a.2.txt"));
  EXPECT_EQ(trash.moveToTrash("/Users/ann/b", anywhere), inFiles("b.2"));
  EXPECT_EQ(trash.moveToTrash("/Users/ann/c", anywhere), inFiles("c.2"));
  EXPECT_EQ(disk.contentOf(inFiles("a.txt")), "orphan");
  EXPECT_FALSE(disk.holds(recordOf("a.txt")));
  EXPECT_EQ(countIn(kInfo), 3u);
}

TEST_F(LinuxTrashTest, ARecordWithoutAFileIsNeverOverwritten) {
  disk.makeFile(recordOf("a"), "orphan");
  disk.makeFile("/Users/ann/a", "new");
  EXPECT_EQ(trash.moveToTrash("/Users/ann/a", anywhere), inFiles("a.2"));
  EXPECT_EQ(disk.contentOf(recordOf("a")), "orphan");
}

TEST_F(LinuxTrashTest, AThousandItemsOfOneNameAllFindTheirPlace) {
  std::set<Path> places;
  for (int i = 0; i < 1000; ++i) {
    disk.makeFile("/Users/ann/same.txt", std::to_string(i));
    const auto place = trash.moveToTrash("/Users/ann/same.txt", anywhere);
    ASSERT_TRUE(place);
    places.insert(*place);
  }
  EXPECT_EQ(places.size(), 1000u);
  EXPECT_EQ(countIn(kFiles), 1000u);
  EXPECT_EQ(countIn(kInfo), 1000u);
}

TEST_F(LinuxTrashTest, FilesOrInfoThatIsALinkIsNotUsed) {
  for (const char* part : {kFiles, kInfo}) {
    disk.makeFolder("/Users/ann/elsewhere");
    disk.makeLink(part, disk.onDisk("/Users/ann/elsewhere"));
    disk.makeFile("/Users/ann/a", "content");
    EXPECT_EQ(trash.moveToTrash("/Users/ann/a", anywhere), std::nullopt);
    EXPECT_EQ(disk.contentOf("/Users/ann/a"), "content");
    EXPECT_EQ(countIn("/Users/ann/elsewhere"), 0u);
    std::filesystem::remove_all(disk.onDisk("/Users/ann/.local"));
  }
}

TEST_F(LinuxTrashTest, AFilesFolderThatIsALinkCannotBeListed) {
  disk.makeFile("/Users/ann/elsewhere/a");
  disk.makeLink(kFiles, disk.onDisk("/Users/ann/elsewhere"));
  EXPECT_EQ(trash.list(), std::nullopt);
  EXPECT_EQ(trash.modificationDate(), std::nullopt);
}

TEST_F(LinuxTrashTest, NoTrashPossibleTheItemStays) {
  disk.makeFile("/Users/ann/.local/share/Trash", "a file in the place of the Trash");
  disk.makeFile("/Users/ann/a", "content");
  const DiskSnapshot before = snapshot();
  EXPECT_EQ(trash.moveToTrash("/Users/ann/a", anywhere), std::nullopt);
  EXPECT_EQ(snapshot(), before);
}

TEST_F(LinuxTrashTest, ComesBackAfterItsFoldersWereRemoved) {
  for (int round = 0; round < 2; ++round) {
    disk.makeFile("/Users/ann/a", "content");
    EXPECT_EQ(trash.moveToTrash("/Users/ann/a", anywhere), inFiles("a"));
    std::filesystem::remove_all(disk.onDisk("/Users/ann/.local"));
  }
}

TEST_F(LinuxTrashTest, ListsHiddenEntriesAndThoseOfATrashFolderOfTheHome) {
  disk.makeFile(inFiles(".hidden"));
  disk.makeFile(inFiles("folder/inner"));
  disk.makeFile("/Users/ann/.Trash/own");
  const auto items = trash.list();
  ASSERT_TRUE(items);
  EXPECT_THAT(*items, UnorderedElementsAre(inFiles(".hidden"), inFiles("folder"),
                                           Path("/Users/ann/.Trash/own")));
  EXPECT_THAT(trash.folders(), ElementsAre(Path(kFiles), Path("/Users/ann/.Trash")));
}

TEST_F(LinuxTrashTest, ATrashFolderOfTheHomeThatIsALinkIsNotItsOwn) {
  disk.makeLink("/Users/ann/.Trash", ".local/share/Trash/files");
  disk.makeFile(inFiles("a"));
  EXPECT_THAT(trash.folders(), ElementsAre(Path(kFiles)));
  EXPECT_EQ(trash.list()->size(), 1u);
}

TEST_F(LinuxTrashTest, TheModificationDateIsThatOfTheNewestFolder) {
  disk.makeFolder(kFiles);
  disk.makeFolder("/Users/ann/.Trash");
  const auto setDate = [&](const Path& place, long seconds) {
    const timespec times[] = {{seconds, 0}, {seconds, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, disk.onDisk(place).c_str(), times, 0), 0);
  };
  setDate(kFiles, 2000);
  setDate("/Users/ann/.Trash", 1000);
  EXPECT_EQ(trash.modificationDate(), Date(std::chrono::seconds(2000)));
  setDate("/Users/ann/.Trash", 3000);
  EXPECT_EQ(trash.modificationDate(), Date(std::chrono::seconds(3000)));
}

TEST_F(LinuxTrashTest, ContainsWhatLiesBelowATrashFolder) {
  EXPECT_TRUE(trash.contains("/Users/ann/.Trash/a"));
  EXPECT_TRUE(trash.contains("/Volumes/Disk/.Trash/a"));
  EXPECT_TRUE(trash.contains(inFiles("a")));
  EXPECT_TRUE(trash.contains(inFiles("a/b")));
  EXPECT_TRUE(trash.contains("/.Trash-" + std::to_string(::geteuid()) + "/files/a"));
}

TEST_F(LinuxTrashTest, DoesNotContainWhatLiesBesideATrashFolder) {
  const std::string own = ".Trash-" + std::to_string(::geteuid());
  for (const Path& item :
       {Path("/Users/ann/.Trash"), Path(kFiles), Path(kInfo), Path("/Users/ann/a"),
        Path("/Users/ann/.local/share/Trash/files2/a"), recordOf("a"), Path("/Users/ann/.Trash2/a"),
        Path("/" + own + "/info/a"), Path("/" + own + "/files"),
        Path("/Users/ann/" + own + "/files/a"), inFiles("../../../../a")}) {
    EXPECT_FALSE(trash.contains(item)) << item;
  }
}

TEST_F(LinuxTrashTest, RemovesAnItemForGoodAndThenItsRecord) {
  disk.makeFile("/Users/ann/folder/a", "content");
  const auto place = trash.moveToTrash("/Users/ann/folder", anywhere);
  ASSERT_TRUE(place);
  std::vector<Path> asked;
  EXPECT_TRUE(trash.remove(*place, [&](const Path& real, const FileAttributes&) {
    asked.push_back(real);
    return true;
  }));
  EXPECT_THAT(asked, ElementsAre(*place));
  EXPECT_EQ(countIn(kFiles), 0u);
  EXPECT_EQ(countIn(kInfo), 0u);
}

TEST_F(LinuxTrashTest, RemovingSomethingInsideATrashedFolderKeepsTheRecord) {
  disk.makeFile("/Users/ann/folder/a", "content");
  ASSERT_TRUE(trash.moveToTrash("/Users/ann/folder", anywhere));
  disk.makeFile(recordOf("a"), "of another");
  EXPECT_TRUE(trash.remove(inFiles("folder/a"), anywhere));
  EXPECT_TRUE(disk.holds(recordOf("folder")));
  EXPECT_TRUE(disk.holds(recordOf("a")));
}

TEST_F(LinuxTrashTest, RemovesWhatLiesInATrashFolderOfTheHome) {
  disk.makeFile("/Users/ann/.Trash/a");
  disk.makeFile(recordOf("a"), "of another");
  EXPECT_TRUE(trash.remove("/Users/ann/.Trash/a", anywhere));
  EXPECT_FALSE(disk.holds("/Users/ann/.Trash/a"));
  EXPECT_TRUE(disk.holds(recordOf("a")));
}

TEST_F(LinuxTrashTest, RemovesNothingThatIsNotInATrash) {
  disk.makeFile("/Users/ann/a", "content");
  disk.makeFolder(kFiles);
  const DiskSnapshot before = snapshot();
  for (const Path& item : {Path("/Users/ann/a"), Path(kFiles), inFiles("../../../../a")}) {
    EXPECT_FALSE(trash.remove(item, anywhere)) << item;
  }
  EXPECT_EQ(snapshot(), before);
}

TEST_F(LinuxTrashTest, ARefusedRemovalKeepsItemAndRecord) {
  disk.makeFile("/Users/ann/a", "content");
  const auto place = trash.moveToTrash("/Users/ann/a", anywhere);
  ASSERT_TRUE(place);
  const DiskSnapshot before = snapshot();
  EXPECT_FALSE(trash.remove(*place, nowhere));
  EXPECT_EQ(snapshot(), before);
}

TEST_F(LinuxTrashTest, EmptyingALinkInsideGoesItsTargetStays) {
  disk.makeFile("/Users/ann/target/a", "content");
  disk.makeLink("/Users/ann/folder/link", disk.onDisk("/Users/ann/target"));
  disk.makeLink("/Users/ann/link", disk.onDisk("/Users/ann/target"));
  ASSERT_TRUE(trash.moveToTrash("/Users/ann/folder", anywhere));
  ASSERT_TRUE(trash.moveToTrash("/Users/ann/link", anywhere));
  const auto items = trash.list();
  ASSERT_TRUE(items);
  const DiskSnapshot before = snapshot();
  for (const Path& item : *items) EXPECT_TRUE(trash.remove(item, anywhere));
  EXPECT_EQ(unexpectedDifferences(
                before, snapshot(),
                {inFiles("folder"), recordOf("folder"), inFiles("link"), recordOf("link")}),
            "");
  EXPECT_EQ(disk.contentOf("/Users/ann/target/a"), "content");
  EXPECT_EQ(countIn(kFiles) + countIn(kInfo), 0u);
}

TEST_F(LinuxTrashTest, WhatIsBeingRemovedDoesNotComeBackHollow) {
  disk.makeFile("/Users/ann/a/letter", "dear");
  const auto trashed = trash.moveToTrash("/Users/ann/a", anywhere);
  ASSERT_TRUE(trashed);
  bool cameBack = true;
  EXPECT_TRUE(trash.remove(*trashed, [&](const Path&, const FileAttributes&) {
    cameBack = trash.putBack(*trashed, "/Users/ann/a", anywhere);
    return true;
  }));
  EXPECT_FALSE(cameBack);
  EXPECT_FALSE(disk.holds("/Users/ann/a"));
}

TEST_F(LinuxTrashTest, WhatCouldNotBeRemovedCanStillComeBack) {
  disk.makeFile("/Users/ann/a", "old");
  const auto trashed = trash.moveToTrash("/Users/ann/a", anywhere);
  ASSERT_TRUE(trashed);
  EXPECT_FALSE(trash.remove(*trashed, [](const Path&, const FileAttributes&) { return false; }));
  EXPECT_TRUE(trash.putBack(*trashed, "/Users/ann/a", anywhere));
}

TEST_F(LinuxTrashTest, EmptyingAnItemAddedMeanwhileSurvives) {
  disk.makeFile("/Users/ann/a", "old");
  ASSERT_TRUE(trash.moveToTrash("/Users/ann/a", anywhere));
  const auto listed = trash.list();
  disk.makeFile("/Users/ann/a", "new");
  const auto added = trash.moveToTrash("/Users/ann/a", anywhere);
  ASSERT_TRUE(listed && added);
  const DiskSnapshot before = snapshot();
  for (const Path& item : *listed) EXPECT_TRUE(trash.remove(item, anywhere));
  EXPECT_EQ(unexpectedDifferences(before, snapshot(), {inFiles("a"), recordOf("a")}), "");
  EXPECT_EQ(trash.list(), std::vector<Path>{*added});
  EXPECT_TRUE(trash.putBack(*added, "/Users/ann/a", anywhere));
  EXPECT_EQ(disk.contentOf("/Users/ann/a"), "new");
}

}  // namespace
}  // namespace klarvik
