// Removing and restoring with the real file system and the real Trash. Each test compares the whole
// disk: what is gone was selected, and nothing else changed.

#include <gmock/gmock.h>

#include <functional>
#include <set>

#include "engine/scanner_engine.h"
#include "engine/sizes.h"
#include "support/disk_snapshot.h"
#include "support/fake_desktop.h"
#include "support/private_mounts.h"

namespace klarvik {
namespace {

using testing::Each;
using testing::SizeIs;

constexpr bool toTrash = true;
constexpr bool outright = false;

class RemovalOnADisk : public testing::Test {
 protected:
  FakeDesktopOnDisk world;
  TemporaryFolder& disk = world.disk;
  FaultInjectingFileSystem& files = world.files;
  ScannerEngine engine{world.desktop};
  const Path caches = "/Users/ann/Library/Caches";
  const Path trashed = "/Users/ann/.local/share/Trash/files";

  void SetUp() override {
    disk.makeFolder(caches);
    disk.makeFile("/Users/ann/Documents/letter", "dear");
    disk.makeFile("/Users/ann/Documents/x/inside", "mine");
    disk.makeFile("/Users/ben/Library/Caches/x/inside", "his");
    static_cast<void>(world.trash.folders());
  }

  /// What stands at `path` now, as a scan would find it.
  [[nodiscard]] JunkItem item(const Path& path) const {
    return {.name = path.filename().native(),
            .path = path,
            .size = 100,
            .identity = entryIdentity(files, path)};
  }

  /// An entry of the Trash as a scan finds it.
  [[nodiscard]] JunkItem foundInTrash(const std::string& name) {
    const auto categories = engine.scanAll(
        {}, [](const ScanUpdate&) {}, [](const auto&) {});
    for (const CleanCategory& category : categories) {
      for (const JunkItem& item : category.items) {
        if (item.path == trashed / name) return item;
      }
    }
    ADD_FAILURE() << "no scan finds " << name;
    return {};
  }

