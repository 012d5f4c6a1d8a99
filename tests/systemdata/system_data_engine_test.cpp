#include "systemdata/system_data_engine.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "analysis_fixture.h"
#include "places/disk_layout.h"
#include "systemdata/system_data_search.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;
using Kind = SystemDataSubCategory;

constexpr std::int64_t gigabyte = 1'000'000'000;
constexpr const char* listing = "tmutil listlocalsnapshots / 2>/dev/null";

class SystemDataAnalysis : public AnalysisFixture {
 protected:
  [[nodiscard]] std::vector<SystemDataItem> found(Kind kind) {
    auto items = analyse();
    std::erase_if(items, [&](const SystemDataItem& item) { return item.subCategory != kind; });
    return items;
  }

  /// What the pass finds where no other one takes it in.
  [[nodiscard]] std::vector<SystemDataItem> foundAlone(Kind kind) {
    const auto pass = std::ranges::find(layoutFor("/Users/ann").analysisPasses, kind, &Pass::kind);
    return SystemDataSearch(desktop).find(*pass);
  }

  void answerSize(const std::string& text, const std::string& output) {
    commands.answer("diskutil apfs listSnapshots / 2>/dev/null | grep -A5 '" + text +
                        "' | grep -i size | head -1 | awk -F'[()]' '{print $2}' | awk '{print $1}'",
                    output);
  }
};

TEST_F(SystemDataAnalysis, ReportsEachPassBeforeItBeginsAndThenTheEnd) {
  std::vector<std::pair<std::string, double>> reports;
  const auto result = engine.analyse(
      [&](const std::string& label, double fraction) { reports.emplace_back(label, fraction); });
  using Report = std::pair<std::string, double>;
  EXPECT_THAT(
      reports,
      ElementsAre(
          Report("Scanning Application Support...", 0.04), Report("Scanning Containers...", 0.08),
          Report("Scanning Group Containers...", 0.12), Report("Scanning App Caches...", 0.16),
          Report("Scanning Developer Tools...", 0.20),
          Report("Scanning Package Manager Caches...", 0.25),
          Report("Scanning Time Machine...", 0.30), Report("Scanning System Temp...", 0.34),
          Report("Scanning VM & Swap...", 0.38), Report("Scanning System Databases...", 0.42),
          Report("Scanning System Library...", 0.47), Report("Scanning Mail Storage...", 0.52),
          Report("Scanning Homebrew...", 0.56), Report("Scanning Logs...", 0.60),
          Report("Scanning Firmware...", 0.64), Report("Scanning Spotlight...", 0.68),
          Report("Scanning Diagnostics...", 0.72), Report("Scanning Preferences...", 0.76),
          Report("Scanning Saved State...", 0.80), Report("Scanning Cookies...", 0.84),
          Report("Scanning iCloud Data...", 0.88),
          Report("Scanning remaining Library data...", 0.92), Report("Analysis complete", 1.0)));
  EXPECT_EQ(result.freeBytesAtMeasurement, 0);
  EXPECT_THAT(result.items(), IsEmpty());
}

TEST_F(SystemDataAnalysis, ThePassOfTheToolsIsReportedBeforeTheToolRuns) {
  std::size_t runBefore = 1;
  std::size_t runAfter = 0;
  static_cast<void>(engine.analyse([&](const std::string& label, double) {
    if (label == "Scanning Time Machine...") runBefore = commands.commandsRun().size();
    if (label == "Scanning System Temp...") runAfter = commands.commandsRun().size();
  }));
  EXPECT_EQ(runBefore, 0U);
  EXPECT_EQ(runAfter, 1U);
}

TEST_F(SystemDataAnalysis, ACacheOfExactlyFiveMillionBytesIsARowAndSuchALogFolderIsNone) {
  fill(inLibrary("Caches/com.acme"), 5'000'000);
  fill(inLibrary("Caches/com.small"), 4'999'999);
  fill(inLibrary("Logs"), 5'000'000);
  EXPECT_THAT(names(analyse()), ElementsAre("Acme"));
  fill(inLibrary("Logs/more"), 1);
  EXPECT_THAT(names(analyse()), UnorderedElementsAre("Acme", "User Logs"));
}

TEST_F(SystemDataAnalysis, TheSdkInsideTheAndroidFolderIsNotCountedTwice) {
  fill(inLibrary("Android/sdk"), 11 * gigabyte);
  fill(inLibrary("Android"), 1 * gigabyte);
  const auto items = analyse();
  ASSERT_THAT(names(items), ElementsAre("Android SDK"));
  EXPECT_EQ(items[0].size, 12 * gigabyte);
  EXPECT_EQ(items[0].subCategory, Kind::developerTools);
}

