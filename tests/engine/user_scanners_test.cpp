#include <gmock/gmock.h>

#include "engine_fixture.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr const char* snapshotListing = "tmutil listlocalsnapshotdates / 2>/dev/null";

std::string sizeCommand(const std::string& text) {
  return "diskutil apfs listSnapshots / 2>/dev/null | grep -A3 " + text +
         " | grep Size | awk '{print $2}'";
}

class UserScanners : public EngineFixture {
 protected:
  const Path library = "/Users/ann/Library";
  const Path caches = library / "Caches";
  const Path backups = library / "Application Support/MobileSync/Backup";
};

TEST_F(UserScanners, AppCachesAreTheChildrenOfTheFolderLargestFirst) {
  disk.addFile(caches / "small/a", 2'000'000);
  disk.addFile(caches / "large/a", 3'000'000);
  disk.addFile(caches / ".hidden/a", 2'500'000);
  disk.addFile(caches / "plain.db", 4'000'000);
  const auto items = found(CategoryType::appCaches);
  EXPECT_THAT(names(items), ElementsAre("plain.db", "large", ".hidden", "small"));
  EXPECT_EQ(items[1].path, caches / "large");
  EXPECT_EQ(items[1].modifiedDate, FakeFileSystem::usualDate);
}

TEST_F(UserScanners, AnAppCacheNeedsOneByteMoreThanAMillion) {
  disk.addFile(caches / "exact/a", 1'000'000);
  disk.addFile(caches / "more/a", 1'000'001);
  EXPECT_THAT(names(found(CategoryType::appCaches)), ElementsAre("more"));
}

TEST_F(UserScanners, AppCachesLeaveWhatOtherRowsOwnByHowTheNameBegins) {
  for (const char* const name :
       {"com.google.Chrome", "com.google.Chrome.helper", "Google", "GoogleUpdater",
        "com.apple.Safari.SafeBrowsing", "Firefox", "com.brave.Browser", "com.microsoft.edgemac",
        "com.apple.dt.Xcode", "org.llvm.clang", "com.docker.docker"}) {
    disk.addFile(caches / name / "a", 5'000'000);
  }
  disk.addFile(caches / "com.google.chrome/a", 5'000'000);
  disk.addFile(caches / "my.Google/a", 5'000'000);
  EXPECT_THAT(names(found(CategoryType::appCaches)),
              UnorderedElementsAre("com.google.chrome", "my.Google"));
}

TEST_F(UserScanners, ALinkAmongTheAppCachesGivesNoItem) {
  disk.addLink(caches / "link");
  EXPECT_THAT(found(CategoryType::appCaches), IsEmpty());
}

TEST_F(UserScanners, AnAppCacheWithoutADateKeepsNone) {
  disk.addFile(caches / "plain.db", 4'000'000, std::nullopt);
  EXPECT_EQ(found(CategoryType::appCaches)[0].modifiedDate, std::nullopt);
}

TEST_F(UserScanners, AppCachesThatCannotBeListedGiveNoCategory) {
  disk.addFile(caches / "a/b", 4'000'000);
  files.makeUnreadable(caches);
  EXPECT_THAT(found(CategoryType::appCaches), IsEmpty());
}

TEST_F(UserScanners, SystemLogsAreTwoWholeFolders) {
  disk.addFile("/var/log/system.log", 900);
  disk.addFile(library / "Logs/app/a.log", 10);
  const auto items = found(CategoryType::systemLogs);
  EXPECT_THAT(names(items), ElementsAre("Logs", "log"));
  EXPECT_EQ(items[1].path, "/var/log");
}

TEST_F(UserScanners, BackupsAreNamedByTheirDateLargestFirst) {
  disk.addFile(backups / "00008101-000A1D2E/a", 10);
  disk.addFile(backups / "00008110-001B2C3D/a", 20);
  disk.setModified(backups / "00008110-001B2C3D", std::nullopt);
  const auto items = found(CategoryType::iosBackups);
  EXPECT_THAT(names(items),
              ElementsAre("iPhone Backup — 00008110",
                          "iPhone Backup — " + formatting.dateAndTime(FakeFileSystem::usualDate)));
  EXPECT_EQ(items[0].path, backups / "00008110-001B2C3D");
}

