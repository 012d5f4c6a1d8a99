#include "state/section.h"

#include <algorithm>
#include <array>

#include "places/words.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

constexpr std::string_view storageGroup = QT_TRANSLATE_NOOP("Engine", "STORAGE");
constexpr std::string_view appsGroup = QT_TRANSLATE_NOOP("Engine", "APPS");
constexpr Tool::Elsewhere notElsewhere{};

constexpr std::array table{
    Tool{.section = Section::smartScan,
         .key = "smartScan",
         .title = QT_TRANSLATE_NOOP("Engine", "Smart Scan"),
         .symbol = "",
         .group = "",
         .turn = 0,
         .elsewhere = notElsewhere,
         .help =
             [](const Tool::Found& found) {
               return filled(
                   translate("Tools", "%1 of junk found in %n items", nullptr, found.count),
                   found.bytes);
             }},
    Tool{.section = Section::storage,
         .key = "storage",
         .title = QT_TRANSLATE_NOOP("Engine", "Storage"),
         .symbol = "chart.bar.fill",
         .group = storageGroup,
         .turn = 5,
         .elsewhere = notElsewhere,
         .help = nullptr},
    Tool{.section = Section::duplicates,
         .key = "duplicates",
         .title = QT_TRANSLATE_NOOP("Engine", "Duplicates"),
         .symbol = "doc.on.doc",
         .group = storageGroup,
         .turn = 6,
         .elsewhere = {1, QT_TRANSLATE_NOOP("Engine", "in extra copies")},
         .help =
             [](const Tool::Found& found) {
               return filled(translate("Tools", "%1 reclaimable across %n extra copies", nullptr,
                                       found.count),
                             found.bytes);
             }},
    Tool{.section = Section::largeFiles,
         .key = "largeFiles",
         .title = QT_TRANSLATE_NOOP("Engine", "Large Files"),
         .symbol = "doc.text.magnifyingglass",
         .group = storageGroup,
         .turn = 4,
         .elsewhere = {2, QT_TRANSLATE_NOOP("Engine", "in big files")},
         .help =
             [](const Tool::Found& found) {
               return filled(translate("Tools", "%n files over the size threshold, %1 in total",
                                       nullptr, found.count),
                             found.bytes);
             }},
    Tool{.section = Section::systemData,
         .key = "systemData",
         .title = QT_TRANSLATE_NOOP("Engine", "System Data"),
         .symbol = "externaldrive",
         .group = storageGroup,
         .turn = 1,
         .elsewhere = {0, QT_TRANSLATE_NOOP("Engine", "removable")},
         .help =
             [](const Tool::Found& found) {
               return filled(translated(found.words.systemDataHelp), found.bytes);
             }},
    Tool{.section = Section::uninstaller,
         .key = "uninstaller",
         .title = QT_TRANSLATE_NOOP("Engine", "Uninstaller"),
         .symbol = "square.dashed",
         .group = appsGroup,
         .turn = 2,
         .elsewhere = notElsewhere,
         .help =
             [](const Tool::Found& found) {
               return filled(
                   translate("Tools", "%n apps installed, %1 on disk", nullptr, found.count),
                   found.bytes);
             }},
    Tool{.section = Section::privacy,
         .key = "privacy",
         .title = QT_TRANSLATE_NOOP("Engine", "Privacy"),
         .symbol = "shield",
         .group = appsGroup,
         .turn = 3,
         .elsewhere = {3, QT_TRANSLATE_NOOP("Engine", "of browsing trails")},
         .help =
             [](const Tool::Found& found) {
               return filled(translate("Tools", "%n trails, %1", nullptr, found.count),
                             found.bytes);
             }},
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

void Navigator::setSection(Section section) {
  if (setIfChanged(_section, section)) emit sectionChanged();
}

}  // namespace klarvik
