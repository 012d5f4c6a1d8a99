#include "base/posix_io.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <cerrno>
#include <string>

#include "support/system_call_faults.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class WriteAll : public testing::Test {
 protected:
  [[nodiscard]] UniqueFd open() const {
    return UniqueFd(::open((folder.path() / "file").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
  }

  TemporaryFolder folder;
};

TEST_F(WriteAll, WritesAfterWhatHasBeenWritten) {
  const UniqueFd file = open();
  EXPECT_TRUE(writeAll(file.get(), "first "));
  EXPECT_TRUE(writeAll(file.get(), {}));
  EXPECT_TRUE(writeAll(file.get(), "second"));
  EXPECT_EQ(folder.contentOf("file"), "first second");
}

TEST_F(WriteAll, GoesOnAfterASignal) {
  bool reached = true;
  for (int at = 1; reached; ++at) {
    const UniqueFd file = open();
    const FaultyRun run = runWithFault(
        {.kind = SystemCallFault::Kind::failsOnce, .at = at, .error = EINTR, .disturbance = {}},
        [&] { return writeAll(file.get(), "text"); });
    EXPECT_TRUE(run.answer) << at;
    EXPECT_EQ(folder.contentOf("file"), "text") << at;
    reached = run.reached;
  }
}

TEST_F(WriteAll, FailsWhereAWriteIsCutShort) {
  const UniqueFd file = open();
  const FaultyRun run = runWithFault({}, [&] {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{20, 20};
    return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 && !writeAll(file.get(), std::string(50, 'x'));
  });
  EXPECT_TRUE(run.answer);
}

TEST_F(WriteAll, FailsOnAFileThatIsNotOpen) {
  EXPECT_FALSE(writeAll(-1, "text"));
}

}  // namespace
}  // namespace klarvik
