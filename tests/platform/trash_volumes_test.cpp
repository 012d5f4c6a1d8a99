#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <fstream>

#include "support/private_mounts.h"
#include "trash_fixture.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

/// A stick is mounted on the disk. Everything happens in a process with mounts of its own.
class TrashVolumes : public TrashFixture {
 protected:
  static constexpr const char* kStick = "/Volumes/Stick";

  TrashVolumes() { disk.makeFolder(kStick); }

  [[nodiscard]] bool passesWithStick(const std::function<void()>& body) const {
    return passesWithPrivateMounts([&] {
      mountTmpfs(disk.onDisk(kStick));
      body();
    });
  }

  static std::string user() { return std::to_string(::geteuid()); }
  static Path ownTrash() { return Path(kStick) / (".Trash-" + user()); }
  static Path onStick(const std::string& name) { return Path(kStick) / name; }

  void fillUp(const Path& file) const {
    std::ofstream filler(disk.onDisk(file));
    while (filler << std::string(4096, 'x') << std::flush) continue;
  }

  void expectItStays(const Path& item) {
    const DiskSnapshot before = snapshot(item.parent_path());
    EXPECT_EQ(trash.moveToTrash(item, anywhere), std::nullopt);
    const DiskSnapshot after = snapshot(item.parent_path());
    for (const auto& [place, what] : before) {
      ASSERT_TRUE(after.contains(place)) << place;
      EXPECT_EQ(after.at(place), what);
    }
    EXPECT_EQ(countIn(kFiles) + countIn(kInfo), 0u);
  }
};

TEST_F(TrashVolumes, AnItemOnAnotherVolumeGoesToThatVolumesTrashNeverACopyAcross) {
  EXPECT_TRUE(passesWithStick([&] {
    const Path file = disk.makeFile(onStick("folder/a b"), "content");
    struct stat before {};
    ASSERT_EQ(::stat(file.c_str(), &before), 0);
    const auto place = trash.moveToTrash(onStick("folder/a b"), anywhere);
    ASSERT_EQ(place, ownTrash() / "files/a b");
    struct stat after {};
    ASSERT_EQ(::stat(disk.onDisk(*place).c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_EQ(before.st_dev, after.st_dev);
    EXPECT_THAT(disk.contentOf(ownTrash() / "info/a b.trashinfo"),
                HasSubstr("\nPath=folder/a%20b\n"));
    ASSERT_EQ(::stat(disk.onDisk(ownTrash()).c_str(), &after), 0);
    EXPECT_EQ(after.st_mode & 07777, 0700u);
    EXPECT_EQ(countIn(kFiles) + countIn(kInfo), 0u);
  }));
}

TEST_F(TrashVolumes, AnItemComesBackFromItsVolumesTrash) {
  EXPECT_TRUE(passesWithStick([&] {
    disk.makeFile(onStick("folder/a"), "content");
    const auto place = trash.moveToTrash(onStick("folder/a"), anywhere);
    ASSERT_TRUE(place && trash.contains(*place));
    std::filesystem::remove(disk.onDisk(onStick("folder")));
    EXPECT_TRUE(trash.putBack(*place, onStick("folder/a"), anywhere));
    EXPECT_EQ(disk.contentOf(onStick("folder/a")), "content");
    EXPECT_EQ(countIn(ownTrash() / "files") + countIn(ownTrash() / "info"), 0u);
  }));
}

TEST_F(TrashVolumes, AnItemInAVolumesTrashIsRemovedWithItsRecord) {
  EXPECT_TRUE(passesWithStick([&] {
    disk.makeFile(onStick("a"), "content");
    const auto place = trash.moveToTrash(onStick("a"), anywhere);
    ASSERT_TRUE(place);
    EXPECT_FALSE(trash.moveToTrash(*place, anywhere));
    EXPECT_TRUE(trash.remove(*place, anywhere));
    EXPECT_EQ(countIn(ownTrash() / "files") + countIn(ownTrash() / "info"), 0u);
  }));
}

TEST_F(TrashVolumes, ABindMountWithTheSameDeviceNumberIsAnotherVolume) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    disk.makeFile("/other/a", "content");
    disk.makeFolder("/Users/ann/bound");
    mountBind(disk.onDisk("/other"), disk.onDisk("/Users/ann/bound"));
    const Path own = "/Users/ann/bound/.Trash-" + user();
    EXPECT_EQ(trash.moveToTrash("/Users/ann/bound/a", anywhere), own / "files/a");
    EXPECT_EQ(disk.contentOf(own / "files/a"), "content");
  }));
}

