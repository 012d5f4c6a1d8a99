#include "platform/main_loop/coalescing_queue.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "support/application/main_loop.h"
#include "support/fake_clock.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

/// Reports are texts here: a lower-case one is an update, which a newer update replaces; an
/// upper-case one is a find, which stands.
class CoalescingQueueTest : public ::testing::Test {
 protected:
  static bool isUpdate(const std::string& report) { return report.front() >= 'a'; }

  FakeClock clock;
  std::vector<std::string> applied;
  std::optional<CoalescingQueue<std::string>> mailbox{
      std::in_place, clock, [this](std::string report) { applied.push_back(std::move(report)); },
      [](const std::string& newer, const std::string& older) {
        return isUpdate(newer) && isUpdate(older);
      }};
};

TEST_F(CoalescingQueueTest, AppliesOnTheMainLoopAndNotBefore) {
  mailbox->post("a");
  EXPECT_TRUE(applied.empty());
  turnMainLoop();
  EXPECT_EQ(applied, std::vector<std::string>{"a"});
}

TEST_F(CoalescingQueueTest, KeepsTheOrderAndOnlyTheLastOfConsecutiveUpdates) {
  for (const char* report : {"a", "b", "ONE", "TWO", "c", "d", "e", "THREE", "f"}) {
    mailbox->post(report);
  }
  turnMainLoop();
  EXPECT_EQ(applied, (std::vector<std::string>{"b", "ONE", "TWO", "e", "THREE", "f"}));
}

TEST_F(CoalescingQueueTest, TheFirstIsAppliedAtOnceAndThenOnceInEachPause) {
  mailbox->post("a");
  turnMainLoop();
  mailbox->post("b");
  turnMainLoop();
  EXPECT_EQ(applied, std::vector<std::string>{"a"});
  clock.advance(15ms);
  EXPECT_EQ(applied, std::vector<std::string>{"a"});
  clock.advance(1ms);
  EXPECT_EQ(applied, (std::vector<std::string>{"a", "b"}));
}

TEST_F(CoalescingQueueTest, AfterAQuietPauseTheNextIsAppliedAtOnceAgain) {
  mailbox->post("a");
  turnMainLoop();
  clock.advance(16ms);
  mailbox->post("b");
  turnMainLoop();
  EXPECT_EQ(applied, (std::vector<std::string>{"a", "b"}));
}

TEST_F(CoalescingQueueTest, CanBeEmptiedAtAnyTime) {
  mailbox->post("a");
  mailbox->post("ONE");
  mailbox->empty();
  EXPECT_EQ(applied, (std::vector<std::string>{"a", "ONE"}));
  turnMainLoop();
  EXPECT_EQ(applied.size(), 2U);
}

TEST_F(CoalescingQueueTest, NothingIsAppliedOnceItIsGone) {
  mailbox->post("a");
  mailbox.reset();
  turnMainLoop();
  EXPECT_TRUE(applied.empty());
  EXPECT_EQ(clock.pendingAlarms(), 0U);
}

TEST_F(CoalescingQueueTest, LosesNothingThatStandsWhenAnotherThreadPosts) {
  std::atomic<bool> done = false;
  std::thread engine([&] {
    for (int find = 0; find < 1000; ++find) {
      mailbox->post("update");
      mailbox->post("FIND " + std::to_string(find));
    }
    done = true;
  });
  ASSERT_TRUE(turnMainLoopUntil([&] {
    clock.advance(16ms);
    return done.load();
  }));
  engine.join();
  mailbox->empty();
  std::erase_if(applied, isUpdate);
  ASSERT_EQ(applied.size(), 1000U);
  for (int find = 0; find < 1000; ++find) {
    EXPECT_EQ(applied[static_cast<std::size_t>(find)], "FIND " + std::to_string(find));
  }
}

}  // namespace
}  // namespace klarvik
