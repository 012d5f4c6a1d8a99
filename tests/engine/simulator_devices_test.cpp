#include "engine/simulator_devices.h"

#include <gmock/gmock.h>

namespace klarvik {
namespace {

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
