// Removing and restoring, on a remembered disk.

#include <gmock/gmock.h>

#include <atomic>
#include <barrier>
#include <latch>

#include "engine_fixture.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

constexpr bool toTrash = true;
constexpr bool outright = false;

class Deletion : public EngineFixture {
 protected:
  const Path caches = "/Users/ann/Library/Caches";
  const Path trashed = "/Users/ann/.local/share/Trash/files";
  std::vector<DeletionProgress> reports;

  ScannerEngine::DeletionSink report() {
    return [this](const DeletionProgress& progress) { reports.push_back(progress); };
  }

  /// A file that is there, as an item.
  JunkItem item(const Path& path, std::int64_t size = 100) {
    disk.addFile(path, size);
    return {.name = path.filename().native(), .path = path, .size = size};
  }

  std::vector<JunkItem> cacheItems(std::size_t count) {
    std::vector<JunkItem> items;
    for (std::size_t number = 0; number < count; ++number) {
      items.push_back(item(caches / ("item-" + std::to_string(number))));
    }
    return items;
  }

  /// What went for good, out of the Trash or from elsewhere.
  [[nodiscard]] std::vector<Path> removed() const {
    std::vector<Path> all = files.removed();
    std::ranges::copy(trash.removed(), std::back_inserter(all));
    return all;
  }

  /// An item for something that may not be there.
  static JunkItem named(const Path& path, std::int64_t size = 100) {
    return {.name = path.filename().native(), .path = path, .size = size};
  }
};

TEST_F(Deletion, MovesAnItemToTheTrashAndTellsWhereItIsNow) {
  const auto outcome = engine.deleteItem(item(caches / "x"), toTrash);
  EXPECT_EQ(outcome.reclaimed, 100);
  EXPECT_EQ(outcome.originalURL, caches / "x");
  EXPECT_EQ(outcome.trashedURL, trashed / "x");
  EXPECT_THAT(removed(), IsEmpty());
}

TEST_F(Deletion, RemovesAnItemForGoodWhenTheTrashIsNotWanted) {
  const auto outcome = engine.deleteItem(item(caches / "x"), outright);
  EXPECT_EQ(outcome.reclaimed, 100);
  EXPECT_EQ(outcome.trashedURL, std::nullopt);
  EXPECT_THAT(removed(), ElementsAre(caches / "x"));
  EXPECT_THAT(trash.moved(), IsEmpty());
}

TEST_F(Deletion, WhatIsInTheTrashAlreadyGoesForGoodWhateverTheSetting) {
  for (const Path& folder : {Path("/Users/ann/.Trash"), trashed}) {
    for (const bool useTrash : {toTrash, outright}) {
      const auto outcome = engine.deleteItem(item(folder / "x"), useTrash);
      EXPECT_EQ(outcome.reclaimed, 100);
      EXPECT_EQ(outcome.trashedURL, std::nullopt);
      EXPECT_FALSE(disk.holds(folder / "x"));
    }
  }
  EXPECT_THAT(trash.moved(), IsEmpty());
}

