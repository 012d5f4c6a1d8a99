#include "platform/desktop/single_instance.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QLocalSocket>
#include <QProcess>
#include <csignal>
#include <memory>
#include <vector>

#include "support/application/main_loop.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using Claim = SingleInstance::Claim;
using Start = SingleInstance::Start;

constexpr int longestWait = 60'000;

// Another start of the program, in a process of its own.
class OtherProcess {
 public:
  explicit OtherProcess(const Start& start, const QString& whenAsked = "runs on") {
    _process.start(
        CLAIMING_PROGRAM,
        {QString::fromStdString(start.home), QString::fromStdString(start.folder),
         QString::number(start.user), QString::fromStdString(start.session.x11), whenAsked});
  }
  ~OtherProcess() { kill(); }
  OtherProcess(const OtherProcess&) = delete;
  OtherProcess& operator=(const OtherProcess&) = delete;

  // The next line that it prints; empty when it ends instead.
  QByteArray said() {
    while (!_process.canReadLine()) {
      if (!_process.waitForReadyRead(longestWait)) return {};
    }
    return _process.readLine().trimmed();
  }

  // Whether it has printed a line that has not been asked for, by what the main loop has seen.
  bool hasSaid() const { return _process.canReadLine(); }

  bool isGranted() { return said() == "granted"; }
  void hang() { ::kill(static_cast<pid_t>(_process.processId()), SIGSTOP); }
  void kill() {
    _process.kill();
    _process.waitForFinished(longestWait);
  }

 private:
  QProcess _process;
};

class SingleInstanceTest : public testing::Test {
 protected:
  SingleInstanceTest() {
    _disk.makeFolder("home/ann");
    _disk.makeFile("file");
  }

  [[nodiscard]] Start start() const {
    Start start;
    start.home = _disk.onDisk("home/ann");
    start.folder = _disk.onDisk("home/ann/.config/klarvik");
    start.user = ::geteuid();
    start.session = {":7", ""};
    start.patience = 60s;
    return start;
  }

  // One that cannot lock anything, as where the configuration folder is read-only.
  [[nodiscard]] Start startWithoutLock() const {
    Start start = this->start();
    start.folder = _disk.onDisk("file/klarvik");
    return start;
  }

  static Claim claimOf(const Start& start) { return SingleInstance(start).claim(); }

  TemporaryFolder _disk;
};

TEST_F(SingleInstanceTest, TheFirstStartIsGranted) {
  EXPECT_EQ(claimOf(start()), Claim::granted);
}

TEST_F(SingleInstanceTest, TheLockIsForNobodyElseToRead) {
  SingleInstance instance(start());
  ASSERT_EQ(instance.claim(), Claim::granted);
  struct ::stat folder {
  }, lock{};
  ASSERT_EQ(::stat(start().folder.c_str(), &folder), 0);
  ASSERT_EQ(::stat((start().folder / "instance.lock").c_str(), &lock), 0);
  EXPECT_EQ(folder.st_mode & 0777U, 0700U);
  EXPECT_EQ(lock.st_mode & 0777U, 0600U);
}

TEST_F(SingleInstanceTest, EachFurtherStartFrontsTheFirst) {
  OtherProcess first(start());
  ASSERT_TRUE(first.isGranted());
  for (int time = 0; time < 3; ++time) {
    EXPECT_EQ(claimOf(start()), Claim::fronted);
    EXPECT_EQ(first.said(), "fronted");
  }
}

TEST_F(SingleInstanceTest, TheNextStartIsGrantedAfterTheFirstHasGone) {
  { EXPECT_EQ(claimOf(start()), Claim::granted); }
  EXPECT_EQ(claimOf(start()), Claim::granted);
}

TEST_F(SingleInstanceTest, ACrashLeavesNothingThatRefusesTheNextStart) {
  for (const Start& start : {this->start(), startWithoutLock()}) {
    OtherProcess first(start);
    ASSERT_TRUE(first.isGranted());
    first.kill();
    EXPECT_EQ(claimOf(start), Claim::granted);
  }
}

TEST_F(SingleInstanceTest, AFirstThatHangsIsNotJoinedByASecond) {
  OtherProcess first(start());
  ASSERT_TRUE(first.isGranted());
  first.hang();
  Start second = start();
  second.patience = 300ms;
  EXPECT_EQ(claimOf(second), Claim::unanswered);
}

TEST_F(SingleInstanceTest, AFirstThatEndsWhileItIsAskedIsSucceeded) {
  OtherProcess first(start(), "ends");
  ASSERT_TRUE(first.isGranted());
  EXPECT_EQ(claimOf(start()), Claim::granted);
  EXPECT_EQ(first.said(), "fronted");
}

TEST_F(SingleInstanceTest, AFirstThatHasNotReachedItsMainLoopIsWaitedFor) {
  SingleInstance first(start());
  ASSERT_EQ(first.claim(), Claim::granted);
  OtherProcess second(start());
  int fronted = 0;
  first.whenStartedAgain([&fronted] { ++fronted; });
  EXPECT_TRUE(turnMainLoopUntil([&] { return fronted == 1 && second.hasSaid(); }));
  EXPECT_EQ(second.said(), "refused");
}

