#include "platform/linux/command_runners.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <thread>
#include <vector>

#include "base/posix_io.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

std::optional<std::string> run(const std::string& commandLine) {
  return ShellCommandRunner().run(commandLine);
}

TEST(ShellCommandRunner, GivesBackWhatTheCommandPrints) {
  EXPECT_EQ(run("echo one; echo two"), "one\ntwo\n");
  EXPECT_EQ(run("printf '  as it is  '"), "  as it is  ");
}

TEST(ShellCommandRunner, RunsPipesAndRedirections) {
  EXPECT_EQ(run("printf 'b\\na\\n' | sort | head -n 1; ls /nowhere 2>/dev/null"), "a\n");
}

TEST(ShellCommandRunner, AToolThatIsMissingPrintsNothing) {
  EXPECT_EQ(run("klarvik-no-such-tool --version"), "");
}

TEST(ShellCommandRunner, AToolThatFailsStillPrintsWhatItPrinted) {
  EXPECT_EQ(run("echo partly; exit 3"), "partly\n");
  EXPECT_EQ(run("echo partly; kill -9 $$"), "partly\n");
  EXPECT_EQ(run("if ("), "");
}

TEST(ShellCommandRunner, KeepsErrorsOutOfTheOutput) {
  EXPECT_EQ(run("echo wrong >&2; echo right"), "right\n");
}

TEST(ShellCommandRunner, KeepsBytesThatAreNotUtf8) {
  EXPECT_EQ(run(R"(printf '\377\376\000\303')"), std::string("\xff\xfe\0\xc3", 4));
}

TEST(ShellCommandRunner, TakesOutputOfOneMebibyteWhole) {
  const auto output = run("head -c 1048576 /dev/zero");
  ASSERT_TRUE(output);
  EXPECT_EQ(*output, std::string(1'048'576, '\0'));
}

/// A command that is run in a process of its own, so that it may keep whoever runs it for ever.
class CommandInAProcess {
 public:
  explicit CommandInAProcess(const std::string& commandLine) {
    // In a shell of its own, so that the output of the other one is the pipe at all times.
    const std::string id = _folder.onDisk("id").native();
    const std::string line = "(echo $$ >'" + id + "'); " + commandLine;
    _runner = ::fork();
    if (_runner != 0) return;
    const auto output = run(line);
    _folder.makeFile("length", std::to_string(output ? output->size() : 0));
    ::_exit(0);
  }
  ~CommandInAProcess() {
    if (hasComeBack()) return;
    ::kill(_runner, SIGKILL);
    ::waitpid(_runner, nullptr, 0);
  }
  CommandInAProcess(const CommandInAProcess&) = delete;
  CommandInAProcess& operator=(const CommandInAProcess&) = delete;

  bool hasComeBack() {
    if (!_hasEnded) _hasEnded = ::waitpid(_runner, nullptr, WNOHANG) == _runner;
    return _hasEnded;
  }
  /// How much the runner answered.
  [[nodiscard]] std::string length() const { return _folder.contentOf("length"); }
  /// A second reader of what the command prints.
  [[nodiscard]] UniqueFd openOutput() const {
    const std::string process = _folder.contentOf("id");
    const std::string output = "/proc/" + process.substr(0, process.find('\n')) + "/fd/1";
    return UniqueFd(::open(output.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  }
  [[nodiscard]] bool hasBegun() const {
    return _folder.holds("id") && _folder.contentOf("id").ends_with('\n');
  }

 private:
  TemporaryFolder _folder;
  ::pid_t _runner = 0;
  bool _hasEnded = false;
};

/// False when it never does: the minute only keeps a broken test from hanging.
bool becomes(const std::function<bool()>& condition) {
  const auto giveUp = std::chrono::steady_clock::now() + std::chrono::minutes(1);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > giveUp) return false;
    std::this_thread::yield();
  }
  return true;
}

TEST(ShellCommandRunner, ACommandThatWritesMoreThanThePipeHoldsDoesNotEndUntilSomebodyReads) {
  CommandInAProcess command("exec head -c 1048577 /dev/zero");
  ASSERT_TRUE(becomes([&] { return command.hasBegun() || command.hasComeBack(); }));
  const UniqueFd output = command.openOutput();
  ASSERT_TRUE(output);
  ASSERT_EQ(::fcntl(output.get(), F_GETPIPE_SZ), 1'048'576);
  const auto isFull = [&] {
    int waiting = 0;
    return ::ioctl(output.get(), FIONREAD, &waiting) == 0 && waiting == 1'048'576;
  };
  ASSERT_TRUE(becomes([&] { return isFull() || command.hasComeBack(); }));
  EXPECT_TRUE(isFull());
  EXPECT_FALSE(command.hasComeBack());

  std::array<char, 4096> some{};
  ASSERT_EQ(::read(output.get(), some.data(), some.size()), 4096);
  ASSERT_TRUE(becomes([&] { return command.hasComeBack(); }));
  EXPECT_EQ(command.length(), std::to_string(1'048'577 - 4096));
}

