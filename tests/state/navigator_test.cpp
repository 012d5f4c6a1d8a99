#include "state/navigator.h"

#include <gtest/gtest.h>

#include "signal_count.h"

namespace klarvik {
namespace {

TEST(Navigator, BeginsOnSmartScan) {
  EXPECT_EQ(Navigator().section(), Section::smartScan);
}

TEST(Navigator, TellsOnlyOfAnotherSection) {
  Navigator navigator;
  const SignalCount changes(navigator, &Navigator::sectionChanged);
  navigator.setSection(Section::smartScan);
  EXPECT_EQ(changes.get(), 0);
  navigator.setSection(Section::privacy);
  navigator.setSection(Section::privacy);
  EXPECT_EQ(changes.get(), 1);
  EXPECT_EQ(navigator.section(), Section::privacy);
}

}  // namespace
}  // namespace klarvik
