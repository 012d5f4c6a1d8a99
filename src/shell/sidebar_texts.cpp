#include "shell/sidebar_texts.h"

#include <algorithm>

#include "translation/translation.h"

namespace klarvik::sidebar {

double usedFraction(const DiskStats& stats) {
  if (stats.totalBytes < 1) {
    return 0;
  }
  const double used = static_cast<double>(stats.usedBytes) / static_cast<double>(stats.totalBytes);
  return std::clamp(used, 0.0, 1.0);
}

bool isNearlyFull(const DiskStats& stats) {
  return usedFraction(stats) > 0.9;
}

std::string percentFull(const DiskStats& stats) {
  return filled(translate("Shell", "%1 full"), percentText(usedFraction(stats)));
}

std::string freeLine(const DiskStats& stats, const Formatting& formatting) {
  return filled(translate("Kit", "%1 free of %2"), formatting.byteText(stats.freeBytes),
                formatting.byteText(stats.totalBytes));
}

namespace {

std::string itemCountText(std::int64_t count) {
  return (count == 1 ? translate("Shell", "1 item")
                     : translate("Shell", "%n items", nullptr, plural(count)))
      .toStdString();
}

std::string emptyingText(const std::optional<DeletionProgress>& progress) {
  if (!progress || progress->total < 1) {
    return translate("Shell", "Emptying…").toStdString();
  }
  return filled(translate("Shell", "Emptying %1 of %2"),
                std::to_string(std::min(progress->total, progress->completed + 1)),
                std::to_string(progress->total));
}

}  // namespace

std::string_view trashSymbol(const TrashMonitor::Figures& trash) {
  return trash.itemCount > 0 ? "trash.fill" : "trash";
}

std::string trashSubtitle(const TrashMonitor::Figures& trash, const Words& words,
                          const Formatting& formatting) {
  if (trash.isEmptying) {
    return emptyingText(trash.emptyProgress);
  }
  if (!trash.isReadable) {
    return translated(words.trashUnreadable).toStdString();
  }
  if (trash.itemCount == 0) {
    return translate("Shell", "Empty", "the Trash is").toStdString();
  }
  const std::string count = itemCountText(trash.itemCount);
  return trash.isMeasuring ? filled(translate("Shell", "%1 · measuring…"), count)
                           : formatting.byteText(trash.bytes) + " · " + count;
}

TrashBlockModel::Control trashControl(const TrashMonitor::Figures& trash,
                                      const DiskLayout& layout) {
  if (trash.isEmptying) {
    return TrashBlockModel::Control::Progress;
  }
  if (!trash.isReadable) {
    return layout.asksForFullDiskAccess() ? TrashBlockModel::Control::Grant
                                          : TrashBlockModel::Control::None;
  }
  return trash.itemCount == 0 ? TrashBlockModel::Control::None : TrashBlockModel::Control::Empty;
}

std::string trashControlHelp(const TrashMonitor::Figures& trash, const DiskLayout& layout,
                             const Formatting& formatting) {
  switch (trashControl(trash, layout)) {
    case TrashBlockModel::Control::Grant:
      return translate("Shell", "macOS keeps the Trash behind Full Disk Access").toStdString();
    case TrashBlockModel::Control::Empty:
      return filled(translate("Shell", "Delete everything in the Trash and reclaim %1"),
                    formatting.byteText(trash.bytes));
    case TrashBlockModel::Control::None:
    case TrashBlockModel::Control::Progress:
      return "";
  }
  return "";
}

std::string emptyTrashMessage(const TrashMonitor::Figures& trash, const Formatting& formatting) {
  return filled(translate("Shell", "%1 · %2. This cannot be undone."),
                itemCountText(trash.itemCount), formatting.byteText(trash.bytes));
}

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
  return tool(section).help({formatting.byteText(total->bytes), plural(total->items), words});
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
