// Uninstalling with the real file system and the real Trash. Each test compares the whole disk:
// what is gone was selected, and nothing else changed.

#include <sys/mount.h>

#include "support/child_process.h"
#include "support/private_mounts.h"
#include "uninstaller_fixture.h"

namespace klarvik {
namespace {

using testing::IsEmpty;
using testing::SizeIs;
using Operation = FaultInjectingFileSystem::Operation;

class Uninstalling : public UninstallerTest {
 protected:
  const Path cache = library / "Caches/com.acme.writer";
  AppInfo writer;

  void SetUp() override {
    writer = install("Writer", "com.acme.writer");
    disk.makeFile(cache / "data/blob", 10);
    disk.makeFile("/Users/ann/Documents/letter", "dear");
    disk.makeFile("/Users/ann/Documents/com.acme.writer/inside", "mine");
    disk.makeFile(library / "Caches/com.other/blob", 10);
    disk.makeFile("/Users/ben/Library/Caches/com.acme.writer/blob", "his");
    disk.makeFile("/Library/Other/com.acme.writer/blob", "everybody's");
    static_cast<void>(world.trash.folders());
  }

  std::int64_t uninstallWith(const std::vector<Path>& places) {
    return engine.uninstall(writer, residualsAt(places));
  }

  [[nodiscard]] bool appIsTrashed() const {
    return !disk.holds(writer.appURL) && disk.holds(trashed / "Writer.app/Contents/MacOS/program");
  }

  /// What is gone or changed outside of the Trash and of `selected`.
  [[nodiscard]] std::string unexpectedSince(DiskSnapshot before, std::vector<Path> selected) const {
    const auto isInTrash = [](const auto& entry) {
      return entry.first.starts_with("Users/ann/.local/share/Trash");
    };
    DiskSnapshot after = snapshot();
    std::erase_if(before, isInTrash);
    std::erase_if(after, isInTrash);
    selected.push_back(writer.appURL);
    return unexpectedDifferences(before, after, selected);
  }
};

TEST_F(Uninstalling, RemovesTheResidualsForGoodAndMovesTheApplicationToTheTrash) {
  disk.makeFile("/Library/Application Support/Writer/data", 10);
  disk.makeFile(library / "Preferences/com.acme.writer.plist", 10);
  const auto before = snapshot();
  const auto residuals = engine.findResiduals(writer);
  EXPECT_THAT(residuals, SizeIs(3));
  EXPECT_EQ(engine.uninstall(writer, residuals), 30 + writer.appSize);

  EXPECT_TRUE(appIsTrashed());
  EXPECT_THAT(*world.trash.list(), SizeIs(1));
  EXPECT_EQ(unexpectedSince(before, {cache, "/Library/Application Support/Writer",
                                     library / "Preferences/com.acme.writer.plist"}),
            "");
  EXPECT_THAT(engine.findResiduals(writer), IsEmpty());
  EXPECT_THAT(engine.listApps(), IsEmpty());
}

TEST_F(Uninstalling, WithNoResidualsStillMovesTheApplicationToTheTrash) {
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({}), writer.appSize);
  EXPECT_TRUE(appIsTrashed());
  EXPECT_EQ(unexpectedSince(before, {}), "");
}

TEST_F(Uninstalling, WhatWasMovedToTheTrashCanBePutBackAsItWas) {
  disk.makeLink(writer.appURL / "Contents/Current", "MacOS");
  disk.makeLink(writer.appURL / "Contents/outside", "/etc/passwd");
  std::filesystem::permissions(disk.onDisk(writer.appURL / "Contents/MacOS/program"),
                               std::filesystem::perms::owner_all);
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({}), writer.appSize);
  EXPECT_TRUE(world.trash.putBack(trashed / "Writer.app", writer.appURL,
                                  [](const Path&, const FileAttributes&) { return true; }));
  EXPECT_EQ(differences(before, snapshot()), "");
}

