#include "engine/shell.h"

#include <gtest/gtest.h>

#include "platform/linux/command_runners.h"
#include "support/fake_command_runner.h"

namespace klarvik {
namespace {

TEST(Shell, TrimsWhatTheCommandPrints) {
  FakeCommandRunner commands;
  commands.answer("tool", " \n two\nlines \n");
  EXPECT_EQ(runShell(commands, "tool"), "two\nlines");
}

TEST(Shell, AToolThatIsMissingOrPrintsNothingGivesTheEmptyText) {
  FakeCommandRunner commands;
  commands.failToStart("broken");
  EXPECT_EQ(runShell(commands, "broken"), "");
  EXPECT_EQ(runShell(commands, "silent"), "");
}

TEST(Shell, AToolThatPrintsRubbishGivesTheEmptyText) {
  FakeCommandRunner commands;
  commands.answer("garbage", "size \xff\xfe\n");
  EXPECT_EQ(runShell(commands, "garbage"), "");
}

TEST(Shell, RunsPipelinesAndTakesNoNoticeOfTheExitStatus) {
  ShellCommandRunner commands;
  EXPECT_EQ(runShell(commands, "printf 'Name x\\n Size 42 B\\n' | grep Size | awk '{print $2}'"),
            "42");
  EXPECT_EQ(runShell(commands, "echo told; exit 3"), "told");
  EXPECT_EQ(runShell(commands, "echo error >&2; exit 3"), "");
  EXPECT_EQ(runShell(commands, "no-such-tool-anywhere 2>/dev/null"), "");
  EXPECT_EQ(runShell(commands, "printf '\\377\\376'"), "");
}

}  // namespace
}  // namespace klarvik