TEST_F(UserScanners, ABackupWithAShortNameAndNoDateKeepsItsWholeName) {
  disk.addFile(backups / "ab/a", 10);
  disk.setModified(backups / "ab", std::nullopt);
  EXPECT_THAT(names(found(CategoryType::iosBackups)), ElementsAre("iPhone Backup — ab"));
}

TEST_F(UserScanners, TheTrashIsTheTopLevelOfAllItsFolders) {
  disk.addFile("/Users/ann/.local/share/Trash/files/one/a", 10);
  disk.addFile("/Users/ann/.Trash/.hidden", 30);
  disk.addFile("/Users/ann/.Trash/two", 20);
  const auto items = found(CategoryType::trashBin);
  EXPECT_THAT(names(items), ElementsAre("one", ".hidden", "two"));
  EXPECT_EQ(items[2].modifiedDate, FakeFileSystem::usualDate);
}

TEST_F(UserScanners, ATrashThatCannotBeListedGivesNoCategory) {
  disk.addFile("/Users/ann/.local/share/Trash/files/one", 10);
  trash.readable = false;
  EXPECT_THAT(found(CategoryType::trashBin), IsEmpty());
}

TEST_F(UserScanners, BrowserCachesAreSixWholeFoldersInTheirOrder) {
  for (const char* const name :
       {"com.microsoft.edgemac", "com.brave.Browser", "Firefox", "com.apple.Safari",
        "com.google.Chrome", "Google/Chrome", "Opera"}) {
    disk.addFile(caches / name / "a", 5);
  }
  EXPECT_THAT(names(found(CategoryType::browserCaches)),
              ElementsAre("Chrome", "com.google.Chrome", "com.apple.Safari", "Firefox",
                          "com.brave.Browser", "com.microsoft.edgemac"));
}

TEST_F(UserScanners, ASnapshotHasItsDateAsNameAndItsSizeFromTheTool) {
  commands.answer(snapshotListing, "Snapshot dates for disk /:\n2026-03-01-101530\n");
  commands.answer(sizeCommand("2026-03-01-101530"), " 123456789\n");
  const auto items = found(CategoryType::timeMachine);
  ASSERT_EQ(items.size(), 1U);
  const auto date = Formatting::parseDate("2026-03-01-101530", "yyyy-MM-dd-HHmmss");
  ASSERT_TRUE(date);
  EXPECT_EQ(items[0].name, "Snapshot — " + formatting.dateAndTime(*date));
  EXPECT_EQ(items[0].path, "/.MobileBackups/2026-03-01-101530");
  EXPECT_EQ(items[0].size, 123'456'789);
  EXPECT_EQ(items[0].modifiedDate, std::nullopt);
}

TEST_F(UserScanners, ASnapshotWithoutAToldSizeIsEstimated) {
  commands.answer(snapshotListing, "2026-03-01-101530");
  EXPECT_EQ(found(CategoryType::timeMachine)[0].size, 524'288'000);
}

TEST_F(UserScanners, ASnapshotLineThatHoldsMoreThanADateKeepsItsText) {
  const std::string line = "com.apple.TimeMachine.2026-03-01-101530.local";
  commands.answer(snapshotListing, line);
  commands.answer(sizeCommand(line), "77");
  const auto items = found(CategoryType::timeMachine);
  ASSERT_THAT(names(items), ElementsAre("Snapshot — " + line));
  EXPECT_EQ(items[0].size, 77);
}

TEST_F(UserScanners, ASnapshotNameWithShellCharactersIsShownButNeverRun) {
  commands.answer(snapshotListing, "2026-03-01;touch hit\n$(touch hit)-x\n-rf-2026-03\n");
  const auto items = found(CategoryType::timeMachine);
  EXPECT_THAT(names(items), ElementsAre("Snapshot — 2026-03-01;touch hit",
                                        "Snapshot — $(touch hit)-x", "Snapshot — -rf-2026-03"));
  for (const JunkItem& item : items) EXPECT_EQ(item.size, 524'288'000);
  EXPECT_THAT(commands.commandsRun(),
              ElementsAre("xcrun simctl list devices unavailable --json 2>/dev/null",
                          "docker info --format '{{.ID}}' 2>/dev/null", snapshotListing));
}

