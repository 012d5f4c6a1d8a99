// The two engines that explain the disk as processes of their own, with real tools.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cstdlib>
#include <nlohmann/json.hpp>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using nlohmann::json;
using testing::SizeIs;

class StorageCommands : public testing::Test {
 protected:
  TemporaryFolder disk;
  TemporaryFolder tools;
  const std::string usualPath = std::getenv("PATH");

  StorageCommands() {
    disk.makeFolder("/Users/ann");
    ::setenv("PATH", (tools.path().native() + ":" + usualPath).c_str(), 1);
  }
  ~StorageCommands() override { ::setenv("PATH", usualPath.c_str(), 1); }

  [[nodiscard]] std::vector<std::string> command(const std::string& name) const {
    return {KLARVIK_PROBE, "--root", disk.path(), "--home", "/Users/ann", name};
  }

  std::vector<json> run(const std::string& name) {
    Program program(command(name));
    std::vector<json> reports;
    for (const std::string& line : program.readToEnd()) reports.push_back(json::parse(line));
    EXPECT_EQ(program.wait(), 0);
    return reports;
  }

  /// Writes down what it was called with, and prints `output`.
  void makeTool(const std::string& name, const std::string& output) const {
    tools.makeFile(name + ".txt", output);
    const std::string folder = tools.path();
    const Path tool = tools.makeFile(name, "#!/bin/sh\necho \"$@\" >> " + folder + "/calls\ncat " +
                                               folder + "/" + name + ".txt\n");
    std::filesystem::permissions(tool, std::filesystem::perms::owner_all);
  }
};

TEST_F(StorageCommands, SystemDataPrintsEachStepAndWhatItFound) {
  disk.makeFile("/Users/ann/Library/Caches/com.apple.\xff/a", 5'000'000);
  makeTool("tmutil", "");
  const auto reports = run("system-data");
  ASSERT_THAT(reports, SizeIs(24));
  EXPECT_EQ(reports[3],
            (json{{"event", "progress"}, {"label", "Scanning App Caches..."}, {"fraction", 0.16}}));
  EXPECT_EQ(reports[22]["label"], "Analysis complete");
  ASSERT_THAT(reports[23]["items"], SizeIs(1));
  const json& item = reports[23]["items"][0];
  EXPECT_EQ(item["name"], (json{{"bytes", "ff"}}));
  EXPECT_EQ(item["kind"], "App Caches");
  EXPECT_EQ(item["safety"], "safe");
  EXPECT_GE(item["size"], 5'000'000);
  EXPECT_GT(reports[23]["freeBytes"], 0);
}

TEST_F(StorageCommands, SystemDataAsksTheRealShellForTheSizesOfSnapshots) {
  makeTool("tmutil",
           "Snapshots for disk /:\ncom.apple.TimeMachine.2026-03-01-101530.local\n"
           "com.apple.TimeMachine.2026-03-02-101530.local\n");
  makeTool("diskutil",
           "|   Name:  com.apple.TimeMachine.2026-03-01-101530.local\n|   XID: 5\n"
           "|   Size: 1.2 GB (1234567890 Bytes)\n+--\n+--\n+--\n+--\n");
  const auto items = run("system-data").back()["items"];
  ASSERT_THAT(items, SizeIs(2));
  EXPECT_EQ(items[0]["path"], "/.MobileBackups/2026-03-01-101530.local");
  EXPECT_EQ(items[0]["size"], 1'234'567'890);
  EXPECT_EQ(items[1]["size"], 1'000'000'000);
}

TEST_F(StorageCommands, ASnapshotNameWithShellCharactersIsNeverActedOnByAShell) {
  const std::string hit = tools.onDisk("hit");
  makeTool("tmutil", "'; touch " + hit + "; '.x\n$(touch " + hit + ").x\n`touch " + hit +
                         "`.x\n-rf.x\n2026-03-02.local\n");
  makeTool("diskutil", "");
  EXPECT_THAT(run("system-data").back()["items"], SizeIs(5));
  EXPECT_FALSE(tools.holds("hit"));
  EXPECT_EQ(tools.contentOf("calls"), "listlocalsnapshots /\napfs listSnapshots /\n");
}

TEST_F(StorageCommands, CompositionPrintsEachStepAndTheBuckets) {
  disk.makeFile("/Users/ann/Pictures/a", 100'000);
  const auto reports = run("composition");
  ASSERT_THAT(reports, SizeIs(16));
  EXPECT_EQ(reports[14]["label"], "Done");
  const json& result = reports[15];
  ASSERT_THAT(result["buckets"], SizeIs(2));
  EXPECT_EQ(result["buckets"][0]["id"], "photos");
  EXPECT_EQ(result["buckets"][0]["path"], "/Users/ann/Pictures");
  EXPECT_EQ(result["buckets"][1]["path"], nullptr);
  EXPECT_EQ(result["displayBuckets"][1]["id"], "smaller");
  EXPECT_EQ(result["buckets"][0]["bytes"].get<std::int64_t>() +
                result["buckets"][1]["bytes"].get<std::int64_t>(),
            result["usedBytes"]);
}

TEST_F(StorageCommands, AnInterruptStopsACompositionWhichStillTellsWhatItHas) {
  disk.makeFolder("/Applications");
  for (int number = 0; number < 5'000; ++number) {
    const Path file = disk.onDisk("/Applications/" + std::to_string(number));
    ASSERT_EQ(::mknod(file.c_str(), S_IFREG | 0644, 0), 0);
  }
  // The interrupt waits for the program when it starts, so that it comes early in the run.
  std::vector<std::string> words{"/usr/bin/env", "--block-signal=INT", "/bin/sh", "-c",
                                 "kill -INT $$; exec \"$0\" \"$@\""};
  const auto interrupted = command("composition");
  words.insert(words.end(), interrupted.begin(), interrupted.end());
  for (int attempt = 0; attempt < 20; ++attempt) {
    Program program(words);
    const auto lines = program.readToEnd();
    ASSERT_EQ(program.wait(), 0);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(json::parse(lines.back())["event"], "result");
    EXPECT_EQ(json::parse(lines.back())["buckets"].back()["id"], "system");
    if (lines.size() < 16) return;
  }
  FAIL() << "no run was interrupted";
}

}  // namespace
}  // namespace klarvik
