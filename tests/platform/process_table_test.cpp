#include "platform/linux/process_table.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>

#include "base/posix_io.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

/// What the kernel would show of a process of this user.
void addProcess(const TemporaryFolder& table, const Path& number, const std::string& name,
                std::string words, const std::string& groups = "") {
  table.makeFile("/" / number / "comm", name + "\n");
  table.makeFile("/" / number / "cmdline", std::string_view(words));
  table.makeFile("/" / number / "cgroup", groups);
}

TEST(ProcessTable, KnowsAProgramByItsNameItsFileAndItsMainClass) {
  const TemporaryFolder table;
  addProcess(table, "10", "firefox", {"/usr/lib/firefox/firefox\0--new-window\0", 38});
  addProcess(table, "11", "GPU Process", {"/opt/vivaldi/vivaldi-bin\0", 25});
  addProcess(table, "12", "java",
             {"/usr/bin/java\0-Xmx1g\0org.gradle.launcher.GradleDaemon\0", 54});
  addProcess(table, "13", "gnome-terminal-", {"/usr/libexec/gnome-terminal-server\0", 36});
  addProcess(table, "14", "vim", {"vim\0steam\0", 10});
  const ProcessTable programs(table.path());
  for (const char* name :
       {"firefox", "vivaldi-bin", "java", "GradleDaemon", "gnome-terminal-server"}) {
    EXPECT_TRUE(programs.isRunning(name)) << name;
  }
  for (const char* name : {"chrome", "fire", "fox", "steam", "GPU", "bin"}) {
    EXPECT_FALSE(programs.isRunning(name)) << name;
  }
}

TEST(ProcessTable, ALockIsHeldWhileItsProcessRunsOrWhileNobodyCanTell) {
  const TemporaryFolder folder;
  folder.makeFile("/proc/10/comm", "firefox\n");
  std::array<char, 256> machine{};
  ASSERT_EQ(::gethostname(machine.data(), machine.size() - 1), 0);
  const ProcessTable programs(folder.onDisk("/proc"));
  const auto isHeld = [&](const std::string& text) {
    std::filesystem::remove(folder.onDisk("/lock"));
    folder.makeLink("/lock", text);
    return programs.isLockHeld(folder.onDisk("/lock"));
  };
  EXPECT_TRUE(isHeld("127.0.1.1:+10"));
  EXPECT_FALSE(isHeld("127.0.1.1:+11"));
  EXPECT_TRUE(isHeld(std::string(machine.data()) + "-10"));
  EXPECT_FALSE(isHeld(std::string(machine.data()) + "-11"));
  EXPECT_TRUE(isHeld("another machine of the same home-11"));
  for (const char* garbage : {"x", "12", "host-", "-"}) EXPECT_FALSE(isHeld(garbage)) << garbage;
  folder.makeFile("/no link", 1);
  EXPECT_FALSE(programs.isLockHeld(folder.onDisk("/no link")));
  EXPECT_FALSE(programs.isLockHeld(folder.onDisk("/missing")));
}

TEST(ProcessTable, AProcessThatHasEndedRunsNoMoreWhileItsEntryStands) {
  const TemporaryFolder folder;
  const auto add = [&](const std::string& number, const std::string& name, const std::string& state,
                       const std::string& threads) {
    const Path process = Path("/proc") / number;
    folder.makeFile(process / "comm", name + "\n");
    folder.makeFile(process / "cmdline", std::string_view(name));
    folder.makeFile(process / "cgroup", "0::/user.slice/snap." + name + ".x-1.scope\n");
    folder.makeFile(process / "status", "Name:\t" + name + "\nUmask:\t0022\nState:\t" + state +
                                            "\nTgid:\t1\nThreads:\t" + threads + "\nSigQ:\t1\n");
  };
  add("10", "chromium", "Z (zombie)", "1");
  add("11", "firefox", "S (sleeping)", "1");
  add("12", "writer", "Z (zombie)", "12");
  const ProcessTable programs(folder.onDisk("/proc"));
  EXPECT_FALSE(programs.isRunning("chromium"));
  EXPECT_FALSE(programs.isSandboxRunning("chromium"));
  for (const char* name : {"firefox", "writer"}) {
    EXPECT_TRUE(programs.isRunning(name)) << name;
    EXPECT_TRUE(programs.isSandboxRunning(name)) << name;
  }
  folder.makeLink("/ended", "127.0.1.1:+10");
  folder.makeLink("/goes on", "127.0.1.1:+12");
  EXPECT_FALSE(programs.isLockHeld(folder.onDisk("/ended")));
  EXPECT_TRUE(programs.isLockHeld(folder.onDisk("/goes on")));
}

