#include "engine/developer_tool_answers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace klarvik {
namespace {

constexpr const char* header = "TYPE TOTAL ACTIVE SIZE RECLAIMABLE\n";

TEST(DockerTable, AddsUpTheLastColumnButOne) {
  EXPECT_EQ(dockerReclaimableBytes("TYPE            TOTAL     ACTIVE    SIZE      RECLAIMABLE\n"
                                   "Images          5         2         1.2GB     800MB (66%)\n"
                                   "Containers      3         1         62.5kB    20kB (32%)\n"
                                   "Local Volumes   2         2         100MB     0B (0%)\n"),
            800'020'000);
}

TEST(DockerTable, TakesTheSizeColumnOfALineWithoutAPercentage) {
  EXPECT_EQ(dockerReclaimableBytes(std::string(header) + "Build Cache 12 0 2GB 1GB"),
            2'000'000'000);
}

TEST(DockerTable, NeverReadsTheFirstLine) {
  EXPECT_EQ(dockerReclaimableBytes("Images 5 2 1.2GB 800MB (66%)"), 0);
  EXPECT_EQ(dockerReclaimableBytes("Images 5 2 1.2GB 800MB (66%)\n"), 0);
  EXPECT_EQ(dockerReclaimableBytes(""), 0);
}

TEST(DockerTable, SkipsLinesOfThreePiecesAndFewer) {
  EXPECT_EQ(dockerReclaimableBytes(std::string(header) + "a 5GB b\n5GB\n\n"), 0);
  EXPECT_EQ(dockerReclaimableBytes(std::string(header) + "a b 5GB c\n"), 5'000'000'000);
}

TEST(DockerTable, ATotalBeyond64BitsCountsNothing) {
  const std::string line = "Images 5 2 9e18B 9e18B (100%)\n";
  EXPECT_EQ(dockerReclaimableBytes(header + line), 9'000'000'000'000'000'000);
  EXPECT_EQ(dockerReclaimableBytes(header + line + line), 0);
}

TEST(DockerTable, ReadsDecimalUnits) {
  EXPECT_EQ(dockerSizeBytes("2TB"), 2'000'000'000'000);
  EXPECT_EQ(dockerSizeBytes("1.5GB"), 1'500'000'000);
  EXPECT_EQ(dockerSizeBytes("800MB"), 800'000'000);
  EXPECT_EQ(dockerSizeBytes("62kB"), 62'000);
  EXPECT_EQ(dockerSizeBytes("999B"), 999);
  EXPECT_EQ(dockerSizeBytes("0B"), 0);
}

TEST(DockerTable, ReadsACommaAsAPoint) {
  EXPECT_EQ(dockerSizeBytes("1,5GB"), 1'500'000'000);
}

TEST(DockerTable, TruncatesTowardsZero) {
  EXPECT_EQ(dockerSizeBytes("1.9B"), 1);
  EXPECT_EQ(dockerSizeBytes("-1.9B"), -1);
}

TEST(DockerTable, TellsUpperFromLowerCaseInAUnit) {
  EXPECT_EQ(dockerSizeBytes("62KB"), 0);
  EXPECT_EQ(dockerSizeBytes("62gb"), 0);
}

TEST(DockerTable, CountsAPieceThatIsNoSizeAsNothing) {
  for (const char* const piece :
       {"", "B", "GB", "xGB", "1.2.3GB", "(66%)", "12", "nanGB", "infGB", "1e999GB", "1e30TB",
        "-1e30TB", "\xff\xfeGB", "1e18446744073709551616B"}) {
    EXPECT_EQ(dockerSizeBytes(piece), 0) << piece;
  }
}

TEST(DockerTable, KeepsTheLargestSizeThatFits) {
  EXPECT_EQ(dockerSizeBytes("9223372036854774784B"), 9'223'372'036'854'774'784);
  EXPECT_EQ(dockerSizeBytes("9223372036854775808B"), 0);
}

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SimulatorDevices, ReadsEveryDeviceOfEveryRuntime) {
  EXPECT_THAT(unavailableSimulators(R"({"devices": {
        "com.apple.CoreSimulator.SimRuntime.iOS-15-0": [
          {"udid": "A-1", "name": "iPhone 8", "runtime": "com.apple.CoreSimulator.SimRuntime.iOS-15-0"},
          {"udid": "A-2", "name": "iPad", "isAvailable": false}],
        "com.apple.CoreSimulator.SimRuntime.iOS-16-0": [],
        "com.apple.CoreSimulator.SimRuntime.tvOS-15-0": [{"udid": "B-1"}]}})"),
              ElementsAre(SimulatorDevice{"A-1", "iPhone 8", "iOS-15-0"},
                          SimulatorDevice{"A-2", "iPad", ""}, SimulatorDevice{"B-1", "B-1", ""}));
}

TEST(SimulatorDevices, RemovesEveryOccurrenceOfTheRuntimePrefix) {
  const auto devices = unavailableSimulators(
      R"({"devices": {"x": [{"udid": "A", "runtime":
          "com.apple.CoreSimulator.SimRuntime.com.apple.CoreSimulator.SimRuntime.iOS"}]}})");
  EXPECT_THAT(devices, ElementsAre(SimulatorDevice{"A", "A", "iOS"}));
}

