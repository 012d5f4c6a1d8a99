// How a Smart Scan runs from row to row, and what it tells meanwhile.

#include <gmock/gmock.h>

#include "engine_fixture.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr const char* deviceListing = "xcrun simctl list devices unavailable --json 2>/dev/null";

class ScanPipeline : public EngineFixture {
 protected:
  std::vector<ScanUpdate> updates;
  std::vector<CategoryType> delivered;

  std::vector<CleanCategory> run(std::stop_token stop = {}) {
    return engine.scanAll(
        stop, [this](const ScanUpdate& update) { updates.push_back(update); },
        [this](const CleanCategory& category) { delivered.push_back(category.type); });
  }

  [[nodiscard]] std::vector<std::pair<std::string, double>> steps() const {
    std::vector<std::pair<std::string, double>> all;
    for (const ScanUpdate& update : updates) all.emplace_back(update.categoryName, update.fraction);
    return all;
  }
};

TEST_F(ScanPipeline, GoesThroughElevenRowsInTheirOrder) {
  EXPECT_THAT(run(), IsEmpty());
  EXPECT_THAT(steps(), ElementsAre(Pair("Xcode Cache", 0.10), Pair("iOS Simulators", 0.22),
                                   Pair("Xcode Archives", 0.34), Pair("App Caches", 0.50),
                                   Pair("System Logs", 0.62), Pair("iPhone Backups", 0.72),
                                   Pair("Trash", 0.82), Pair("Browser Caches", 0.88),
                                   Pair("Docker", 0.91), Pair("Time Machine", 0.95),
                                   Pair("Leftovers", 0.99), Pair("Scan complete", 1.0)));
  for (std::size_t row = 0; row < updates.size(); ++row) {
    EXPECT_EQ(updates[row].completedCategories, static_cast<std::int64_t>(row));
    EXPECT_EQ(updates[row].totalCategories, 11);
    EXPECT_EQ(updates[row].currentPath, std::nullopt);
  }
}

TEST_F(ScanPipeline, WithoutDeveloperJunkHasSevenRowsAtTheirOwnFractions) {
  disk.addFile("/Users/ann/Library/Developer/Xcode/DerivedData/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Developer/Xcode/Archives/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Developer/CoreSimulator/Caches/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Containers/com.docker.docker/Data/log/a", 5'000'000);
  defaults.set("includeDeveloperJunk", false);

  EXPECT_THAT(run(), IsEmpty());
  EXPECT_THAT(steps(), ElementsAre(Pair("App Caches", 0.50), Pair("System Logs", 0.62),
                                   Pair("iPhone Backups", 0.72), Pair("Trash", 0.82),
                                   Pair("Browser Caches", 0.88), Pair("Time Machine", 0.95),
                                   Pair("Leftovers", 0.99), Pair("Scan complete", 1.0)));
  EXPECT_EQ(updates.front().totalCategories, 7);
  EXPECT_THAT(commands.commandsRun(), ElementsAre("tmutil listlocalsnapshotdates / 2>/dev/null"));
}

TEST_F(ScanPipeline, TakesADeveloperSettingThatIsNoBooleanAsTrue) {
  for (const DefaultsValue& value :
       {DefaultsValue(std::int64_t{0}), DefaultsValue(std::string("false")), DefaultsValue(0.0)}) {
    defaults.set("includeDeveloperJunk", value);
    updates.clear();
    run();
    EXPECT_EQ(updates.front().totalCategories, 11);
  }
}

TEST_F(ScanPipeline, TellsEveryItemOfARowThatReports) {
  disk.addFile("/Users/ann/Library/Developer/Xcode/DerivedData/a", 300);
  disk.addFile("/Users/ann/Library/Developer/Xcode/tvOS DeviceSupport/b", 50);
  run();
  const auto xcodeUpdate = [](std::optional<std::string> path, std::int64_t items,
                              std::int64_t bytes) {
    return ScanUpdate{0.10, "Xcode Cache", std::move(path), items, bytes, 0, 11};
  };
  ASSERT_EQ(updates.size(), 14U);
  EXPECT_EQ(updates[0], xcodeUpdate(std::nullopt, 0, 0));
  EXPECT_EQ(updates[1], xcodeUpdate("/Users/ann/Library/Developer/Xcode/DerivedData", 1, 300));
  EXPECT_EQ(updates[2],
            xcodeUpdate("/Users/ann/Library/Developer/Xcode/tvOS DeviceSupport", 2, 350));
  EXPECT_EQ(updates[3], (ScanUpdate{0.22, "iOS Simulators", std::nullopt, 0, 0, 1, 11}));
}

TEST_F(ScanPipeline, ReportsItemsOnlyInFiveRows) {
  disk.addFile("/Users/ann/Library/Developer/Xcode/DerivedData/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Developer/CoreSimulator/Caches/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Developer/Xcode/Archives/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Caches/com.acme/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Logs/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Application Support/MobileSync/Backup/1/a", 5'000'000);
  disk.addFile("/Users/ann/.Trash/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Caches/Firefox/a", 5'000'000);
  disk.addFile("/Users/ann/Library/Containers/com.docker.docker/Data/log/a", 5'000'000);
  commands.answer("tmutil listlocalsnapshotdates / 2>/dev/null", "2026-03-01-101530");
  disk.addFile("/Users/ann/Library/Cookies/a", 50'000'000);

  EXPECT_EQ(run().size(), 11U);
  std::vector<std::string> reporting;
  for (const ScanUpdate& update : updates) {
    if (update.partialItems > 0) reporting.push_back(update.categoryName);
  }
  EXPECT_THAT(reporting, ElementsAre("Xcode Cache", "Xcode Archives", "App Caches", "System Logs",
                                     "Browser Caches"));
}

