#include <gmock/gmock.h>

#include "engine_fixture.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DeveloperScanners : public EngineFixture {
 protected:
  const Path developer = "/Users/ann/Library/Developer";
  const Path devices = developer / "CoreSimulator/Devices";
  const Path docker = "/Users/ann/Library/Containers/com.docker.docker/Data";

  void listDevices(const std::string& json) {
    commands.answer("xcrun simctl list devices unavailable --json 2>/dev/null", json);
  }
  void dockerRuns(const std::string& table) {
    commands.answer("docker info --format '{{.ID}}' 2>/dev/null", "ABCD:EFGH\n");
    commands.answer("docker system df 2>/dev/null", table);
  }
};

TEST_F(DeveloperScanners, XcodeCacheIsUpToFourWholeFoldersInTheirOrder) {
  disk.addFile(developer / "Xcode/tvOS DeviceSupport/a", 40);
  disk.addFile(developer / "Xcode/watchOS DeviceSupport/a", 30);
  disk.addFile(developer / "Xcode/iOS DeviceSupport/a", 20);
  disk.addFile(developer / "Xcode/DerivedData/a", 10);
  const auto items = found(CategoryType::xcodeCache);
  EXPECT_THAT(names(items), ElementsAre("DerivedData", "iOS DeviceSupport", "watchOS DeviceSupport",
                                        "tvOS DeviceSupport"));
  EXPECT_EQ(items[0].path, developer / "Xcode/DerivedData");
  EXPECT_EQ(items[0].size, 10);
  EXPECT_EQ(items[0].modifiedDate, FakeFileSystem::usualDate);
}

TEST_F(DeveloperScanners, XcodeArchivesAreOneItem) {
  disk.addFile(developer / "Xcode/Archives/2025/a", 10);
  disk.addFile(developer / "Xcode/Archives/2026/b", 20);
  const auto items = found(CategoryType::xcodeArchives);
  ASSERT_THAT(names(items), ElementsAre("Archives"));
  EXPECT_EQ(items[0].size, 30);
}

TEST_F(DeveloperScanners, SimulatorCachesStandFirstAndAloneWithoutTools) {
  disk.addFile(developer / "CoreSimulator/Caches/a", 1);
  const auto items = found(CategoryType::simulators);
  ASSERT_THAT(names(items), ElementsAre("CoreSimulator Caches"));
  EXPECT_EQ(items[0].path, developer / "CoreSimulator/Caches");
  EXPECT_EQ(items[0].modifiedDate, std::nullopt);
}

TEST_F(DeveloperScanners, SimulatorDevicesAreNamedWithTheirRuntime) {
  listDevices(R"({"devices": {"com.apple.CoreSimulator.SimRuntime.iOS-15-0": [
      {"udid": "A", "name": "iPhone 8", "runtime": "com.apple.CoreSimulator.SimRuntime.iOS-15-0"},
      {"udid": "B"}]}})");
  disk.addFile(devices / "A/data", 2'000'000);
  disk.addFile(devices / "B/data", 3'000'000);
  disk.addFile(developer / "CoreSimulator/Caches/a", 5);
  const auto items = found(CategoryType::simulators);
  EXPECT_THAT(names(items), ElementsAre("CoreSimulator Caches", "iPhone 8 (iOS-15-0) — unavailable",
                                        "B () — unavailable"));
  EXPECT_EQ(items[1].path, devices / "A");
  EXPECT_EQ(items[1].size, 2'000'000);
  EXPECT_EQ(items[1].modifiedDate, std::nullopt);
}

TEST_F(DeveloperScanners, ASimulatorDeviceWithoutAFolderGivesNoItemAndTheOthersDo) {
  listDevices(R"({"devices": {"x": [{"udid": "gone"}, {"udid": "A", "name": "iPad"}]}})");
  disk.addFile(devices / "A/data", 2'000'000);
  EXPECT_THAT(names(found(CategoryType::simulators)), ElementsAre("iPad () — unavailable"));
}

TEST_F(DeveloperScanners, ASimulatorDeviceNeedsOneByteMoreThanAMillion) {
  listDevices(R"({"devices": {"x": [{"udid": "exact"}, {"udid": "more"}]}})");
  disk.addFile(devices / "exact/data", 1'000'000);
  disk.addFile(devices / "more/data", 1'000'001);
  EXPECT_THAT(names(found(CategoryType::simulators)), ElementsAre("more () — unavailable"));
}

TEST_F(DeveloperScanners, ASimulatorListingNeverLeadsOutOfTheDevicesFolder) {
  listDevices(R"({"devices": {"x": [{"udid": ".."}, {"udid": ""}, {"udid": "../Caches"}]}})");
  disk.addFile(devices / "real/data", 5'000'000);
  EXPECT_THAT(found(CategoryType::simulators), IsEmpty());
}

TEST_F(DeveloperScanners, DockerIsGoneWithoutTheToolAndItsFolders) {
  EXPECT_THAT(found(CategoryType::dockerData), IsEmpty());
}

TEST_F(DeveloperScanners, ARunningDockerIsOneItemThatStandsForWhatItCouldFree) {
  dockerRuns("TYPE TOTAL ACTIVE SIZE RECLAIMABLE\nImages 5 2 1.2GB 800MB (66%)\n");
  const auto items = found(CategoryType::dockerData);
  ASSERT_THAT(names(items), ElementsAre("Docker reclaimable (images, containers, volumes, cache)"));
  EXPECT_EQ(items[0].path, "/usr/local/bin/docker");
  EXPECT_EQ(items[0].size, 800'000'000);
  EXPECT_EQ(items[0].modifiedDate, std::nullopt);
}

TEST_F(DeveloperScanners, CleaningADockerRowDoesNothing) {
  dockerRuns("TYPE TOTAL ACTIVE SIZE RECLAIMABLE\nImages 5 2 1.2GB 800MB (66%)\n");
  disk.addFile("/usr/local/bin/docker", 100);
  const auto outcome = engine.deleteItem(found(CategoryType::dockerData)[0], false);
  EXPECT_EQ(outcome.reclaimed, 0);
  EXPECT_TRUE(disk.holds("/usr/local/bin/docker"));
}

TEST_F(DeveloperScanners, ARunningDockerWithNothingToFreeHidesItsFolders) {
  dockerRuns("TYPE TOTAL ACTIVE SIZE RECLAIMABLE\nImages 5 2 1.2GB 0B (0%)\n");
  disk.addFile(docker / "cache/a", 5'000'000);
  EXPECT_THAT(found(CategoryType::dockerData), IsEmpty());
}

TEST_F(DeveloperScanners, AStoppedDockerShowsItsTwoFolders) {
  disk.addFile(docker / "log/a", 200'000);
  disk.addFile(docker / "cache/a", 150'000);
  disk.addFile(docker / "vms/a", 900'000);
  const auto items = found(CategoryType::dockerData);
  EXPECT_THAT(names(items), ElementsAre("cache", "log"));
  EXPECT_EQ(items[0].modifiedDate, std::nullopt);
}

TEST_F(DeveloperScanners, ADockerFolderNeedsOneByteMoreThanAHundredThousand) {
  disk.addFile(docker / "cache/a", 100'000);
  disk.addFile(docker / "log/a", 100'001);
  EXPECT_THAT(names(found(CategoryType::dockerData)), ElementsAre("log"));
}

}  // namespace
}  // namespace klarvik
