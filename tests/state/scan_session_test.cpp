#include "state/scan_session.h"

#include <gtest/gtest.h>

#include <optional>
#include <variant>

#include "support/application/main_loop.h"
#include "support/fake_clock.h"
#include "support/fake_user_defaults.h"
#include "support/gate.h"

namespace klarvik {
namespace {

class ScanSessionTest : public ::testing::Test {
 protected:
  ~ScanSessionTest() override { gate.open(); }

  void start() {
    session->start<double, int>({.work =
                                     [this](std::stop_token, const auto& post) {
                                       post(0.5);
                                       gate.pass();
                                       return 3;
                                     },
                                 .report = [this](double done) { session->showProgress(done); },
                                 .finish =
                                     [this](int found) {
                                       session->showSummary(std::to_string(found) + " trails");
                                       session->setTotal(3'000, found);
                                     }});
  }
  [[nodiscard]] bool startAndHold() {
    gate.close();
    start();
    return turnMainLoopUntil(
        [this] { return shown() == ToolActivity::State(ToolActivity::Progress{0.5}); });
  }
  [[nodiscard]] ToolActivity::State shown() const { return activity.state("privacy"); }

  Gate gate;
  FakeClock clock;
  FakeUserDefaults defaults;
  ToolActivity activity{clock};
  ScanCoordinator coordinator{defaults};
  std::optional<ScanSession> session{std::in_place, Section::privacy, activity, coordinator, clock};
};

TEST_F(ScanSessionTest, ShowsWhatTheToolIsDoingAndWhatItCameTo) {
  ASSERT_TRUE(startAndHold());
  EXPECT_TRUE(session->isRunning());
  EXPECT_TRUE(coordinator.totals().empty());
  gate.open();
  ASSERT_TRUE(turnMainLoopUntil([this] { return !session->isRunning(); }));
  EXPECT_TRUE(session->hasScanned());
  EXPECT_EQ(shown(), ToolActivity::State(ToolActivity::Finished{"3 trails"}));
  EXPECT_EQ(coordinator.totals().at("privacy"), (ScanCoordinator::Total{3'000, 3, clock.now()}));
}

TEST_F(ScanSessionTest, ShowsNothingOnceItIsCancelled) {
  ASSERT_TRUE(startAndHold());
  session->cancel();
  EXPECT_EQ(shown(), ToolActivity::State(ToolActivity::Idle{}));
  EXPECT_FALSE(session->isRunning());
  EXPECT_TRUE(session->hasScanned());
}

TEST_F(ScanSessionTest, HoldsItsTurnUntilTheScanIsOver) {
  session->startInTurn([this] { start(); });
  EXPECT_TRUE(session->isRunning());
  EXPECT_TRUE(coordinator.busy());
  ASSERT_TRUE(turnMainLoopUntil([this] { return !session->isRunning(); }));
  clock.advance(std::chrono::milliseconds(250));
  EXPECT_FALSE(coordinator.busy());
}

TEST_F(ScanSessionTest, TakesNoTurnOnceTheUserHasScanned) {
  ASSERT_TRUE(startAndHold());
  session->cancel();
  session->startInTurn([] { FAIL(); });
  EXPECT_FALSE(coordinator.busy());
}

TEST_F(ScanSessionTest, StartsNothingWhenItsTurnComesAfterItsEnd) {
  coordinator.waitForTurn("storage");
  session->startInTurn([] { FAIL(); });
  session.reset();
  coordinator.finishTurn();
}

}  // namespace
}  // namespace klarvik
