#include "shell/sidebar_texts.h"

#include <array>

#include "shell/percent_text.h"

namespace klarvik::sidebar {
namespace {

struct Look {
  std::string_view symbol;
  std::string_view group;
};

const Look& look(Section section) {
  static constexpr std::array<Look, sectionCount> table{{
      {"", ""},
      {"chart.bar.fill", "STORAGE"},
      {"doc.on.doc", "STORAGE"},
      {"doc.text.magnifyingglass", "STORAGE"},
      {"externaldrive", "STORAGE"},
      {"square.dashed", "APPS"},
      {"shield", "APPS"},
  }};
  return table[static_cast<std::size_t>(section)];
}

/// The tool's total, when it has one that is worth a word.
const ScanCoordinator::Total* shownTotal(Section section, const Totals& totals) {
  const auto found = totals.find(toolKey(section));
  return found != totals.end() && found->second.bytes >= 1 ? &found->second : nullptr;
}

}  // namespace

std::string_view symbol(Section section) {
  return look(section).symbol;
}

std::string_view group(Section section) {
  return look(section).group;
}

std::optional<std::string> trailing(Section section, const AppState::ScanState& scanState,
                                    const Totals& totals, const Formatting& formatting) {
  if (section == Section::storage) {
    return std::nullopt;
  }
  const auto* scanning = std::get_if<AppState::Scanning>(&scanState);
  if (section == Section::smartScan && scanning != nullptr) {
    return percentText(scanning->progress);
  }
  const ScanCoordinator::Total* total = shownTotal(section, totals);
  return total != nullptr ? std::optional(formatting.byteText(total->bytes)) : std::nullopt;
}

std::optional<std::string> help(Section section, const Totals& totals, const Words& words,
                                const Formatting& formatting) {
  const ScanCoordinator::Total* total = shownTotal(section, totals);
  if (total == nullptr) {
    return std::nullopt;
  }
  const std::string bytes = formatting.byteText(total->bytes);
  const std::string items = std::to_string(total->items);
  switch (section) {
    case Section::smartScan:
      return bytes + " of junk found in " + items + " items";
    case Section::storage:
      return std::nullopt;
    case Section::duplicates:
      return bytes + " reclaimable across " + items + " extra copies";
    case Section::largeFiles:
      return items + " files over the size threshold, " + bytes + " in total";
    case Section::systemData:
      return filledIn(words.systemDataHelp, bytes);
    case Section::uninstaller:
      return items + " apps installed, " + bytes + " on disk";
    case Section::privacy:
      return items + " trails, " + bytes;
  }
  return std::nullopt;
}

RightHand rightHand(const ToolActivity::State& activity,
                    const std::optional<std::string>& trailing) {
  if (const auto* progress = std::get_if<ToolActivity::Progress>(&activity)) {
    return {percentText(progress->fraction), false};
  }
  if (const auto* finished = std::get_if<ToolActivity::Finished>(&activity)) {
    return {finished->summary, true};
  }
  return {trailing.value_or(""), false};
}

bool isWorking(const ToolActivity::State& activity) {
  return std::holds_alternative<ToolActivity::Running>(activity) ||
         std::holds_alternative<ToolActivity::Progress>(activity);
}

}  // namespace klarvik::sidebar
