#include "platform/own_process.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <thread>

namespace klarvik {
namespace {

int niceness() {
  return ::getpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()));
}

TEST(BackgroundThread, GetsOutOfTheWayAloneAndIsNeverStarved) {
  const int before = niceness();
  int inBackground = before;
  int policy = SCHED_IDLE;
  std::thread([&] {
    becomeBackgroundThread();
    inBackground = niceness();
    policy = ::sched_getscheduler(0);
  }).join();
  constexpr int lowest = 19;
  EXPECT_EQ(inBackground, std::min(before + 10, lowest));
  EXPECT_EQ(niceness(), before);
  EXPECT_EQ(policy, SCHED_OTHER);
}

}  // namespace
}  // namespace klarvik
