#include "engine/root_command.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

#include "places/disk_layout.h"
#include "platform/linux/command_runners.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using End = RootRun::End;

/// A disk with a pkexec of its own, which is a script.
class RootCommand : public testing::Test {
 protected:
  void SetUp() override { disk.makeFolder("home/ann"); }

  void install(const std::string& text) const {
    const Path file = disk.makeFile("usr/bin/pkexec", "#!/bin/sh\nPATH=/usr/bin:/bin\n" + text);
    ASSERT_EQ(::chmod(file.c_str(), 0755), 0);
  }
  RootRun run(const std::stop_token& stop = {}) { return runAsRoot(tools, apt, stop); }

  TemporaryFolder disk;
  SystemTools tools{disk.path(), UserFolders::in("/home/ann")};
  const CleaningTool& apt = *layoutFor("/home/ann").tool("apt");
};

TEST_F(RootCommand, IsStartedWithConstantsAndNoShell) {
  install("printf '%s\\n' \"$@\"\n");
  const RootRun done = run();
  EXPECT_EQ(done.end, End::done);
  EXPECT_EQ(done.output, "--disable-internal-agent\n/usr/bin/apt-get\nclean\n");
  EXPECT_THAT(rootCommand(apt), testing::ElementsAre("pkexec", "--disable-internal-agent",
                                                     "/usr/bin/apt-get", "clean"));
}

TEST_F(RootCommand, IsOfferedOnlyWhereTheSystemCanAskForThePassword) {
  EXPECT_FALSE(canRunAsRoot(tools, {}));
  install("echo 'pkexec version 122'\n");
  EXPECT_TRUE(canRunAsRoot(tools, {}));
  install("exit 1\n");
  EXPECT_FALSE(canRunAsRoot(tools, {}));
  std::filesystem::remove(disk.onDisk("usr/bin/pkexec"));
  EXPECT_EQ(run().end, End::notThere);
}

// What pkexec 122 printed, and how it ended.
TEST_F(RootCommand, TellsACancelledPasswordFromARefusalAndFromAnError) {
  const std::string start = "Error executing command as another user: ";
  const auto endAfter = [&](const std::string& said, int status) {
    install("printf '" + said + "\\n' >&2; exit " + std::to_string(status) + "\n");
    return run().end;
  };
  install("echo '" + start + "Request dismissed' >&2; exit 126\n");
  EXPECT_EQ(
      run(),
      (RootRun{.end = End::dismissed, .status = 126, .output = start + "Request dismissed\n"}));
  EXPECT_EQ(endAfter(start + "Not authorized\\n\\nThis incident has been reported.", 127),
            End::notAllowed);
  EXPECT_EQ(endAfter(start + "No authentication agent found.", 127), End::noAgent);
  EXPECT_EQ(endAfter("a warning\\n" + start + "No authentication agent found.", 127), End::noAgent);
  EXPECT_EQ(endAfter("Error getting authority: Error initializing authority: Could not connect: "
                     "Connection refused",
                     127),
            End::noService);
  EXPECT_EQ(endAfter("Error accessing /usr/bin/apt-get: No such file or directory", 127),
            End::notFound);
  install("printf half; echo 'E: broken' >&2; exit 100\n");
  EXPECT_EQ(run(), (RootRun{.end = End::failed, .status = 100, .output = "half\nE: broken\n"}));
  install("kill -9 $$\n");
  EXPECT_EQ(run(), (RootRun{.end = End::killed, .status = 9}));
}

TEST_F(RootCommand, ThatWasRunAndEndsAsPkexecDoesIsNotCalledRefused) {
  for (const int status : {126, 127}) {
    install("echo 'sh: dnf: not found' >&2; exit " + std::to_string(status) + "\n");
    EXPECT_EQ(run(),
              (RootRun{.end = End::failed, .status = status, .output = "sh: dnf: not found\n"}));
  }
}

TEST(RealPkexec, SaysThatACommandIsNotThere) {
  if (::access("/usr/bin/pkexec", X_OK) != 0) GTEST_SKIP() << "there is no pkexec";
  SystemTools tools("/", UserFolders::in("/"));
  const std::array<std::string_view, 1> missing{"/usr/bin/klarvik-is-no-such-program"};
  const CleaningTool tool{.id = "missing", .name = "missing", .asRoot = missing};
  EXPECT_TRUE(canRunAsRoot(tools, {}));
  const RootRun run = runAsRoot(tools, tool, {});
  EXPECT_EQ(run.end, End::notFound) << run.output;
  EXPECT_EQ(run.status, 127);
}

TEST_F(RootCommand, ThatHangsIsNotWaitedForAfterAStop) {
  const Path started = disk.onDisk("started");
  ASSERT_EQ(::mkfifo(started.c_str(), 0600), 0);
  install("echo yes >'" + started.native() + "'; sleep 1000\n");
  std::stop_source stop;
  std::jthread stopping([&] {
    std::string line;
    std::getline(std::ifstream(started) >> std::ws, line);
    EXPECT_EQ(line, "yes");
    stop.request_stop();
  });
  EXPECT_EQ(run(stop.get_token()).end, End::leftAlone);
}

TEST_F(RootCommand, ThatFloodsIsCut) {
  install("yes | head --bytes=3000000\n");
  const RootRun done = run();
  EXPECT_EQ(done.end, End::done);
  EXPECT_TRUE(done.isCut);
  EXPECT_LE(done.output.size(), 64U * 1024 + 1);
}

TEST_F(RootCommand, OfAToolThatIsOnlyToldIsNeverRun) {
  install("touch \"$0.ran\"\n");
  for (const char* told : {"coredumps", "snapd-cache", "zypper", "go"}) {
    EXPECT_EQ(runAsRoot(tools, *layoutFor("/home/ann").tool(told), {}).end, End::notThere) << told;
  }
  EXPECT_FALSE(disk.holds("usr/bin/pkexec.ran"));
}

}  // namespace
}  // namespace klarvik
