#include "platform/linux/command_runners.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "base/posix_io.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using End = ToolResult::End;
using namespace std::chrono_literals;

/// A disk with tools of its own, which are scripts of the machine's shell.
class SystemToolsTest : public testing::Test {
 protected:
  Path script(const Path& place, const std::string& text) const {
    const Path file =
        disk.makeFile(place, "#!/bin/sh\nFIXED=$PATH\nPATH=/usr/bin:/bin\n" + text + "\n");
    ::chmod(file.c_str(), 0755);
    return file;
  }

  [[nodiscard]] ToolResult run(const std::vector<std::string>& command,
                               const ToolLimits& limits = {.time = 20s}) const {
    return SystemTools(disk.path(), UserFolders::in("/home/ann")).run(command, limits);
  }

  /// Of the tool "it", which is `text`.
  [[nodiscard]] ToolResult runScript(const std::string& text,
                                     const ToolLimits& limits = {.time = 20s}) const {
    script("usr/bin/it", text);
    return run({"it"}, limits);
  }

  /// The number that a script has written.
  [[nodiscard]] ::pid_t numberIn(const Path& place) const {
    ::pid_t number = 0;
    std::ifstream(disk.onDisk(place)) >> number;
    return number;
  }

  void SetUp() override { disk.makeFolder("home/ann"); }

  TemporaryFolder disk;
};

/// Ended, whoever it still has to be waited for by.
bool isGone(::pid_t process) {
  const UniqueFd handle(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
  if (!handle) return errno == ESRCH;
  ::pollfd ended{.fd = handle.get(), .events = POLLIN, .revents = 0};
  return ::poll(&ended, 1, 5000) == 1;
}

TEST_F(SystemToolsTest, GivesBackBothOutputsAndTheStatus) {
  const ToolResult result = runScript("echo out; echo err >&2; exit 3");
  EXPECT_EQ(result.end, End::exited);
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.output, "out\n");
  EXPECT_EQ(result.errors, "err\n");
  EXPECT_FALSE(result.isWhole());
  EXPECT_TRUE(runScript("printf '\\377\\000x'").isWhole());
  EXPECT_EQ(runScript("printf '\\377\\000x'").output, std::string("\xff\0x", 3));
}

TEST_F(SystemToolsTest, HandsTheArgumentsOverAsTheyAre) {
  script("usr/bin/it", "for each in \"$@\"; do echo \"<$each>\"; done");
  EXPECT_EQ(run({"it", "a b", "$HOME", "`id`", "*", ";", ""}).output,
            "<a b>\n<$HOME>\n<`id`>\n<*>\n<;>\n<>\n");
}

TEST_F(SystemToolsTest, RunsInEnglishInTheHomeWithAFixedPathAndNothingToRead) {
  const std::string text =
      runScript(
          "pwd; echo $HOME; echo $LC_ALL; echo $FIXED; echo \"<$DOCKER_HOST>\"; read line || "
          "echo end; (: < /dev/tty) 2>/dev/null || echo alone")
          .output;
  const std::string home = disk.onDisk("home/ann").native();
  EXPECT_THAT(text,
              StartsWith(home + "\n" + home + "\nC\n" + disk.onDisk("usr/local/bin").native()));
  EXPECT_THAT(text, EndsWith("<>\nend\nalone\n"));
}

TEST_F(SystemToolsTest, DoesNotLookWhereTheUserLooks) {
  script("opt/own/it", "echo ran");
  const std::string before = ::getenv("PATH");
  ::setenv("PATH", disk.onDisk("opt/own").c_str(), 1);
  EXPECT_EQ(run({"it"}).end, End::notStarted);
  ::setenv("PATH", before.c_str(), 1);
}

TEST_F(SystemToolsTest, DoesNotStartWhatIsMissingOrIsNoName) {
  script("usr/bin/it", "echo ran");
  disk.makeFile("usr/bin/plain", "#!/bin/sh\necho ran\n");
  disk.makeFolder("usr/bin/folder");
  for (const std::vector<std::string>& command :
       std::vector<std::vector<std::string>>{{},
                                             {""},
                                             {"missing"},
                                             {"plain"},
                                             {"folder"},
                                             {"./it"},
                                             {"../bin/it"},
                                             {disk.onDisk("usr/bin/it").native()},
                                             {std::string("it\0x", 4)},
                                             {"it", std::string("a\0b", 3)}}) {
    EXPECT_EQ(run(command).end, End::notStarted);
  }
  EXPECT_EQ(run({"it"}).output, "ran\n");
}

