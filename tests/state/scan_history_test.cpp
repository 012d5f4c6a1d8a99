#include "state/scan_history.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "platform/linux/json_user_defaults.h"
#include "signal_count.h"
#include "support/fake_clock.h"
#include "support/fake_user_defaults.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using nlohmann::json;

CleanCategory category(CategoryType type, std::vector<std::int64_t> sizes) {
  CleanCategory made{.type = type, .items = {}};
  for (const std::int64_t size : sizes) {
    made.items.push_back({.name = "item", .path = "/item", .size = size, .modifiedDate = {}});
  }
  return made;
}

class ScanHistoryTest : public ::testing::Test {
 protected:
  void record(std::int64_t bytes) {
    ScanHistory(defaults, clock).recordScan({category(CategoryType::appCaches, {bytes})});
  }
  [[nodiscard]] std::string storedText(const char* key) const {
    return std::get<Bytes>(defaults.object(key).value()).content;
  }
  [[nodiscard]] std::vector<ScanHistoryEntry> scansReadFrom(const std::string& text) {
    defaults.set(ScanHistory::scansKey, Bytes{text});
    return ScanHistory(defaults, clock).scans();
  }

  FakeUserDefaults defaults;
  FakeClock clock;
};

TEST_F(ScanHistoryTest, IsEmptyWhereNothingIsStored) {
  const ScanHistory history(defaults, clock);
  EXPECT_TRUE(history.scans().empty());
  EXPECT_TRUE(history.cleans().empty());
}

TEST_F(ScanHistoryTest, RecordsTheBytesOfAScanByCategory) {
  ScanHistory history(defaults, clock);
  history.recordScan({category(CategoryType::appCaches, {1, 2}),
                      category(CategoryType::dockerData, {10}),
                      category(CategoryType::trashBin, {})});
  ASSERT_EQ(history.scans().size(), 1U);
  const ScanHistoryEntry& entry = history.scans().front();
  EXPECT_EQ(entry.totalJunk, 13);
  EXPECT_EQ(entry.date, clock.now());
  EXPECT_EQ(entry.categories, (std::map<std::string, std::int64_t>{
                                  {std::string(rawValue(CategoryType::appCaches)), 3},
                                  {std::string(rawValue(CategoryType::dockerData)), 10},
                                  {std::string(rawValue(CategoryType::trashBin)), 0}}));
  EXPECT_TRUE(history.cleans().empty());
}

TEST_F(ScanHistoryTest, StoresCategoriesUnderKeysThatNeverChange) {
  const std::vector<std::string> keys{
      "Xcode Cache",    "iOS Simulators",      "Xcode Archives",
      "App Caches",     "System Logs",         "iPhone Backups",
      "Trash",          "Browser Caches",      "Docker",
      "Time Machine",   "Leftovers",           "Build Artifacts",
      "Package Caches", "Toolchains & Stores", "Installed Packages"};
  for (std::size_t at = 0; at < keys.size(); ++at) {
    EXPECT_EQ(rawValue(static_cast<CategoryType>(at)), keys[at]);
  }
}

TEST_F(ScanHistoryTest, AScanThatFoundNothingIsNotRecorded) {
  ScanHistory history(defaults, clock);
  history.recordScan({});
  EXPECT_TRUE(history.scans().empty());
  CleanCategory told = category(CategoryType::packageCaches, {});
  told.hints.push_back({.name = "uv", .path = "/uv", .size = 1, .reason = "", .command = ""});
  history.recordScan({told});
  EXPECT_TRUE(history.scans().empty());
  EXPECT_EQ(defaults.object(ScanHistory::scansKey), std::nullopt);
}

TEST_F(ScanHistoryTest, ACleanOfZeroBytesIsNotRecordedAndOneOfOneByteIs) {
  ScanHistory history(defaults, clock);
  history.recordClean(0, {});
  EXPECT_TRUE(history.cleans().empty());
  EXPECT_EQ(defaults.object(ScanHistory::cleansKey), std::nullopt);
  history.recordClean(1, {{CategoryType::systemLogs, 1}});
  ASSERT_EQ(history.cleans().size(), 1U);
  EXPECT_EQ(history.cleans().front().totalJunk, 1);
  EXPECT_EQ(
      history.cleans().front().categories,
      (std::map<std::string, std::int64_t>{{std::string(rawValue(CategoryType::systemLogs)), 1}}));
}