TEST_F(TrashVolumes, ASharedTrashWithTheStickyBitIsPreferred) {
  EXPECT_TRUE(passesWithStick([&] {
    ASSERT_EQ(::chmod(disk.makeFolder(onStick(".Trash")).c_str(), 01777), 0);
    disk.makeFile(onStick("a"), "content");
    const Path own = onStick(".Trash/" + user());
    const auto place = trash.moveToTrash(onStick("a"), anywhere);
    ASSERT_EQ(place, own / "files/a");
    EXPECT_THAT(disk.contentOf(own / "info/a.trashinfo"), HasSubstr("\nPath=a\n"));
    EXPECT_TRUE(trash.putBack(*place, onStick("a"), anywhere));
    EXPECT_EQ(countIn(own / "info"), 0u);
  }));
}

TEST_F(TrashVolumes, ASharedTrashThatLacksTheStickyBitIsNotUsed) {
  EXPECT_TRUE(passesWithStick([&] {
    ASSERT_EQ(::chmod(disk.makeFolder(onStick(".Trash")).c_str(), 0777), 0);
    disk.makeFile(onStick("a"), "content");
    EXPECT_EQ(trash.moveToTrash(onStick("a"), anywhere), ownTrash() / "files/a");
    EXPECT_EQ(countIn(onStick(".Trash")), 0u);
  }));
}

TEST_F(TrashVolumes, ASharedTrashThatIsALinkIsNotUsed) {
  EXPECT_TRUE(passesWithStick([&] {
    ASSERT_EQ(::chmod(disk.makeFolder(onStick("target")).c_str(), 01777), 0);
    disk.makeLink(onStick(".Trash"), "target");
    disk.makeFile(onStick("a"), "content");
    EXPECT_EQ(trash.moveToTrash(onStick("a"), anywhere), ownTrash() / "files/a");
    EXPECT_EQ(countIn(onStick("target")), 0u);
  }));
}

TEST_F(TrashVolumes, InfoOrFilesOrTheTrashThatIsALinkIsNotUsed) {
  for (const char* part : {"", "files", "info"}) {
    EXPECT_TRUE(passesWithStick([&] {
      disk.makeFolder(onStick("target"));
      disk.makeLink(*part ? ownTrash() / part : ownTrash(), disk.onDisk(onStick("target")));
      disk.makeFile(onStick("a"), "content");
      expectItStays(onStick("a"));
      EXPECT_EQ(countIn(onStick("target")), 0u);
    })) << part;
  }
}

TEST_F(TrashVolumes, ATrashOnAnotherMountThanTheItemIsNotUsed) {
  EXPECT_TRUE(passesWithStick([&] {
    mountTmpfs(disk.makeFolder(ownTrash()));
    disk.makeFile(onStick("a"), "content");
    expectItStays(onStick("a"));
  }));
}

TEST_F(TrashVolumes, AReadOnlyFileSystemTheItemStays) {
  EXPECT_TRUE(passesWithStick([&] {
    disk.makeFile(onStick("a"), "content");
    const Path stick = disk.onDisk(kStick);
    ASSERT_EQ(::mount(nullptr, stick.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    expectItStays(onStick("a"));
  }));
}

TEST_F(TrashVolumes, AMountInsideTheTreeIsKeptTheItemIsNotRemoved) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    disk.makeFile("/Users/ann/folder/a", "content");
    mountTmpfs(disk.makeFolder("/Users/ann/folder/deep/mount point"));
    disk.makeFile("/Users/ann/folder/deep/mount point/b", "content");
    expectItStays("/Users/ann/folder");
    expectItStays("/Users/ann/folder/deep");
  }));
}

TEST_F(TrashVolumes, AMountPointItselfIsKept) {
  EXPECT_TRUE(passesWithStick([&] {
    disk.makeFile(onStick("a"), "content");
    expectItStays(kStick);
    disk.makeFile("/Users/ann/file", "below");
    disk.makeFile("/Users/ann/other", "above");
    mountBind(disk.onDisk("/Users/ann/other"), disk.onDisk("/Users/ann/file"));
    expectItStays("/Users/ann/file");
  }));
}

TEST_F(TrashVolumes, AMountBesideTheTreeThatSharesAPrefixIsNoHindrance) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    disk.makeFile("/Users/ann/folder/a", "content");
    mountTmpfs(disk.makeFolder("/Users/ann/folder2"));
    EXPECT_TRUE(trash.moveToTrash("/Users/ann/folder", anywhere));
  }));
}

