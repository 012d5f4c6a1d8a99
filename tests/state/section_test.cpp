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

TEST(Section, HasATitleForTheSidebar) {
  std::vector<std::string_view> titles;
  for (const Section section : allSections()) titles.push_back(title(section));
  EXPECT_EQ(titles,
            (std::vector<std::string_view>{"Smart Scan", "Storage", "Duplicates", "Large Files",
                                           "System Data", "Uninstaller", "Privacy"}));
}

TEST(Section, NamesTheNotificationOfAChangedDisk) {
  EXPECT_STREQ(diskChangedNotification, "klarvik.diskChanged");
}

}  // namespace
}  // namespace klarvik