TEST_F(ScanHistoryTest, TheNewestComesFirstAndTheThirtyFirstDropsTheOldest) {
  ScanHistory history(defaults, clock);
  for (std::int64_t bytes = 1; bytes <= 31; ++bytes) {
    history.recordScan({category(CategoryType::appCaches, {bytes})});
    history.recordClean(bytes, {});
  }
  for (const auto* entries : {&history.scans(), &history.cleans()}) {
    ASSERT_EQ(entries->size(), 30U);
    EXPECT_EQ(entries->front().totalJunk, 31);
    EXPECT_EQ(entries->back().totalJunk, 2);
  }
  EXPECT_EQ(ScanHistory(defaults, clock).scans(), history.scans());
}

TEST_F(ScanHistoryTest, EachEntryHasAnIdentityOfItsOwn) {
  ScanHistory history(defaults, clock);
  history.recordClean(5, {});
  history.recordClean(5, {});
  EXPECT_NE(history.cleans()[0].id, history.cleans()[1].id);
}

TEST_F(ScanHistoryTest, TheStoredFormHasFourKeysAndCountsTimeFrom2001) {
  record(5);
  const json stored = json::parse(storedText(ScanHistory::scansKey));
  ASSERT_TRUE(stored.is_array());
  ASSERT_EQ(stored.size(), 1U);
  const json& entry = stored.front();
  EXPECT_EQ(entry.size(), 4U);
  EXPECT_EQ(entry.at("totalJunk"), 5);
  EXPECT_EQ(entry.at("categories"), (json{{rawValue(CategoryType::appCaches), 5}}));
  EXPECT_TRUE(Uuid::fromText(entry.at("id").get<std::string>()).has_value());
  // The clock stands at 1,772,644,000 seconds after 1970, and 2001 began at 978,307,200.
  EXPECT_EQ(entry.at("date").get<double>(), 794'336'800.0);
}

TEST_F(ScanHistoryTest, ADateComesBackToWithinWhatADoubleHolds) {
  clock.advance(123'456'789ns);
  record(5);
  const Date readBack = ScanHistory(defaults, clock).scans().front().date;
  EXPECT_LT(std::chrono::abs(readBack - clock.now()), 1us);
}

TEST_F(ScanHistoryTest, SurvivesARestartInTheRealPreferences) {
  const TemporaryFolder folder;
  std::vector<ScanHistoryEntry> scans;
  std::vector<ScanHistoryEntry> cleans;
  {
    JsonUserDefaults preferences(folder.path() / "settings");
    ScanHistory history(preferences, clock);
    history.recordScan({category(CategoryType::appCaches, {7})});
    clock.advance(1h);
    history.recordScan({category(CategoryType::timeMachine, {9})});
    history.recordClean(4, {{CategoryType::appCaches, 4}});
    scans = history.scans();
    cleans = history.cleans();
  }
  JsonUserDefaults preferences(folder.path() / "settings");
  const ScanHistory history(preferences, clock);
  EXPECT_EQ(history.scans(), scans);
  EXPECT_EQ(history.cleans(), cleans);
}

TEST_F(ScanHistoryTest, TheTwoListsAreStoredApart) {
  ScanHistory history(defaults, clock);
  history.recordScan({category(CategoryType::appCaches, {7})});
  EXPECT_EQ(defaults.object(ScanHistory::cleansKey), std::nullopt);
}

TEST_F(ScanHistoryTest, CorruptJsonReadsAsEmptyAndStaysUntilTheNextEntryOfThatList) {
  defaults.set(ScanHistory::scansKey, Bytes{"[{\"id\":"});
  defaults.set(ScanHistory::cleansKey, Bytes{"not json"});
  ScanHistory history(defaults, clock);
  EXPECT_TRUE(history.scans().empty());
  EXPECT_TRUE(history.cleans().empty());
  EXPECT_EQ(storedText(ScanHistory::scansKey), "[{\"id\":");

  history.recordScan({category(CategoryType::appCaches, {7})});
  EXPECT_EQ(json::parse(storedText(ScanHistory::scansKey)).size(), 1U);
  EXPECT_EQ(storedText(ScanHistory::cleansKey), "not json");
}

TEST_F(ScanHistoryTest, AValueThatIsNotBytesReadsAsEmpty) {
  defaults.set(ScanHistory::scansKey, std::string("[]"));
  defaults.set(ScanHistory::cleansKey, std::int64_t{4});
  const ScanHistory history(defaults, clock);
  EXPECT_TRUE(history.scans().empty());
  EXPECT_TRUE(history.cleans().empty());
}

TEST_F(ScanHistoryTest, ASaveThatFailsLeavesThePreviousValueInPlace) {
  record(5);
  const std::string before = storedText(ScanHistory::scansKey);
  defaults.refuseWrites(true);
  record(6);
  EXPECT_EQ(storedText(ScanHistory::scansKey), before);
}

