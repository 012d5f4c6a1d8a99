#include "state/section.h"

#include <gtest/gtest.h>

#include "signal_count.h"

namespace klarvik {
namespace {

TEST(Section, HasTheSevenToolsInTheOrderOfTheSidebar) {
  std::vector<std::string_view> keys;
  for (const Tool& tool : tools()) keys.push_back(tool.key);
  EXPECT_EQ(keys, (std::vector<std::string_view>{"smartScan", "storage", "duplicates", "largeFiles",
                                                 "systemData", "uninstaller", "privacy"}));
}

TEST(Section, IsFoundAgainByItsKey) {
  for (const Tool& known : tools()) {
    EXPECT_EQ(toolOf(known.key), &known);
    EXPECT_EQ(&tool(known.section), &known);
  }
  EXPECT_EQ(toolOf("smartscan"), nullptr);
  EXPECT_EQ(toolOf(""), nullptr);
}

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
