#include "tools/privacy_scanner.h"
#include "support/desktop_fakes.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "platform/system_platform.h"
#include "support/child_process.h"
#include "support/disk_snapshot.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

using Operation = FaultInjectingFileSystem::Operation;
using enum PrivacyCategory;

class PrivacyScannerTest : public testing::Test {
 protected:
  FakeDesktopOnDisk world;
  TemporaryFolder& disk = world.disk;
  FaultInjectingFileSystem& files = world.files;
  PrivacyScanner scanner{world.desktop, world.pasteboard};

  const Path library = "/Users/ann/Library";
  const Path chrome = library / "Application Support/Google/Chrome/Default";
  const Path recentLists = library / "Application Support/com.apple.sharedfilelist";
  const Path dock = library / "Preferences/com.apple.dock.plist";
  const Path quarantineDatabase =
      library / "Preferences/com.apple.LaunchServices.QuarantineEventsV2";

  std::vector<PrivacyItem> scan() { return scanner.scan({}); }

  /// What a scan finds of one kind.
  std::optional<PrivacyItem> found(PrivacyCategory category) {
    for (const PrivacyItem& item : scan()) {
      if (item.category == category) return item;
    }
    return std::nullopt;
  }

  /// What stands at `path` now, as a scan would find it.
  [[nodiscard]] PrivacyItem item(PrivacyCategory category, std::int64_t size,
                                 const std::optional<Path>& path = std::nullopt) const {
    return {.category = category,
            .name = "x",
            .path = path,
            .size = size,
            .identity = path ? entryIdentity(files, *path) : std::nullopt};
  }
};

TEST(PrivacyCategory, HasALabelForEachKindInTheOrderTheyAreListed) {
  std::vector<std::string_view> labels;
  for (const PrivacyCategory category : allPrivacyCategories())
    labels.push_back(rawValue(category));
  EXPECT_THAT(labels,
              ElementsAre("Browser History", "Browser Cookies", "Browser Cache", "Recent Files",
                          "Recent Apps", "Downloads List", "Clipboard", "Quarantine DB",
                          "Trash History", "Location Cache", "Shell History", "Thumbnails"));
}

TEST_F(PrivacyScannerTest, TellsEachPassBeforeItRunsAndTheEnd) {
  std::vector<std::pair<double, std::string>> told;
  const auto items = scanner.scan(
      [&](double fraction, std::string_view line) { told.emplace_back(fraction, line); });
  EXPECT_THAT(items, IsEmpty());
  EXPECT_THAT(
      told, ElementsAre(
                Pair(0.1, "Scanning browser history..."), Pair(0.22, "Scanning browser cookies..."),
                Pair(0.34, "Scanning browser cache..."), Pair(0.45, "Scanning recent files..."),
                Pair(0.55, "Scanning recent apps..."), Pair(0.65, "Scanning downloads list..."),
                Pair(0.73, "Scanning clipboard..."), Pair(0.83, "Scanning quarantine database..."),
                Pair(0.93, "Scanning location cache..."), Pair(1.0, "Done")));
}

TEST_F(PrivacyScannerTest, APassIsToldBeforeItLooks) {
  disk.makeFile(library / "Safari/History.db", 10);
  const auto items = scanner.scan([&](double fraction, std::string_view) {
    if (fraction == 0.1) disk.makeFile(chrome / "History", 100);
    if (fraction == 0.22) disk.makeFile(dock, 5);
  });
  ASSERT_THAT(items, SizeIs(2));
  EXPECT_EQ(items[0].size, 110);
  EXPECT_EQ(items[1].category, recentApps);
}

TEST_F(PrivacyScannerTest, FindsEveryKindOfTrailOnTheSampleDiskButTheTrashHistory) {
  const TemporaryFolder folder;
  const SampleDisk sample = buildSampleDisk(folder.path());
  SystemPlatform machine(sample.root, sample.home);
  const Platform platform = machine.platform();
  world.pasteboard.isFilled = true;
  const auto items = PrivacyScanner(platform, world.pasteboard).scan({});
  std::vector<std::pair<PrivacyCategory, std::string>> named;
  for (const PrivacyItem& each : items) {
    named.emplace_back(each.category, each.name);
    EXPECT_TRUE(each.isSelected) << each.name;
    const bool hasPath =
        each.category == recentFiles || each.category == recentApps || each.category == quarantine;
    EXPECT_EQ(each.path.has_value(), hasPath) << each.name;
  }
  EXPECT_THAT(
      named,
      ElementsAre(Pair(browserHistory, "Browser History"), Pair(browserCookies, "Browser Cookies"),
                  Pair(browserCache, "Browser Cache"), Pair(recentFiles, "Recent Files Lists"),
                  Pair(recentApps, "Recent Apps (Dock)"), Pair(downloadsList, "Downloads History"),
                  Pair(clipboard, "Clipboard Contents"), Pair(quarantine, "Quarantine Database"),
                  Pair(locationHistory, "Location Cache")));
}