TEST(SimulatorDevices, TakesANameOrRuntimeThatIsNoTextAsMissing) {
  EXPECT_THAT(
      unavailableSimulators(R"({"devices": {"x": [{"udid": "A", "name": 5, "runtime": []}]}})"),
      ElementsAre(SimulatorDevice{"A", "A", ""}));
}

TEST(SimulatorDevices, LeavesOutADeviceWithoutAUdid) {
  EXPECT_THAT(unavailableSimulators(
                  R"({"devices": {"x": [{"name": "iPhone"}, {"udid": 7}, {"udid": "A"}]}})"),
              ElementsAre(SimulatorDevice{"A", "A", ""}));
}

TEST(SimulatorDevices, LeavesOutAUdidThatCouldLeadOutOfItsFolder) {
  for (const char* const udid : {"", ".", "..", "../..", "/etc", "a/b", "A\\u0000B"}) {
    EXPECT_THAT(
        unavailableSimulators(std::string(R"({"devices": {"x": [{"udid": ")") + udid + "\"}]}}"),
        IsEmpty())
        << udid;
  }
}

TEST(SimulatorDevices, FindsNothingInOutputOfAnyOtherShape) {
  for (const char* const text :
       {"", "xcrun: error: unable to find utility", "[]", "5", "null", "{}", R"({"devices": []})",
        R"({"devices": {"x": {}}})", R"({"devices": {"x": [5]}})",
        R"({"devices": {"good": [{"udid": "A"}], "bad": 5}})",
        R"({"devices": {"x": [{"udid": "A"}]}} trailing)", R"({"devices": {"x": [{"udid": "A"})",
        "{\"devices\": {\"x\": [{\"udid\": \"\xff\"}]}}"}) {
    EXPECT_THAT(unavailableSimulators(text), IsEmpty()) << text;
  }
}

TEST(SimulatorDevices, SurvivesAMillionLevelsOfNesting) {
  const std::string open(1'000'000, '[');
  const std::string close(1'000'000, ']');
  EXPECT_THAT(unavailableSimulators(open), IsEmpty());
  EXPECT_THAT(unavailableSimulators(open + close), IsEmpty());
  EXPECT_THAT(unavailableSimulators("{\"devices\": {\"x\": [{\"udid\": \"A\", \"deep\": " + open +
                                    close + "}]}}"),
              ElementsAre(SimulatorDevice{"A", "A", ""}));

  std::string objects;
  for (int level = 0; level < 1'000'000; ++level) objects += "{\"a\":";
  EXPECT_THAT(unavailableSimulators(objects), IsEmpty());
}

}  // namespace
}  // namespace klarvik