TEST(ShellCommandRunner, GivesTheCommandNothingToRead) {
  EXPECT_EQ(run("cat; echo end"), "end\n");
}

TEST(ShellCommandRunner, HandsTheEnvironmentOn) {
  ::setenv("KLARVIK_TEST_VALUE", "a b;$(c)", 1);
  EXPECT_EQ(run("printf %s \"$KLARVIK_TEST_VALUE\""), "a b;$(c)");
  ::unsetenv("KLARVIK_TEST_VALUE");
}

TEST(ShellCommandRunner, HandsOnNoOpenFile) {
  const int open = ::open("/dev/null", O_RDONLY);
  ASSERT_EQ(::fcntl(open, F_GETFD) & FD_CLOEXEC, 0);
  EXPECT_EQ(run("for fd in 3 4 5 6 7 8 9 " + std::to_string(open) +
                "; do [ -e /dev/fd/$fd ] && echo $fd; done; true"),
            "");
  ::close(open);
}

TEST(ShellCommandRunner, KeepsNoFileOpen) {
  const auto lowestFree = [] {
    const int fd = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(fd);
    return fd;
  };
  const int before = lowestFree();
  for (int turn = 0; turn < 20; ++turn) EXPECT_EQ(run("echo x; echo y >&2"), "x\n");
  EXPECT_EQ(lowestFree(), before);
}

TEST(ShellCommandRunner, GivesTheCommandTheUsualSignals) {
  ::signal(SIGPIPE, SIG_IGN);
  ::sigset_t blocked;
  ::sigset_t before;
  ::sigemptyset(&blocked);
  ::sigaddset(&blocked, SIGTERM);
  ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
  EXPECT_EQ(run("kill -PIPE $$; echo survived"), "");
  EXPECT_EQ(run("kill -TERM $$; echo survived"), "");
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  ::signal(SIGPIPE, SIG_DFL);
}

/// A pipe in a folder of its own.
class NamedPipe {
 public:
  NamedPipe() { EXPECT_EQ(::mkfifo(path().c_str(), 0600), 0); }
  [[nodiscard]] Path path() const { return _folder.path() / "pipe"; }
  /// A command that waits until somebody opens the pipe for writing.
  [[nodiscard]] std::string waiting() const { return ": <" + path().native() + "; "; }

 private:
  TemporaryFolder _folder;
};

TEST(ShellCommandRunner, WaitsForTheEndAlsoWhenSignalsInterruptIt) {
  const NamedPipe pipe;
  static std::string path;
  path = pipe.path();
  EXPECT_TRUE(inChild([&] {
    struct ::sigaction action {};
    action.sa_handler = [](int) {
      static int interruptions = 0;
      const int error = errno;
      if (++interruptions >= 20) ::close(::open(path.c_str(), O_WRONLY | O_NONBLOCK));
      errno = error;
    };
    ::sigaction(SIGALRM, &action, nullptr);
    ::ualarm(1'000, 1'000);
    return run(pipe.waiting() + "echo end") == "end\n";
  }));
}

TEST(ShellCommandRunner, AnswersNothingWhenTheShellCannotBeStarted) {
  EXPECT_TRUE(inChild([] {
    const ::rlimit none{3, 3};
    return ::setrlimit(RLIMIT_NOFILE, &none) == 0 && run("echo x") == std::nullopt;
  }));
  EXPECT_EQ(run(std::string(std::size_t{4} << 20, 'x')), std::nullopt);
}

TEST(ShellCommandRunner, RunsNoPartOfALineWithAZeroByte) {
  const TemporaryFolder folder;
  const std::string command = "touch " + folder.path().native() + "/made";
  EXPECT_EQ(run(command + '\0' + "-not"), std::nullopt);
  EXPECT_FALSE(folder.holds("made"));
}

TEST(ShellCommandRunner, RunsManyCommandsAtOnce) {
  std::vector<std::optional<std::string>> outputs(8);
  const std::vector<NamedPipe> pipes(outputs.size());
  {
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < outputs.size(); ++i) {
      threads.emplace_back(
          [&, i] { outputs[i] = run(pipes[i].waiting() + "echo " + std::to_string(i)); });
    }
    // Each is let go once all are there: opening a pipe waits for its reader.
    std::vector<UniqueFd> opened;
    for (const NamedPipe& pipe : pipes) {
      opened.emplace_back(::open(pipe.path().c_str(), O_WRONLY | O_CLOEXEC));
    }
  }
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    EXPECT_EQ(outputs[i], std::to_string(i) + '\n');
  }
}

}  // namespace
}  // namespace klarvik