TEST(ProcessTable, ARealProcessThatHasEndedRunsNoMore) {
  const ::pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::siginfo_t ended{};
  ASSERT_EQ(::waitid(P_PID, static_cast<::id_t>(child), &ended, WEXITED | WNOWAIT), 0);
  const TemporaryFolder folder;
  folder.makeLink("/lock", "127.0.1.1:+" + std::to_string(child));
  EXPECT_TRUE(std::filesystem::exists("/proc/" + std::to_string(child)));
  EXPECT_FALSE(ProcessTable().isLockHeld(folder.onDisk("/lock")));
  EXPECT_EQ(::waitpid(child, nullptr, 0), child);
}

TEST(ProcessTable, KnowsAnApplicationInItsSandbox) {
  const TemporaryFolder table;
  addProcess(table, "10", "writer", "writer",
             "0::/user.slice/app-flatpak-org.acme.Writer-1234.scope\n");
  addProcess(table, "11", "spotify", "spotify", "0::/user.slice/snap.spotify.spotify-12.scope\n");
  const ProcessTable programs(table.path());
  EXPECT_TRUE(programs.isSandboxRunning("org.acme.Writer"));
  EXPECT_TRUE(programs.isSandboxRunning("spotify"));
  EXPECT_FALSE(programs.isSandboxRunning("org.acme"));
  EXPECT_FALSE(programs.isSandboxRunning("spot"));
}

TEST(ProcessTable, KnowsWhatARealProcessIsAndHasOpen) {
  const TemporaryFolder folder;
  folder.makeFile("/open/file", 1);
  folder.makeFile("/other/file", 1);
  std::array<int, 2> ready{};
  std::array<int, 2> silence{};
  ASSERT_EQ(::pipe(ready.data()), 0);
  ASSERT_EQ(::pipe(silence.data()), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    const std::string file = folder.onDisk("/open/file");
    ::dup2(ready[1], STDOUT_FILENO);
    ::dup2(silence[0], STDIN_FILENO);
    ::execl("/bin/sh", "klarvik-test-shell", "-c", "exec 9<\"$1\"; echo; read never", "sh",
            file.c_str(), nullptr);
    ::_exit(1);
  }
  ::close(ready[1]);
  char byte = 0;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  const ProcessTable programs;
  EXPECT_TRUE(programs.isRunning("klarvik-test-shell"));
  EXPECT_TRUE(programs.hasOpen(folder.onDisk("/open/file")));
  EXPECT_TRUE(programs.hasOpen(folder.onDisk("/open")));
  EXPECT_FALSE(programs.hasOpen(folder.onDisk("/other")));
  EXPECT_FALSE(programs.hasOpen(folder.onDisk("/ope")));
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  EXPECT_FALSE(programs.isRunning("klarvik-test-shell"));
}

TEST(ProcessTable, FindsWhatIsDeletedAndStillOpenEachFileOnce) {
  const TemporaryFolder folder;
  const Path path = folder.makeFile("/gone", 40'000);
  const Path kept = folder.makeFile("/kept", 40'000);
  const UniqueFd open{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
  const UniqueFd again{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
  const UniqueFd linked{::open(kept.c_str(), O_RDONLY | O_CLOEXEC)};
  std::filesystem::create_hard_link(kept, folder.onDisk("/other name"));
  struct stat status {};
  ASSERT_EQ(::fstat(open.get(), &status), 0);
  std::filesystem::remove(path);
  std::filesystem::remove(kept);
  std::int64_t bytes = 0;
  int found = 0;
  for (const DeletedOpenFile& file : ProcessTable().deletedOpenFiles(folder.path())) {
    if (file.file.inode != status.st_ino) continue;
    bytes += file.bytes;
    ++found;
    EXPECT_EQ(file.program, "platform_tests");
  }
  EXPECT_EQ(found, 1);
  EXPECT_GE(bytes, 40'000);
  struct stat other {};
  ASSERT_EQ(::fstat(linked.get(), &other), 0);
  for (const DeletedOpenFile& file : ProcessTable().deletedOpenFiles(folder.path())) {
    EXPECT_NE(file.file.inode, other.st_ino);
  }
}

TEST(ProcessTable, KnowsNothingWhereThereIsNoTable) {
  const ProcessTable programs("/nowhere/at/all");
  EXPECT_FALSE(programs.isRunning("firefox"));
  EXPECT_FALSE(programs.hasOpen("/tmp"));
}

}  // namespace
}  // namespace klarvik
