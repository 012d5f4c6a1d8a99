#include "engine/shell.h"

#include <gtest/gtest.h>

#include "support/canned_command_runner.h"

namespace klarvik {
namespace {

TEST(Shell, TrimsWhatTheCommandPrints) {
  CannedCommandRunner commands;
  commands.answer("tool", " \n two\nlines \n");
  EXPECT_EQ(runShell(commands, "tool"), "two\nlines");
}

TEST(Shell, AToolThatIsMissingOrPrintsNothingGivesTheEmptyText) {
  CannedCommandRunner commands;
  commands.failToStart("broken");
  EXPECT_EQ(runShell(commands, "broken"), "");
  EXPECT_EQ(runShell(commands, "silent"), "");
}

TEST(Shell, AToolThatPrintsRubbishGivesTheEmptyText) {
  CannedCommandRunner commands;
  commands.answer("rubbish", "size \xff\xfe\n");
  EXPECT_EQ(runShell(commands, "rubbish"), "");
}

}  // namespace
}  // namespace klarvik
