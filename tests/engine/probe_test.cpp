// The engine as a process of its own: what it prints, and what is left when it is ended on the way.

#include <gmock/gmock.h>

#include <csignal>
#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <thread>

#include "support/program.h"
#include "support/property_lists.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int usageError = 2;
constexpr int manyItems = 5'000;
constexpr std::int64_t cacheBytes = 1'100'000;

class Probe : public testing::Test {
 protected:
  TemporaryFolder disk;
  const Path trashed = "/Users/ann/.local/share/Trash/files";
  const Path records = "/Users/ann/.local/share/Trash/info";

  void SetUp() override { disk.makeFolder("/Users/ann"); }

  [[nodiscard]] std::vector<std::string> command(std::vector<std::string> words) const {
    std::vector<std::string> all{KLARVIK_PROBE, "--root", disk.path(), "--home", "/Users/ann"};
    all.insert(all.end(), words.begin(), words.end());
    return all;
  }

  /// Everything that a whole run prints.
  std::vector<json> run(std::vector<std::string> words, std::string_view input = {}) {
    Program program(command(std::move(words)), input);
    std::vector<json> reports;
    for (const std::string& line : program.readToEnd()) reports.push_back(json::parse(line));
    EXPECT_EQ(program.wait(), 0);
    return reports;
  }

  static void readProgress(Program& program, int count) {
    while (count > 0) {
      const auto line = program.readLine();
      ASSERT_TRUE(line) << "ended early";
      if (json::parse(*line)["event"] == "progress") --count;
    }
  }

  /// Picked files, each with a content of its own.
  std::vector<Path> makeFiles(int count) const {
    std::vector<Path> files;
    for (int number = 0; number < count; ++number) {
      files.push_back("/Users/ann/Documents/file-" + std::to_string(number));
      disk.makeFile(files.back(), files.back().native());
    }
    return files;
  }

  static std::string lines(const std::vector<Path>& paths) {
    std::string text;
    for (const Path& path : paths) text += path.native() + '\n';
    return text;
  }

  /// The names that the entries of the Trash had, by their records. An entry may be called
  /// otherwise than it was: a run that was killed leaves a record behind, whose name is not taken
  /// again.
  std::map<std::string, Path> entriesByFormerName() const {
    std::map<std::string, Path> entries;
    for (const auto& entry : std::filesystem::directory_iterator(disk.onDisk(trashed))) {
      const std::string name = entry.path().filename().native();
      const std::string record = disk.contentOf(records / (name + ".trashinfo"));
      const std::size_t end = record.find('\n', record.find("Path="));
      const std::size_t start = record.rfind('/', end) + 1;
      entries.emplace(record.substr(start, end - start), trashed / name);
    }
    return entries;
  }

  /// How many of the files are in the Trash. Each must be whole in one of the two places, and have
  /// a record when it is in the Trash.
  int countTrashed(const std::vector<Path>& files) const {
    int count = 0;
    const auto entries = entriesByFormerName();
    for (const Path& file : files) {
      const auto entry = entries.find(file.filename().native());
      const bool isTrashed = entry != entries.end();
      EXPECT_NE(disk.holds(file), isTrashed) << file;
      if (!isTrashed && !disk.holds(file)) continue;
      EXPECT_EQ(disk.contentOf(isTrashed ? entry->second : file), file.native());
      count += isTrashed ? 1 : 0;
    }
    return count;
  }
};

TEST_F(Probe, AnswersAUsageTextToWhatItDoesNotUnderstand) {
  const std::vector<std::vector<std::string>> wrong{
      {KLARVIK_PROBE},
      {KLARVIK_PROBE, "scan"},
      {KLARVIK_PROBE, "--root", "/", "scan"},
      {KLARVIK_PROBE, "--root", "/", "--home", "relative", "scan"},
      command({}),
      command({"dance"}),
      command({"measure"}),
      command({"measure", "/a", "/b"}),
      command({"clean", "--everything"}),
      command({"clean", "-0"}),
      command({"scan", "--lists"}),
      command({"measure", "-x"}),
      {KLARVIK_PROBE, "scan", "--home", "/Users/ann", "--root"},
      command({"residuals"}),
      command({"uninstall", "com.a", "com.b"}),
      command({"duplicates", "1"}),
      command({"duplicates", "1 MB", "/"}),
      command({"trash-duplicates", "newest", "1"}),
      command({"trash-duplicates", "biggest", "1", "/"}),
      command({"trash-duplicates", "newest", "1 MB", "/"}),
      command({"guard"}),
      command({"guard", "anything"}),
      command({"guard", "general", "identifier"}),
      command({"restore"}),
  };
  for (const auto& words : wrong) {
    Program program(words, "one line");
    EXPECT_THAT(program.readToEnd(), IsEmpty());
    EXPECT_EQ(program.wait(), usageError) << testing::PrintToString(words);
  }
}