TEST_F(Uninstalling, ASecondTimeFreesNothingAndHarmsNothing) {
  EXPECT_EQ(uninstallWith({cache}), 10 + writer.appSize);
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({cache}), 0);
  EXPECT_EQ(differences(before, snapshot()), "");
}

TEST_F(Uninstalling, WhatTheGuardRefusesStaysAndIsNotCounted) {
  const auto before = snapshot();
  EXPECT_EQ(
      uninstallWith({"/", "/Users", "/Users/ann", library, library / "Caches", "",
                     "relative/com.acme.writer", "/Users/ann/Documents/com.acme.writer",
                     library / "Caches/com.other", library / "Caches/../../Documents/letter",
                     library / "Caches/com.acme.writer/../../../Documents",
                     "/Users/ben/Library/Caches/com.acme.writer", "/Library/Other/com.acme.writer",
                     writer.appURL, "/System/Library/Caches/com.acme.writer",
                     Path(std::string("/Library/Caches\0/com.acme.writer", 32))}),
      writer.appSize);
  EXPECT_EQ(unexpectedSince(before, {}), "");
}

TEST_F(Uninstalling, AnIdentifierOfShortPartsFindsAFileThatTheGuardMayRefuse) {
  const AppInfo vague = install("It", "a.b");
  disk.makeFile(library / "Caches/a.b", 10);
  const auto residuals = engine.findResiduals(vague);
  EXPECT_THAT(residuals, SizeIs(1));
  EXPECT_EQ(engine.uninstall(vague, residuals), vague.appSize);
  EXPECT_TRUE(disk.holds(library / "Caches/a.b"));
  EXPECT_FALSE(disk.holds(vague.appURL));
}

TEST_F(Uninstalling, AResidualThatIsGoneAlreadyIsNotCountedAndTheRestGoes) {
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({library / "Logs/com.acme.writer", cache}), 10 + writer.appSize);
  EXPECT_EQ(unexpectedSince(before, {cache}), "");
}

TEST_F(Uninstalling, AResidualNamedTwiceOrBesideItsFolderIsCountedOnce) {
  EXPECT_EQ(uninstallWith({cache / "data", cache, cache, cache / "data"}), 20 + writer.appSize);
}

TEST_F(Uninstalling, AResidualThatIsALinkGoesAndItsTargetStays) {
  disk.makeLink(library / "Logs/com.acme.writer", "../../Documents");
  disk.makeLink(library / "Cookies/com.acme.writer", "missing");
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({library / "Logs/com.acme.writer", library / "Cookies/com.acme.writer/"}),
            20 + writer.appSize);
  EXPECT_EQ(unexpectedSince(
                before, {library / "Logs/com.acme.writer", library / "Cookies/com.acme.writer"}),
            "");
}

TEST_F(Uninstalling, AResidualThatBecameALinkSinceTheSearchStaysAsItIsNow) {
  const auto before = snapshot();
  files.becomeLinkBefore(Operation::remove, cache, disk.onDisk("/Users/ann/Documents"));
  EXPECT_EQ(uninstallWith({cache}), writer.appSize);
  EXPECT_TRUE(std::filesystem::is_symlink(disk.onDisk(cache)));
  std::filesystem::remove(disk.onDisk(cache));
  EXPECT_EQ(unexpectedSince(before, {cache}), "");
}

TEST_F(Uninstalling, AFolderOfResidualsThatIsALinkToTheUsersOwnFilesIsRefused) {
  std::filesystem::rename(disk.onDisk(library / "Caches"), disk.onDisk(library / "Old"));
  disk.makeLink(library / "Caches", "../Documents");
  const auto before = snapshot();
  const auto residuals = engine.findResiduals(writer);
  EXPECT_THAT(residuals, SizeIs(1));
  EXPECT_EQ(engine.uninstall(writer, residuals), writer.appSize);
  EXPECT_EQ(unexpectedSince(before, {}), "");
}

