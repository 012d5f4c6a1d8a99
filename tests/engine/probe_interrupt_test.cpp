// What the first Ctrl-C does to the engine as a process of its own.

#include <gmock/gmock.h>

#include <csignal>
#include <nlohmann/json.hpp>
#include <thread>

#include "support/program.h"
#include "support/property_lists.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using nlohmann::json;

constexpr int endedByInterrupt = 128 + SIGINT;

/// Starts commands that are interrupted before they can have printed a line: the pipe they print
/// into is full from the start, and the interrupt waits for them.
class InterruptedProbe : public testing::Test {
 protected:
  TemporaryFolder disk;
  const std::string app = "/Applications/Writer.app";
  const std::string cache = "/Users/ann/Library/Caches/com.acme.writer";
  const std::string history = "/Users/ann/Library/Safari/History.db";
  const std::string list = "/Users/ann/.local/share/recently-used.xbel";

  InterruptedProbe() {
    disk.makeFile(app + "/Contents/Info.plist", binaryPropertyList({
                                                    {"CFBundleIdentifier", "com.acme.writer"},
                                                    {"CFBundleName", "Writer"},
                                                }));
    disk.makeFile(cache + "/blob", 10);
    disk.makeFile(history, 321);
    disk.makeFolder("/Users/ann/Library/Application Support/com.apple.sharedfilelist");
    disk.makeFile(list, "<xbel version=\"1.0\"><bookmark href=\"file:///x\"/></xbel>");
  }

  [[nodiscard]] Program started(const std::vector<std::string>& command) const {
    // A shell lets signals through again when it has waited for another program.
    std::vector<std::string> words{
        "/bin/sh",
        "-c",
        "dd if=/dev/zero bs=4096 count=16 status=none; exec \"$0\" \"$@\"",
        "/usr/bin/env",
        "--block-signal=INT",
        "/bin/sh",
        "-c",
        "kill -INT $$; exec \"$0\" \"$@\""};
    const std::vector<std::string> probe{KLARVIK_PROBE, "--root", disk.path(), "--home",
                                         "/Users/ann"};
    words.insert(words.end(), probe.begin(), probe.end());
    words.insert(words.end(), command.begin(), command.end());
    return Program(words, "/\n");
  }

  static void waitUntilInterrupted(const Program& program) {
    const Path probe = std::filesystem::canonical(KLARVIK_PROBE);
    while (program.file() != probe || program.hasPending(SIGINT)) std::this_thread::yield();
  }

  /// What it prints last.
  static json lastReport(Program& program) { return json::parse(program.readToEnd().back()); }
};

class InterruptedReading : public InterruptedProbe,
                           public testing::WithParamInterface<std::vector<std::string>> {};

TEST_P(InterruptedReading, EndsAtOnce) {
  Program program = started(GetParam());
  EXPECT_EQ(program.wait(), endedByInterrupt);
}

INSTANTIATE_TEST_SUITE_P(
    Probe, InterruptedReading,
    testing::ValuesIn<std::vector<std::vector<std::string>>>({{"guard", "general"},
                                                              {"measure", "/Users/ann"},
                                                              {"duplicates", "1", "/Users/ann"},
                                                              {"apps"},
                                                              {"residuals", "com.acme.writer"},
                                                              {"system-data"}}),
    [](const auto& test) {
      const std::string& name = test.param.front();
      return name.substr(0, name.find('-'));
    });

TEST_F(InterruptedProbe, AnUninstallationThatHasNotBegunRemovesNothing) {
  Program program = started({"uninstall", "com.acme.writer"});
  waitUntilInterrupted(program);
  EXPECT_EQ(lastReport(program), (json{{"event", "result"}, {"freed", 0}}));
  EXPECT_EQ(program.wait(), 0);
  EXPECT_TRUE(disk.holds(app));
  EXPECT_TRUE(disk.holds(cache + "/blob"));
}

TEST_F(InterruptedProbe, AClearingThatHasNotBegunClearsNothing) {
  const std::string before = disk.contentOf(list);
  Program program = started({"privacy", "clear"});
  waitUntilInterrupted(program);
  EXPECT_EQ(lastReport(program), (json{{"event", "cleared"}, {"cleaned", 0}, {"freed", 0}}));
  EXPECT_EQ(program.wait(), 0);
  EXPECT_EQ(disk.contentOf(list), before);
}

}  // namespace
}  // namespace klarvik