TEST_F(Probe, JudgesEachPathOnALineOfItsOwn) {
  const auto reports = run({"guard", "general"}, "/\n/Library/Caches/x\n");
  ASSERT_THAT(reports, SizeIs(2));
  EXPECT_EQ(reports[0], (json{{"path", "/"}, {"refusal", "/ is a system directory."}}));
  EXPECT_EQ(reports[1], (json{{"path", "/Library/Caches/x"}, {"refusal", nullptr}}));
}

TEST_F(Probe, JudgesNamesOfAnyBytesBetweenZeroBytes) {
  const auto reports = run({"guard", "residual", "com.acme", "-0"},
                           std::string_view("/Library/Caches/a\nb\0\xff\0", 22));
  ASSERT_THAT(reports, SizeIs(2));
  EXPECT_EQ(reports[0]["path"], "/Library/Caches/a\nb");
  EXPECT_EQ(reports[1]["path"], (json{{"bytes", "ff"}}));
  EXPECT_EQ(reports[1]["refusal"], "Path is not absolute.");
}

TEST_F(Probe, MeasuresAPath) {
  disk.makeFile("/x/a", 100'000);
  const auto reports = run({"measure", "/x"});
  ASSERT_THAT(reports, SizeIs(1));
  EXPECT_EQ(reports[0]["path"], "/x");
  EXPECT_GE(reports[0]["size"], 100'000);
}

TEST_F(Probe, FindsDuplicatesAndPrintsEveryReport) {
  disk.makeFile("/x/a", "content");
  disk.makeFile("/y/\xff", "content");
  const auto reports = run({"duplicates", "1", "/x", "/y"});
  ASSERT_THAT(reports, SizeIs(6));
  EXPECT_EQ(reports[4],
            (json{{"event", "progress"}, {"fraction", 1.0}, {"groupsFound", 1}, {"line", "Done"}}));
  EXPECT_EQ(reports[5]["reclaimableBytes"], 7);
  EXPECT_THAT(reports[5]["files"], SizeIs(2));
}

TEST_F(Probe, ScansAndPrintsEveryUpdate) {
  disk.makeFile("/Users/ann/Library/Caches/\xff/a", cacheBytes);
  const auto reports = run({"scan"});
  EXPECT_THAT(reports, SizeIs(15));  // 12 steps, an item, a category, the result
  const json& item = reports.back()["categories"][0]["items"][0];
  EXPECT_EQ(item["name"], (json{{"bytes", "ff"}}));
}

TEST_F(Probe, CleansOnlyWhatIsSafeWhenTold) {
  disk.makeFile("/Users/ann/Library/Caches/com.acme/a", cacheBytes);
  disk.makeFile("/Users/ann/Library/Developer/Xcode/Archives/a", cacheBytes);
  run({"clean", "--only-safe"});
  EXPECT_TRUE(disk.holds(trashed / "com.acme/a"));
  EXPECT_TRUE(disk.holds("/Users/ann/Library/Developer/Xcode/Archives/a"));
  run({"clean", "--no-trash"});
  EXPECT_FALSE(disk.holds("/Users/ann/Library/Developer/Xcode/Archives/a"));
  EXPECT_FALSE(disk.holds(trashed / "com.acme"));
}

TEST_F(Probe, MovesPickedFilesAndRestoresThem) {
  const auto files = makeFiles(3);
  EXPECT_THAT(run({"trash-files"}, lines(files)), SizeIs(6));
  EXPECT_EQ(countTrashed(files), 3);
  std::vector<Path> pairs;
  for (const Path& file : files) {
    pairs.push_back(trashed / file.filename());
    pairs.push_back(file);
  }
  for (const json& report : run({"restore"}, lines(pairs))) EXPECT_TRUE(report["restored"]);
  EXPECT_EQ(countTrashed(files), 0);
}

/// With tools of its own in front of the search path; each writes down what it was called with.
class ProbeWithTools : public Probe {
 protected:
  TemporaryFolder tools;
  const std::string usualPath = std::getenv("PATH");

  ProbeWithTools() { ::setenv("PATH", (tools.path().native() + ":" + usualPath).c_str(), 1); }
  ~ProbeWithTools() override { ::setenv("PATH", usualPath.c_str(), 1); }

  void makeTool(const std::string& name, const std::string& output) const {
    tools.makeFile(name + ".txt", output);
    const std::string folder = tools.path();
    const Path tool = tools.makeFile(name, "#!/bin/sh\necho \"$0\" \"$@\" >> " + folder +
                                               "/calls\ncat " + folder + "/" + name + ".txt\n");
    std::filesystem::permissions(tool, std::filesystem::perms::owner_all);
  }

  static std::map<std::string, json> itemsByCategory(const json& result) {
    std::map<std::string, json> items;
    for (const json& category : result["categories"]) items[category["type"]] = category["items"];
    return items;
  }
};

TEST_F(ProbeWithTools, FindsWhatTheToolsTellThroughARealShell) {
  makeTool("docker", "TYPE TOTAL ACTIVE SIZE RECLAIMABLE\nImages 5 2 1.2GB 800MB (66%)\n");
  makeTool("tmutil", "Snapshot dates for disk /:\n2026-03-01-101530\n");
  makeTool("diskutil",
           "+-- 1111\n|   Name: com.apple.TimeMachine.2026-03-01-101530.local\n|   XID: 5\n"
           "Size: 123456789 B\n");
  makeTool("xcrun", R"({"devices": {"x": [{"udid": "A", "name": "iPad"}]}})");
  disk.makeFile("/Users/ann/Library/Developer/CoreSimulator/Devices/A/data", cacheBytes);

  auto items = itemsByCategory(run({"scan"}).back());
  EXPECT_EQ(items["Docker"][0]["size"], 800'000'000);
  EXPECT_EQ(items["iOS Simulators"][0]["name"], "iPad () — unavailable");
  EXPECT_EQ(items["Time Machine"][0]["path"], "/.MobileBackups/2026-03-01-101530");
  EXPECT_EQ(items["Time Machine"][0]["size"], 123'456'789);
}

TEST_F(ProbeWithTools, ASnapshotNameWithShellCharactersIsNeverActedOnByAShell) {
  const std::string hit = tools.onDisk("hit");
  makeTool("tmutil", "2026-03-01;touch " + hit + "\n$(touch " + hit + ")-x\n`touch " + hit +
                         "`-x\n-rf-2026-03\n2026-03-02-101530\n");
  makeTool("diskutil", "");
  for (const json& report : run({"clean"})) {
    if (report["event"] != "outcome") continue;
    const bool plain = report["original"] == "/.MobileBackups/2026-03-02-101530";
    EXPECT_EQ(report["reclaimed"], plain ? 524'288'000 : 0) << report;
  }
  EXPECT_FALSE(tools.holds("hit"));
  const std::string tmutil = tools.onDisk("tmutil");
  const std::string diskutil = tools.onDisk("diskutil");
  EXPECT_EQ(tools.contentOf("calls"), tmutil + " listlocalsnapshotdates /\n" + diskutil +
                                          " apfs listSnapshots /\n" + tmutil +
                                          " deletelocalsnapshots 2026-03-02-101530\n");
}

TEST_F(Probe, KilledInTheMiddleOfMovingFiveThousandItemsLosesNone) {
  const auto files = makeFiles(manyItems);
  for (const int reached : {1, 700, 1'500}) {
    Program program(command({"trash-files"}), lines(files));
    readProgress(program, reached);
    program.send(SIGKILL);
    EXPECT_EQ(program.wait(), -SIGKILL);
    const int moved = countTrashed(files);
    EXPECT_GE(moved, 1);
    EXPECT_LT(moved, manyItems);
  }
  run({"trash-files"}, lines(files));
  EXPECT_EQ(countTrashed(files), manyItems);
}

TEST_F(Probe, KilledInTheMiddleOfACleanLosesNothingOutsideTheTrash) {
  for (int number = 0; number < manyItems; ++number) {
    disk.makeFile("/Users/ann/.Trash/item-" + std::to_string(number), "waste");
  }
  const std::string cache = "/Users/ann/Library/Caches/com.acme/a";
  disk.makeFile(cache, cacheBytes);
  disk.makeFile("/Users/ann/Documents/letter", "dear");
  disk.makeLink("/Users/ann/.Trash/link", "../Documents");

  Program program(command({"clean"}));
  readProgress(program, 1'000);
  program.send(SIGKILL);
  EXPECT_EQ(program.wait(), -SIGKILL);
  EXPECT_FALSE(std::filesystem::is_empty(disk.onDisk("/Users/ann/.Trash")));
  EXPECT_NE(disk.holds(cache), disk.holds(trashed / "com.acme/a"));
  EXPECT_EQ(disk.contentOf("/Users/ann/Documents/letter"), "dear");

  run({"empty-trash"});
  EXPECT_TRUE(std::filesystem::is_empty(disk.onDisk("/Users/ann/.Trash")));
  EXPECT_EQ(disk.contentOf("/Users/ann/Documents/letter"), "dear");
}

TEST_F(Probe, AnInterruptStopsARemovalAndTellsAllThatWent) {
  const auto files = makeFiles(manyItems);
  Program program(command({"trash-files"}), lines(files));
  readProgress(program, 10);
  // The program now waits for its reports to be read: it cannot run to its end meanwhile.
  program.send(SIGINT);
  while (program.hasPending(SIGINT)) std::this_thread::yield();
  int told = 0;
  for (const std::string& line : program.readToEnd()) {
    if (json::parse(line)["event"] == "moved") ++told;
  }
  EXPECT_EQ(program.wait(), 0);
  EXPECT_EQ(told, countTrashed(files));
  EXPECT_LT(told, manyItems);
}

TEST_F(Probe, ListsApplicationsFindsWhatTheyLeftAndRemovesBoth) {
  const std::string app = "/Applications/Writer.app";
  const std::string cache = "/Users/ann/Library/Caches/com.acme.writer";
  const std::string list =
      binaryPropertyList({{"CFBundleIdentifier", "com.acme.writer"}, {"CFBundleName", "Writer"}});
  disk.makeFile(app + "/Contents/Info.plist", list);
  disk.makeFile(cache + "/blob", 10);
  const json listed{{"event", "app"},
                    {"name", "Writer"},
                    {"bundleID", "com.acme.writer"},
                    {"path", app},
                    {"size", list.size()}};
  const json found{{"event", "residual"}, {"category", "Caches"}, {"path", cache}, {"size", 10}};
  const json result{{"event", "result"}, {"freed", list.size() + 10}};
  EXPECT_THAT(run({"apps"}), ElementsAre(listed));
  EXPECT_THAT(run({"residuals", "com.acme.writer"}), ElementsAre(found));
  EXPECT_THAT(run({"uninstall", "com.acme.writer"}), ElementsAre(found, result));
  EXPECT_FALSE(disk.holds(cache));
  EXPECT_TRUE(disk.holds(trashed / "Writer.app"));
  Program again(command({"uninstall", "com.acme.writer"}));
  EXPECT_THAT(again.readToEnd(), IsEmpty());
  EXPECT_EQ(again.wait(), 1);
}

TEST_F(Probe, TakesOptionsInAnyOrderAndWordsWithAHyphenAfterTwo) {
  disk.makeFile("/Users/ann/notes", "x");
  Program program({KLARVIK_PROBE, "measure", "--home=/Users/ann", "--root", disk.path(), "--",
                   "/Users/ann/notes"});
  EXPECT_THAT(program.readToEnd(), SizeIs(1));
  EXPECT_EQ(program.wait(), 0);
  Program missing(command({"measure", "--", "-x"}));
  EXPECT_THAT(missing.readToEnd(), SizeIs(1));
  EXPECT_EQ(missing.wait(), 0);
}

TEST_F(Probe, TrashesAllCopiesButTheOneThatTheRuleKeeps) {
  for (const char* copy : {"Documents/a/one", "Documents/two", "Documents/a/b/three"}) {
    disk.makeFile(Path("/Users/ann") / copy, "the same");
  }
  disk.makeFile("/Users/ann/Documents/other", "other");
  const auto reports = run({"trash-duplicates", "shallowest", "1", "/Users/ann/Documents"});
  std::vector<std::string> moved;
  for (const json& report : reports) {
    if (report["event"] == "moved") moved.push_back(report["path"]);
  }
  EXPECT_THAT(moved, ElementsAre("/Users/ann/Documents/a/b/three", "/Users/ann/Documents/a/one"));
  EXPECT_TRUE(disk.holds("/Users/ann/Documents/two"));
  EXPECT_TRUE(disk.holds("/Users/ann/Documents/other"));
  EXPECT_TRUE(disk.holds(trashed / "one"));
  EXPECT_TRUE(disk.holds(trashed / "three"));
}

TEST_F(Probe, BuildsItsSampleDiskOnlyInAnEmptyFolder) {
  Program first({KLARVIK_SAMPLE_DISK, disk.onDisk("/new"), "--home", "/Users/eve"});
  EXPECT_THAT(first.readToEnd(), SizeIs(1));
  EXPECT_EQ(first.wait(), 0);
  EXPECT_TRUE(disk.holds("/new/Users/eve/notes.txt"));
  Program second({KLARVIK_SAMPLE_DISK, disk.onDisk("/new")});
  EXPECT_EQ(second.wait(), 1);
  Program wrong({KLARVIK_SAMPLE_DISK, disk.onDisk("/newer"), "--scale", "many"});
  EXPECT_EQ(wrong.wait(), usageError);
  EXPECT_FALSE(disk.holds("/newer"));
}

TEST_F(Probe, BuildsItsSampleDiskInTheShapeThatTheHomeAsksFor) {
  Program linuxShaped({KLARVIK_SAMPLE_DISK, disk.onDisk("/new"), "--home", "/home/eve"});
  EXPECT_THAT(linuxShaped.readToEnd(), SizeIs(1));
  EXPECT_EQ(linuxShaped.wait(), 0);
  EXPECT_TRUE(disk.holds("/new/home/eve/.config/user-dirs.dirs"));
  EXPECT_FALSE(disk.holds("/new/Applications"));
}

}  // namespace
}  // namespace klarvik