TEST_F(Uninstalling, AFolderOfResidualsThatIsALinkToAnotherOneIsNot) {
  disk.makeLink(library / "HTTPStorages", "Caches");
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({library / "HTTPStorages/com.acme.writer"}), 10 + writer.appSize);
  EXPECT_EQ(unexpectedSince(before, {cache}), "");
}

TEST_F(Uninstalling, AFolderOfResidualsThatIsALinkToAnotherUsersIsRefused) {
  disk.makeLink(library / "HTTPStorages", "../../ben/Library/Caches");
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({library / "HTTPStorages/com.acme.writer"}), writer.appSize);
  EXPECT_EQ(unexpectedSince(before, {}), "");
}

TEST_F(Uninstalling, AParentSwappedForALinkAfterTheGuardWasAskedLosesNothingOutside) {
  const auto documents = snapshotOf(disk.onDisk("/Users/ann/Documents"));
  files.before(Operation::remove, cache, [&] {
    std::filesystem::rename(disk.onDisk(library / "Caches"), disk.onDisk(library / "Aside"));
    disk.makeLink(library / "Caches", "../Documents");
  });
  EXPECT_EQ(uninstallWith({cache}), writer.appSize);
  EXPECT_EQ(snapshotOf(disk.onDisk("/Users/ann/Documents")), documents);
  EXPECT_TRUE(disk.holds(library / "Aside/com.acme.writer/data/blob"));
}

TEST_F(Uninstalling, AHomeThatIsALinkIsStillTheHome) {
  std::filesystem::rename(disk.onDisk("/Users/ann"), disk.onDisk("/Users/volume-ann"));
  disk.makeLink("/Users/ann", "volume-ann");
  EXPECT_EQ(uninstallWith({cache, "/Users/ann/Documents/com.acme.writer"}), 10 + writer.appSize);
  EXPECT_FALSE(disk.holds(cache));
  EXPECT_TRUE(disk.holds("/Users/ann/Documents/com.acme.writer/inside"));
}

TEST_F(Uninstalling, ARemovalThatFailsIsNotCountedAndTheRunGoesOn) {
  const Path logs = library / "Logs/com.acme.writer";
  disk.makeFile(logs, 10);
  files.fail(Operation::remove, cache);
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({cache, logs}), 10 + writer.appSize);
  EXPECT_EQ(unexpectedSince(before, {logs}), "");
}

TEST_F(Uninstalling, AMountInsideAResidualIsKeptAndTheResidualCountsAsNotRemoved) {
  disk.makeFolder(cache / "mount");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.onDisk(cache / "mount"));
    disk.makeFile(cache / "mount/inside", "kept");
    EXPECT_EQ(uninstallWith({cache}), writer.appSize);
    EXPECT_EQ(disk.contentOf(cache / "mount/inside"), "kept");
  }));
}

TEST_F(Uninstalling, AResidualOnAReadOnlyFileSystemCountsAsNotRemoved) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    const Path caches = disk.onDisk(library / "Caches");
    mountTmpfs(caches);
    disk.makeFile(cache / "data/blob", "kept");
    ASSERT_EQ(::mount(nullptr, caches.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    EXPECT_EQ(uninstallWith({cache}), writer.appSize);
    EXPECT_EQ(disk.contentOf(cache / "data/blob"), "kept");
  }));
}

