#include "state/section.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(Section, HasTheSevenToolsInTheOrderOfTheSidebar) {
  std::vector<std::string_view> keys;
  for (const Section section : allSections()) keys.push_back(rawValue(section));
  EXPECT_EQ(keys, (std::vector<std::string_view>{"smartScan", "storage", "duplicates", "largeFiles",
                                                 "systemData", "uninstaller", "privacy"}));
}

TEST(Section, IsFoundAgainByItsRawValue) {
  for (const Section known : allSections()) EXPECT_EQ(section(rawValue(known)), known);
  EXPECT_EQ(section("smartscan"), std::nullopt);
  EXPECT_EQ(section(""), std::nullopt);
}

}  // namespace
}  // namespace klarvik