TEST_F(SingleInstanceTest, OfManyStartsAtOnceExactlyOneIsGranted) {
  std::vector<std::unique_ptr<OtherProcess>> starts;
  for (int count = 0; count < 6; ++count) {
    starts.push_back(std::make_unique<OtherProcess>(start()));
  }
  int granted = 0, refused = 0, fronted = 0;
  OtherProcess* first = nullptr;
  for (const auto& one : starts) {
    const QByteArray said = one->said();
    if (said == "granted") {
      ++granted;
      first = one.get();
    } else if (said == "refused") {
      ++refused;
    }
  }
  EXPECT_EQ(granted, 1);
  EXPECT_EQ(refused, 5);
  ASSERT_NE(first, nullptr);
  while (fronted < 5 && first->said() == "fronted") ++fronted;
  EXPECT_EQ(fronted, 5);
}

TEST_F(SingleInstanceTest, EachHomeHasItsOwn) {
  OtherProcess first(start());
  ASSERT_TRUE(first.isGranted());
  Start other = start();
  other.home = _disk.makeFolder("home/ben");
  other.folder = other.home / ".config/klarvik";
  EXPECT_EQ(claimOf(other), Claim::granted);
}

TEST_F(SingleInstanceTest, OneHomeIsOneHoweverItIsSpelled) {
  OtherProcess first(start());
  ASSERT_TRUE(first.isGranted());
  Start other = start();
  other.home = _disk.makeLink("linked", "home/ann");
  other.folder = _disk.onDisk("another configuration/klarvik");
  EXPECT_EQ(claimOf(other), Claim::fronted);
}

TEST_F(SingleInstanceTest, WhereNothingCanBeLockedTheNameStandsGuard) {
  OtherProcess first(startWithoutLock());
  ASSERT_TRUE(first.isGranted());
  EXPECT_EQ(claimOf(startWithoutLock()), Claim::fronted);
  EXPECT_EQ(claimOf(start()), Claim::fronted);
}

TEST_F(SingleInstanceTest, AStartOnAnotherDisplayIsToldSoAndFrontsNothing) {
  OtherProcess first(start());
  ASSERT_TRUE(first.isGranted());
  Start other = start();
  other.session = {":8", ""};
  EXPECT_EQ(claimOf(other), Claim::elsewhere);
  EXPECT_EQ(claimOf(start()), Claim::fronted);
  EXPECT_EQ(first.said(), "fronted");
}

TEST_F(SingleInstanceTest, ANameTakenByAnotherUserNeitherStopsTheFirstStartNorAnswersTheSecond) {
  // For a user other than the one who runs this test, every process here is another user's.
  Start squatter = start();
  squatter.user = ::geteuid() + 1;
  squatter.folder = _disk.onDisk("home/squatter/klarvik");
  OtherProcess name(squatter);
  ASSERT_TRUE(name.isGranted());

  Start start = this->start();
  start.user = squatter.user;
  start.patience = 300ms;
  SingleInstance first(start);
  EXPECT_EQ(first.claim(), Claim::granted);
  EXPECT_EQ(claimOf(start), Claim::unanswered);
}

TEST_F(SingleInstanceTest, AnotherUsersProcessIsTurnedAwayAndFrontsNothing) {
  Start start = this->start();
  start.user = ::geteuid() + 1;
  SingleInstance first(start);
  ASSERT_EQ(first.claim(), Claim::granted);
  int fronted = 0;
  first.whenStartedAgain([&fronted] { ++fronted; });

  struct ::stat home {};
  ASSERT_EQ(::stat(start.home.c_str(), &home), 0);
  QLocalSocket stranger;
  stranger.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
  stranger.connectToServer(
      QString("klarvik-%1-%2-%3").arg(start.user).arg(home.st_dev).arg(home.st_ino));
  ASSERT_TRUE(stranger.waitForConnected(longestWait));
  stranger.write(":7\n\n\n");
  EXPECT_TRUE(
      turnMainLoopUntil([&] { return stranger.state() == QLocalSocket::UnconnectedState; }));
  EXPECT_EQ(stranger.readAll(), "");
  EXPECT_EQ(fronted, 0);
}

TEST_F(SingleInstanceTest, AQuestionWithoutEndIsCutOff) {
  SingleInstance first(start());
  ASSERT_EQ(first.claim(), Claim::granted);
  first.whenStartedAgain([] {});
  struct ::stat home {};
  ASSERT_EQ(::stat(start().home.c_str(), &home), 0);
  QLocalSocket chatterer;
  chatterer.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
  chatterer.connectToServer(
      QString("klarvik-%1-%2-%3").arg(::geteuid()).arg(home.st_dev).arg(home.st_ino));
  ASSERT_TRUE(chatterer.waitForConnected(longestWait));
  chatterer.write(QByteArray(1 << 20, 'x'));
  EXPECT_TRUE(
      turnMainLoopUntil([&] { return chatterer.state() == QLocalSocket::UnconnectedState; }));
}

}  // namespace
}  // namespace klarvik