TEST_F(PrivacyScannerTest, OnAMachineWithoutChromeAndFirefoxTheHistoryIsSafarisAlone) {
  disk.makeFile(library / "Safari/History.db", 321);
  disk.makeFile(library / "Safari/History.db-wal", 1'000);
  const auto items = scan();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].category, browserHistory);
  EXPECT_EQ(items[0].size, 321);
  EXPECT_EQ(items[0].count, 0);
  EXPECT_EQ(items[0].path, std::nullopt);
}

TEST_F(PrivacyScannerTest, AFolderAmongTheHistoryFilesAddsNothing) {
  disk.makeFile(chrome / "History", 300);
  disk.makeFile(library / "Application Support/Firefox/Profiles/x/places.sqlite", 5'000);
  disk.makeFile(recentLists / "x.sfl2", 7'000);
  EXPECT_EQ(found(browserHistory)->size, 300);
}

TEST_F(PrivacyScannerTest, CookiesAreTheSizeOfChromesFile) {
  disk.makeFile(chrome / "Cookies", 60);
  disk.makeFile(library / "Cookies/Cookies.binarycookies", 5'000);
  const auto cookies = found(browserCookies);
  ASSERT_TRUE(cookies);
  EXPECT_EQ(cookies->size, 60);
  EXPECT_EQ(cookies->path, std::nullopt);
}

TEST_F(PrivacyScannerTest, HistoryAndCookiesOfNoBytesAreNoTrail) {
  disk.makeFile(chrome / "History");
  disk.makeFile(chrome / "Cookies");
  disk.makeFile(quarantineDatabase);
  disk.makeFolder(library / "Caches/Firefox");
  disk.makeFolder(library / "Caches/locationd");
  const auto items = scan();
  ASSERT_THAT(items, SizeIs(1)) << "only what counts by being there";
  EXPECT_EQ(items[0].category, quarantine);
  EXPECT_EQ(items[0].size, 0);
}

TEST_F(PrivacyScannerTest, BrowserCacheIsAllThatFourFoldersHoldButHiddenThings) {
  disk.makeFile(library / "Caches/Google/Chrome/Default/a", 1);
  disk.makeFile(library / "Caches/com.apple.Safari/b", 10);
  disk.makeFile(library / "Caches/com.google.Chrome/c.app/d", 100);
  disk.makeFile(library / "Caches/Firefox/e", 1'000);
  disk.makeFile(library / "Caches/Firefox/.hidden/f", 10'000);
  disk.makeFile(library / "Caches/com.brave.Browser/g", 100'000);
  EXPECT_EQ(found(browserCache)->size, 1'111);
}

TEST_F(PrivacyScannerTest, ACacheThatIsNoFolderAddsNothing) {
  disk.makeFile(library / "Caches/Firefox", 1'000);
  disk.makeFile("/elsewhere/a", 1'000);
  disk.makeLink(library / "Caches/com.apple.Safari", disk.onDisk("/elsewhere"));
  EXPECT_EQ(found(browserCache), std::nullopt);
}

TEST_F(PrivacyScannerTest, RecentListsAreCountedByTheirNamesAndMeasuredAsAFolder) {
  disk.makeFile(recentLists / "a.sfl2", 10);
  disk.makeFile(recentLists / ".hidden.sfl2", 100);
  disk.makeFile(recentLists / "b.SFL2", 1'000);
  disk.makeFile(recentLists / "c.sfl2.bak", 10'000);
  disk.makeFile(recentLists / "deep/d.sfl2", 100'000);
  const auto lists = found(recentFiles);
  ASSERT_TRUE(lists);
  EXPECT_EQ(lists->count, 2) << "hidden ones are entries as well";
  EXPECT_EQ(lists->size, 111'010);
  EXPECT_EQ(lists->path, recentLists);
}

TEST_F(PrivacyScannerTest, RecentListsAreATrailEvenWhenTheirFolderIsEmptyOrCannotBeListed) {
  disk.makeFolder(recentLists);
  EXPECT_EQ(found(recentFiles)->count, 0);
  disk.makeFile(recentLists / "a.sfl2", 10);
  files.fail(Operation::list, recentLists);
  files.fail(Operation::walk, recentLists);
  const auto lists = found(recentFiles);
  ASSERT_TRUE(lists);
  EXPECT_EQ(lists->count, 0);
  EXPECT_EQ(lists->size, 0);
}

TEST_F(PrivacyScannerTest, DownloadsAreTheQuarantineRecordsAndTheRecentDownloads) {
  disk.makeFile(quarantineDatabase, 90);
  disk.makeFile(recentLists / "com.apple.LSSharedFileList.RecentDownloads.sfl2", 5);
  EXPECT_EQ(found(downloadsList)->size, 95);
  EXPECT_EQ(found(downloadsList)->path, std::nullopt);
  EXPECT_EQ(found(quarantine)->size, 90);
  EXPECT_EQ(found(quarantine)->path, quarantineDatabase);
}

TEST_F(PrivacyScannerTest, LocationCacheIsWhatTwoFoldersHold) {
  disk.makeFile(library / "Caches/com.apple.locationd/a", 1);
  disk.makeFile(library / "Caches/locationd/b", 10);
  EXPECT_EQ(found(locationHistory)->size, 11);
}

TEST_F(PrivacyScannerTest, TheClipboardIsOneTrailOfNoBytesWhenItHoldsSomething) {
  EXPECT_EQ(found(clipboard), std::nullopt);
  world.pasteboard.isFilled = true;
  const auto item = found(clipboard);
  ASSERT_TRUE(item);
  EXPECT_EQ(item->count, 1);
  EXPECT_EQ(item->size, 0);
  EXPECT_EQ(item->path, std::nullopt);
}

TEST_F(PrivacyScannerTest, NeverFindsATrashHistory) {
  disk.makeFile("/Users/ann/.Trash/old", 10);
  EXPECT_EQ(found(trashHistory), std::nullopt);
  EXPECT_EQ(rawValue(trashHistory), "Trash History");
}

TEST_F(PrivacyScannerTest, ItemsGetNewIdsInEachScan) {
  disk.makeFile(dock, 10);
  EXPECT_NE(scan().at(0).id, scan().at(0).id);
}

TEST_F(PrivacyScannerTest, UnreadableFoldersCountNothingAndTheRestIsFound) {
  disk.makeFile(library / "Caches/Firefox/a", 1'000);
  disk.makeFile(library / "Caches/com.apple.Safari/b", 10);
  disk.makeFile(recentLists / "a.sfl2", 10);
  disk.makeFile(library / "Preferences/com.apple.dock.plist", 5);
  ::chmod(disk.path().c_str(), 0755);
  ::chmod(disk.onDisk(library / "Caches/Firefox").c_str(), 0);
  ::chmod(disk.onDisk(recentLists).c_str(), 0);
  ::chmod(disk.onDisk(library / "Preferences").c_str(), 0);
  EXPECT_TRUE(inChildWithoutPrivileges([&] {
    const auto items = scan();
    return items.size() == 2 && items[0].category == browserCache && items[0].size == 10 &&
           items[1].category == recentFiles && items[1].count == 0 && items[1].size == 0;
  }));
  for (const Path& folder : {library / "Caches/Firefox", recentLists, library / "Preferences"}) {
    ::chmod(disk.onDisk(folder).c_str(), 0755);
  }
}

TEST_F(PrivacyScannerTest, FilesThatVanishBetweenTwoQuestionsAddNothing) {
  disk.makeFile(chrome / "History", 300);
  files.vanishBefore(Operation::attributes, chrome / "History");
  EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(PrivacyScannerTest, ALinkToNothingIsNoTrail) {
  disk.makeLink(dock, "missing");
  disk.makeLink(quarantineDatabase, "com.apple.LaunchServices.QuarantineEventsV2");
  EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(PrivacyScannerTest, ClearingNothingGivesNothing) {
  EXPECT_EQ(scanner.clear({}), (PrivacyClearance{0, 0}));
  EXPECT_EQ(world.recentDocuments.clearings, 0);
  EXPECT_EQ(world.pasteboard.clearings, 0);
}

TEST_F(PrivacyScannerTest, ClearingBrowserHistoryTellsItsSizeAsFreedAndLeavesTheFile) {
  disk.makeFile(library / "Safari/History.db", 321);
  EXPECT_EQ(scanner.clear(scan()), (PrivacyClearance{1, 321}));
  EXPECT_TRUE(disk.holds(library / "Safari/History.db"));
}

TEST_F(PrivacyScannerTest, ClearingItemsWithoutAPathTouchesNothing) {
  disk.makeFile(chrome / "History", 1);
  disk.makeFile(chrome / "Cookies", 10);
  disk.makeFile(library / "Caches/Firefox/a", 100);
  disk.makeFile(recentLists / "com.apple.LSSharedFileList.RecentDownloads.sfl2", 1'000);
  disk.makeFile(library / "Caches/locationd/a", 10'000);
  auto items = scan();
  std::erase_if(items, [](const PrivacyItem& each) { return each.path.has_value(); });
  ASSERT_THAT(items, SizeIs(5));
  const DiskSnapshot before = snapshotOf(disk.path());
  EXPECT_EQ(scanner.clear(items), (PrivacyClearance{5, 11'111}));
  EXPECT_EQ(unexpectedDifferences(before, snapshotOf(disk.path()), {}), "");
  EXPECT_THAT(files.removals(), IsEmpty());
}

TEST_F(PrivacyScannerTest, ClearingRecentFilesEmptiesTheListOfDocumentsAndLeavesTheFolder) {
  disk.makeFile(recentLists / "a.sfl2", 10);
  EXPECT_EQ(scanner.clear({*found(recentFiles)}), (PrivacyClearance{1, 0}));
  EXPECT_EQ(world.recentDocuments.clearings, 1);
  EXPECT_TRUE(disk.holds(recentLists / "a.sfl2"));
  EXPECT_THAT(files.removals(), IsEmpty());
}

TEST_F(PrivacyScannerTest, ClearingRecentFilesCountsEvenWhenTheListStays) {
  world.recentDocuments.canClear = false;
  EXPECT_EQ(scanner.clear({item(recentFiles, 10, recentLists)}), (PrivacyClearance{1, 0}));
}

TEST_F(PrivacyScannerTest, ClearingTheClipboardEmptiesIt) {
  world.pasteboard.isFilled = true;
  EXPECT_EQ(scanner.clear(scan()), (PrivacyClearance{1, 0}));
  EXPECT_FALSE(world.pasteboard.isFilled);
}

TEST_F(PrivacyScannerTest, AnItemWithAPathIsRemovedForGood) {
  const Path place = library / "Caches/trail";
  disk.makeFile(place, 10);
  disk.makeFile(library / "Caches/trail2", 10);
  EXPECT_EQ(scanner.clear({item(recentApps, 77, place)}), (PrivacyClearance{1, 77}));
  EXPECT_FALSE(disk.holds(place));
  EXPECT_TRUE(disk.holds(library / "Caches/trail2"));
  EXPECT_FALSE(disk.holds("/Users/ann/.local/share/Trash"));
}

TEST_F(PrivacyScannerTest, WhatTheGuardRefusesIsSkippedAndTheRestCleared) {
  disk.makeFile(dock, 10);
  disk.makeFile(quarantineDatabase, 90);
  disk.makeFile("/Users/ben/Library/Caches/x", 10);
  const DiskSnapshot before = snapshotOf(disk.path());
  // The folder of the preferences is the user's own.
  const auto cleared = scanner.clear(
      {*found(recentApps), *found(quarantine), item(recentApps, 10, "/Users/ben/Library/Caches/x"),
       item(quarantine, 10, library / "Caches/../.."), item(browserCache, 5)});
  EXPECT_EQ(cleared, (PrivacyClearance{1, 5}));
  EXPECT_EQ(unexpectedDifferences(before, snapshotOf(disk.path()), {}), "");
  EXPECT_THAT(files.removals(), IsEmpty());
}

TEST_F(PrivacyScannerTest, AnItemWhoseRemovalFailsLeavesTheSumsUnchanged) {
  const Path plist = library / "Caches/com.apple.dock.plist";
  disk.makeFile(plist, 10);
  files.fail(Operation::remove, plist);
  EXPECT_EQ(scanner.clear({item(recentApps, 10, plist)}), (PrivacyClearance{0, 0}));
  EXPECT_TRUE(disk.holds(plist));
}

TEST_F(PrivacyScannerTest, AnItemThatIsGoneAlreadyCountsAsNotRemovedAndTheRunGoesOn) {
  EXPECT_EQ(scanner.clear({item(recentApps, 10, library / "Caches/gone"), item(browserCookies, 3)}),
            (PrivacyClearance{1, 3}));
}

TEST_F(PrivacyScannerTest, AParentThatIsALinkToAPlaceThatTheGuardRefusesSavesTheItem) {
  disk.makeFile("/Users/ben/Documents/file", 10);
  disk.makeLink(library / "Caches/link", disk.onDisk("/Users/ben/Documents"));
  EXPECT_EQ(scanner.clear({item(quarantine, 10, library / "Caches/link/file")}),
            (PrivacyClearance{0, 0}));
  EXPECT_TRUE(disk.holds("/Users/ben/Documents/file"));
}

TEST_F(PrivacyScannerTest, ItemsAreClearedInTheirOrder) {
  const Path folder = library / "Caches/a";
  disk.makeFile(folder / "b", 10);
  // The inner one is gone with the folder, and counts no second time.
  EXPECT_EQ(scanner.clear({item(recentApps, 100, folder), item(quarantine, 10, folder / "b")}),
            (PrivacyClearance{1, 100}));
  ASSERT_THAT(files.removals(), SizeIs(2));
  EXPECT_EQ(files.removals()[0].item, folder);
}

}  // namespace
}  // namespace klarvik
