#include "shell/sidebar_texts.h"

#include <gtest/gtest.h>

#include "places/disk_layout.h"

namespace klarvik::sidebar {
namespace {

const Formatting& english() {
  static const Formatting formatting("en_US");
  return formatting;
}

const DiskLayout& macDisk() {
  return layoutFor("/Users/ann");
}

const DiskLayout& linuxDisk() {
  return layoutFor("/home/ann");
}

Totals totalOf(Section section, std::int64_t bytes, std::int64_t items) {
  return {{toolKey(section), {bytes, items, Date{}}}};
}

std::string helpOf(Section section, const DiskLayout& disk = macDisk()) {
  return help(section, totalOf(section, 1'500'000, 1), disk.words, english()).value_or("");
}

TEST(SidebarLook, GivesEachSectionItsSymbolAndGroup) {
  struct Row {
    Section section;
    std::string_view symbol;
    std::string_view group;
  };
  for (const Row& row :
       {Row{Section::smartScan, "", ""}, Row{Section::storage, "chart.bar.fill", "STORAGE"},
        Row{Section::duplicates, "doc.on.doc", "STORAGE"},
        Row{Section::largeFiles, "doc.text.magnifyingglass", "STORAGE"},
        Row{Section::systemData, "externaldrive", "STORAGE"},
        Row{Section::uninstaller, "square.dashed", "APPS"},
        Row{Section::privacy, "shield", "APPS"}}) {
    EXPECT_EQ(tool(row.section).symbol, row.symbol) << toolKey(row.section);
    EXPECT_EQ(tool(row.section).group, row.group) << toolKey(row.section);
  }
}

TEST(SidebarTrailing, IsTheTotalOfTheTool) {
  for (const Tool& tool : tools()) {
    const Section section = tool.section;
    const auto text = trailing(section, AppState::Done{}, totalOf(section, 12'000, 3), english());
    if (section == Section::storage) {
      EXPECT_FALSE(text.has_value());
    } else {
      EXPECT_EQ(text, "12 KB") << tool.key;
    }
  }
}

TEST(SidebarTrailing, IsAbsentWithoutATotalAndAtZeroBytes) {
  EXPECT_FALSE(trailing(Section::privacy, AppState::Idle{}, {}, english()));
  EXPECT_FALSE(
      trailing(Section::privacy, AppState::Idle{}, totalOf(Section::privacy, 0, 4), english()));
}

TEST(SidebarTrailing, IsTheTruncatedPercentageOfARunningSmartScanOnly) {
  const AppState::ScanState scanning = AppState::Scanning{0.459, "Docker"};
  Totals totals = totalOf(Section::smartScan, 12'000, 3);
  totals.merge(totalOf(Section::privacy, 5'000, 1));
  EXPECT_EQ(trailing(Section::smartScan, scanning, totals, english()), "45%");
  EXPECT_EQ(trailing(Section::privacy, scanning, totals, english()), "5 KB");
  EXPECT_EQ(trailing(Section::smartScan, AppState::Done{}, totals, english()), "12 KB");
}

TEST(SidebarHelp, IsASentenceForEachSectionWithFixedPlurals) {
  EXPECT_EQ(helpOf(Section::smartScan), "1.5 MB of junk found in 1 items");
  EXPECT_EQ(helpOf(Section::storage), "");
  EXPECT_EQ(helpOf(Section::duplicates), "1.5 MB reclaimable across 1 extra copies");
  EXPECT_EQ(helpOf(Section::largeFiles), "1 files over the size threshold, 1.5 MB in total");
  EXPECT_EQ(helpOf(Section::systemData),
            "1.5 MB Klarvik can remove from the folders macOS keeps out of Storage settings");
  EXPECT_EQ(helpOf(Section::uninstaller), "1 apps installed, 1.5 MB on disk");
  EXPECT_EQ(helpOf(Section::privacy), "1 trails, 1.5 MB");
}

TEST(SidebarHelp, NamesNoSystemOnALinuxDisk) {
  EXPECT_EQ(helpOf(Section::systemData, linuxDisk()),
            "1.5 MB Klarvik can remove from the folders that apps keep out of sight");
}

TEST(SidebarHelp, IsAbsentWithoutATotalAndAtZeroBytes) {
  for (const Tool& tool : tools()) {
    const Section section = tool.section;
    EXPECT_FALSE(help(section, {}, macDisk().words, english())) << tool.key;
    EXPECT_FALSE(help(section, totalOf(section, 0, 9), macDisk().words, english())) << tool.key;
  }
}

TEST(SidebarRightHand, GivesTheActivityTheFirstWord) {
  EXPECT_EQ(rightHand(ToolActivity::Progress{0.999}, "12 KB"), (RightHand{"99%", false}));
  EXPECT_EQ(rightHand(ToolActivity::Finished{"3 MB"}, "12 KB"), (RightHand{"3 MB", true}));
  EXPECT_EQ(rightHand(ToolActivity::Idle{}, "12 KB"), (RightHand{"12 KB", false}));
  EXPECT_EQ(rightHand(ToolActivity::Running{}, "12 KB"), (RightHand{"12 KB", false}));
  EXPECT_EQ(rightHand(ToolActivity::Idle{}, std::nullopt), (RightHand{"", false}));
}

TEST(SidebarRightHand, ShowsALoaderWhileTheToolWorks) {
  EXPECT_TRUE(isWorking(ToolActivity::Running{}));
  EXPECT_TRUE(isWorking(ToolActivity::Progress{0}));
  EXPECT_FALSE(isWorking(ToolActivity::Idle{}));
  EXPECT_FALSE(isWorking(ToolActivity::Finished{"3 MB"}));
}

}  // namespace
}  // namespace klarvik::sidebar
