#include "platform/desktop_entry.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

constexpr std::string_view entry =
    "Exec=before any group\n"
    "[Desktop Action new]\n"
    "Exec=of another group\n"
    "[Desktop Entry]\r\n"
    "# Exec=remark\n"
    " Exec \t=  \"/usr/bin/klarvik\" a=b \r\n"
    "Exec=the second\n"
    "Hidden=\n"
    "[X-Other]\n"
    "Terminal=false\n";

TEST(DesktopEntry, TellsTheFirstValueOfItsOwnGroupWithoutTheBlanksAroundIt) {
  EXPECT_EQ(valueInDesktopEntry(entry, "Exec"), "\"/usr/bin/klarvik\" a=b");
}

TEST(DesktopEntry, TellsAnEmptyValueFromNone) {
  EXPECT_EQ(valueInDesktopEntry(entry, "Hidden"), "");
  EXPECT_EQ(valueInDesktopEntry(entry, "Terminal"), std::nullopt);
  EXPECT_EQ(valueInDesktopEntry("", "Exec"), std::nullopt);
}

TEST(DesktopEntry, NeedsNoNewlineAtItsEnd) {
  EXPECT_EQ(valueInDesktopEntry("[Desktop Entry]\nHidden=true", "Hidden"), "true");
}

}  // namespace
}  // namespace klarvik