  [[nodiscard]] DiskSnapshot snapshot() const { return snapshotOf(disk.path()); }
};

TEST_F(RemovalOnADisk, TheItemIsALinkSoTheLinkGoesAndItsTargetStays) {
  const auto before = snapshot();
  for (const char* const target : {"../../Documents", "../../Documents/letter", "missing"}) {
    disk.makeLink(caches / "link", target);
    EXPECT_EQ(engine.deleteItem(item(caches / "link"), outright).reclaimed, 100);
    EXPECT_EQ(snapshot(), before);

    disk.makeLink(caches / "link", target);
    const auto outcome = engine.deleteItem(item(caches / "link"), toTrash);
    ASSERT_TRUE(outcome.trashedURL);
    EXPECT_TRUE(std::filesystem::is_symlink(disk.onDisk(*outcome.trashedURL)));
    EXPECT_EQ(engine.deleteItem(item(*outcome.trashedURL), toTrash).reclaimed, 100);
    EXPECT_EQ(snapshot(), before);
  }
}

TEST_F(RemovalOnADisk, AParentThatIsALinkToTheUsersOwnFilesIsRefused) {
  disk.makeLink(caches / "parent", "../../Documents");
  disk.makeLink(caches / "other user", "../../../ben/Library/Caches");
  const auto before = snapshot();
  for (const bool useTrash : {toTrash, outright}) {
    EXPECT_EQ(engine.deleteItem(item(caches / "parent/letter"), useTrash).reclaimed, 0);
    EXPECT_EQ(engine.deleteItem(item(caches / "parent/x"), useTrash).reclaimed, 0);
    EXPECT_EQ(engine.deleteItem(item(caches / "other user/x"), useTrash).reclaimed, 0);
  }
  EXPECT_EQ(snapshot(), before);
}

TEST_F(RemovalOnADisk, AParentThatIsALinkToAnotherCleanablePlaceIsNot) {
  disk.makeFile("/Users/ann/Library/Logs/app/a.log", "log");
  disk.makeLink(caches / "parent", "../Logs/app");
  EXPECT_EQ(engine.deleteItem(item(caches / "parent/a.log"), outright).reclaimed, 100);
  EXPECT_FALSE(disk.holds("/Users/ann/Library/Logs/app/a.log"));
}

TEST_F(RemovalOnADisk, AParentThatBecameALinkAfterTheGuardWasAskedIsJudgedByTheRealPlace) {
  disk.makeFile(caches / "app/x/inside", "waste");
  DiskSnapshot before;
  files.before(FaultInjectingFileSystem::Operation::remove, caches / "app/x", [&] {
    std::filesystem::rename(disk.onDisk(caches / "app"), disk.onDisk(caches / "aside"));
    disk.makeLink(caches / "app", "../../Documents");
    before = snapshot();
  });
  EXPECT_EQ(engine.deleteItem(item(caches / "app/x"), outright).reclaimed, 0);
  EXPECT_EQ(snapshot(), before);
}

TEST_F(RemovalOnADisk, AHomeThatIsALinkIsStillTheHome) {
  std::filesystem::rename(disk.onDisk("/Users/ann"), disk.onDisk("/Users/volume-ann"));
  disk.makeLink("/Users/ann", "volume-ann");
  disk.makeFile(caches / "x", "waste");
  EXPECT_EQ(engine.deleteItem(item(caches / "x"), outright).reclaimed, 100);
  disk.makeFile(caches / "y", "waste");
  EXPECT_EQ(engine.deleteItem(item(caches / "y"), toTrash).reclaimed, 100);
  EXPECT_EQ(engine.deleteItem(item("/Users/ann/Documents/letter"), toTrash).reclaimed, 0);
  EXPECT_EQ(disk.contentOf("/Users/volume-ann/Documents/letter"), "dear");
}

TEST_F(RemovalOnADisk, AnItemThatIsGoneAlreadyCountsAsNotRemovedAndTheRunGoesOn) {
  const auto before = snapshot();
  for (const bool useTrash : {toTrash, outright}) {
    disk.makeFile(caches / "there", "waste");
    disk.makeFile(caches / "vanishing", "waste");
    files.vanishBefore(FaultInjectingFileSystem::Operation::remove, caches / "vanishing");
    std::int64_t reclaimed = 0;
    const auto outcomes = engine.deleteItems(
        {item(caches / "gone"), item(caches / "vanishing"), item(caches / "there")}, useTrash);
    for (const auto& outcome : outcomes) reclaimed += outcome.reclaimed;
    EXPECT_THAT(outcomes, SizeIs(3));
    EXPECT_EQ(reclaimed, useTrash ? 200 : 100);
    engine.emptyTrash();
    EXPECT_EQ(snapshot(), before);
  }
}

TEST_F(RemovalOnADisk, ASelectionThatHoldsAFolderAndSomethingInsideItRemovesEachByteOnce) {
  const auto before = snapshot();
  for (int round = 0; round < 6; ++round) {
    std::vector<JunkItem> items;
    for (int number = 0; number < 30; ++number) {
      const Path inside = caches / "folder/deep/er" / std::to_string(number);
      disk.makeFile(inside / "file", "waste");
      items.push_back(item(inside));
    }
    items.insert(items.begin() + 3, item(caches / "folder"));
    const bool useTrash = round % 2 == 0;
    EXPECT_THAT(engine.deleteItems(items, useTrash), SizeIs(31));
    // A folder that something was taken out of meanwhile may have to be asked for again.
    if (disk.holds(caches / "folder")) engine.deleteItem(item(caches / "folder"), useTrash);
    engine.emptyTrash();
    EXPECT_EQ(snapshot(), before);
  }
}

TEST_F(RemovalOnADisk, WhatComesOutOfACleanCanAllBePutBack) {
  std::vector<JunkItem> items;
  for (const char* const name : {"plain", "two\nlines", "\xff\xfe", "-rf", "$(id) `id` ;'\""}) {
    disk.makeFile(caches / name / "file", name);
    items.push_back(item(caches / name));
  }
  disk.makeLink(caches / "link", "../../Documents");
  items.push_back(item(caches / "link"));
  const auto before = snapshot();

  const auto outcomes = engine.deleteItems(items, toTrash);
  EXPECT_THAT(outcomes, SizeIs(items.size()));
  for (const DeletionOutcome& outcome : outcomes) {
    ASSERT_TRUE(outcome.trashedURL);
    EXPECT_FALSE(disk.holds(outcome.originalURL));
    EXPECT_TRUE(engine.restoreItem(*outcome.trashedURL, outcome.originalURL));
  }
  EXPECT_EQ(snapshot(), before);
}

TEST_F(RemovalOnADisk, RestoringMakesTheFolderAgainThatIsGone) {
  disk.makeFile(caches / "app/data/file", "waste");
  const auto outcome = engine.deleteItem(item(caches / "app/data/file"), toTrash);
  ASSERT_TRUE(outcome.trashedURL);
  std::filesystem::remove_all(disk.onDisk(caches / "app"));
  EXPECT_TRUE(engine.restoreItem(*outcome.trashedURL, outcome.originalURL));
  EXPECT_EQ(disk.contentOf(caches / "app/data/file"), "waste");
}

TEST_F(RemovalOnADisk, RestoringOntoAnExistingFileFolderOrDanglingLinkIsRefusedAndBothStay) {
  disk.makeFile(caches / "x", "waste");
  const auto outcome = engine.deleteItem(item(caches / "x"), toTrash);
  ASSERT_TRUE(outcome.trashedURL);
  const std::vector<std::function<void()>> obstacles{
      [&] { disk.makeFile(caches / "x", "new"); }, [&] { disk.makeFolder(caches / "x"); },
      [&] { disk.makeLink(caches / "x", "missing"); }};
  for (const auto& putInTheWay : obstacles) {
    putInTheWay();
    const auto before = snapshot();
    EXPECT_FALSE(engine.restoreItem(*outcome.trashedURL, caches / "x"));
    EXPECT_EQ(snapshot(), before);
    std::filesystem::remove(disk.onDisk(caches / "x"));
  }
  EXPECT_TRUE(engine.restoreItem(*outcome.trashedURL, caches / "x"));
}

TEST_F(RemovalOnADisk, EmptyingTakesALinkInsideAndLeavesItsTarget) {
  const auto before = snapshot();
  disk.makeFile(trashed / "folder/file", "waste");
  disk.makeLink(trashed / "folder/link", "../../../../../Documents");
  disk.makeLink(trashed / "link", "../../../../Documents");
  EXPECT_GT(engine.emptyTrash(), 0);
  EXPECT_EQ(snapshot(), before);
}

TEST_F(RemovalOnADisk, AnItemAddedWhileTheTrashIsEmptiedSurvives) {
  disk.makeFile(caches / "late", "kept");
  disk.makeFile(trashed / "old", "waste");
  const auto before = snapshot();
  engine.emptyTrash({}, [&](const DeletionProgress& progress) {
    if (progress.completed == 1) engine.deleteItem(item(caches / "late"), toTrash);
  });
  EXPECT_FALSE(disk.holds(trashed / "old"));
  EXPECT_EQ(disk.contentOf(trashed / "late"), "kept");
  EXPECT_TRUE(engine.restoreItem(trashed / "late", caches / "late"));
  EXPECT_EQ(unexpectedDifferences(before, snapshot(), {trashed / "old"}), "");
}

TEST_F(RemovalOnADisk, WhenTheTrashIsEmptiedOneFailureDoesNotStopTheRest) {
  std::vector<Path> waste;
  for (int number = 0; number < 40; ++number) {
    waste.push_back(trashed / std::to_string(number));
    disk.makeFile(waste.back() / "file", 10'000);
  }
  disk.makeFolder(trashed / "stuck/mount");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.onDisk(trashed / "stuck/mount"));
    disk.makeFile(trashed / "stuck/mount/file", "mounted");
    const std::int64_t sizeOfOne = allocatedSize(files, waste.front());
    const auto before = snapshot();
    EXPECT_EQ(engine.emptyTrash(), 40 * sizeOfOne);
    EXPECT_EQ(unexpectedDifferences(before, snapshot(), waste), "");
    for (const Path& path : waste) EXPECT_FALSE(disk.holds(path)) << path;
  }));
}