TEST_F(TrashVolumes, AMountInsideATrashedTreeIsKeptWhenEmptied) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    disk.makeFile("/Users/ann/folder/deep/a", "content");
    const auto place = trash.moveToTrash("/Users/ann/folder", anywhere);
    ASSERT_TRUE(place);
    mountTmpfs(disk.onDisk(*place / "deep"));
    disk.makeFile(*place / "deep/b", "content");
    EXPECT_FALSE(trash.remove(*place, anywhere));
    EXPECT_EQ(disk.contentOf(*place / "deep/b"), "content");
    EXPECT_TRUE(disk.holds(recordOf("folder")));
  }));
}

TEST_F(TrashVolumes, WithTheHomeOnAVolumeOfItsOwnTheRestOfTheDiskHasATrashAtItsTop) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.onDisk(kHome));
    disk.makeFile("/Library/Caches/a", "content");
    const Path own = "/.Trash-" + user();
    const auto place = trash.moveToTrash("/Library/Caches/a", anywhere);
    ASSERT_EQ(place, own / "files/a");
    EXPECT_THAT(disk.contentOf(own / "info/a.trashinfo"), HasSubstr("\nPath=Library/Caches/a\n"));
    EXPECT_TRUE(trash.contains(*place));
    EXPECT_TRUE(trash.putBack(*place, "/Library/Caches/a", anywhere));
  }));
}

TEST_F(TrashVolumes, WhatWaitsOnAnotherVolumeIsListedAndNothingIsMadeThere) {
  EXPECT_TRUE(passesWithStick([&] {
    EXPECT_THAT(trash.folders(), ElementsAre(Path(kFiles)));
    EXPECT_EQ(countIn(kStick), 0u);
    disk.makeFile(onStick("a"), "content");
    disk.makeFile("/Users/ann/b", "content");
    ASSERT_TRUE(trash.moveToTrash(onStick("a"), anywhere));
    ASSERT_TRUE(trash.moveToTrash("/Users/ann/b", anywhere));
    EXPECT_THAT(trash.folders(), ElementsAre(Path(kFiles), ownTrash() / "files"));
    EXPECT_EQ(trash.list(), (std::vector{inFiles("b"), ownTrash() / "files/a"}));
    const auto before = trash.modificationDate();
    ASSERT_TRUE(trash.remove(ownTrash() / "files/a", anywhere));
    EXPECT_GE(trash.modificationDate(), before);
    EXPECT_EQ(trash.list(), std::vector{inFiles("b")});
  }));
}

TEST_F(TrashVolumes, BothTrashesOfAVolumeAreListedAndOneSeenTwiceOnce) {
  EXPECT_TRUE(passesWithStick([&] {
    disk.makeFile(ownTrash() / "files/a", "content");
    disk.makeFolder(ownTrash() / "info");
    ASSERT_EQ(::chmod(disk.makeFolder(onStick(".Trash")).c_str(), 01777), 0);
    disk.makeFile(onStick(".Trash/" + user() + "/files/b"), "content");
    disk.makeFolder(onStick(".Trash/" + user() + "/info"));
    disk.makeFolder("/Volumes/Again");
    mountBind(disk.onDisk(kStick), disk.onDisk("/Volumes/Again"));
    const auto items = trash.list();
    ASSERT_TRUE(items);
    EXPECT_THAT(*items, SizeIs(2));
  }));
}

TEST_F(TrashVolumes, ATrashOfSomeoneElseIsNotListed) {
  EXPECT_TRUE(passesWithStick([&] {
    disk.makeFile(ownTrash() / "files/a", "content");
    disk.makeFolder(ownTrash() / "info");
    const Path folder = disk.onDisk(ownTrash());
    if (::chown(folder.c_str(), 12345, 12345) != 0) mountBind("/srv", folder);
    EXPECT_EQ(trash.list(), std::vector<Path>());
  }));
}

