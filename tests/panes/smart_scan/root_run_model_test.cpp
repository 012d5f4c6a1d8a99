#include "panes/smart_scan/root_run_model.h"

#include "../pane_fixture.h"
#include "panes/smart_scan/smart_scan_texts.h"
#include "places/disk_layout.h"

namespace klarvik {
namespace {

using Phase = RootRunModel::Phase;

class RootRunPane : public PaneFixture {
 protected:
  const std::string line = "pkexec --disable-internal-agent /usr/bin/apt-get clean";
  const CleaningTool& apt = *layoutFor("/home/ann").tool("apt");
  int ended = 0;
  RootRunModel model{desk.tools, [this] { ++ended; }};
};

TEST_F(RootRunPane, ShowsTheCommandAndRunsNothingBeforeTheUserAgrees) {
  EXPECT_EQ(model.phase(), Phase::None);
  model.run();
  model.ask(apt);
  EXPECT_EQ(model.phase(), Phase::Asking);
  EXPECT_EQ(model.command().toStdString(), line);
  EXPECT_EQ(model.title(), "Run this command as administrator?");
  EXPECT_EQ(model.output(), "");
  model.close();
  EXPECT_EQ(model.phase(), Phase::None);
  EXPECT_EQ(model.command(), "");
  EXPECT_TRUE(desk.tools.commandsRun().empty());
  EXPECT_EQ(ended, 0);
}

TEST_F(RootRunPane, ShowsWhatTheCommandPrintedAsTextOnly) {
  desk.tools.answer(line, "one\n\x1b[31mtwo\xff\n\n");
  model.ask(apt);
  model.run();
  EXPECT_EQ(model.phase(), Phase::Running);
  ASSERT_TRUE(turnUntil([this] { return model.phase() == Phase::Ended; }));
  EXPECT_EQ(model.title(), "The command has run");
  EXPECT_TRUE(model.output().startsWith("one\n"));
  EXPECT_TRUE(model.output().endsWith(QStringLiteral("[31mtwo\uFFFD")))
      << model.output().toStdString();
  EXPECT_FALSE(model.output().contains(QChar(0x1b)));
  EXPECT_EQ(ended, 1);
  model.close();
  EXPECT_EQ(model.phase(), Phase::None);
  EXPECT_EQ(model.output(), "");
}

TEST_F(RootRunPane, ThatAsksForAnotherCommandMeanwhileKeepsTheFirst) {
  model.ask(apt);
  model.ask(*layoutFor("/home/ann").tool("dnf"));
  EXPECT_EQ(model.command().toStdString(), line);
}

TEST_F(RootRunPane, AsksForNothingThatIsOnlyTold) {
  model.ask(*layoutFor("/home/ann").tool("coredumps"));
  EXPECT_EQ(model.phase(), Phase::None);
}

TEST_F(RootRunPane, IsNotWaitedForAtTheEndOfTheProgram) {
  desk.tools.act(line, [this] {
    gate.pass();
    return ToolResult{.end = ToolResult::End::stopped};
  });
  gate.close();
  model.ask(apt);
  model.run();
  ASSERT_TRUE(turnUntil([this] { return gate.waiting() == 1; }));
  gate.open();
  model.finish();
  EXPECT_EQ(model.phase(), Phase::Ended);
  EXPECT_EQ(model.title(), "The command is not waited for any more");
}

TEST(RootRunTexts, SayInOneSentenceWhatHasHappened) {
  using smart_scan::rootRunSentence;
  using smart_scan::rootRunTitle;
  using enum RootRun::End;
  EXPECT_EQ(rootRunTitle({.end = dismissed}), "Nothing was run");
  EXPECT_EQ(rootRunSentence({.end = dismissed}), "The question for the password was cancelled.");
  EXPECT_EQ(rootRunSentence({.end = notAllowed}),
            "The password was wrong, or the system allows it to nobody from here. The command can "
            "still be run in a terminal.");
  for (const RootRun::End end : {noAgent, noService, notFound}) {
    EXPECT_EQ(rootRunTitle({.end = end}), "Nothing was run");
  }
  EXPECT_EQ(rootRunSentence({.end = noAgent}),
            "No program that asks for the password runs on this desktop. The command can still be "
            "run in a terminal.");
  EXPECT_EQ(rootRunSentence({.end = noService}),
            "The service that decides about it, polkit, does not answer. The command can still be "
            "run in a terminal.");
  EXPECT_EQ(rootRunSentence({.end = notFound}), "The command is not installed on this computer.");
  EXPECT_EQ(rootRunSentence({.end = notThere}),
            "The program that asks for the password, pkexec, could not be started.");
  EXPECT_EQ(rootRunTitle({.end = failed}), "The command failed");
  EXPECT_EQ(rootRunSentence({.end = failed, .status = 100}), "It ended with the error 100.");
  EXPECT_EQ(rootRunSentence({.end = killed, .status = 9, .isCut = true}),
            "It was ended by the signal 9. It printed more than is shown here.");
}

}  // namespace
}  // namespace klarvik