TEST_F(SystemDataAnalysis, RosettaInsideTheDatabasesIsNotCountedTwice) {
  fill("/private/var/db", 60'000'000);
  fill("/private/var/db/oah", 90'000'000);
  const auto items = analyse();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].subCategory, Kind::systemDatabases);
  EXPECT_EQ(items[0].size, 150'000'000);
}

TEST_F(SystemDataAnalysis, RosettaIsARowOfItsOwnWhereTheDatabasesAreNone) {
  fill("/private/var/db/oah", 90'000'000);
  const auto items = analyse();
  ASSERT_THAT(names(items), ElementsAre("Rosetta 2 Cache"));
  EXPECT_EQ(items[0].subCategory, Kind::systemLibrary);
}

TEST_F(SystemDataAnalysis, AFolderComDockerDockerInContainersReadsDockerDocker) {
  fill(inLibrary("Containers/com.docker.docker"), 5'000'000);
  EXPECT_THAT(names(found(Kind::containers)), ElementsAre("Docker.docker"));
}

TEST_F(SystemDataAnalysis, ASnapshotLineWithoutADotIsIgnored) {
  commands.answer(listing, "2026-03-01-101530\n");
  EXPECT_THAT(analyse(), IsEmpty());
  EXPECT_THAT(commands.commandsRun(), ElementsAre(listing));
}

TEST_F(SystemDataAnalysis, ASnapshotHasItsNamePathAndSize) {
  commands.answer(
      listing, "Snapshots for disk /:\ncom.apple.TimeMachine.2026-03-01-101530.local.and.more\n");
  answerSize("2026-03-01-101530.local.and.more", "7000000\n");
  const auto items = analyse();
  ASSERT_THAT(items, SizeIs(1));
  EXPECT_EQ(items[0].name, "Snapshot: 2026-03-01-101530.local.and.mo");
  EXPECT_EQ(items[0].path, Path("/.MobileBackups/2026-03-01-101530.local.and.more"));
  EXPECT_EQ(items[0].size, 7'000'000);
  EXPECT_EQ(items[0].subCategory, Kind::timeMachineSnapshots);
  EXPECT_EQ(items[0].safetyOverride, std::nullopt);
}

TEST_F(SystemDataAnalysis, ASnapshotWithNoSizeReadsOneBillion) {
  commands.answer(listing, "a.local\nb.local\n");
  answerSize("a.local", "no idea");
  const auto items = analyse();
  ASSERT_THAT(items, SizeIs(2));
  EXPECT_EQ(items[0].size, gigabyte);
  EXPECT_EQ(items[1].size, gigabyte);
}

TEST_F(SystemDataAnalysis, ASnapshotNameWithShellCharactersIsNeverActedOnByAShell) {
  commands.answer(listing, "$(touch hit).x\n'; rm -rf /; '.x\n-rf.x\na b.x\n");
  const auto items = analyse();
  ASSERT_THAT(items, SizeIs(4));
  for (const SystemDataItem& item : items) EXPECT_EQ(item.size, gigabyte);
  EXPECT_THAT(commands.commandsRun(), ElementsAre(listing));
}

TEST_F(SystemDataAnalysis, FirmwareWithItsExtensionInCapitalsIsNoRow) {
  const Path folder = inLibrary("iTunes/iPhone Software Updates");
  disk.addFile(folder / "a.ipsw", 4 * gigabyte);
  disk.addFile(folder / "b.IPSW", 4 * gigabyte);
  disk.addFile(folder / "c.ipsw.zip", 4 * gigabyte);
  disk.addFile(folder / "d.ipa", 50'000'000);
  disk.addFile(inLibrary("iTunes/iPad Software Updates/e.ipa"), 50'000'001);
  disk.addFile(inLibrary("iTunes/iPod Software Updates/f.ipsw/part"), 50'000'001);
  EXPECT_THAT(names(foundAlone(Kind::firmware)),
              UnorderedElementsAre("Firmware: a.ipsw", "Firmware: e.ipa", "Firmware: f.ipsw"));
}

TEST_F(SystemDataAnalysis, AFolderFontsInTheLibraryIsARowOfTheRemainder) {
  fill(inLibrary("Fonts"), 10'000'001);
  fill(inLibrary("Sounds"), 10'000'000);
  const auto items = analyse();
  ASSERT_THAT(names(items), ElementsAre("Fonts"));
  EXPECT_EQ(items[0].subCategory, Kind::otherLibrary);
}

TEST_F(SystemDataAnalysis, FreeBytesAreThoseOfTheVolumeOrNone) {
  EXPECT_EQ(engine.freeBytes(), 200 * gigabyte);
  volume.setAvailableBytes(std::nullopt);
  EXPECT_EQ(engine.freeBytes(), 0);
}

}  // namespace
}  // namespace klarvik