TEST_F(UserScanners, FirmwareIsAFileOfTwoExtensionsInFourFolders) {
  const std::int64_t size = 200'000'000;
  disk.addFile(library / "iTunes/iPhone Software Updates/a.ipsw", size + 4);
  disk.addFile(library / "iTunes/iPad Software Updates/b.ipa", size + 3);
  disk.addFile(library / "iTunes/iPod Software Updates/c.ipsw", size + 2);
  disk.addFile(library / "Apple/MobileSync/Backup/d.ipsw", size + 1);
  disk.addFile(library / "iTunes/iPhone Software Updates/capitals.IPSW", size);
  disk.addFile(library / "iTunes/iPhone Software Updates/other.zip", size);
  disk.addFile(library / "iTunes/e.ipsw", size);
  const auto items = found(CategoryType::systemData);
  EXPECT_THAT(names(items), ElementsAre("📱 Firmware: a.ipsw", "📱 Firmware: b.ipa",
                                        "📱 Firmware: c.ipsw", "📱 Firmware: d.ipsw"));
  EXPECT_EQ(items[0].modifiedDate, FakeFileSystem::usualDate);
}

TEST_F(UserScanners, AFirmwareFileNeedsOneByteMoreThanAHundredMillion) {
  disk.addFile(library / "iTunes/iPhone Software Updates/exact.ipsw", 100'000'000);
  disk.addFile(library / "iTunes/iPhone Software Updates/more.ipsw", 100'000'001);
  EXPECT_THAT(names(found(CategoryType::systemData)), ElementsAre("📱 Firmware: more.ipsw"));
}

struct LeftoverCase {
  const char* path;
  std::int64_t largestIgnored;
  const char* name;
};

class Leftovers : public UserScanners, public testing::WithParamInterface<LeftoverCase> {};

TEST_P(Leftovers, AFolderOfExactlyTheThresholdGivesNoItem) {
  disk.addFile(Path(GetParam().path) / "a", GetParam().largestIgnored);
  EXPECT_THAT(found(CategoryType::systemData), IsEmpty());
}

TEST_P(Leftovers, AFolderOneByteAboveGivesOneWithoutADate) {
  disk.addFile(Path(GetParam().path) / "a", GetParam().largestIgnored + 1);
  const auto items = found(CategoryType::systemData);
  ASSERT_THAT(names(items), ElementsAre(GetParam().name));
  EXPECT_EQ(items[0].path, GetParam().path);
  EXPECT_EQ(items[0].modifiedDate, std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    OfEachKind, Leftovers,
    testing::Values(
        LeftoverCase{"/Users/ann/Library/Caches/Homebrew", 100'000'000, "🍺 Homebrew Cache"},
        LeftoverCase{"/opt/homebrew/Caches", 100'000'000, "🍺 Homebrew Cache"},
        LeftoverCase{"/usr/local/Homebrew/Cache", 100'000'000, "🍺 Homebrew Cache"},
        LeftoverCase{"/Users/ann/Library/Logs/DiagnosticReports", 100'000'000,
                     "🩺 Diagnostic Reports"},
        LeftoverCase{"/Library/Logs/DiagnosticReports", 100'000'000, "🩺 Diagnostic Reports"},
        LeftoverCase{"/Users/ann/Library/Saved Application State", 50'000'000, "📋 Saved App State"},
        LeftoverCase{"/Users/ann/Library/Cookies", 20'000'000, "🍪 Cookies"},
        LeftoverCase{"/Users/ann/Library/HTTPStorages", 20'000'000, "🌐 HTTP Storage"}));

TEST_F(UserScanners, LeftoversOfAllKindsStandInOneListLargestFirst) {
  disk.addFile(library / "Cookies/a", 30'000'000);
  disk.addFile(library / "Saved Application State/a", 60'000'000);
  disk.addFile("/opt/homebrew/Caches/a", 110'000'000);
  disk.addFile(library / "Caches/Homebrew/a", 120'000'000);
  disk.addFile(library / "iTunes/iPad Software Updates/a.ipsw", 105'000'000);
  EXPECT_THAT(names(found(CategoryType::systemData)),
              ElementsAre("🍺 Homebrew Cache", "🍺 Homebrew Cache", "📱 Firmware: a.ipsw",
                          "📋 Saved App State", "🍪 Cookies"));
}

}  // namespace
}  // namespace klarvik