TEST_F(SystemToolsTest, TakesNoToolThatAnybodyCouldHaveChanged) {
  const Path tool = script("usr/bin/it", "echo ran");
  ::chmod(tool.c_str(), 0777);
  EXPECT_EQ(run({"it"}).end, End::notStarted);
  ::chmod(tool.c_str(), 0755);
  ::chmod(disk.onDisk("usr/bin").c_str(), 01777);
  EXPECT_EQ(run({"it"}).end, End::notStarted);
  ::chmod(disk.onDisk("usr/bin").c_str(), 0755);
  EXPECT_EQ(run({"it"}).output, "ran\n");
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give files away";
  ASSERT_EQ(::chown(tool.c_str(), 4711, 4711), 0);
  EXPECT_EQ(run({"it"}).end, End::notStarted);
}

TEST_F(SystemToolsTest, FollowsALinkOnlyToWhereToolsLie) {
  script("usr/lib/it/it", "echo system");
  script("home/ann/own/it", "echo home");
  script("tmp/it", "echo anybody");
  disk.makeFolder("usr/bin");
  const Path link = disk.onDisk("usr/bin/it");
  const auto runsAt = [&](const char* target) {
    std::filesystem::remove(link);
    std::filesystem::create_symlink(target, link);
    return run({"it"}).output;
  };
  EXPECT_EQ(runsAt("../lib/it/it"), "system\n");
  EXPECT_EQ(runsAt("../../home/ann/own/it"), "");
  EXPECT_EQ(runsAt("../../tmp/it"), "");
  EXPECT_EQ(runsAt("nowhere"), "");
}

TEST_F(SystemToolsTest, FindsWhatToolsPutIntoTheHomeAfterTheSystems) {
  script("home/ann/.local/bin/it", "echo home");
  EXPECT_EQ(run({"it"}).output, "home\n");
  script("home/ann/.local/share/it/it", "echo linked");
  std::filesystem::remove(disk.onDisk("home/ann/.local/bin/it"));
  std::filesystem::create_symlink("../share/it/it", disk.onDisk("home/ann/.local/bin/it"));
  EXPECT_EQ(run({"it"}).output, "linked\n");
  script("usr/bin/it", "echo system");
  EXPECT_EQ(run({"it"}).output, "system\n");
}

TEST_F(SystemToolsTest, TellsOfASignal) {
  const ToolResult result = runScript("echo partly; kill -9 $$");
  EXPECT_EQ(result.end, End::signalled);
  EXPECT_EQ(result.status, SIGKILL);
  EXPECT_EQ(result.output, "partly\n");
}

TEST_F(SystemToolsTest, EndsWhatHangsWithAllThatItHasStarted) {
  const ToolResult result =
      runScript("echo begun; sleep 600 & echo $! > child; wait", {.time = 300ms});
  EXPECT_EQ(result.end, End::timedOut);
  EXPECT_EQ(result.output, "begun\n");
  EXPECT_TRUE(isGone(numberIn("home/ann/child")));
}

TEST_F(SystemToolsTest, EndsWhatDoesNotWantToEnd) {
  const ToolResult result = runScript(
      "trap '' TERM; echo $$ > own; (trap '' TERM; while :; do sleep 1; done) & echo $! > child; "
      "while :; do sleep 1; done",
      {.time = 300ms});
  EXPECT_EQ(result.end, End::timedOut);
  EXPECT_TRUE(isGone(numberIn("home/ann/own")));
  EXPECT_TRUE(isGone(numberIn("home/ann/child")));
}