TEST_F(TrashVolumes, ATrashThatIsALinkToAnotherVolumeIsFilledListedRestoredAndEmptied) {
  EXPECT_TRUE(passesWithStick([&] {
    disk.makeFolder("/Users/ann/.local/share");
    disk.makeFolder(onStick("kept"));
    disk.makeLink("/Users/ann/.local/share/Trash", disk.onDisk(onStick("kept")));
    disk.makeFile(onStick("a"), "content");
    ASSERT_EQ(trash.moveToTrash(onStick("a"), anywhere), inFiles("a"));
    EXPECT_EQ(trash.list(), std::vector{inFiles("a")});
    const auto asNamed = [&](const Path& place, const FileAttributes&) {
      return place == inFiles("a");
    };
    EXPECT_TRUE(trash.putBack(inFiles("a"), onStick("a"), asNamed));
    EXPECT_EQ(disk.contentOf(onStick("a")), "content");
    ASSERT_TRUE(trash.moveToTrash(onStick("a"), anywhere));
    EXPECT_TRUE(trash.remove(inFiles("a"), asNamed));
    EXPECT_EQ(trash.list(), std::vector<Path>());
    EXPECT_EQ(countIn(onStick("kept/info")), 0u);
  }));
}

TEST_F(TrashVolumes, WhereTheHomesTrashCannotBeHadTheOthersAreStillListed) {
  EXPECT_TRUE(passesWithStick([&] {
    disk.makeFile("/Users/ann/.local", "no folder");
    EXPECT_EQ(trash.list(), std::nullopt);
    EXPECT_EQ(trash.modificationDate(), std::nullopt);
    disk.makeFile(ownTrash() / "files/a", "content");
    disk.makeFolder(ownTrash() / "info");
    EXPECT_EQ(trash.list(), std::vector{ownTrash() / "files/a"});
    EXPECT_TRUE(trash.modificationDate());
  }));
}

TEST_F(TrashVolumes, OnlyOldRecordsOfNothingAreDroppedOnEveryVolume) {
  EXPECT_TRUE(passesWithStick([&] {
    const auto makeRecord = [&](const Path& info, const std::string& name, bool isOld) {
      const Path record = disk.makeFile(info / (name + ".trashinfo"), "[Trash Info]\nPath=/x\n");
      const std::array<timespec, 2> old{timespec{1'000'000'000, 0}, timespec{1'000'000'000, 0}};
      if (isOld) {
        ASSERT_EQ(::utimensat(AT_FDCWD, record.c_str(), old.data(), 0), 0);
      }
    };
    for (const Path& folder : {Path(kFiles).parent_path(), ownTrash()}) {
      disk.makeFile(folder / "files/there", "content");
      makeRecord(folder / "info", "there", true);
      makeRecord(folder / "info", "gone", true);
      makeRecord(folder / "info", "just written", false);
      disk.makeFile(folder / "info/notes.txt", "mine");
    }
    trash.dropRecordsOfNothing();
    for (const Path& folder : {Path(kFiles).parent_path(), ownTrash()}) {
      EXPECT_FALSE(disk.holds(folder / "info/gone.trashinfo"));
      for (const char* const name : {"there.trashinfo", "just written.trashinfo", "notes.txt"}) {
        EXPECT_TRUE(disk.holds(folder / "info" / name)) << name;
      }
    }
  }));
}

TEST_F(TrashVolumes, DiskFullWhileTheRecordIsWrittenTheOriginalStaysNoOrphan) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.onDisk(kHome), "size=64k");
    disk.makeFile("/Users/ann/a", "content");
    ASSERT_EQ(trash.list(), std::vector<Path>());
    fillUp("/Users/ann/filler");
    expectItStays("/Users/ann/a");
    std::filesystem::remove(disk.onDisk("/Users/ann/filler"));
    EXPECT_TRUE(trash.moveToTrash("/Users/ann/a", anywhere));
  }));
}

TEST_F(TrashVolumes, NoRoomForAnotherFileTheOriginalStaysNoOrphan) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.onDisk(kHome), "nr_inodes=12");
    disk.makeFile("/Users/ann/a", "content");
    ASSERT_EQ(trash.list(), std::vector<Path>());
    for (int i = 0; std::ofstream(disk.onDisk("/Users/ann/" + std::to_string(i))); ++i) continue;
    expectItStays("/Users/ann/a");
    std::filesystem::remove(disk.onDisk("/Users/ann/0"));
    EXPECT_TRUE(trash.moveToTrash("/Users/ann/a", anywhere));
  }));
}

TEST_F(TrashVolumes, ATrashThatBelongsToSomeoneElseIsNotUsed) {
  EXPECT_TRUE(passesWithStick([&] {
    disk.makeFile(onStick("a"), "content");
    const Path folder = disk.makeFolder(ownTrash());
    // Only root can give a folder away. For everybody else one of root's stands in.
    if (::chown(folder.c_str(), 12345, 12345) != 0) mountBind("/srv", folder);
    expectItStays(onStick("a"));
  }));
}

}  // namespace
}  // namespace klarvik