TEST_F(Deletion, CountsTheSizeOfTheScanEvenWhenTheItemGrewSince) {
  disk.addFile(caches / "x", 5'000);
  EXPECT_EQ(engine.deleteItem(named(caches / "x", 100), outright).reclaimed, 100);
}

TEST_F(Deletion, AFailedRemovalOrMoveCountsAsNotRemoved) {
  const auto stuck = item(caches / "x");
  files.fail(FileOperation::remove, caches / "x");
  trash.fail(TrashOperation::moveToTrash, caches / "x");
  for (const bool useTrash : {toTrash, outright}) {
    const auto outcome = engine.deleteItem(stuck, useTrash);
    EXPECT_EQ(outcome.reclaimed, 0);
    EXPECT_EQ(outcome.trashedURL, std::nullopt);
  }
  EXPECT_TRUE(disk.holds(caches / "x"));
}

TEST_F(Deletion, NothingIsRemovedForGoodBecauseTheTrashRefusesIt) {
  trash.fail(TrashOperation::moveToTrash, caches / "x");
  EXPECT_EQ(engine.deleteItem(item(caches / "x"), toTrash).reclaimed, 0);
  EXPECT_TRUE(disk.holds(caches / "x"));
}

TEST_F(Deletion, ObeysTheGuardForEverythingAScanShows) {
  const struct {
    Path path;
    bool removed;
  } rows[] = {
      {caches / "com.acme", true},
      {caches / "Google/Chrome", true},
      {"/Users/ann/.Trash/x", true},
      {"/Users/ann/Library/Logs", true},
      {"/Users/ann/Library/Saved Application State", true},
      {"/Users/ann/Library/Cookies", true},
      {"/Users/ann/Library/HTTPStorages", true},
      {"/Users/ann/Library/iTunes/iPhone Software Updates/a.ipsw", true},
      {"/Users/ann/Library/Developer/Xcode/DerivedData", true},
      {"/Users/ann/Library/Application Support/MobileSync/Backup/0000", false},
      {"/var/log", false},
      {"/Library/Logs/DiagnosticReports", false},
      {"/opt/homebrew/Caches", false},
      {"/usr/local/Homebrew/Cache", false},
      {"/usr/local/bin/docker", false},
      {"/Users/ann/Documents/letter", false},
      {"/Users/ben/Library/Caches/x", false},
      {"/", false},
      {"", false},
      {"Library/Caches/x", false},
  };
  for (const auto& row : rows) {
    if (row.path.is_absolute() && row.path != "/") disk.addFile(row.path, 100);
    const auto outcome = engine.deleteItem(named(row.path), outright);
    EXPECT_EQ(outcome.reclaimed, row.removed ? 100 : 0) << row.path;
    EXPECT_EQ(outcome.originalURL, row.path);
    EXPECT_EQ(outcome.trashedURL, std::nullopt);
    EXPECT_EQ(disk.holds(row.path), row.path.is_absolute() && !row.removed) << row.path;
  }
}

TEST_F(Deletion, RemovesTheVeryPathThatWasJudged) {
  disk.addFile(caches / "x", 100);
  EXPECT_EQ(engine.deleteItem(named(caches / "link/../x/"), outright).reclaimed, 100);
  EXPECT_THAT(removed(), ElementsAre(caches / "x"));
}

TEST_F(Deletion, APathThatOnlyPassesThroughTheTrashIsNotTakenForTrash) {
  disk.addFile(caches / "x", 100);
  const auto outcome = engine.deleteItem(named("/Users/ann/.Trash/../Library/Caches/x"), toTrash);
  EXPECT_EQ(outcome.trashedURL, trashed / "x");
  EXPECT_THAT(removed(), IsEmpty());
}

TEST_F(Deletion, AParentThatIsALinkIsJudgedByTheRealPlaceToo) {
  disk.addFile(caches / "into documents", 100);
  disk.setRealPlace(caches / "into documents", "/Users/ann/Documents/into documents");
  disk.addFile(caches / "into another cache", 100);
  disk.setRealPlace(caches / "into another cache", "/Users/ann/Library/Logs/a/into another cache");
  for (const bool useTrash : {toTrash, outright}) {
    EXPECT_EQ(engine.deleteItem(named(caches / "into documents"), useTrash).reclaimed, 0);
  }
  EXPECT_TRUE(disk.holds(caches / "into documents"));
  EXPECT_EQ(engine.deleteItem(named(caches / "into another cache"), outright).reclaimed, 100);
}

TEST_F(Deletion, AHomeThatIsALinkIsJudgedByTheRealHome) {
  disk.setRealHome("/data/homes/ann");
  disk.addFile(caches / "x", 100);
  disk.setRealPlace(caches / "x", "/data/homes/ann/Library/Caches/x");
  disk.addFile(caches / "y", 100);
  disk.setRealPlace(caches / "y", "/data/homes/ben/Library/Caches/y");
  EXPECT_EQ(engine.deleteItem(named(caches / "x"), outright).reclaimed, 100);
  EXPECT_EQ(engine.deleteItem(named(caches / "y"), outright).reclaimed, 0);
}

TEST_F(Deletion, ASnapshotIsRemovedByItsToolAndNeverGoesNearTheTrash) {
  commands.answer("tmutil deletelocalsnapshots 2026-03-01-101530 2>/dev/null",
                  "Deleted local snapshot");
  for (const bool useTrash : {toTrash, outright}) {
    const auto outcome =
        engine.deleteItem(named("/.MobileBackups/2026-03-01-101530", 524'288'000), useTrash);
    EXPECT_EQ(outcome.reclaimed, 524'288'000);
    EXPECT_EQ(outcome.trashedURL, std::nullopt);
  }
  EXPECT_THAT(commands.commandsRun(), SizeIs(2));
  EXPECT_THAT(trash.moved(), IsEmpty());
}

TEST_F(Deletion, ASnapshotCountsWhenItsToolPrintsAnythingAtAll) {
  commands.answer("tmutil deletelocalsnapshots 2026-03-01-101530 2>/dev/null", "error: no");
  EXPECT_EQ(engine.deleteItem(named("/.MobileBackups/2026-03-01-101530"), toTrash).reclaimed, 100);
  EXPECT_EQ(engine.deleteItem(named("/.MobileBackups/2026-03-02-101530"), toTrash).reclaimed, 0);
}

TEST_F(Deletion, ASnapshotNameWithShellCharactersIsNeverActedOnByAShell) {
  for (const char* const name : {"a;touch hit", "$(touch hit)", "`id`", "'x'", "\"x\"", "a\nb",
                                 "-rf", "a b", "a|b", "a&b"}) {
    EXPECT_EQ(engine.deleteItem(named(Path("/.MobileBackups") / name), toTrash).reclaimed, 0);
  }
  EXPECT_THAT(commands.commandsRun(), IsEmpty());
}

TEST_F(Deletion, AnEmptyListIsAnEmptyAnswerWithoutAReport) {
  EXPECT_THAT(engine.deleteItems({}, toTrash, {}, report()), IsEmpty());
  EXPECT_THAT(engine.trashFiles({}, {}, report()), IsEmpty());
  EXPECT_THAT(reports, IsEmpty());
}

TEST_F(Deletion, ReportsEachFinishedItemWithTheBytesSoFar) {
  const auto items = cacheItems(50);
  const auto outcomes = engine.deleteItems(items, toTrash, {}, report());
  ASSERT_THAT(outcomes, SizeIs(50));
  ASSERT_THAT(reports, SizeIs(50));
  for (std::size_t at = 0; at < reports.size(); ++at) {
    EXPECT_EQ(reports[at].completed, static_cast<std::int64_t>(at + 1));
    EXPECT_EQ(reports[at].total, 50);
    EXPECT_EQ(reports[at].freed, static_cast<std::int64_t>(100 * (at + 1)));
    EXPECT_EQ(reports[at].currentName, outcomes[at].originalURL.filename());
    EXPECT_EQ(items[outcomes[at].item].path, outcomes[at].originalURL);
  }
}

TEST_F(Deletion, ReportsARefusedItemWithoutCountingItsBytes) {
  auto items = cacheItems(9);
  items.insert(items.begin() + 4, item("/Users/ann/Documents/letter"));
  const auto outcomes = engine.deleteItems(items, outright, {}, report());
  ASSERT_THAT(outcomes, SizeIs(10));
  EXPECT_EQ(reports.back().completed, 10);
  EXPECT_EQ(reports.back().freed, 900);
  for (const DeletionOutcome& outcome : outcomes) {
    const bool refused = outcome.originalURL == "/Users/ann/Documents/letter";
    EXPECT_EQ(outcome.reclaimed, refused ? 0 : 100);
  }
}

TEST_F(Deletion, AnItemThatIsGoneAlreadyCountsAsNotRemovedAndTheRunGoesOn) {
  auto items = cacheItems(5);
  items.push_back(named(caches / "gone"));
  const auto outcomes = engine.deleteItems(items, toTrash, {}, report());
  EXPECT_THAT(outcomes, SizeIs(6));
  EXPECT_EQ(reports.back().freed, 500);
  EXPECT_EQ(reports.back().completed, 6);
}

TEST_F(Deletion, HasSixItemsUnderWayAndNeverMore) {
  std::atomic<int> underWay = 0;
  std::atomic<int> most = 0;
  // Only if six are under way at the same time does anyone get past it.
  std::barrier together(6);
  files.beforeEach(FileOperation::remove, [&](const Path&) {
    const int now = ++underWay;
    for (int seen = most.load(); seen < now && !most.compare_exchange_weak(seen, now);) {
    }
    together.arrive_and_wait();
    --underWay;
  });
  engine.deleteItems(cacheItems(24), outright);
  EXPECT_EQ(most, 6);
}

TEST_F(Deletion, AStopAfterTheFirstOfSevenNeverStartsTheSeventhAndTellsAllThatWent) {
  const auto items = cacheItems(7);
  std::stop_source source;
  std::latch othersMayFinish(1);
  trash.beforeEach(TrashOperation::moveToTrash, [&](const Path& path) {
    if (path != items[0].path) othersMayFinish.wait();
  });
  const auto outcomes =
      engine.deleteItems(items, toTrash, source.get_token(), [&](const DeletionProgress& progress) {
        reports.push_back(progress);
        source.request_stop();
        othersMayFinish.count_down();
      });
  EXPECT_THAT(reports, ElementsAre(DeletionProgress{1, 7, "item-0", 100}));
  EXPECT_TRUE(disk.holds(items[6].path));
  std::set<Path> told;
  for (const DeletionOutcome& outcome : outcomes) {
    told.insert(outcome.originalURL);
    EXPECT_EQ(outcome.reclaimed, 100);
    EXPECT_TRUE(outcome.trashedURL);
  }
  EXPECT_EQ(told, trash.moved());
}

TEST_F(Deletion, AStopBeforeTheStartRemovesNothing) {
  std::stop_source source;
  source.request_stop();
  const auto items = cacheItems(20);
  EXPECT_THAT(engine.deleteItems(items, outright, source.get_token(), report()), IsEmpty());
  EXPECT_THAT(reports, IsEmpty());
  for (const JunkItem& each : items) EXPECT_TRUE(disk.holds(each.path));
}

TEST_F(Deletion, ASelectionThatHoldsAFolderAndSomethingInsideItRemovesEachByteOnce) {
  disk.addFile(caches / "folder/inside", 60);
  disk.addFile(caches / "folder/other", 40);
  const auto outcomes = engine.deleteItems(
      {named(caches / "folder"), named(caches / "folder/inside", 60)}, outright, {}, report());
  EXPECT_THAT(outcomes, SizeIs(2));
  EXPECT_FALSE(disk.holds(caches / "folder"));
  EXPECT_FALSE(disk.holds(caches / "folder/inside"));
}

TEST_F(Deletion, TheSameItemTwiceIsRemovedOnce) {
  const auto one = item(caches / "x");
  const auto outcomes = engine.deleteItems({one, one}, toTrash, {}, report());
  EXPECT_THAT(outcomes, SizeIs(2));
  EXPECT_EQ(reports.back().freed, 100);
}

TEST_F(Deletion, PickedFilesGoToTheTrashFromFoldersThatHoldTheUsersOwn) {
  disk.addFile("/Users/ann/Documents/a.pdf", 100);
  const auto moved = engine.trashFiles(
      {{.url = "/Users/ann/Documents/a.pdf", .name = "A", .size = 100}}, {}, report());
  EXPECT_THAT(moved, ElementsAre(Path("/Users/ann/Documents/a.pdf")));
  EXPECT_THAT(reports, ElementsAre(DeletionProgress{1, 1, "a.pdf", 100}));
  EXPECT_TRUE(disk.holds(trashed / "a.pdf"));
}

TEST_F(Deletion, APickedFileThatIsRefusedOrStuckIsCountedButNotMoved) {
  disk.addFile("/usr/bin/tool", 100);
  disk.addFile("/Users/ann/notes.txt", 100);
  disk.addFile("/Users/ben/Documents/diary", 100);
  disk.addFile("/Users/ann/Documents/stuck", 100);
  trash.fail(TrashOperation::moveToTrash, "/Users/ann/Documents/stuck");
  disk.addFile("/Users/ann/Documents/fine", 70);
  const auto before = disk.contents();
  std::vector<PickedFile> picked;
  for (const char* const path : {"/usr/bin/tool", "/Users/ann/notes.txt",
                                 "/Users/ben/Documents/diary", "/Users/ann/Documents/stuck"}) {
    picked.push_back({.url = path, .name = "", .size = 100});
  }
  EXPECT_THAT(engine.trashFiles(picked, {}, report()), IsEmpty());
  EXPECT_EQ(reports.back().completed, 4);
  EXPECT_EQ(reports.back().freed, 0);
  EXPECT_EQ(disk.contents(), before);
  EXPECT_THAT(
      engine.trashFiles({{.url = "/Users/ann/Documents/fine", .name = "", .size = 70}}, {}, {}),
      SizeIs(1));
}

TEST_F(Deletion, OnePickedFileTellsItsBytesOnlyWhenItMoved) {
  disk.addFile("/Users/ann/Documents/a", 100);
  const auto moved = engine.trashFile({.url = "/Users/ann/Documents/a", .name = "", .size = 100});
  EXPECT_TRUE(moved.moved);
  EXPECT_EQ(moved.bytes, 100);
  const auto refused = engine.trashFile({.url = "/Users/ann/a", .name = "", .size = 100});
  EXPECT_FALSE(refused.moved);
  EXPECT_EQ(refused.bytes, 0);
  EXPECT_EQ(refused.url, "/Users/ann/a");
}

TEST_F(Deletion, AStopEndsTheMovingOfPickedFiles) {
  std::vector<PickedFile> picked;
  for (int number = 0; number < 40; ++number) {
    const Path path = "/Users/ann/Documents/f" + std::to_string(number);
    disk.addFile(path, 1);
    picked.push_back({.url = path, .name = "", .size = 1});
  }
  std::stop_source source;
  const auto moved =
      engine.trashFiles(picked, source.get_token(), [&](const DeletionProgress& progress) {
        reports.push_back(progress);
        source.request_stop();
      });
  EXPECT_THAT(reports, SizeIs(1));
  EXPECT_LE(moved.size(), ScannerEngine::deletionWidth);
  EXPECT_EQ(moved, trash.moved());
}

TEST_F(Deletion, RestoresAnItemToWhereItWas) {
  disk.addFile(trashed / "x", 100);
  EXPECT_TRUE(engine.restoreItem(trashed / "x", caches / "gone/x"));
  EXPECT_TRUE(disk.holds(caches / "gone/x"));
  EXPECT_FALSE(disk.holds(trashed / "x"));
}

TEST_F(Deletion, DoesNotRestoreWhatIsNotThere) {
  EXPECT_FALSE(engine.restoreItem(trashed / "missing", caches / "x"));
}

TEST_F(Deletion, RestoringOntoAnExistingFileFolderOrDanglingLinkIsRefusedAndBothStay) {
  disk.addFile(trashed / "x", 100);
  disk.addFile(caches / "file", 1);
  disk.addFolder(caches / "folder");
  disk.addLink(caches / "link");
  const auto before = disk.contents();
  for (const char* const name : {"file", "folder", "link"}) {
    EXPECT_FALSE(engine.restoreItem(trashed / "x", caches / name)) << name;
  }
  EXPECT_EQ(disk.contents(), before);
}

TEST_F(Deletion, RestoresATrashedLinkThatLeadsNowhere) {
  disk.addLink(trashed / "link");
  EXPECT_TRUE(engine.restoreItem(trashed / "link", caches / "link"));
}

TEST_F(Deletion, EmptiesAllFoldersOfTheTrashAndReports) {
  disk.addFile(trashed / "one/a", 100);
  disk.addFile(trashed / ".hidden", 20);
  disk.addFile("/Users/ann/.Trash/two", 3);
  EXPECT_EQ(engine.emptyTrash({}, report()), 123);
  EXPECT_THAT(removed(),
              UnorderedElementsAre(trashed / "one", trashed / ".hidden", "/Users/ann/.Trash/two"));
  EXPECT_EQ(reports.back(), (DeletionProgress{3, 3, reports.back().currentName, 123}));
  EXPECT_THAT(trash.moved(), IsEmpty());
}

TEST_F(Deletion, EmptyingATrashThatCannotBeListedRemovesNothing) {
  disk.addFile("/Users/ann/.Trash/two", 3);
  trash.readable = false;
  EXPECT_EQ(engine.emptyTrash({}, report()), 0);
  EXPECT_THAT(reports, IsEmpty());
  EXPECT_THAT(removed(), IsEmpty());
}

TEST_F(Deletion, AnEmptyingThatIsStoppedWhileItMeasuresMeasuresNoFurtherEntryAndRemovesNothing) {
  std::stop_source stop;
  int measured = 0;
  for (const char* entry : {"one", "two", "three"}) {
    disk.addFile(trashed / entry / "a", 100);
    files.before(FileOperation::walk, trashed / entry, [&] {
      ++measured;
      stop.request_stop();
    });
  }
  EXPECT_EQ(engine.emptyTrash(stop.get_token(), report()), 0);
  EXPECT_EQ(measured, 1);
  EXPECT_THAT(reports, IsEmpty());
  EXPECT_THAT(removed(), IsEmpty());
}

TEST_F(Deletion, OneFailureWhileEmptyingDoesNotStopTheRest) {
  disk.addFile(trashed / "stuck", 100);
  trash.fail(TrashOperation::remove, trashed / "stuck");
  disk.addFile(trashed / "a", 1);
  disk.addFile(trashed / "b", 2);
  EXPECT_EQ(engine.emptyTrash(), 3);
  EXPECT_TRUE(disk.holds(trashed / "stuck"));
}

TEST_F(Deletion, AnItemAddedToTheTrashWhileItIsEmptiedSurvives) {
  disk.addFile(trashed / "old", 100);
  EXPECT_EQ(
      engine.emptyTrash({}, [&](const DeletionProgress&) { disk.addFile(trashed / "new", 1); }),
      100);
  EXPECT_TRUE(disk.holds(trashed / "new"));
}

}  // namespace
}  // namespace klarvik
