#include "engine/root_command.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>
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

TEST_F(RootCommand, TellsACancelledPasswordFromARefusalAndFromAnError) {
  install("echo 'Request dismissed' >&2; exit 126\n");
  EXPECT_EQ(run(),
            (RootRun{.end = End::dismissed, .status = 126, .output = "Request dismissed\n"}));
  install("echo 'No authentication agent found.' >&2; exit 127\n");
  EXPECT_EQ(run().end, End::notAllowed);
  install("printf half; echo 'E: broken' >&2; exit 100\n");
  EXPECT_EQ(run(), (RootRun{.end = End::failed, .status = 100, .output = "half\nE: broken\n"}));
  install("kill -9 $$\n");
  EXPECT_EQ(run(), (RootRun{.end = End::killed, .status = 9}));
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
