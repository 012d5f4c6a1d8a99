#include "shell/sidebar_texts.h"

#include "shell/percent_text.h"

namespace klarvik::sidebar {
namespace {

/// The tool's total, when it has one that is worth a word.
const ScanCoordinator::Total* shownTotal(Section section, const Totals& totals) {
  if (tool(section).help == nullptr) return nullptr;
  const auto found = totals.find(toolKey(section));
  return found != totals.end() && found->second.bytes >= 1 ? &found->second : nullptr;
}

}  // namespace

std::optional<std::string> trailing(Section section, const AppState::ScanState& scanState,
                                    const Totals& totals, const Formatting& formatting) {
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
  return tool(section).help(
      {formatting.byteText(total->bytes), std::to_string(total->items), words});
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