TEST_F(ScanHistoryTest, TellsOfEachEntryOnce) {
  ScanHistory history(defaults, clock);
  const SignalCount scans(history, &ScanHistory::scansChanged);
  const SignalCount cleans(history, &ScanHistory::cleansChanged);
  history.recordScan({});
  history.recordClean(0, {});
  EXPECT_EQ(scans.get() + cleans.get(), 0);
  history.recordScan({category(CategoryType::appCaches, {7})});
  EXPECT_EQ(scans.get(), 1);
  EXPECT_EQ(cleans.get(), 0);
}

const char* const wellFormed =
    R"({"id":"3F2504E0-4F89-11D3-9A0C-0305E82C3301","date":0.5,"totalJunk":5,"categories":{"A":5}})";

TEST_F(ScanHistoryTest, ReadsWhatWasWrittenByHand) {
  const auto scans = scansReadFrom("[" + std::string(wellFormed) + "]");
  ASSERT_EQ(scans.size(), 1U);
  EXPECT_EQ(scans[0].id, Uuid::fromText("3f2504e0-4f89-11d3-9a0c-0305e82c3301"));
  EXPECT_EQ(scans[0].date, Date(978'307'200'500ms));
  EXPECT_EQ(scans[0].totalJunk, 5);
  EXPECT_EQ(scans[0].categories, (std::map<std::string, std::int64_t>{{"A", 5}}));
}

/// `wellFormed` with one of its parts replaced.
std::string entryWith(const std::string& part, const std::string& replacement) {
  std::string text = wellFormed;
  return text.replace(text.find(part), part.size(), replacement);
}

class HostileHistory : public ScanHistoryTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(HostileHistory, OneEntryThatIsNotWellFormedMakesTheWholeListEmpty) {
  EXPECT_TRUE(scansReadFrom("[" + std::string(wellFormed) + "," + GetParam() + "]").empty());
}

INSTANTIATE_TEST_SUITE_P(
    CorruptEmptyOrForeignJson, HostileHistory,
    ::testing::Values("", "null", "5", "\"text\"", "[]", "{}", "{\"id\":null}", wellFormed + 1,
                      entryWith("\"id\"", "\"ID\""), entryWith("3F2504E0", "3F2504G0"),
                      entryWith("\"3F2504E0-4F89-11D3-9A0C-0305E82C3301\"", "7"),
                      entryWith("0.5", "\"0.5\""), entryWith("0.5", "1e400"),
                      entryWith("0.5", "1e300"), entryWith("0.5", "-1e300"),
                      entryWith("0.5", "NaN"), entryWith("0.5", "null"),
                      entryWith("\"totalJunk\":5", "\"totalJunk\":true"),
                      entryWith("\"totalJunk\":5", "\"totalJunk\":5.5"),
                      entryWith("\"totalJunk\":5", "\"totalJunk\":9223372036854775808"),
                      entryWith("\"totalJunk\":5", "\"totalJunk\":-9223372036854775809"),
                      entryWith("\"totalJunk\":5", "\"totalJunk\":1e99"),
                      entryWith("{\"A\":5}", "[]"), entryWith("{\"A\":5}", "{\"A\":\"5\"}"),
                      entryWith("{\"A\":5}", "{\"A\":18446744073709551615}"),
                      entryWith("\"A\"", "\"\xff\xfe\""), entryWith("\"A\"", "\"\\ud800\"")));

TEST_F(ScanHistoryTest, TheLargestAndSmallestNumbersComeThrough) {
  EXPECT_EQ(
      scansReadFrom("[" + entryWith("\"totalJunk\":5", "\"totalJunk\":9223372036854775807") + "]")
          .front()
          .totalJunk,
      std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(
      scansReadFrom("[" + entryWith("\"totalJunk\":5", "\"totalJunk\":-9223372036854775808") + "]")
          .front()
          .totalJunk,
      std::numeric_limits<std::int64_t>::min());
}

TEST_F(ScanHistoryTest, NestingHundredThousandLevelsDeepReadsAsEmpty) {
  const std::string deep(100'000, '[');
  EXPECT_TRUE(scansReadFrom(deep).empty());
  EXPECT_TRUE(scansReadFrom(deep + std::string(100'000, ']')).empty());
}

TEST_F(ScanHistoryTest, KeysOfALaterVersionArePassedOver) {
  EXPECT_EQ(scansReadFrom("[" + entryWith("\"date\"", "\"more\":[1],\"date\"") + "]").size(), 1U);
}

}  // namespace
}  // namespace klarvik