TEST_F(RemovalOnADisk, ATrashEntryWhoseNameCameToSomethingElseStays) {
  disk.makeFile(trashed / "app/file", "long gone");
  const JunkItem stale = foundInTrash("app");
  std::filesystem::remove_all(disk.onDisk(trashed / "app"));
  disk.makeFile(caches / "app/file", "just trashed");
  ASSERT_EQ(engine.deleteItem(item(caches / "app"), toTrash).trashedURL, trashed / "app");

  EXPECT_EQ(engine.deleteItem(stale, toTrash).reclaimed, 0);
  EXPECT_EQ(disk.contentOf(trashed / "app/file"), "just trashed");
  EXPECT_GT(engine.deleteItem(foundInTrash("app"), toTrash).reclaimed, 0);
  EXPECT_FALSE(disk.holds(trashed / "app"));
}

TEST_F(RemovalOnADisk, AnItemThatTakesTheNameOfOneThatWentWhileTheTrashIsEmptiedSurvives) {
  disk.makeFile(trashed / "report/file", "old");
  files.before(FaultInjectingFileSystem::Operation::walk, trashed / "report", [&] {
    std::filesystem::rename(disk.onDisk(trashed / "report"), disk.onDisk("/Users/ann/report"));
    disk.makeFile(trashed / "report/file", "new");
  });
  EXPECT_EQ(engine.emptyTrash(), 0);
  EXPECT_EQ(disk.contentOf(trashed / "report/file"), "new");
  EXPECT_EQ(disk.contentOf("/Users/ann/report/file"), "old");
}