TEST_F(Uninstalling, WithoutPrivilegesWhatMayNotBeWrittenStaysAndIsNotCounted) {
  const auto setAll = [&](std::filesystem::perms mode, const Path& place) {
    std::filesystem::permissions(disk.onDisk(place), mode);
  };
  for (const auto& place : std::filesystem::recursive_directory_iterator(disk.path())) {
    std::filesystem::permissions(place, std::filesystem::perms::all);
  }
  std::filesystem::permissions(disk.path(), std::filesystem::perms::all);
  const auto readOnly = std::filesystem::perms::all & ~(std::filesystem::perms::owner_write |
                                                        std::filesystem::perms::group_write |
                                                        std::filesystem::perms::others_write);
  setAll(readOnly, cache / "data");
  setAll(readOnly, "/Applications");
  const auto before = snapshot();
  EXPECT_TRUE(inChildWithoutPrivileges([&] { return uninstallWith({cache}) == 0; }));
  EXPECT_EQ(unexpectedSince(before, {}), "");
  EXPECT_TRUE(disk.holds(writer.appURL));
  setAll(std::filesystem::perms::all, cache / "data");
  setAll(std::filesystem::perms::all, "/Applications");
}

TEST_F(Uninstalling, WithATrashThatCannotBeWrittenTheApplicationStays) {
  std::filesystem::remove_all(disk.onDisk("/Users/ann/.local/share/Trash"));
  disk.makeFile("/Users/ann/.local/share/Trash", "in the way");
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({cache}), 10);
  EXPECT_TRUE(disk.holds(writer.appURL / "Contents/MacOS/program"));
  EXPECT_EQ(unexpectedDifferences(before, snapshot(), {cache}), "");
}

TEST_F(Uninstalling, AnApplicationThatIsGoneAlreadyIsNotCounted) {
  std::filesystem::remove_all(disk.onDisk(writer.appURL));
  EXPECT_EQ(uninstallWith({cache}), 10);
}

TEST_F(Uninstalling, AnApplicationThatIsALinkGoesAndItsTargetStays) {
  installAt("/Users/ann/Projects/Mine.app", "Mine", "com.mine.tool");
  disk.makeLink("/Applications/Mine.app", "../Users/ann/Projects/Mine.app");
  const auto apps = engine.listApps();
  const auto mine = std::ranges::find(apps, "com.mine.tool", &AppInfo::bundleID);
  ASSERT_NE(mine, apps.end());
  const auto before = snapshotOf(disk.onDisk("/Users/ann/Projects"));
  EXPECT_EQ(engine.uninstall(*mine, {}), mine->appSize);
  EXPECT_FALSE(disk.holds("/Applications/Mine.app"));
  EXPECT_TRUE(std::filesystem::is_symlink(disk.onDisk(trashed / "Mine.app")));
  EXPECT_EQ(snapshotOf(disk.onDisk("/Users/ann/Projects")), before);
}

TEST_F(Uninstalling, AnApplicationWhoseProgramIsALinkToElsewhereLosesOnlyTheLink) {
  std::filesystem::remove(disk.onDisk(writer.appURL / "Contents/MacOS/program"));
  disk.makeLink(writer.appURL / "Contents/MacOS/program", "../../../../Users/ann/Documents/letter");
  disk.makeLink(cache / "data/link", "../../../../Documents");
  const auto before = snapshot();
  EXPECT_EQ(uninstallWith({cache}), 10 + writer.appSize);
  EXPECT_EQ(unexpectedSince(before, {cache}), "");
}

TEST_F(Uninstalling, OnlyWhatIsCalledAnApplicationIsMovedToTheTrash) {
  const auto before = snapshot();
  for (const char* const place :
       {"", "/", "/Applications", "/Users/ann", "/Users/ann/Documents",
        "/Applications/Writer.app/..", "/Applications/Writer.app/Contents",
        "Applications/Writer.app", "/Applications/.app"}) {
    writer.appURL = place;
    writer.identity = entryIdentity(files, place);
    EXPECT_EQ(uninstallWith({}), 0) << place;
  }
  EXPECT_EQ(differences(before, snapshot()), "");
}

TEST_F(Uninstalling, ATrailingSlashOrADetourNamesTheSameApplication) {
  writer.appURL = "/Applications/./Suite/../Writer.app/";
  EXPECT_EQ(uninstallWith({}), writer.appSize);
  EXPECT_FALSE(disk.holds("/Applications/Writer.app"));
}

}  // namespace
}  // namespace klarvik
