#include "state/section.h"

#include <algorithm>
#include <array>

#include "places/words.h"

namespace klarvik {

namespace {

constexpr std::string_view storageGroup = "STORAGE";
constexpr std::string_view appsGroup = "APPS";
constexpr Tool::Elsewhere notElsewhere{};

constexpr std::array table{
    Tool{.section = Section::smartScan,
         .key = "smartScan",
         .title = "Smart Scan",
         .symbol = "",
         .group = "",
         .turn = 0,
         .elsewhere = notElsewhere,
         .help =
             [](const Tool::Found& found) {
               return found.bytes + " of junk found in " + found.items + " items";
             }},
    Tool{.section = Section::storage,
         .key = "storage",
         .title = "Storage",
         .symbol = "chart.bar.fill",
         .group = storageGroup,
         .turn = 5,
         .elsewhere = notElsewhere,
         .help = nullptr},
    Tool{.section = Section::duplicates,
         .key = "duplicates",
         .title = "Duplicates",
         .symbol = "doc.on.doc",
         .group = storageGroup,
         .turn = 6,
         .elsewhere = {1, "in extra copies"},
         .help =
             [](const Tool::Found& found) {
               return found.bytes + " reclaimable across " + found.items + " extra copies";
             }},
    Tool{.section = Section::largeFiles,
         .key = "largeFiles",
         .title = "Large Files",
         .symbol = "doc.text.magnifyingglass",
         .group = storageGroup,
         .turn = 4,
         .elsewhere = {2, "in big files"},
         .help =
             [](const Tool::Found& found) {
               return found.items + " files over the size threshold, " + found.bytes + " in total";
             }},
    Tool{.section = Section::systemData,
         .key = "systemData",
         .title = "System Data",
         .symbol = "externaldrive",
         .group = storageGroup,
         .turn = 1,
         .elsewhere = {0, "removable"},
         .help =
             [](const Tool::Found& found) {
               return filledIn(found.words.systemDataHelp, found.bytes);
             }},
    Tool{.section = Section::uninstaller,
         .key = "uninstaller",
         .title = "Uninstaller",
         .symbol = "square.dashed",
         .group = appsGroup,
         .turn = 2,
         .elsewhere = notElsewhere,
         .help =
             [](const Tool::Found& found) {
               return found.items + " apps installed, " + found.bytes + " on disk";
             }},
    Tool{.section = Section::privacy,
         .key = "privacy",
         .title = "Privacy",
         .symbol = "shield",
         .group = appsGroup,
         .turn = 3,
         .elsewhere = {3, "of browsing trails"},
         .help = [](const Tool::Found& found) { return found.items + " trails, " + found.bytes; }},
};

constexpr bool everyRowStandsAtItsSection() {
  std::size_t at = 0;
  return std::ranges::all_of(
      table, [&at](const Tool& tool) { return tool.section == static_cast<Section>(at++); });
}
static_assert(everyRowStandsAtItsSection());

}  // namespace

std::span<const Tool> tools() {
  return table;
}

const Tool& tool(Section section) {
  return table[static_cast<std::size_t>(section)];
}

const Tool* toolOf(std::string_view key) {
  const auto* const found = std::ranges::find(table, key, &Tool::key);
  return found != table.end() ? found : nullptr;
}

std::string toolKey(Section section) {
  return std::string(tool(section).key);
}

}  // namespace klarvik