TEST_F(ScanPipeline, DeliversCategoriesInTableOrderAndAnswersThemLargestFirst) {
  disk.addFile("/Users/ann/Library/Developer/Xcode/DerivedData/a", 100);
  disk.addFile("/Users/ann/Library/Caches/com.acme/a", 2'000'000);
  disk.addFile("/Users/ann/Library/Logs/a", 3'000'000);
  std::vector<CategoryType> sorted;
  for (const CleanCategory& category : run()) sorted.push_back(category.type);
  using enum CategoryType;
  EXPECT_THAT(delivered, ElementsAre(xcodeCache, appCaches, systemLogs));
  EXPECT_THAT(sorted, ElementsAre(systemLogs, appCaches, xcodeCache));
}

TEST_F(ScanPipeline, KeepsCategoriesOfOneSizeInTableOrder) {
  disk.addFile("/Users/ann/Library/Developer/Xcode/Archives/a", 5'000);
  disk.addFile("/Users/ann/Library/Logs/a", 5'000);
  disk.addFile("/Users/ann/Library/Caches/Firefox/a", 5'000);
  std::vector<CategoryType> sorted;
  for (const CleanCategory& category : run()) sorted.push_back(category.type);
  using enum CategoryType;
  EXPECT_THAT(sorted, ElementsAre(xcodeArchives, systemLogs, browserCaches));
}

TEST_F(ScanPipeline, DropsACategoryInWhichEverythingMeasuredNothing) {
  disk.addFile("/Users/ann/.Trash/empty", 0);
  disk.addLink("/Users/ann/.Trash/link");
  EXPECT_THAT(run(), IsEmpty());
  EXPECT_THAT(delivered, IsEmpty());
  EXPECT_EQ(updates.back().completedCategories, 11);
}

TEST_F(ScanPipeline, DropsOnlyTheItemsThatMeasuredNothing) {
  disk.addFile("/Users/ann/.Trash/empty", 0);
  disk.addFile("/Users/ann/.Trash/one", 1);
  EXPECT_THAT(names(found(CategoryType::trashBin)), ElementsAre("one"));
}

TEST_F(ScanPipeline, AStopDuringARowLetsItFinishAndStartsNoOther) {
  disk.addFile("/Users/ann/Library/Developer/Xcode/Archives/a", 5'000);
  disk.addFile("/Users/ann/Library/Caches/com.acme/a", 5'000'000);
  std::stop_source source;
  const auto result = engine.scanAll(
      source.get_token(),
      [&](const ScanUpdate& update) {
        updates.push_back(update);
        if (update.categoryName == "Xcode Archives") source.request_stop();
      },
      [&](const CleanCategory& category) { delivered.push_back(category.type); });

  EXPECT_THAT(delivered, ElementsAre(CategoryType::xcodeArchives));
  EXPECT_EQ(result.size(), 1U);
  EXPECT_EQ(updates.back(), (ScanUpdate{1.0, "Scan stopped", std::nullopt, 0, 0, 3, 11}));
}

TEST_F(ScanPipeline, AStopBeforeTheStartRunsNoRow) {
  std::stop_source source;
  source.request_stop();
  EXPECT_THAT(run(source.get_token()), IsEmpty());
  EXPECT_THAT(steps(), ElementsAre(Pair("Scan stopped", 1.0)));
  EXPECT_THAT(commands.commandsRun(), IsEmpty());
}

TEST_F(ScanPipeline, AStopDuringTheLastRowIsToldAsSuch) {
  std::stop_source source;
  engine.scanAll(source.get_token(),
                 [&](const ScanUpdate& update) {
                   updates.push_back(update);
                   if (update.categoryName == "Leftovers") source.request_stop();
                 },
                 {});
  EXPECT_EQ(updates.back(), (ScanUpdate{1.0, "Scan stopped", std::nullopt, 0, 0, 11, 11}));
}

TEST_F(ScanPipeline, RunsAfreshEachTime) {
  disk.addFile("/Users/ann/Library/Logs/a", 3'000'000);
  const auto first = run();
  updates.clear();
  const auto second = run();
  EXPECT_EQ(updates.front().completedCategories, 0);
  ASSERT_EQ(second.size(), 1U);
  EXPECT_NE(first[0].id, second[0].id);
  EXPECT_NE(first[0].items[0], second[0].items[0]);
}

TEST_F(ScanPipeline, AToolThatIsMissingPrintsRubbishOrFailsFindsNothing) {
  for (const std::string output : {"", "\xff\xfe", "error: no such tool", "{\"devices\": 5}"}) {
    commands.answer(deviceListing, output);
    commands.answer("docker info --format '{{.ID}}' 2>/dev/null", output);
    commands.answer("docker system df 2>/dev/null", output);
    commands.answer("tmutil listlocalsnapshotdates / 2>/dev/null", output);
    EXPECT_THAT(run(), IsEmpty()) << output;
  }
  commands.failToStart(deviceListing);
  commands.failToStart("tmutil listlocalsnapshotdates / 2>/dev/null");
  EXPECT_THAT(run(), IsEmpty());
}

TEST_F(ScanPipeline, SortsItemsLargestFirstAndKeepsTheOrderOfEquals) {
  std::vector<JunkItem> items;
  items.push_back({.name = "small", .path = "/a", .size = 1});
  items.push_back({.name = "first", .path = "/b", .size = 5});
  items.push_back({.name = "second", .path = "/c", .size = 5});
  sortItemsBySize(items);
  EXPECT_THAT(names(items), ElementsAre("first", "second", "small"));
}

}  // namespace
}  // namespace klarvik