TEST_F(RemovalOnADisk, ANameIsToldApartBeforeAnythingElseInTheTrashIsMeasured) {
  bool isFirst = true;
  Path swapped;
  const auto swapOnce = [&](const Path& other) {
    if (!std::exchange(isFirst, false)) return;
    swapped = other;
    std::filesystem::rename(disk.onDisk(other), disk.onDisk("/Users/ann/restored"));
    disk.makeFile(other / "file", "new");
  };
  for (const auto& [entry, other] : {std::pair{"one", "two"}, std::pair{"two", "one"}}) {
    disk.makeFile(trashed / entry / "file", "old");
    files.before(FaultInjectingFileSystem::Operation::walk, trashed / entry,
                 [&, other = trashed / other] { swapOnce(other); });
  }
  EXPECT_GT(engine.emptyTrash(), 0);
  EXPECT_EQ(disk.contentOf(swapped / "file"), "new");
  EXPECT_EQ(disk.contentOf("/Users/ann/restored/file"), "old");
  EXPECT_THAT(*world.trash.list(), testing::ElementsAre(swapped));
}

TEST_F(RemovalOnADisk, ATrashFolderThatBecameALinkLeadsToNothingThatIsRemovedOrRestored) {
  disk.makeFile(trashed / "x/inside", "waste");
  const JunkItem found = foundInTrash("x");
  std::filesystem::rename(disk.onDisk(trashed), disk.onDisk("/Users/ann/aside"));
  disk.makeLink(trashed, "../../../Documents");
  const auto before = snapshot();
  JunkItem known = item(trashed / "x");
  for (const JunkItem& each : {found, known}) {
    EXPECT_EQ(engine.deleteItem(each, toTrash).reclaimed, 0);
    EXPECT_FALSE(engine.restoreItem(each.path, caches / "x"));
  }
  EXPECT_EQ(snapshot(), before);
}

TEST_F(RemovalOnADisk, SixThreadsMovingItemsOfOneNameLoseNone) {
  std::vector<JunkItem> items;
  for (int number = 0; number < 60; ++number) {
    const Path path = caches / std::to_string(number) / "Data";
    disk.makeFile(path / "file", path.native());
    items.push_back(item(path));
  }
  std::set<Path> places;
  for (const DeletionOutcome& outcome : engine.deleteItems(items, toTrash)) {
    ASSERT_TRUE(outcome.trashedURL);
    EXPECT_EQ(disk.contentOf(*outcome.trashedURL / "file"), outcome.originalURL.native());
    places.insert(*outcome.trashedURL);
  }
  EXPECT_THAT(places, SizeIs(60));
}

TEST_F(RemovalOnADisk, ARefusedSelectionChangesNothingAtAll) {
  disk.makeFile("/var/log/system.log", "log");
  disk.makeFile("/Users/ann/notes.txt", "milk");
  const auto before = snapshot();
  std::vector<JunkItem> items;
  for (const char* const path :
       {"/", "//", "/./", "/..", "", "Users/ann/Library/Caches", "/Users", "/Users/ann",
        "/Users/ann/", "/Users/ann/Library", "/Users/ann/notes.txt", "/Users/ann/Documents",
        "/Users/ann/Library/Caches/../../Documents/letter", "/Users/ben/Library/Caches/x",
        "/Users/ann2/Library/Caches/x", "/var/log", "/var/log/system.log"}) {
    items.push_back(item(path));
  }
  for (const bool useTrash : {toTrash, outright}) {
    std::vector<std::int64_t> reclaimed;
    for (const auto& outcome : engine.deleteItems(items, useTrash)) {
      reclaimed.push_back(outcome.reclaimed);
    }
    EXPECT_THAT(reclaimed, SizeIs(items.size()));
    EXPECT_THAT(reclaimed, Each(0));
  }
  EXPECT_EQ(snapshot(), before);
}

}  // namespace
}  // namespace klarvik