TEST_F(SystemToolsTest, KeepsSoMuchOfAFloodAndNoMore) {
  const ToolResult endless = runScript("yes", {.time = 500ms, .output = 4096});
  EXPECT_EQ(endless.end, End::timedOut);
  EXPECT_EQ(endless.output.size(), 4096U);
  EXPECT_TRUE(endless.isCut);

  const ToolResult ended = runScript("head -c 9000000 /dev/zero; echo wrong >&2", {.time = 20s});
  EXPECT_EQ(ended.end, End::exited);
  EXPECT_EQ(ended.output.size(), 1024UL * 1024);
  EXPECT_EQ(ended.errors, "wrong\n");
  EXPECT_FALSE(ended.isWhole());

  const ToolResult errors = runScript("head -c 9000000 /dev/zero >&2; echo right", {.time = 20s});
  EXPECT_EQ(errors.output, "right\n");
  EXPECT_EQ(errors.errors.size(), 1024UL * 1024);

  const ToolResult exact = runScript("head -c 4096 /dev/zero", {.time = 20s, .output = 4096});
  EXPECT_TRUE(exact.isWhole());
}

TEST_F(SystemToolsTest, WaitsForAToolThatHasClosedItsOutputs) {
  const ToolResult result = runScript("echo said; exec >&- 2>&-; sleep 0.3; echo x > done; exit 7");
  EXPECT_EQ(result.end, End::exited);
  EXPECT_EQ(result.status, 7);
  EXPECT_EQ(result.output, "said\n");
  EXPECT_TRUE(std::filesystem::exists(disk.onDisk("home/ann/done")));
}

TEST_F(SystemToolsTest, DoesNotWaitForWhatAToolLeavesRunning) {
  const ToolResult result = runScript("sleep 600 & echo $! > child; echo said", {.time = 60s});
  EXPECT_EQ(result.end, End::exited);
  EXPECT_EQ(result.output, "said\n");
  const ::pid_t left = numberIn("home/ann/child");
  EXPECT_EQ(::kill(left, 0), 0);
  ::kill(left, SIGKILL);
}

TEST_F(SystemToolsTest, EndsAtAStopFromAnotherThread) {
  std::stop_source stop;
  const Path begun = disk.onDisk("home/ann/begun");
  ASSERT_EQ(::mkfifo(begun.c_str(), 0600), 0);
  // Stays open: the signal of a pipe that nobody reads would end the tool before the stop does.
  std::ifstream waiting;
  const std::jthread stopper([&] {
    // Opened as soon as the tool writes.
    waiting.open(begun);
    stop.request_stop();
  });
  const ToolResult result = runScript("sleep 600 & echo $! > child; echo > begun; wait",
                                      {.time = 60s, .stop = stop.get_token()});
  EXPECT_EQ(result.end, End::stopped);
  EXPECT_TRUE(isGone(numberIn("home/ann/child")));
  EXPECT_EQ(run({"it"}, {.stop = stop.get_token()}).end, End::stopped);
}

TEST_F(SystemToolsTest, LeavesNoFileOpen) {
  const auto openFiles = [] {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  };
  static_cast<void>(runScript("echo first"));
  const auto before = openFiles();
  static_cast<void>(runScript("sleep 600", {.time = 50ms}));
  static_cast<void>(runScript("echo x"));
  static_cast<void>(run({"missing"}));
  EXPECT_EQ(openFiles(), before);
}

TEST(SystemTools, IsTheUsersEnvironmentOnTheMachinesOwnDisk) {
  ::setenv("DOCKER_HOST", "tcp://elsewhere:1", 1);
  ::setenv("BUILDX_BUILDER", "elsewhere", 1);
  ::setenv("KLARVIK_TEST", "kept", 1);
  const ToolResult result =
      SystemTools("/", UserFolders::in(std::filesystem::temp_directory_path()))
          .run(std::vector<std::string>{"env"}, {});
  ::unsetenv("DOCKER_HOST");
  ::unsetenv("BUILDX_BUILDER");
  ::unsetenv("KLARVIK_TEST");
  EXPECT_THAT(result.output,
              AllOf(HasSubstr("KLARVIK_TEST=kept\n"), HasSubstr("LC_ALL=C\n"),
                    HasSubstr("PATH=/usr/local/bin:/usr/bin:/bin:"), Not(HasSubstr("elsewhere"))));
}

}  // namespace
}  // namespace klarvik
